// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEventGroupsStep.h"

#include <QSet>

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
                                     MvSession &session)
    : MvUndoCommand(u"set calendar event groups"_s)
    , m_entries(session.entries())
    , m_wanted{before, after}
    , m_reachesOwn(m_entries.doChangesReachOwn())
    , m_name(name)
{
    setObsolete(before == after);
}

MvEventGroupsStep::~MvEventGroupsStep() = default;

/// What the step makes of a list as it is by now.
MvEventGroupsStep::Part MvEventGroupsStep::present(List list) const
{
    const MvEventGroupList groups = eventsOf(m_entries, list).groups();
    return {groups, MvEventGroupList::merged(m_wanted.before, m_wanted.after, groups)};
}

void MvEventGroupsStep::apply(List list, const MvEventGroupList &from, const MvEventGroupList &to) const
{
    const MvCalendarEventList events = eventsOf(m_entries, list);
    m_entries.setGroups(withNamed(MvEventGroupList::merged(from, to, events.groups()), events), list);
}

void MvEventGroupsStep::doCoreAction()
{
    m_active = present(List::Active); // before either list changes
    if (m_reachesOwn)
        m_own = present(List::Own);
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
