// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvPaint/MvPaintRecording.h"

#include <memory>

/// A calendarium in the box font with a simple layout, and what a pass of it records.
class MvPageFixture
{
public:
    /// The bytes between the tags of a layout: cells. The grid is on, lines black.
    static MvCalendariumAppearance appearance(const QString &renderInfo, const QString &cells = defaultCells(),
                                              const QString &type = QStringLiteral("CALENDAR_ONE_WEEK_PER_ROW"));
    /// Numbers of 50 pixels (18 points) top left, heads of 25; no borders.
    static QString defaultCells();

    /// Public holidays, colours, entries and vacations of Bayern, unless features say otherwise.
    static MvCalendariumContentConfig content(const QDate &month, int features = 1 | 2 | 4 | 8);

    explicit MvPageFixture(const MvCalendariumAppearance &appearance, const QDate &month, int features = 1 | 2 | 4 | 8);

    MvCalendariumRenderer &renderer() { return *m_renderer; }
    /// One pass, in page units.
    MvPaintRecording render(const QRectF &rect, unsigned renderingRule = 0);

    /// The words of its texts, in the order of painting.
    static QStringList texts(const MvPaintRecording &recording);

    struct Day
    {
        QDate date;
        QRectF rect;
    };
    /// What the last pass reported.
    QList<Day> days;
    int restarts = 0;

private:
    std::unique_ptr<MvCalendariumRenderer> m_renderer;
};
