// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererMonthOnly.h"

MvCalendariumDisplayAbilities MvCalendariumRendererMonthOnly::abilities() const
{
    return ABILITY_NONE;
}

QSize MvCalendariumRendererMonthOnly::minimumSizeHint() const
{
    const QSizeF text = maximumSizeOfStrings(CALENDAR_CELL_TYPE_MONTH, {calendarMonth(startDate())});
    return (text + paddingDifference(CALENDAR_CELL_TYPE_MONTH)).toSize();
}

bool MvCalendariumRendererMonthOnly::rendersMonthInformation() const
{
    return true;
}

QList<MvCalendarCellType> MvCalendariumRendererMonthOnly::usedCellTypes() const
{
    return {CALENDAR_CELL_TYPE_MONTH};
}

void MvCalendariumRendererMonthOnly::renderBase(QPainter &painter, const QRectF &rect)
{
    if (!(rect.width() > 0.0) || !(rect.height() > 0.0))
        return;
    drawCellBackground(painter, rect, MvCalendarCellTypeConfig(CALENDAR_CELL_TYPE_MONTH), true);
    drawMonth(painter, rect, CALENDAR_CELL_TYPE_MONTH, QString());
}
