// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumMonthRenderer.h"

class MvWeekdayHeads;

/// The strip: a month in one row, each day a column with its weekday above its number. Too narrow for the names of
/// holidays, it tells them by colour alone. Where the numbers of a month cannot stand side by side even in the smallest
/// type, and there is height for it, the days go on in further rows.
class MVCALENDAR_EXPORT MvCalendariumRendererOneRow : public MvCalendariumMonthRenderer
{
    Q_OBJECT

public:
    using MvCalendariumMonthRenderer::MvCalendariumMonthRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    /// Of a month of 31 days with four Sundays and five Saturdays, always with the title.
    QSize minimumSizeHint() const override;
    /// The numbers of two days do not touch.
    bool hasRoom(const QSizeF &room) const override;
    /// True, whether or not the layout shows the title.
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    bool hasOneHeaderPerDay() const override;
    /// Also where the days go on in another row.
    bool isRowStart(const QDate &date) const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    /// Never round the title.
    bool shouldIPaintTheBorder(const MvCalendarCellTypeConfig &config) const override;

    /// The same for all types: the width over the days of the date's month, 31 for an invalid date.
    double widthOfCell(const QRectF &rect, const MvCalendarCellType &type, const QDate &date) const;
    /// The share of the height that title, weekdays (CALENDAR_CELL_TYPE_HEAD_WEEKDAY) or numbers
    /// (CALENDAR_CELL_TYPE_WEEKDAY) take; 0 for other types. The numbers take the remainder of whole units.
    double heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const;

private:
    static constexpr int mostDays = 31;

    /// What the rows of days are made of; the title stands above them.
    struct Bands
    {
        int rows = 1;
        int columns = 0;
        double title = 0.0;
        double head = 0.0;
        QSizeF day;
    };
    Bands bands(const QRectF &rect) const;
    double plannedHeight(int rows) const;
    void drawHead(QPainter &painter, const QRectF &cell, const QDate &date, const MvWeekdayHeads &heads);

    int m_columns = mostDays; // of the last pass
};
