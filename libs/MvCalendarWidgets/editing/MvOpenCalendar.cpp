// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvOpenCalendar.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvRequestHandler.h"

MvOpenCalendar::MvOpenCalendar(const MvSession &session)
    : m_session(&session)
    , m_project(session.entries().activeModelId())
{}

bool MvOpenCalendar::isStillOpen() const
{
    return m_session->entries().activeModelId() == m_project;
}

bool MvOpenCalendar::isStillOpenOrTell(QObject *asker) const
{
    if (!isStillOpen())
        MvRequestHandler::current().report(
            tr("Kalendereinträge"), tr("Nichts geändert: Der Kalender, für den das gedacht war, ist nicht mehr offen."),
            asker);
    return isStillOpen();
}

QString MvOpenCalendar::closedText()
{
    return tr("Nichts übernommen: Der Kalender, für den die Datei gelesen wurde, ist nicht mehr offen. Öffnen Sie ihn, "
              "und lesen Sie die Datei noch einmal ein.");
}
