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
    , m_display(config.entryDisplay())
{}

template <class Function>
void MvCalendarEventDay::visit(Function function) const
{
    if (!m_index)
        return;
    m_index->visitOccurrences(m_day, [&](const MvCalendarEvent &event, const QDate &start) {
        return MvEventText::isShown(event, m_display) && function(event, start);
    });
}

MvCalendarEventList MvCalendarEventDay::events() const
{
    MvCalendarEventList found;
    if (m_index)
        found.setGroups(m_index->events().groups());
    visit([&found](const MvCalendarEvent &event, const QDate &) {
        found.append(event);
        return false;
    });
    return found;
}

QList<MvEventText> MvCalendarEventDay::texts() const
{
    QList<MvEventText> texts;
    visit([&](const MvCalendarEvent &event, const QDate &start) {
        texts.append(MvEventText::of(event, start, m_index->events().groups(), m_display));
        return false;
    });
    return texts;
}

QStringList MvCalendarEventDay::descriptions() const
{
    QStringList descriptions;
    const QList<MvEventText> found = texts();
    for (const MvEventText &entry : found)
        descriptions.append(entry.text);
    return descriptions;
}

MvImageReference MvCalendarEventDay::imageFile() const
{
    MvImageReference reference;
    visit([&reference](const MvCalendarEvent &event, const QDate &) {
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
    visit([&image, &decode](const MvCalendarEvent &event, const QDate &) {
        if (isThere(event.foto()))
            image = decode(event.foto());
        return !image.isNull();
    });
    return image;
}
