#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/MvYearPlanner.h"

#include <QColor>
#include <QFont>
#include <QHash>

class MvCalendariumRendererYear;
class QPainter;

/// Paints the planner for the renderer of years.
class MvYearPlannerPainter
{
public:
    /// Both must outlive it.
    MvYearPlannerPainter(MvCalendariumRendererYear &renderer, QPainter &painter);

    void paint(const QRectF &rect);

private:
    /// How the texts of a type of cell are set; the same for all days of a pass.
    struct Style
    {
        QFont texts;
        double lineHeight = 0.0; // of the texts
        double baseline = 0.0;   // of the number, below the middle of its cell
        double textBaseline = 0.0;
        double rightPadding = 0.0;
        double leftPadding = 0.0;
        int flags = 0;
    };

    const Style &style(const MvCalendarCellType &type);
    /// Below the middle of the cell, when the text is centred vertically.
    double baseline(const MvCalendarCellType &type, const QFont &font) const;

    void paintMonth(const MvYearPlanner &planner, int column, const QString &name);
    void paintDay(const MvYearPlanner &planner, const QRectF &cell, const QDate &date);
    void paintFront(const MvYearPlanner::Parts &parts, const MvCalendarCellTypeConfig &config, const QDate &date,
                    bool even);
    void paintWeek(const QRectF &part, const MvCalendarCellTypeConfig &config, const QDate &date, bool even);
    void paintTexts(const MvYearPlanner &planner, const QRectF &inner, const QStringList &lines, const Style &style);
    /// The room for texts in the part of a cell.
    QRectF innerRect(const MvYearPlanner &planner, const QRectF &part, const Style &style) const;
    QStringList fittingLines(const QStringList &texts, const QSizeF &size, const Style &style, bool *isCut) const;

    MvCalendariumRendererYear &m_renderer;
    QPainter &m_painter;
    QHash<MvCalendarCellType, Style> m_styles;
    QStringList m_weekdays; // short, Monday first
};
