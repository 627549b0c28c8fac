// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventLists.h"

#include <utility>

struct MvCalendarEventLists::Work
{
    explicit Work(const MvCalendarEventList &events)
        : list(events)
    {}

    MvCalendarEventWorkList list;
    bool isNewer = false; // m_lists does not have it yet
};

MvCalendarEventLists::MvCalendarEventLists(const MvProjectIdentifier &active)
    : m_active(active)
{
    m_lists.insert(active, {});
}

MvCalendarEventLists::~MvCalendarEventLists() = default;

void MvCalendarEventLists::setActive(const MvProjectIdentifier &project)
{
    finishAllWork();
    m_works.clear();
    m_active = project;
    if (!contains(project))
        m_lists.insert(project, {});
}

const MvCalendarEventIndex *MvCalendarEventLists::index(const MvProjectIdentifier &project) const
{
    finishWork(project);
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
    finishWork(project);
    const auto found = m_lists.constFind(project);
    if (found != m_lists.cend() && found->events().isSame(events))
        return; // what it is already, in both forms
    m_works.remove(project);
    m_lists.insert(project, MvCalendarEventIndex(events));
}

void MvCalendarEventLists::remove(const MvProjectIdentifier &project)
{
    if (project == m_active)
        return;
    m_works.remove(project);
    m_lists.remove(project);
}

MvCalendarEventLists::Work &MvCalendarEventLists::work(const MvProjectIdentifier &project) const
{
    std::shared_ptr<Work> &work = m_works[project];
    if (!work)
        work = std::make_shared<Work>(m_lists.value(project).events());
    return *work;
}

void MvCalendarEventLists::finishWork(const MvProjectIdentifier &project) const
{
    const std::shared_ptr<Work> work = m_works.value(project);
    if (work && std::exchange(work->isNewer, false))
        m_lists.insert(project, MvCalendarEventIndex(work->list.events()));
}

void MvCalendarEventLists::finishAllWork() const
{
    const QList<MvProjectIdentifier> projects = m_works.keys();
    for (const MvProjectIdentifier &project : projects)
        finishWork(project);
}

bool MvCalendarEventLists::change(const MvProjectIdentifier &project, const MvCalendarEvent &before,
                                  const MvCalendarEvent &after)
{
    Work &changed = work(project);
    if (!changed.list.change(before, after))
        return false;
    changed.isNewer = true;
    return true;
}

void MvCalendarEventLists::insert(const MvProjectIdentifier &project, const MvCalendarEvent &event,
                                  const MvCalendarEventWorkList::Place &place)
{
    Work &changed = work(project);
    changed.list.insert(event, place);
    changed.isNewer = true;
}

MvCalendarEvent MvCalendarEventLists::present(const MvProjectIdentifier &project, const MvCalendarEvent &event) const
{
    return work(project).list.present(event);
}

MvCalendarEventWorkList::Place MvCalendarEventLists::placeOf(const MvProjectIdentifier &project,
                                                             const MvCalendarEvent &event) const
{
    return work(project).list.placeOf(event);
}

QSet<QString> MvCalendarEventLists::fotoNames() const
{
    finishAllWork();
    QSet<QString> names;
    for (const MvCalendarEventIndex &list : std::as_const(m_lists)) {
        for (const MvCalendarEvent &event : list.events())
            names.insert(event.imagePath().fileName());
    }
    return names;
}
