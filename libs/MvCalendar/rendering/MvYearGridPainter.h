// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvSmallMonthGrid.h"

#include <QFont>

class MvCalendarCellTypeConfig;
class MvWeekdayHeads;
class MvCalendariumRendererYear;
class MvMonthMarks;
class QPainter;

/// Paints twelve small months for the renderer of years.
class MvYearGridPainter
{
public:
    /// Both must outlive it.
    MvYearGridPainter(MvCalendariumRendererYear &renderer, QPainter &painter);

    void paint(const QRectF &rect);

private:
    void prepareTexts();
    bool haveNumbersRoom() const;
    /// The week as the content writes it, its number alone where the column is too narrow.
    QString weekText(const QDate &monday) const;

    void paintMonth(const MvSmallMonthGrid &grid, const QDate &month, const QString &name);
    void paintHeads(const MvSmallMonthGrid &grid, const QDate &month, const MvWeekdayHeads &heads);
    /// False when the text has no room between blank edges of that width; it is left out then.
    bool paintCell(const QRectF &cell, const MvCalendarCellTypeConfig &config, const QString &text, const QFont &font,
                   bool even, double edge = 0.0);
    void paintWeek(const MvSmallMonthGrid &grid, int row, const MvMonthMarks &marks);
    void paintDay(const QRectF &cell, const QDate &date);

    MvCalendariumRendererYear &m_renderer;
    QPainter &m_painter;
    MvSmallMonthGrid::Sizes m_sizes;
    QFont m_nameFont;
    QFont m_weekFont;
    QString m_weekHead;
    bool m_hasWeekNumbersOnly = false;
    bool m_hasNumbers = true;
};
