// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventStep.h"

#include "MvCalendar/MvCalendarEventContent.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventRegistry.h"

using namespace Qt::StringLiterals;

namespace {

/// The step from one state to the next, applied to a third: a field that is not as it was before the step is somebody
/// else's and stays.
MvCalendarEvent stepFrom(const MvCalendarEvent &from, const MvCalendarEvent &to, const MvCalendarEvent &present)
{
    using Content = MvCalendarEventContent;
    const auto isOurs = [&](int part) { return Content(present, part) == Content(from, part); };
    MvCalendarEvent result = isOurs(Content::Foto) ? to : present; // setting a photo might copy it
    for (const int part : {Content::Name, Content::Date, Content::Repetition, Content::Groups})
        result.takeContent(isOurs(part) ? to : present, part);
    return result;
}

/// The photo of an entry may have got another place since, such as beside a calendar that was saved: both states of a
/// step mean the file at that place then. Another photo is nothing to follow.
void followFoto(const MvFoto &present, MvCalendarEvent &from, MvCalendarEvent &to)
{
    if (!MvCalendarEventMerge::isSameFoto(from.foto(), present))
        return;
    if (to.foto() == from.foto())
        to.relocateFoto(present);
    from.relocateFoto(present);
}

} // namespace

MvCalendarEventStep::MvCalendarEventStep(const MvCalendarEvent &before, const MvCalendarEvent &after,
                                         MvSession &session, Reach reach)
    : MvUndoCommand(u"set calendar event from %1 to %2"_s.arg(before.description(), after.description()))
    , m_entries(session.entries())
    , m_reachesOwn(reach == Reach::AsSet && m_entries.doChangesReachOwn())
    , m_active{reach == Reach::OwnList ? List::Own : List::Active, before, after, {}}
{
    setObsolete(before == after || (!before.isValid() && !after.isValid()));
}

MvCalendarEventStep::~MvCalendarEventStep() = default;

QString MvCalendarEventStep::visibleName() const
{
    if (!m_active.before.isValid())
        return tr("Eintrag anlegen");
    return m_active.after.isValid() ? tr("Eintrag ändern") : tr("Eintrag löschen");
}

void MvCalendarEventStep::doCoreAction()
{
    if (m_reachesOwn) // while both lists are as they were before
        m_own = ownPart();
    if (apply(m_active, m_active.before, m_active.after))
        changed();
    if (m_own)
        apply(*m_own, m_own->before, m_own->after);
}

void MvCalendarEventStep::undoCore()
{
    if (m_own)
        apply(*m_own, m_own->after, m_own->before);
    if (apply(m_active, m_active.after, m_active.before))
        changed();
}

void MvCalendarEventStep::change(const MvCalendarEvent &from, const MvCalendarEvent &to)
{
    if (m_entries.changeEvent(from, to))
        changed();
}

/// The same step from what the user's list has of the entry; without any difference when there is nothing to do. Done
/// again, it brings the entry back where it stood, and with the user's copy of its photo.
MvCalendarEventStep::Part MvCalendarEventStep::ownPart() const
{
    const auto inOwn = [this](const MvCalendarEvent &event) {
        return event.isValid() ? m_entries.presentEvent(event, List::Own) : MvCalendarEvent();
    };
    MvCalendarEvent before = asOwn(m_active.before);
    MvCalendarEvent after = asOwn(m_active.after);
    Part part{List::Own, inOwn(before), after, {}};
    if (part.before.isValid() && after.isValid()) {
        followFoto(part.before.foto(), before, after);
        part.after = stepFrom(before, after, part.before);
    } else if (!part.before.isValid() && inOwn(after).isValid()) {
        part.after = {}; // it is there
    }
    if (m_own) {
        part.place = m_own->place;
        if (MvCalendarEventMerge::isSameFoto(part.after.foto(), m_own->after.foto()))
            part.after.relocateFoto(m_own->after.foto());
    }
    return part;
}

/// The entry in the groups that the user's list has for those of the calendar's.
MvCalendarEvent MvCalendarEventStep::asOwn(MvCalendarEvent event) const
{
    const QStringList ids = event.groups();
    if (ids.isEmpty())
        return event;
    const QStringList own = m_entries.activeEventList().groups().idsIn(m_entries.ownEvents().groups(), ids);
    if (own != ids)
        event.setGroups(own);
    return event;
}

/// Both become what they really were and are: an entry that another program has changed, or whose photo was copied, is
/// found again on the way back. Says whether the list has changed.
bool MvCalendarEventStep::apply(Part &part, MvCalendarEvent &from, MvCalendarEvent &to)
{
    if (!to.isValid())
        return remove(part, from);
    const MvCalendarEvent present = from.isValid() ? m_entries.presentEvent(from, part.list) : MvCalendarEvent();
    bool isChanged = false;
    if (!from.isValid()) {
        isChanged = add(part, to);
    } else {
        if (present.isValid() && !(present == from)) {
            followFoto(present.foto(), from, to);
            to = stepFrom(from, to, present);
            from = present;
        }
        isChanged = m_entries.changeEvent(from, to, part.list);
    }
    const MvCalendarEvent stored = m_entries.presentEvent(to, part.list);
    if (stored.isValid())
        to = stored;
    return isChanged;
}

bool MvCalendarEventStep::remove(Part &part, MvCalendarEvent &event)
{
    const MvCalendarEvent present = event.isValid() ? m_entries.presentEvent(event, part.list) : MvCalendarEvent();
    if (!present.isValid())
        return false;
    event = present;
    part.place = m_entries.placeOfEvent(event, part.list);
    return m_entries.changeEvent(event, {}, part.list);
}

bool MvCalendarEventStep::add(const Part &part, const MvCalendarEvent &event)
{
    return part.place ? m_entries.insertEvent(event, *part.place, part.list)
                      : m_entries.changeEvent({}, event, part.list);
}
