// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumCellLine.h"

#include <QColor>
#include <QList>
#include <QStringList>

/// Lines of several texts, in the colours of these.
struct MvColorRuns
{
    using Line = QList<MvCalendariumCellLine::Run>;

    /// For each of the lines, in which the texts stand in their order: each on lines of its own, or one after the other
    /// with ", " between them, divided and cut off as it may be. What is between two texts belongs to the first. A text
    /// without a colour takes the last that is given.
    static QList<Line> of(const QStringList &lines, const QStringList &texts, const QList<QColor> &colors);
};
