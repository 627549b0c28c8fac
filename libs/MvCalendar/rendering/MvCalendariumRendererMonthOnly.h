// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumMonthRenderer.h"

/// No dates: one cell with the month's name and the year, in type as large as all months of the calendar have room for.
/// Also stands in for unknown kinds of calendarium.
class MVCALENDAR_EXPORT MvCalendariumRendererMonthOnly : public MvCalendariumMonthRenderer
{
    Q_OBJECT

public:
    using MvCalendariumMonthRenderer::MvCalendariumMonthRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    QSize minimumSizeHint() const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
};
