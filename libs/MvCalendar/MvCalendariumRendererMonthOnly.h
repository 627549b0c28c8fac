#pragma once

#include "MvCalendar/MvCalendariumRenderer.h"

/// No dates: one cell with the month's name and the year. Also stands in for unknown kinds of calendarium.
class MVCALENDAR_EXPORT MvCalendariumRendererMonthOnly : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    using MvCalendariumRenderer::MvCalendariumRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    QSize minimumSizeHint() const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
};
