// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryChange.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QList>

#include <optional>

/// What becomes of an entry that is moved: an entry that lasts several days goes as a whole, and of one that repeats
/// either all times go or one.
///
/// When one of its days is moved to another, all times go as this one goes: its weekday, its day of the month or its
/// day of the year becomes the new one, and exceptions, dates of its own and the end of the repetition go along. A
/// birthday keeps its year of birth. This one time becomes an exception and an entry of its own.
class MVCALENDAR_EXPORT MvEntryMove
{
public:
    /// The first day may be any of the occurrence that is moved.
    MvEntryMove(const MvCalendarEvent &event, const QDate &from, const QDate &to);

    const MvCalendarEvent &event() const { return m_event; }
    /// Nothing is moved: the days are the same, or the entry is not on the first one.
    bool isNone() const { return !m_start.isValid() || m_start == m_newStart; }
    /// The entry may be on other days, too.
    static bool doesRepeat(const MvCalendarEvent &event);
    /// The first day of the occurrence, and what it will be.
    QDate start() const { return m_start; }
    QDate newStart() const { return m_newStart; }

    /// False for a rule of which one day cannot stand for the others, and where the new day is none in the entry's own
    /// year: 29 February. The occurrence alone can be moved then.
    bool canMoveAll() const { return m_moved.has_value(); }

    // What is to be done. The entry may be given with further changes, such as another name: those go where the move
    // goes. None when nothing is moved.
    QList<MvEntryChange> allTimes(const MvCalendarEvent &changed) const;
    QList<MvEntryChange> thisTime(const MvCalendarEvent &changed) const;
    /// The entry stays, and another of the same kind begins at the new day; alone where the days cannot move together.
    QList<MvEntryChange> copy() const;

    /// The entry without the occurrence that includes the day: one more exception.
    static QList<MvEntryChange> withoutTimeAt(const MvCalendarEvent &event, const QDate &day);

    /// The whole entry by years and then by days: of a rule with several weekdays, all of them. A year that is not
    /// known stays; by years, an entry of weekdays keeps its weekday. A rule that cannot say the new days stays as it
    /// is, and its dates move.
    static MvCalendarEvent shifted(const MvCalendarEvent &event, int years, int days);

private:
    /// Where and how often it is, without the rest.
    struct Days
    {
        QDate date;
        MvEventRepetition repetition;
    };

    /// Which days of a series go with the one that is moved.
    enum class Reach { SameWeekday, AllWeekdays };

    MvEntryMove(const MvCalendarEvent &event, const QDate &start, const QDate &newStart, Reach reach);

    static Days daysOf(const MvCalendarEvent &event);
    std::optional<Days> moved() const;
    Days movedDates() const;
    bool moveRule(MvRecurrenceRule &rule) const;
    void moveWeekdays(MvRecurrenceRule &rule) const;
    bool moveDayOfMonth(MvRecurrenceRule &rule) const;
    QDate mapped(const QDate &day, const MvRecurrenceRule &rule) const;
    QDate dayOfMonth(const QDate &firstOfMonth, const MvRecurrenceRule &rule) const;
    QDate movedEnd(const MvRecurrenceRule &before, const MvRecurrenceRule &after) const;
    MvCalendarEvent placed(const MvCalendarEvent &event, const Days &days) const;
    MvCalendarEvent single(const MvCalendarEvent &event) const;

    MvCalendarEvent m_event;
    QDate m_start;
    QDate m_newStart;
    Reach m_reach = Reach::SameWeekday;
    std::optional<Days> m_moved;
};
