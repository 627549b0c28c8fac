// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventStep.h"

#include "MvCalendar/MvCalendarEventContent.h"
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

} // namespace

MvCalendarEventStep::MvCalendarEventStep(const MvCalendarEvent &before, const MvCalendarEvent &after,
                                         MvSession &session)
    : MvUndoCommand(u"set calendar event from %1 to %2"_s.arg(before.description(), after.description()))
    , m_entries(session.entries())
    , m_before(before)
    , m_after(after)
{
    setObsolete(before == after || (!before.isValid() && !after.isValid()));
}

MvCalendarEventStep::~MvCalendarEventStep() = default;

QString MvCalendarEventStep::visibleName() const
{
    if (!m_before.isValid())
        return tr("Eintrag anlegen");
    return m_after.isValid() ? tr("Eintrag ändern") : tr("Eintrag löschen");
}

void MvCalendarEventStep::doCoreAction()
{
    apply(m_before, m_after);
}

void MvCalendarEventStep::undoCore()
{
    apply(m_after, m_before);
}

/// Both become what they really were and are: an entry that another program has changed, or whose photo was copied, is
/// found again on the way back.
void MvCalendarEventStep::apply(MvCalendarEvent &from, MvCalendarEvent &to)
{
    if (!to.isValid()) {
        remove(from);
        return;
    }
    const MvCalendarEvent present = from.isValid() ? m_entries.presentEvent(from) : MvCalendarEvent();
    if (!from.isValid()) {
        add(to);
    } else if (!present.isValid() || present == from) {
        change(from, to);
    } else {
        to = stepFrom(from, to, present);
        from = present;
        change(from, to);
    }
    const MvCalendarEvent stored = m_entries.presentEvent(to);
    if (stored.isValid())
        to = stored;
}

void MvCalendarEventStep::remove(MvCalendarEvent &event)
{
    const MvCalendarEvent present = m_entries.presentEvent(event);
    if (!present.isValid())
        return;
    event = present;
    m_place = m_entries.placeOfEvent(event);
    change(event, {});
}

void MvCalendarEventStep::add(const MvCalendarEvent &event)
{
    if (!m_place)
        change({}, event);
    else if (m_entries.insertEvent(event, *m_place))
        changed();
}

void MvCalendarEventStep::change(const MvCalendarEvent &from, const MvCalendarEvent &to)
{
    if (m_entries.changeEvent(from, to))
        changed();
}
