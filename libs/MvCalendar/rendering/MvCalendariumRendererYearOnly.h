// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumRenderer.h"

/// No dates: one cell with the year, the years that the calendar spans, or its school year.
class MVCALENDAR_EXPORT MvCalendariumRendererYearOnly : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    using MvCalendariumRenderer::calendarYear;
    using MvCalendariumRenderer::MvCalendariumRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    QSize minimumSizeHint() const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;

    /// The text of the cell: of the date's year, or, for an invalid date, of the page and the whole calendar. Where all
    /// years are shown, the appearance's column headers stand between them, a slash if there are none.
    QString calendarYear(const QDate &date) const;

private:
    bool showsMonth() const;
    QString yearSeparator() const;
};
