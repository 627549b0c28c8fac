// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumMonthRenderer.h"

class MvWeekdayHeads;

/// The month as columns, one per week from Monday down to Sunday, headed by the calendar week. Weekdays stand beside
/// every day, or once in front of the first week (calendar_render_days_of_week_only_in_front): then cells hold plain
/// numbers, without the texts and photos of their days.
class MVCALENDAR_EXPORT MvCalendariumRendererOneColumnPerWeek : public MvCalendariumMonthRenderer
{
    Q_OBJECT

public:
    using MvCalendariumMonthRenderer::MvCalendariumMonthRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    QSize minimumSizeHint() const override;
    /// False: the columns have no title.
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    bool isRowStart(const QDate &date) const override;
    Qt::Edge spanEdge(const QDate &date) const override;
    /// Calendar weeks are configured by the content and by the appearance, not by the layout.
    bool isConfigured(const MvCalendarRenderingInformation &info) const override;

    /// Weekday heads take whole units, the days of the date's month the remainder; a week is as wide as both. Heads are
    /// planned for the longest long name, or short one where the layout says short names, and give way where numbers
    /// would have no room. 0 for types that are not shown.
    double widthOfCell(const QRectF &rect, const MvCalendarCellType &type, const QDate &date) const;
    /// With the weekdays in front. The heads of holidays and vacations are as wide as days.
    double widthOfCellTypeWithWeekdaysInFront(const QRectF &rect, const MvCalendarCellType &type,
                                              const QDate &date) const;
    /// Days and heads take whole units, the calendar week the remainder; 0 for types that are not shown.
    double heightOfCell(const QRectF &rect, const MvCalendarCellType &type) const;
    /// Of six weeks, whatever the month.
    double minimumWidth() const;
    double minimumHeight() const;
    QSize minimumSizeWithWeekdaysInFront() const;

private:
    int headWidth(const QRectF &rect, int weeks) const;
    double columnWidthWithWeekdaysInFront(const QRectF &rect, int weeks) const;
    double plannedHeadWidth() const;
    double leastHeadWidth() const;
    bool hasHeadsInFront() const;

    void renderBaseWithWeekdaysInFront(QPainter &painter, const QRectF &rect);
    void renderWeekdaysInFront(QPainter &painter, const QRectF &rect);
    void renderWeekHead(QPainter &painter, const QRectF &cell, const QDate &monday);
    void renderWeek(QPainter &painter, const QRectF &rect, const QRectF &column, const QDate &monday,
                    const MvWeekdayHeads &heads);
    void renderPlainWeek(QPainter &painter, const QRectF &rect, const QRectF &column, const QDate &monday);
};
