// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"

#include <QStringList>

/// Personal entries for tests.
namespace MvEntries {

inline MvCalendarEvent entry(const QString &name, const QDate &date, const MvFoto &foto = {}, bool isRecurrent = true)
{
    return {name, date.startOfDay(), isRecurrent, foto, QUuid::createUuid(), {}};
}

/// In list order.
inline QStringList names(const MvCalendarEventList &events)
{
    QStringList names;
    for (const MvCalendarEvent &event : events)
        names.append(event.description());
    return names;
}

} // namespace MvEntries
