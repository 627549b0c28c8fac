// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventDay.h"

#include "MvCalendar/MvCalendarEventFotoFolder.h"
#include "MvCalendar/MvCalendarEventIndex.h"

#include "MvProductBase/MvCalendariumContentConfig.h"

namespace {

/// A photo that has gone to the bin comes back when it is to be shown.
bool isThere(const MvFoto &foto)
{
    return foto.mayBeOpened() && (foto.localFileInfo().isFile() || MvCalendarEventFotoFolder::fetchBack(foto));
}

} // namespace

MvCalendarEventDay::MvCalendarEventDay(const MvCalendarEventIndex *index, const MvCalendariumContentConfig &config)
    : m_index(config.hasFeatures(MvCalendariumFeatures(FEATURE_ENTRIES)) ? index : nullptr)
    , m_day(config.date())
{}

template <class Function>
void MvCalendarEventDay::visit(Function function) const
{
    if (m_index)
        m_index->visit(m_day, function);
}

MvCalendarEventList MvCalendarEventDay::events() const
{
    MvCalendarEventList found;
    visit([&found](const MvCalendarEvent &event) {
        found.append(event);
        return false;
    });
    return found;
}

QStringList MvCalendarEventDay::descriptions() const
{
    QStringList texts;
    visit([&texts](const MvCalendarEvent &event) {
        texts.append(event.description());
        return false;
    });
    return texts;
}

MvImageReference MvCalendarEventDay::imageFile() const
{
    MvImageReference reference;
    visit([&reference](const MvCalendarEvent &event) {
        if (!isThere(event.foto()))
            return false;
        reference = {event.imagePath().absoluteFilePath(), event.imageSize()};
        return true;
    });
    return reference;
}

QImage MvCalendarEventDay::image(const std::function<QImage(const MvFoto &)> &decode) const
{
    QImage image;
    visit([&image, &decode](const MvCalendarEvent &event) {
        if (isThere(event.foto()))
            image = decode(event.foto());
        return !image.isNull();
    });
    return image;
}
