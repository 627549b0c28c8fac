// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryEdits.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEventGroupsStep.h"
#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"

#include "MvCore/MvUndoController.h"

#include <algorithm>

using namespace Qt::StringLiterals;

MvEntryEdits::MvEntryEdits(MvSession &session)
    : m_session(session)
{}

void MvEntryEdits::change(const QString &macro, const QString &name, const QList<Change> &changes, Reach reach)
{
    push(macro, name, changes, m_session.entries().activeEventList().groups(), reach);
}

/// A group comes before the first entry that names it, and goes after the last.
void MvEntryEdits::push(const QString &macro, const QString &name, const QList<Change> &changes,
                        const MvEventGroupList &groups, Reach reach)
{
    using Mark = MvUndoCommandCalendarEventGroup;
    const MvEventGroupList before = m_session.entries().activeEventList().groups();
    if (changes.isEmpty() && before == groups)
        return;
    const bool isGroupNew = std::any_of(groups.cbegin(), groups.cend(),
                                        [&before](const MvEventGroup &group) { return !before.find(group.id); });
    MvUndoController &undo = m_session.undo();
    undo.beginMacro(macro);
    undo.push(new Mark(Mark::Begin, m_session, name));
    if (isGroupNew)
        undo.push(new MvEventGroupsStep(before, groups, name, m_session));
    for (const Change &change : changes)
        undo.push(new MvCalendarEventStep(change.before, change.after, m_session, reach));
    if (!isGroupNew)
        undo.push(new MvEventGroupsStep(before, groups, name, m_session));
    undo.push(new Mark(Mark::End, m_session));
    undo.endMacro();
}

void MvEntryEdits::remove(const MvCalendarEventList &events)
{
    QList<Change> changes;
    for (const MvCalendarEvent &event : events)
        changes.append({event, {}});
    change(u"deleteEvents"_s, tr("Einträge löschen"), changes);
}

void MvEntryEdits::setMembership(const MvCalendarEventList &events, const QString &group, Membership membership)
{
    MvEventGroupList groups = m_session.entries().activeEventList().groups();
    const QString id =
        membership == Membership::Removed && !groups.findName(group) ? QString() : groups.idOfName(group);
    QList<Change> changes;
    for (const MvCalendarEvent &event : events) {
        QStringList ids = membership == Membership::Only ? QStringList() : event.groups();
        ids.removeAll(id);
        if (membership != Membership::Removed && !id.isEmpty())
            ids.append(id);
        MvCalendarEvent after = event;
        if (ids != event.groups() && (membership != Membership::Added || !event.groups().contains(id)))
            after.setGroups(ids);
        if (!(after == event))
            changes.append({event, after});
    }
    push(u"groupEvents"_s, tr("Gruppe von Einträgen ändern"), changes, groups, Reach::AsSet);
}

QDate MvEntryEdits::shifted(const MvCalendarEvent &event, int years, int days)
{
    const QDate date = event.dateTime().date();
    if (event.hasYear())
        return event.repetition().yearsLater(date, years).addDays(days);
    const QDate day = date.addDays(days);
    return {date.year(), day.month(), day.day()};
}

void MvEntryEdits::shift(const MvCalendarEventList &events, int years, int days)
{
    QList<Change> changes;
    for (const MvCalendarEvent &event : events) {
        MvCalendarEvent after = event;
        if (const QDate day = shifted(event, years, days); day != event.dateTime().date())
            after.moveTo(day);
        if (!(after == event))
            changes.append({event, after});
    }
    change(u"shiftEvents"_s, tr("Einträge verschieben"), changes);
}

void MvEntryEdits::setGroups(const MvEventGroupList &groups, const QString &name)
{
    const MvCalendarEventList events = m_session.entries().activeEventList();
    QList<Change> changes;
    for (const MvCalendarEvent &event : events) {
        QStringList ids = event.groups();
        ids.removeIf([&](const QString &id) { return events.groups().find(id) && !groups.find(id); });
        if (ids == event.groups())
            continue;
        MvCalendarEvent after = event;
        after.setGroups(ids);
        changes.append({event, after});
    }
    push(u"changeGroups"_s, name, changes, groups, Reach::AsSet);
}
