// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoIntake.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvOpenCalendar.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvFoto/MvFotoLoader.h"

#include <QDir>

namespace {

/// The entry in the active list; when it was changed meanwhile, the one that has become of it. Invalid when it is gone.
MvCalendarEvent presentForm(const MvCalendarEvent &event, const MvCalendarEventList &events)
{
    if (events.contains(event))
        return event;
    MvCalendarEvent found;
    for (const MvCalendarEvent &other : events) {
        if (event.uuid().isNull() || other.uuid() != event.uuid())
            continue;
        if (found.isValid()) // one of a series: in doubt none
            return {};
        found = other;
    }
    return found;
}

} // namespace

void MvCalendarEventFotoIntake::take(const MvCalendarEvent &event, const MvFoto &foto, QObject *asker, const Use &use,
                                     MvSession &session)
{
    const auto takeHere = [event, foto, asker, use, &session, calendar = MvOpenCalendar(session)](const QImage &) {
        if (!calendar.isStillOpen()) {
            const QString name = QDir::toNativeSeparators(foto.localFilePath());
            const QString text = tr("Das Foto „%1“ ist nicht beim Eintrag „%2“: Dessen Kalender ist nicht mehr offen. "
                                    "Öffnen Sie ihn, und wählen Sie das Foto noch einmal.");
            MvDiskAccessRequest::instance().takeFotosFailed({text.arg(name, event.description())}, asker);
            return;
        }
        const MvCalendarEvent before = presentForm(event, session.entries().activeEventList());
        MvCalendarEvent after = before;
        if (!before.isValid())
            return;
        if (const MvOutcome taken = after.takeFoto(foto); taken.isOk())
            use(before, after);
        else
            MvDiskAccessRequest::instance().takeFotosFailed({taken.error}, asker);
    };
    MvFotoLoader::midRes(foto, MvCalendarEvent::fotoQuality, MvCalendarEvent::fotoCaching, asker, takeHere);
}
