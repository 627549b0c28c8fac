// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvOpenCalendar.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

MvOpenCalendar::MvOpenCalendar(const MvSession &session)
    : m_session(&session)
    , m_project(session.entries().activeModelId())
{}

bool MvOpenCalendar::isStillOpen() const
{
    return m_session->entries().activeModelId() == m_project;
}

QString MvOpenCalendar::closedText()
{
    return tr("Nichts übernommen: Der Kalender, für den die Datei gelesen wurde, ist nicht mehr offen. Öffnen Sie ihn, "
              "und lesen Sie die Datei noch einmal ein.");
}
