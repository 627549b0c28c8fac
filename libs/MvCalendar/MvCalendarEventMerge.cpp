#include "MvCalendar/MvCalendarEventMerge.h"

#include <QHash>
#include <QSet>

namespace {

QHash<QUuid, const MvCalendarEvent *> byUuid(const MvCalendarEventList &events)
{
    QHash<QUuid, const MvCalendarEvent *> entries;
    for (const MvCalendarEvent &event : events) {
        if (!event.uuid().isNull())
            entries.insert(event.uuid(), &event);
    }
    return entries;
}

/// The entry of `mine` after the others had their say; null when it is gone.
const MvCalendarEvent *merged(const MvCalendarEvent *base, const MvCalendarEvent &mine, const MvCalendarEvent *theirs)
{
    const bool isChangedHere = !base || !(*base == mine);
    if (!theirs)
        return base && !isChangedHere ? nullptr : &mine; // removed there, unless it is new or changed here
    const bool isChangedThere = !base || !(*base == *theirs);
    if (!isChangedThere)
        return &mine;
    if (!isChangedHere)
        return theirs;
    return mine.lastChanged() < theirs->lastChanged() ? theirs : &mine;
}

} // namespace

MvCalendarEventList MvCalendarEventMerge::joined(const MvCalendarEventList &base, const MvCalendarEventList &other,
                                                 bool keepBase)
{
    QSet<QUuid> known;
    for (const MvCalendarEvent &event : base)
        known.insert(event.uuid());
    MvCalendarEventList result = keepBase ? base : MvCalendarEventList();
    for (const MvCalendarEvent &event : other) {
        if (event.uuid().isNull() || !known.contains(event.uuid()))
            result.append(event);
    }
    return result;
}

MvCalendarEventList MvCalendarEventMerge::threeWay(const MvCalendarEventList &base, const MvCalendarEventList &mine,
                                                   const MvCalendarEventList &theirs)
{
    const auto baseEntries = byUuid(base);
    const auto myEntries = byUuid(mine);
    const auto theirEntries = byUuid(theirs);

    MvCalendarEventList result;
    for (const MvCalendarEvent &event : mine) {
        if (event.uuid().isNull())
            result.append(event);
        else if (const auto *entry = merged(baseEntries.value(event.uuid()), event, theirEntries.value(event.uuid())))
            result.append(*entry);
    }
    const QSet<MvCalendarEvent> known(result.cbegin(), result.cend());
    const QSet<MvCalendarEvent> before(base.cbegin(), base.cend());
    for (const MvCalendarEvent &event : theirs) {
        if (myEntries.contains(event.uuid()) || known.contains(event))
            continue;
        if (!before.contains(event)) // new there, or removed here but changed there
            result.append(event);
    }
    return result;
}
