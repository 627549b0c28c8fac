// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEventRepetition.h"

#include <QDate>
#include <QStringList>
#include <QTime>

class MvCalendarEventTexts;

/// What few entries have: how they repeat beyond every year, how long they last, whom they are about.
struct MvCalendarEventExtras
{
    MvEventRepetition repetition;
    QDate endDate;
    QTime time;
    QStringList groups;

    MvCalendarEventExtras() = default;
    /// From the texts of an entry in a file; what cannot be read takes its default.
    explicit MvCalendarEventExtras(const MvCalendarEventTexts &texts);

    /// What of the texts cannot be read, for a person; empty when everything can be.
    static QString whyUnreadable(const MvCalendarEventTexts &texts);
    /// The names and texts of its elements in a file; none for what has its default.
    QList<std::pair<QString, QString>> fileTexts() const;

    bool operator==(const MvCalendarEventExtras &) const = default;
};
