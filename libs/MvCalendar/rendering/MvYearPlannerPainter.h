// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/MvYearPlanner.h"
#include "MvPaint/MvTextFitter.h"

#include <QColor>
#include <QFont>

#include <optional>
#include <unordered_map>

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
        QFont font; // of numbers and weekdays
        MvTextFitter texts;
        double lineHeight = 0.0;   // of the texts
        double smallestLine = 0.0; // the same in their smallest type
        double rightPadding = 0.0;
        double leftPadding = 0.0;
    };
    struct Texts
    {
        MvFittedText set;
        qsizetype whole = 0; // how many of the day's texts are printed whole
    };

    const Style &style(const MvCalendarCellType &type);
    /// Whether texts stand as they are written, in the size of the layout.
    static bool areAsWritten(const Texts &texts, const QStringList &written, const Style &style);
    void reportMissingWeekdays();

    void paintMonth(const MvYearPlanner &planner, int column, const QString &name);
    void paintDay(const MvYearPlanner &planner, const QRectF &cell, const QDate &date);
    /// Number and weekday; gives their baseline, none where the number has no room.
    std::optional<double> paintFront(const MvYearPlanner::Parts &parts, const QRectF &cell,
                                     const MvCalendarCellTypeConfig &config, const QDate &date, bool even);
    void paintWeek(const QRectF &part, const MvCalendarCellTypeConfig &config, const QDate &date, bool even,
                   double baseline);
    /// The colours are those of the written texts; the other one is for all when there are none.
    void paintTexts(const MvYearPlanner &planner, const QRectF &inner, const Texts &texts, double baseline,
                    const QStringList &written, const QList<QColor> &colors, const QColor &other);
    /// The room for texts in the part of a cell.
    QRectF innerRect(const MvYearPlanner &planner, const QRectF &part, const Style &style) const;
    Texts fittingTexts(const QStringList &texts, const QRectF &inner, const Style &style) const;
    /// A line of it is not painted, since what is seen of it is higher than the room: accents may be.
    static bool isTooHigh(const MvFittedText &set, const QSizeF &room);
    /// As many lines as there is room for.
    Texts setTexts(const QStringList &texts, const QSizeF &room, const Style &style) const;

    MvCalendariumRendererYear &m_renderer;
    QPainter &m_painter;
    std::unordered_map<int, Style> m_styles;
    QFont m_nameFont;
    QRectF m_rect;
    QSizeF m_weekdaySize; // of the part of a cell
    bool m_hasReportedWeekdays = false;
    QStringList m_weekdays; // short, Monday first
};
