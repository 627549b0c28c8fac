// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventContent.h"

#include "MvCalendar/MvCalendarEventExtras.h"

MvCalendarEventContent::MvCalendarEventContent(const MvCalendarEvent &event, int parts)
    : m_parts(parts)
{
    if (parts & Name)
        name = event.description();
    if (parts & Date) { // fields of the local time: at hand, whereas the moment asks for the time zone's rules
        const QDateTime when = event.dateTime();
        const QDateTime local = when.timeSpec() == Qt::LocalTime ? when : when.toLocalTime();
        date = local.date();
        seconds = local.time().msecsSinceStartOfDay() / 1000;
    }
    if (parts & Foto)
        foto = event.foto();
    if (parts & Repetition)
        isRecurrent = event.storedRecurrent();
    if (parts & Uuid)
        uuid = event.uuid();
    if (parts & (Date | Repetition | Groups))
        m_extras = event.m_extras;
}

bool MvCalendarEventContent::operator==(const MvCalendarEventContent &other) const
{
    if (m_parts != other.m_parts || name != other.name || date != other.date || seconds != other.seconds ||
        isRecurrent != other.isRecurrent || uuid != other.uuid || !(foto == other.foto))
        return false;
    if (m_extras == other.m_extras)
        return true;
    static const MvCalendarEventExtras none;
    const MvCalendarEventExtras &mine = m_extras ? *m_extras : none;
    const MvCalendarEventExtras &theirs = other.m_extras ? *other.m_extras : none;
    return (!(m_parts & Date) || (mine.endDate == theirs.endDate && mine.time == theirs.time)) &&
           (!(m_parts & Repetition) || mine.repetition == theirs.repetition) &&
           (!(m_parts & Groups) || mine.groups == theirs.groups);
}
