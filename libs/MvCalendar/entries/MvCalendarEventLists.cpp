// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventLists.h"

#include <utility>

MvCalendarEventLists::MvCalendarEventLists(const MvProjectIdentifier &active)
    : m_active(active)
{
    m_lists.insert(active, {});
}

MvCalendarEventLists::~MvCalendarEventLists() = default;

void MvCalendarEventLists::setActive(const MvProjectIdentifier &project)
{
    finishWork();
    m_work.reset();
    m_active = project;
    if (!contains(project))
        m_lists.insert(project, {});
}

const MvCalendarEventIndex *MvCalendarEventLists::index(const MvProjectIdentifier &project) const
{
    finishWork();
    const auto found = m_lists.constFind(project);
    return found == m_lists.cend() ? nullptr : &*found;
}

MvCalendarEventList MvCalendarEventLists::events(const MvProjectIdentifier &project) const
{
    const MvCalendarEventIndex *list = index(project);
    return list ? list->events() : MvCalendarEventList();
}

void MvCalendarEventLists::store(const MvProjectIdentifier &project, const MvCalendarEventList &events)
{
    if (project == m_active) {
        finishWork();
        if (m_lists.value(project).events().isSame(events))
            return; // what it is already, in both forms
        m_work.reset();
    }
    m_lists.insert(project, MvCalendarEventIndex(events));
}

MvCalendarEventWorkList &MvCalendarEventLists::work() const
{
    if (!m_work)
        m_work = std::make_unique<MvCalendarEventWorkList>(activeEvents());
    return *m_work;
}

void MvCalendarEventLists::finishWork() const
{
    if (std::exchange(m_isWorkNewer, false))
        m_lists.insert(m_active, MvCalendarEventIndex(m_work->events()));
}

bool MvCalendarEventLists::change(const MvCalendarEvent &before, const MvCalendarEvent &after)
{
    if (!work().change(before, after))
        return false;
    m_isWorkNewer = true;
    return true;
}

void MvCalendarEventLists::insert(const MvCalendarEvent &event, const MvCalendarEventWorkList::Place &place)
{
    work().insert(event, place);
    m_isWorkNewer = true;
}

QSet<QString> MvCalendarEventLists::fotoNames() const
{
    finishWork();
    QSet<QString> names;
    for (const MvCalendarEventIndex &list : std::as_const(m_lists)) {
        for (const MvCalendarEvent &event : list.events())
            names.insert(event.imagePath().fileName());
    }
    return names;
}
