// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumMonthRenderer.h"

/// The month in three rows of two weeks each, under an optional title and the weekdays of both weeks.
class MVCALENDAR_EXPORT MvCalendariumRendererTwoWeeksPerRow : public MvCalendariumMonthRenderer
{
    Q_OBJECT

public:
    using MvCalendariumMonthRenderer::MvCalendariumMonthRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    /// Counts the weekday heads even where the layout shows none.
    QSize minimumSizeHint() const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    bool isRowStart(const QDate &date) const override;

    /// The same for all types: a fourteenth of the width.
    double widthOfCell(const QRectF &rect, const MvCalendarCellType &type) const;
    /// The share of the height that a line of the type takes. The weekday heads take the remainder of whole units; the
    /// heads of holidays and vacations are as high as days, those of Saturdays and Sundays, like all other types, 0.
    double heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const;

private:
    void renderHeadline(QPainter &painter, const QRectF &line);
    void renderRow(QPainter &painter, const QRectF &row, const QDate &monday);
};
