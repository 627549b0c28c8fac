// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintMark.h"

#include <QDate>

class MvCalendariumRenderer;

/// Says of what is painted which part of a month it is, so that the month can be read as a table, day after day.
///
/// Layouts with weekdays above or beside their weeks are a table of weeks, whichever way these run on the page; layouts
/// in which every day has its weekday beside it are a list of days: a row for each, headed by weekday and number.
class MvMonthMarks
{
public:
    /// Of the month with that first day. What is handed over must outlive the marks.
    MvMonthMarks(const MvCalendariumRenderer &renderer, QPainter &painter, const QDate &month, int daysPerRow = 7)
        : m_renderer(renderer)
        , m_painter(painter)
        , m_month(month)
        , m_daysPerRow(daysPerRow)
    {}

    /// Around all of the month.
    MvPaintMarking table() const;
    MvPaintMarking title(const QString &text) const;

    // a table of weeks
    /// The column counts from 0.
    MvPaintMarking weekdayHead(int column) const;
    /// Above the weeks' numbers.
    MvPaintMarking weeksHead() const;
    MvPaintMarking week(const QDate &date) const;
    MvPaintMarking day(const QDate &date) const;

    // a list of days
    MvPaintMarking listHead(int column) const;
    /// The week that begins with the day, or goes on with it.
    MvPaintMarking listedWeek(const QDate &date) const;
    /// Weekday, number.
    MvPaintMarking listedHead(const QDate &date) const;
    MvPaintMarking listedDay(const QDate &date) const;
    /// Some of a day's texts; the column counts from 0.
    MvPaintMarking listedTexts(const QDate &date, int column, const QStringList &texts) const;

    /// What is painted again for the eye.
    MvPaintMarking decoration() const;

private:
    QStringList textsOf(const QDate &date) const;
    int daysBefore(const QDate &date) const;

    const MvCalendariumRenderer &m_renderer;
    QPainter &m_painter;
    const QDate m_month;
    const int m_daysPerRow;
};
