// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvSpanBars.h"

#include <algorithm>

namespace {

// page units
constexpr double barWidth = 6.0;
constexpr double lanePitch = 9.0;
constexpr double edgeGap = 5.0;
constexpr double endGap = 8.0;  // where an entry begins or ends, so that one after the other stay apart
constexpr double overlap = 0.3; // into the next cell: no hairline between the parts of a bar

} // namespace

MvSpanBars::Bars MvSpanBars::barsOf(const QDate &day, const QDate &first,
                                    const std::function<QList<MvEventText>(const QDate &)> &entries)
{
    const auto known = m_months.find(first);
    const Lanes &lanes =
        known != m_months.end()
            ? known->second
            : m_months.emplace(first, arranged(first, first.addDays(first.daysInMonth() - 1), entries)).first->second;
    return lanes.value(day.toJulianDay());
}

/// Day by day: who goes on keeps the lane, who begins takes the first that is free.
MvSpanBars::Lanes MvSpanBars::arranged(const QDate &first, const QDate &last,
                                       const std::function<QList<MvEventText>(const QDate &)> &entries)
{
    Lanes lanes;
    QList<MvEventText> running; // by lane; one without a text: free
    for (QDate day = first; day <= last; day = day.addDays(1)) {
        QList<MvEventText> spans = entries(day);
        spans.removeIf([](const MvEventText &entry) { return !entry.isSpan(); });
        for (MvEventText &lane : running) {
            if (!spans.removeOne(lane))
                lane = {};
        }
        for (const MvEventText &span : std::as_const(spans)) {
            const auto free = std::find_if(running.begin(), running.end(),
                                           [](const MvEventText &lane) { return lane.text.isEmpty(); });
            if (free != running.end())
                *free = span;
            else
                running.append(span);
        }
        Bars bars;
        for (qsizetype lane = 0; lane < running.size(); ++lane) {
            const MvEventText &span = running.at(lane);
            if (!span.text.isEmpty())
                bars.append(
                    {int(lane), span.color, span.groups, span.start == day, span.end == day, span.text, span.start});
        }
        if (!bars.isEmpty())
            lanes.insert(day.toJulianDay(), bars);
    }
    return lanes;
}

double MvSpanBars::thickness(const Bars &bars)
{
    return bars.isEmpty() ? 0.0 : edgeGap + lanePitch * (bars.constLast().lane + 1);
}

QRectF MvSpanBars::rectOf(const Bar &bar, const QRectF &cell, Qt::Edge edge)
{
    const double from = edgeGap + lanePitch * bar.lane;
    const double begin = bar.begins ? endGap : 0.0;
    const double end = bar.ends ? endGap : -overlap;
    switch (edge) {
    case Qt::TopEdge:
        return {QPointF(cell.left() + begin, cell.top() + from),
                QPointF(cell.right() - end, cell.top() + from + barWidth)};
    case Qt::BottomEdge:
        return {QPointF(cell.left() + begin, cell.bottom() - from - barWidth),
                QPointF(cell.right() - end, cell.bottom() - from)};
    case Qt::LeftEdge:
        return {QPointF(cell.left() + from, cell.top() + begin),
                QPointF(cell.left() + from + barWidth, cell.bottom() - end)};
    case Qt::RightEdge:
        break;
    }
    return {QPointF(cell.right() - from - barWidth, cell.top() + begin),
            QPointF(cell.right() - from, cell.bottom() - end)};
}

QRectF MvSpanBars::rest(const Bars &bars, const QRectF &cell, Qt::Edge edge)
{
    const double taken = thickness(bars);
    return cell.adjusted(edge == Qt::LeftEdge ? taken : 0.0, edge == Qt::TopEdge ? taken : 0.0,
                         edge == Qt::RightEdge ? -taken : 0.0, edge == Qt::BottomEdge ? -taken : 0.0);
}
