// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvMonthMarks.h"

#include "MvCalendar/MvCalendariumDay.h"
#include "MvCalendar/MvCalendariumRenderer.h"

namespace {

constexpr int daysPerWeek = 7;
constexpr int monthsPerYear = 12;

/// Of a list: between any two days there is a row for the head of a week.
int listRow(const QDate &date)
{
    return 2 * date.day();
}

} // namespace

MvPaintMarking MvMonthMarks::table() const
{
    return {m_painter, MvPaintMark::Kind::Table, m_month.year() * monthsPerYear + m_month.month()};
}

MvPaintMarking MvMonthMarks::title(const QString &text) const
{
    return {m_painter, MvPaintMark::Kind::Title, 0, 0, {text.simplified()}};
}

MvPaintMarking MvMonthMarks::weekdayHead(int column) const
{
    return {
        m_painter, MvPaintMark::Kind::ColumnHead, 0, 1 + column, {m_renderer.dayName(column % daysPerWeek + 1, false)}};
}

MvPaintMarking MvMonthMarks::weeksHead() const
{
    return {m_painter, MvPaintMark::Kind::ColumnHead, 0, 0};
}

MvPaintMarking MvMonthMarks::week(const QDate &date) const
{
    return {m_painter, MvPaintMark::Kind::RowHead, 1 + daysBefore(date) / m_daysPerRow, 0};
}

MvPaintMarking MvMonthMarks::day(const QDate &date) const
{
    const int before = daysBefore(date);
    return {m_painter, MvPaintMark::Kind::Cell, 1 + before / m_daysPerRow, 1 + before % m_daysPerRow, textsOf(date)};
}

MvPaintMarking MvMonthMarks::listHead(int column) const
{
    return {m_painter, MvPaintMark::Kind::ColumnHead, 0, 1 + column};
}

MvPaintMarking MvMonthMarks::listedWeek(const QDate &date) const
{
    const QString text = m_renderer.weekShort() + u' ' + QString::number(date.weekNumber());
    return {m_painter, MvPaintMark::Kind::RowHead, listRow(date) - 1, 0, {text}};
}

MvPaintMarking MvMonthMarks::listedHead(const QDate &date) const
{
    return {m_painter, MvPaintMark::Kind::RowHead, listRow(date), 0};
}

MvPaintMarking MvMonthMarks::listedDay(const QDate &date) const
{
    return {m_painter, MvPaintMark::Kind::Row, listRow(date), 1, textsOf(date)};
}

MvPaintMarking MvMonthMarks::listedTexts(const QDate &date, int column, const QStringList &texts) const
{
    return {m_painter, MvPaintMark::Kind::Row, listRow(date), 1 + column,
            QStringList(QString::number(date.day())) + texts};
}

MvPaintMarking MvMonthMarks::decoration() const
{
    return {m_painter, MvPaintMark::Kind::Decoration};
}

QStringList MvMonthMarks::textsOf(const QDate &date) const
{
    return QStringList(QString::number(date.day())) + m_renderer.day(date).texts;
}

/// Since the Monday that the table begins with.
int MvMonthMarks::daysBefore(const QDate &date) const
{
    return int(MvCalendariumRenderer::mondayOfWeekWithDay(m_month).daysTo(date));
}
