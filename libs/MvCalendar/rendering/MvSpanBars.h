// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEventText.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QRectF>

#include <functional>
#include <map>

class QPainter;

/// The quiet bars through the days of entries that last several: each has its lane, the same on all its days of a page,
/// so that it goes on from cell to cell.
class MVCALENDAR_EXPORT MvSpanBars
{
public:
    struct Bar
    {
        int lane;
        QColor color; ///< invalid: as the page writes
        QList<MvEventText::Group> groups;
        bool begins;
        bool ends;
        QString text;
        QDate start; ///< of the entry, with its text who it is
    };
    using Bars = QList<Bar>;

    static constexpr int mostLanes = 4; ///< that a cell shows; bars of others have no room

    /// Bars of a day among those of the days from `first` on, of which the function gives the entries.
    Bars barsOf(const QDate &day, const QDate &first, const std::function<QList<MvEventText>(const QDate &)> &entries);
    void clear() { m_months.clear(); }

    /// How much of a cell's edge the lanes take up; 0 without bars. Page units.
    static double thickness(const Bars &bars);
    /// Where the bar is on that edge of the cell.
    static QRectF rectOf(const Bar &bar, const QRectF &cell, Qt::Edge edge);
    /// The cell without the lanes.
    static QRectF rest(const Bars &bars, const QRectF &cell, Qt::Edge edge);

private:
    using Lanes = QHash<qint64, Bars>; // by Julian day
    static Lanes arranged(const QDate &first, const QDate &last,
                          const std::function<QList<MvEventText>(const QDate &)> &entries);

    std::map<QDate, Lanes> m_months; // by first day
};
