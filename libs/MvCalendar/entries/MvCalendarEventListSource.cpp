// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventListSource.h"

#include "MvCalendar/MvCalendarEventDay.h"

#include "MvFoto/MvFotoSource.h"
#include "MvProductBase/MvCalendariumContentKey.h"

MvCalendarEventListSource::MvCalendarEventListSource(const MvCalendarEventList &events)
    : m_index(events)
{}

MvCalendarEventListSource::~MvCalendarEventListSource() = default;

MvProjectIdentifier MvCalendarEventListSource::project() const
{
    return {};
}

MvCalendarEventList MvCalendarEventListSource::events(const MvCalendariumContentKey &key) const
{
    return MvCalendarEventDay(&m_index, key.config()).events();
}

QList<MvEventText> MvCalendarEventListSource::texts(const MvCalendariumContentKey &key) const
{
    return MvCalendarEventDay(&m_index, key.config()).texts();
}

QStringList MvCalendarEventListSource::descriptions(const MvCalendariumContentKey &key) const
{
    return MvCalendarEventDay(&m_index, key.config()).descriptions();
}

MvImageReference MvCalendarEventListSource::imageFile(const MvCalendariumContentKey &key) const
{
    return MvCalendarEventDay(&m_index, key.config()).imageFile();
}

QImage MvCalendarEventListSource::eventImage(const MvCalendariumContentKey &key, const QSize &bounds,
                                             MvFotoSource &fotos) const
{
    return MvCalendarEventDay(&m_index, key.config()).image([&](const MvFoto &foto) {
        return fotos.scaled(foto.localFileInfo(), bounds);
    });
}
