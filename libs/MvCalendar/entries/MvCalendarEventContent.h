// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"

#include <QDate>
#include <QString>
#include <QUuid>

/// What a file holds of an entry, for comparing and hashing: without the time of its last change, its time in whole
/// seconds, and only the parts that are asked for.
struct MvCalendarEventContent
{
    enum Part { Name = 1, Date = 2, Rest = 4, Uuid = 8 };
    /// Who the entry is does not belong to it.
    static constexpr int everything = Name | Date | Rest;

    MvCalendarEventContent(const MvCalendarEvent &event, int parts)
    {
        if (parts & Name)
            name = event.description();
        if (parts & Date) { // fields of the local time: at hand, whereas the moment asks for the time zone's rules
            const QDateTime when = event.dateTime();
            const QDateTime local = when.timeSpec() == Qt::LocalTime ? when : when.toLocalTime();
            date = local.date();
            seconds = local.time().msecsSinceStartOfDay() / 1000;
        }
        if (parts & Rest) {
            foto = event.foto();
            isRecurrent = event.storedRecurrent();
        }
        if (parts & Uuid)
            uuid = event.uuid();
    }

    bool operator==(const MvCalendarEventContent &) const = default;

    QString name;
    QDate date;
    int seconds = 0;
    MvFoto foto;
    bool isRecurrent = false;
    QUuid uuid;
};

inline size_t qHash(const MvCalendarEventContent &content, size_t seed = 0)
{
    return qHashMulti(seed, content.name, content.date, content.seconds, content.foto, content.isRecurrent,
                      content.uuid);
}
