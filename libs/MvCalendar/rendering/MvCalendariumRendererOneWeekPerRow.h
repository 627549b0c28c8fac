// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumMonthRenderer.h"

/// The month grid: title, weekday names and one row per week, led by its calendar week where that is configured.
class MVCALENDAR_EXPORT MvCalendariumRendererOneWeekPerRow : public MvCalendariumMonthRenderer
{
    Q_OBJECT

public:
    using MvCalendariumMonthRenderer::MvCalendariumMonthRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    QSize minimumSizeHint() const override;
    bool hasRoom(const QSizeF &room) const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    QStringList maxmimumWidthCalendarWeekText() const override;
    /// Calendar weeks are configured by the content and by the appearance as well as by the layout.
    bool isRowStart(const QDate &date) const override;
    bool isConfigured(const MvCalendarRenderingInformation &info) const override;

    /// The share of the rectangle's height that title, head line or a week row takes in the date's month; 0 for other
    /// types. The head line takes the remainder, so that all shares sum up to the height.
    double heightOfCell(const QRectF &rect, const MvCalendarCellType &type, const QDate &date) const;
    /// The column of calendar weeks keeps its planned width, the days share the rest.
    double widthOfCell(const QRectF &rect, const MvCalendarCellType &type) const;
    double planedWeekOfYearWidth() const;
    double planedNormalCellWidth() const;
    /// Of six rows, whatever the month.
    int minimumHeight() const;
    int minimumWidth() const;

protected:
    // each paints from y downwards; the first two give the y below what they painted
    double renderMonth(QPainter &painter, const QRectF &rect, double y);
    double renderHeadline(QPainter &painter, const QRectF &rect, double y);
    void renderDayCells(QPainter &painter, const QRectF &rect, double y);
    /// Nothing: the grid is made of the cells' borders.
    void paintGrid(QPainter &painter, const QRectF &rect);

private:
    void renderWeek(QPainter &painter, const QRectF &firstDay, const QDate &monday, int month, bool even);
};
