#pragma once

#include "MvCalendar/MvSmallMonthGrid.h"

#include <QStringList>

class MvCalendariumRendererYear;
class QPainter;

/// Paints twelve small months for the renderer of years.
class MvYearGridPainter
{
public:
    /// Both must outlive it.
    MvYearGridPainter(MvCalendariumRendererYear &renderer, QPainter &painter);

    void paint(const QRectF &rect);

private:
    /// The names as the layout asks for them, shorter ones where a column is too narrow.
    QStringList weekdayHeads(double columnWidth) const;
    /// The week as the content writes it, its number alone where the column is too narrow.
    QString weekText(const QDate &monday) const;

    void paintMonth(const MvSmallMonthGrid &grid, const QString &name);
    void paintHeads(const MvSmallMonthGrid &grid);
    void paintWeek(const MvSmallMonthGrid &grid, int row);
    void paintDay(const QRectF &cell, const QDate &date);

    MvCalendariumRendererYear &m_renderer;
    QPainter &m_painter;
    MvSmallMonthGrid::Sizes m_sizes;
    QStringList m_weekdayHeads; // Monday first
    QString m_weekHead;
    bool m_hasWeekNumbersOnly = false;
};
