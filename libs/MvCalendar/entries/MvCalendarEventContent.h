// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QString>
#include <QUuid>

#include <memory>

/// What a file holds of an entry, for comparing and hashing: without the time of its last change, its time in whole
/// seconds, and only the parts that are asked for.
struct MVCALENDAR_EXPORT MvCalendarEventContent
{
    /// With its date goes how long it lasts and when it begins; with its photo, nothing.
    enum Part { Name = 1, Date = 2, Foto = 4, Uuid = 8, Repetition = 16, Groups = 32 };
    /// Who the entry is does not belong to it.
    static constexpr int everything = Name | Date | Foto | Repetition | Groups;

    MvCalendarEventContent(const MvCalendarEvent &event, int parts);

    bool operator==(const MvCalendarEventContent &other) const;

    QString name;
    QDate date;
    int seconds = 0;
    MvFoto foto;
    bool isRecurrent = false;
    QUuid uuid;

private:
    int m_parts;
    std::shared_ptr<const MvCalendarEventExtras> m_extras; // of those parts that are asked for
};

inline size_t qHash(const MvCalendarEventContent &content, size_t seed = 0)
{
    return qHashMulti(seed, content.name, content.date, content.seconds, content.foto, content.isRecurrent,
                      content.uuid);
}
