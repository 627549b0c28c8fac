// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventGroupsStep.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

MvCalendarEventList eventsOf(const MvCalendarEventRegistry &entries, MvCalendarEventRegistry::List list)
{
    return list == MvCalendarEventRegistry::List::Own ? entries.ownEvents() : entries.activeEventList();
}

/// With those of the groups of before that went although entries name them.
MvEventGroupList withNamed(MvEventGroupList groups, const MvCalendarEventList &events)
{
    QSet<QString> named;
    for (const MvCalendarEvent &event : events) {
        const QStringList ids = event.groups();
        named += QSet<QString>(ids.cbegin(), ids.cend());
    }
    for (const MvEventGroup &group : events.groups()) {
        if (named.contains(group.id) && !groups.find(group.id))
            groups.append(group);
    }
    return groups;
}

} // namespace

MvEventGroupsStep::MvEventGroupsStep(const MvEventGroupList &before, const MvEventGroupList &after, const QString &name,
                                     MvSession &session, Reach reach)
    : MvUndoCommand(u"set calendar event groups"_s)
    , m_entries(session.entries())
    , m_wanted{before, after}
    , m_reach(reach)
    , m_reachesOwn(reach == Reach::OwnList || (reach == Reach::AsSet && m_entries.doChangesReachOwn()))
    , m_name(name)
{
    setObsolete(before == after);
}

MvEventGroupsStep::~MvEventGroupsStep() = default;

QList<MvEventGroupsStep::List> MvEventGroupsStep::reached() const
{
    QList<List> lists;
    if (m_reach != Reach::OwnList)
        lists.append(List::Active);
    if (m_reachesOwn)
        lists.append(List::Own);
    return lists;
}

void MvEventGroupsStep::bring(const QSet<QString> &ids)
{
    if (ids.isEmpty())
        return;
    QList<MvEventGroupList> results;
    for (const List list : reached())
        results.append(present(list).after);
    for (const List source : {List::Active, List::Own}) {
        const MvEventGroupList groups = eventsOf(m_entries, source).groups();
        for (const MvEventGroup &group : groups) {
            const bool isLacking = std::any_of(results.cbegin(), results.cend(),
                                               [&group](const auto &result) { return !result.find(group.id); });
            if (isLacking && ids.contains(group.id) && !m_brought.find(group.id))
                m_brought.put(group);
        }
    }
    setObsolete(isObsolete() && m_brought.isEmpty());
}

/// What the step makes of a list as it is by now.
MvEventGroupsStep::Part MvEventGroupsStep::present(List list) const
{
    const MvEventGroupList groups = eventsOf(m_entries, list).groups();
    Part part{groups, MvEventGroupList::merged(m_wanted.before, m_wanted.after, groups)};
    for (const MvEventGroup &group : m_brought) {
        if (!part.after.find(group.id))
            part.after.append(group);
    }
    part.after.removeIf([&groups](const MvEventGroup &group) { // one that the list has by another id
        return !groups.find(group.id) && groups.findName(group.name);
    });
    return part;
}

void MvEventGroupsStep::apply(List list, const MvEventGroupList &from, const MvEventGroupList &to) const
{
    const MvCalendarEventList events = eventsOf(m_entries, list);
    m_entries.setGroups(withNamed(MvEventGroupList::merged(from, to, events.groups()), events), list);
}

void MvEventGroupsStep::doCoreAction()
{
    const QList<List> lists = reached(); // both as they are before either changes
    if (lists.contains(List::Active))
        m_active = present(List::Active);
    if (lists.contains(List::Own))
        m_own = present(List::Own);
    if (m_active)
        apply(List::Active, m_active->before, m_active->after);
    if (m_own)
        apply(List::Own, m_own->before, m_own->after);
}

void MvEventGroupsStep::undoCore()
{
    if (m_own)
        apply(List::Own, m_own->after, m_own->before);
    if (m_active)
        apply(List::Active, m_active->after, m_active->before);
}
