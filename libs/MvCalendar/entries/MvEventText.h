// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QColor>
#include <QDate>
#include <QList>
#include <QString>

class MvCalendarEvent;
class MvEventGroupList;
struct MvEntryDisplay;

/// What a page writes of an entry on one of its days.
struct MVCALENDAR_EXPORT MvEventText
{
    /// How the entry reads in a column of this group alone.
    struct Group
    {
        QString name;
        QColor color; ///< invalid: as the page writes
        QString text;

        bool operator==(const Group &) const = default;
    };

    QString text;
    QColor color;        ///< of its first group that is shown and has one; else invalid
    QList<Group> groups; ///< of its groups that are shown
    QDate start;         ///< first and last day of the occurrence
    QDate end;

    bool isSpan() const { return start < end; }

    bool operator==(const MvEventText &) const = default;

    /// Of the occurrence that begins on the start day. Its text is that of the first group that has a pattern, else
    /// that of the display; a pattern with an age or a year gives the name alone where that is not known. In a column
    /// of a group that has a pattern it is that of the group, with its symbol.
    static MvEventText of(const MvCalendarEvent &event, const QDate &start, const MvEventGroupList &groups,
                          const MvEntryDisplay &display);
    /// False when all groups of the entry are hidden; an entry without groups is always shown.
    static bool isShown(const MvCalendarEvent &event, const MvEntryDisplay &display);
    /// A pattern filled: "Jörg (60)" for "%name (%age)", "Jörg (60!)" for "%name (%age%round)".
    static QString filled(const QString &pattern, const MvCalendarEvent &event, const QDate &start);

    /// Ages that people celebrate more than others: full tens, 25 and 75.
    static bool isRound(int years);
    /// Whether a pattern marks them, with "%round".
    static bool marksRound(const QString &pattern);
    /// The pattern with the mark behind each age, or without any.
    static QString withRoundMarked(const QString &pattern, bool isMarked);
};
