// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QColor>
#include <QList>

class MvCalendariumAppearance;

/// What the days of some pages stand on: the grounds of weekdays, Saturdays, Sundays, holidays and vacations, for
/// judging a colour in which something is to be written on all of them.
class MVCALENDAR_EXPORT MvDayGrounds
{
public:
    /// What texts should have on their ground at least.
    static constexpr double readableContrast = 4.5;

    /// Adds those of an appearance on paper of the colour; an invalid one is white.
    void add(const MvCalendariumAppearance &appearance, const QColor &paper = {});
    bool isEmpty() const { return m_grounds.isEmpty(); }

    /// The lowest contrast of an opaque colour, 1 to 21; 21 where there are no grounds.
    double contrast(const QColor &color) const;
    /// The kinds of days on which it cannot be read.
    QList<MvCalendarCellType> unreadableOn(const QColor &color) const;
    /// The same hue in the nearest lightness that can be read on all of them, the colour itself where it can; invalid
    /// when there is none, as between light and dark grounds.
    QColor nearestReadable(const QColor &color) const;

private:
    struct Ground
    {
        MvCalendarCellType type;
        QColor color; // on its paper, opaque
    };

    QList<Ground> m_grounds; // each once
};
