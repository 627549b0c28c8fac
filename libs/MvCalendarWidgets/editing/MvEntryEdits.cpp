// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryEdits.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryMove.h"
#include "MvCalendar/MvEventGroupsStep.h"
#include "MvCalendar/MvUndoCommandCalendarEventGroup.h"

#include "MvCore/MvUndoController.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// With those that the list lacks, at its end.
MvEventGroupList joined(MvEventGroupList groups, const MvEventGroupList &others)
{
    for (const MvEventGroup &group : others) {
        if (!groups.find(group.id))
            groups.put(group);
    }
    return groups;
}

QSet<QString> groupsOf(const QList<MvEntryChange> &changes)
{
    QSet<QString> ids;
    for (const MvEntryChange &change : changes) {
        for (const QString &id : change.after.groups())
            ids.insert(id);
    }
    return ids;
}

} // namespace

MvEntryEdits::MvEntryEdits(MvSession &session)
    : m_session(session)
{}

MvEventGroupList MvEntryEdits::presentGroups(Reach reach) const
{
    const MvCalendarEventRegistry &entries = m_session.entries();
    return (reach == Reach::OwnList ? entries.ownEvents() : entries.activeEventList()).groups();
}

void MvEntryEdits::change(const QString &macro, const QString &name, const QList<Change> &changes, Reach reach,
                          const MvEventGroupList &groups)
{
    push(macro, name, changes, joined(presentGroups(reach), groups), reach);
}

void MvEntryEdits::push(MvCalendarEventStep *step, const MvCalendarEvent &after, const MvEventGroupList &groups)
{
    using Mark = MvUndoCommandCalendarEventGroup;
    const MvEventGroupList before = presentGroups(Reach::AsSet);
    const QString name = step->visibleName();
    auto comingGroups = std::make_unique<MvEventGroupsStep>(before, joined(before, groups), name, m_session);
    comingGroups->bring(groupsOf({{{}, after}}));
    MvUndoController &undo = m_session.undo();
    if (comingGroups->isObsolete()) {
        undo.push(step);
        return;
    }
    undo.beginMacro(name);
    undo.push(new Mark(Mark::Begin, m_session, name));
    undo.push(comingGroups.release());
    undo.push(step);
    undo.push(new Mark(Mark::End, m_session));
    undo.endMacro();
}

/// A group comes before the first entry that names it, and goes after the last.
void MvEntryEdits::push(const QString &macro, const QString &name, const QList<Change> &changes,
                        const MvEventGroupList &groups, Reach reach)
{
    using Mark = MvUndoCommandCalendarEventGroup;
    const MvEventGroupList before = presentGroups(reach);
    if (changes.isEmpty() && before == groups)
        return;
    const MvEventGroupList meanwhile = joined(before, groups);
    auto comingGroups = std::make_unique<MvEventGroupsStep>(before, meanwhile, name, m_session, reach);
    comingGroups->bring(groupsOf(changes));
    MvUndoController &undo = m_session.undo();
    undo.beginMacro(macro);
    undo.push(new Mark(Mark::Begin, m_session, name));
    undo.push(comingGroups.release());
    for (const Change &change : changes)
        undo.push(new MvCalendarEventStep(change.before, change.after, m_session, reach));
    undo.push(new MvEventGroupsStep(meanwhile, groups, name, m_session, reach));
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

void MvEntryEdits::shift(const MvCalendarEventList &events, int years, int days)
{
    QList<Change> changes;
    for (const MvCalendarEvent &event : events) {
        const MvCalendarEvent after = MvEntryMove::shifted(event, years, days);
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
