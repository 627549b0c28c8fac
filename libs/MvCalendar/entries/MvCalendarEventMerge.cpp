// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventMerge.h"

#include "MvCalendar/MvCalendarEventContent.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

using Content = MvCalendarEventContent;

bool isSame(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return Content(a, Content::everything) == Content(b, Content::everything);
}

/// The same entry, if its photo may be another file with the same content.
bool isSameButForFile(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    if (!MvCalendarEventMerge::isSameFoto(a.foto(), b.foto()))
        return false;
    MvCalendarEvent moved = a;
    moved.relocateFoto(b.foto());
    return isSame(moved, b);
}

/// The uuids that do not identify a single entry: the null uuid, and those shared by a series.
class SharedUuids
{
public:
    void addFrom(const MvCalendarEventList &events)
    {
        QSet<QUuid> known = {QUuid()};
        known.reserve(events.size());
        for (const MvCalendarEvent &event : events) {
            if (known.contains(event.uuid()))
                m_uuids.insert(event.uuid());
            known.insert(event.uuid());
        }
        m_uuids.insert(QUuid());
    }

    bool contains(const MvCalendarEvent &event) const { return m_uuids.contains(event.uuid()); }

private:
    QSet<QUuid> m_uuids;
};

/// Which entry of one list corresponds to which entry of another.
class Pairing
{
public:
    Pairing(const MvCalendarEventList &first, const MvCalendarEventList &second, const SharedUuids &shared)
        : m_first(first)
        , m_second(second)
        , m_toSecond(first.size(), -1)
        , m_toFirst(second.size(), -1)
        , m_isDoubtful(first.size(), false)
    {
        pairInOrder(Content::everything | Content::Uuid);
        pairInOrder(Content::everything);
        pairNearest(Content::Uuid, false, [&shared](const MvCalendarEvent &event) { return !shared.contains(event); });
        noteStrangers();
        const auto isOfSeries = [](const MvCalendarEvent &event) { return !event.uuid().isNull(); };
        for (const int parts : {Content::Name | Content::Date, int(Content::Date), int(Content::Name)})
            pairNearest(parts | Content::Uuid, true, isOfSeries);
    }

    // positions; -1 without a partner
    qsizetype toSecond(qsizetype first) const { return first < 0 ? -1 : m_toSecond[size_t(first)]; }
    qsizetype toFirst(qsizetype second) const { return m_toFirst[size_t(second)]; }
    /// The partner was not found by its uuid.
    bool isDoubtful(qsizetype first) const { return m_isDoubtful[size_t(first)]; }

private:
    void pair(qsizetype first, qsizetype second)
    {
        m_toSecond[size_t(first)] = second;
        m_toFirst[size_t(second)] = first;
    }

    /// The first with the first, and so on: equal entries may occur several times.
    void pairInOrder(int parts)
    {
        QHash<Content, std::vector<qsizetype>> waiting;
        for (qsizetype i = m_second.size() - 1; i >= 0; --i) {
            if (m_toFirst[size_t(i)] < 0)
                waiting[Content(m_second.at(i), parts)].push_back(i);
        }
        for (qsizetype i = 0; i < m_first.size() && !waiting.isEmpty(); ++i) {
            if (m_toSecond[size_t(i)] >= 0)
                continue;
            const auto found = waiting.find(Content(m_first.at(i), parts));
            if (found == waiting.end() || found->empty())
                continue;
            pair(i, found->back());
            found->pop_back();
        }
    }

    /// Only where there is one candidate on each side.
    template <class Condition>
    void pairNearest(int parts, bool isDoubtful, Condition condition)
    {
        constexpr qsizetype several = -2;
        const auto candidates = [&](const MvCalendarEventList &events, const std::vector<qsizetype> &partners) {
            QHash<Content, qsizetype> positions;
            for (qsizetype i = 0; i < events.size(); ++i) {
                if (partners[size_t(i)] >= 0 || !condition(events.at(i)))
                    continue;
                const Content content(events.at(i), parts);
                positions.insert(content, positions.contains(content) ? several : i);
            }
            return positions;
        };
        const QHash<Content, qsizetype> first = candidates(m_first, m_toSecond);
        if (first.isEmpty())
            return;
        const QHash<Content, qsizetype> second = candidates(m_second, m_toFirst);
        for (auto it = first.cbegin(); it != first.cend(); ++it) {
            const qsizetype partner = second.value(it.key(), several);
            if (it.value() == several || partner == several)
                continue;
            pair(it.value(), partner);
            m_isDoubtful[size_t(it.value())] = isDoubtful;
        }
    }

    /// When each list has one entry of a series, the two look like one entry; if both name and day differ, they may not
    /// be.
    void noteStrangers()
    {
        for (qsizetype i = 0; i < m_first.size(); ++i) {
            if (toSecond(i) < 0)
                continue;
            const MvCalendarEvent &first = m_first.at(i);
            const MvCalendarEvent &second = m_second.at(toSecond(i));
            m_isDoubtful[size_t(i)] =
                first.description() != second.description() && first.dateTime().date() != second.dateTime().date();
        }
    }

    const MvCalendarEventList &m_first;
    const MvCalendarEventList &m_second;
    std::vector<qsizetype> m_toSecond;
    std::vector<qsizetype> m_toFirst;
    std::vector<bool> m_isDoubtful;
};

/// Merges an entry that both sides have changed: a field that only one side changed is taken from that side, a field
/// that both changed from the later change.
MvCalendarEvent mergedFields(const MvCalendarEvent &base, const MvCalendarEvent &mine, const MvCalendarEvent &theirs)
{
    const bool isMineLater = !(mine.lastChanged() < theirs.lastChanged());
    const MvCalendarEvent &later = isMineLater ? mine : theirs;
    const MvCalendarEvent &earlier = isMineLater ? theirs : mine;
    const auto isLater = [&](int part) { // the field of the later change counts
        const Content before(base, part);
        return before == Content(earlier, part) || !(before == Content(later, part));
    };
    const int all[] = {Content::Name, Content::Date, Content::Foto, Content::Repetition, Content::Groups};
    if (std::all_of(std::begin(all), std::end(all), isLater))
        return later;
    MvCalendarEvent merged = isLater(Content::Foto) ? later : earlier; // setting a photo might copy it
    const auto source = [&](int part) -> const MvCalendarEvent & { return isLater(part) ? later : earlier; };
    merged.takeContent(source(Content::Name), Content::Name);
    merged.takeContent(source(Content::Date), Content::Date);
    merged.takeContent(source(Content::Repetition), Content::Repetition);
    merged.takeContent(source(Content::Groups), Content::Groups);
    return merged;
}

class ThreeWay
{
public:
    ThreeWay(const MvCalendarEventList &base, const MvCalendarEventList &mine, const MvCalendarEventList &theirs,
             bool theirsIsWhole)
        : m_base(base)
        , m_mine(mine)
        , m_theirs(theirs)
        , m_theirsIsWhole(theirsIsWhole)
        , m_shared(sharedUuids())
        , m_toMine(base, mine, m_shared)
        , m_toTheirs(base, theirs, m_shared)
    {}

    MvCalendarEventList result()
    {
        MvCalendarEventList merged = mergedEntries();
        merged.setGroups(MvEventGroupList::merged(m_base.groups(), m_mine.groups(), m_theirs.groups()));
        return merged;
    }

private:
    MvCalendarEventList mergedEntries()
    {
        for (qsizetype i = 0; i < m_mine.size(); ++i) {
            if (m_toMine.toFirst(i) >= 0) {
                takeKnown(m_toMine.toFirst(i), m_mine.at(i));
                continue;
            }
            m_placesOfNew.push_back(m_result.size());
            m_result.append(m_mine.at(i));
        }
        takeNewOfTheirs();
        return withoutSurplus();
    }

    SharedUuids sharedUuids() const
    {
        SharedUuids shared;
        for (const MvCalendarEventList *list : {&m_base, &m_mine, &m_theirs})
            shared.addFrom(*list);
        return shared;
    }

    /// An entry of mine that both started from.
    void takeKnown(qsizetype position, const MvCalendarEvent &mine)
    {
        const MvCalendarEvent &base = m_base.at(position);
        const qsizetype there = m_toTheirs.toSecond(position);
        const bool isChangedHere = !isSame(base, mine);
        if (there < 0) { // removed there
            if (isChangedHere || !m_theirsIsWhole)
                m_result.append(mine);
            return;
        }
        const MvCalendarEvent &theirs = m_theirs.at(there);
        if (!isChangedHere)
            m_result.append(base.uuid() == mine.uuid() || !isSame(base, theirs) ? theirs : mine);
        else if (isSame(base, theirs))
            m_result.append(mine);
        else if (isSame(mine, theirs))
            m_result.append(theirs);
        else if (m_toMine.isDoubtful(position) || m_toTheirs.isDoubtful(position))
            m_result << mine << theirs;
        else
            m_result.append(mergedFields(base, mine, theirs));
    }

    /// What they have added, or changed while it was removed here. Both may have added the same, such as a contact of
    /// an address book; its photo is then another copy on each side.
    void takeNewOfTheirs()
    {
        MvCalendarEventList newHere;
        MvCalendarEventList newThere;
        for (const qsizetype place : m_placesOfNew)
            newHere.append(m_result.at(place));
        for (qsizetype i = 0; i < m_theirs.size(); ++i) {
            const qsizetype base = m_toTheirs.toFirst(i);
            if (base < 0 || (m_toMine.toSecond(base) < 0 && !isSame(m_base.at(base), m_theirs.at(i))))
                newThere.append(m_theirs.at(i));
        }
        if (newThere.isEmpty())
            return;
        const Pairing pairing(newHere, newThere, m_shared);
        for (qsizetype i = 0; i < newThere.size(); ++i) {
            const qsizetype here = pairing.toFirst(i);
            constexpr int nameAndDate = Content::Name | Content::Date;
            if (here < 0 || !(Content(newHere.at(here), nameAndDate) == Content(newThere.at(i), nameAndDate))) {
                m_result.append(newThere.at(i));
                continue;
            }
            MvCalendarEvent &mine = m_result[m_placesOfNew[size_t(here)]];
            if (mine.lastChanged() < newThere.at(i).lastChanged())
                mine = newThere.at(i);
        }
    }

    /// Equal entries that both sides arrived at independently are kept once, or as often as the side with more of them.
    MvCalendarEventList withoutSurplus() const
    {
        const auto counted = [](const MvCalendarEventList &events) {
            QHash<Content, int> counts;
            counts.reserve(events.size());
            for (const MvCalendarEvent &event : events)
                ++counts[Content(event, Content::everything)];
            return counts;
        };
        const QHash<Content, int> result = counted(m_result);
        if (result.size() == m_result.size())
            return m_result;
        const QHash<Content, int> mine = counted(m_mine);
        const QHash<Content, int> theirs = counted(m_theirs);
        QHash<Content, int> taken;
        MvCalendarEventList rest;
        for (const MvCalendarEvent &event : m_result) {
            const Content content(event, Content::everything);
            if (++taken[content] <= std::max({1, mine.value(content), theirs.value(content)}))
                rest.append(event);
        }
        return rest;
    }

    const MvCalendarEventList &m_base;
    const MvCalendarEventList &m_mine;
    const MvCalendarEventList &m_theirs;
    bool m_theirsIsWhole;
    SharedUuids m_shared;
    Pairing m_toMine;   // from base
    Pairing m_toTheirs; // from base
    MvCalendarEventList m_result;
    std::vector<qsizetype> m_placesOfNew; // in the result: what mine has added
};

} // namespace

MvCalendarEventList MvCalendarEventMerge::joined(const MvCalendarEventList &base, const MvCalendarEventList &other,
                                                 bool keepBase)
{
    QSet<QUuid> known;
    for (const MvCalendarEvent &event : base)
        known.insert(event.uuid());
    MvCalendarEventList result = keepBase ? base : MvCalendarEventList();
    result.setGroups(base.groups());
    for (const MvEventGroup &group : other.groups()) {
        if (!base.groups().find(group.id))
            result.groups().append(group);
    }
    for (const MvCalendarEvent &event : other) {
        if (event.uuid().isNull() || !known.contains(event.uuid()))
            result.append(event);
    }
    return result;
}

MvCalendarEventList MvCalendarEventMerge::threeWay(const MvCalendarEventList &base, const MvCalendarEventList &mine,
                                                   const MvCalendarEventList &theirs, bool theirsIsWhole)
{
    return ThreeWay(base, mine, theirs, theirsIsWhole).result();
}

QList<MvCalendarEventMerge::Difference> MvCalendarEventMerge::differences(const MvCalendarEventList &here,
                                                                          const MvCalendarEventList &there)
{
    SharedUuids shared;
    shared.addFrom(here);
    shared.addFrom(there);
    const Pairing pairing(here, there, shared);
    QHash<Content, int> unpaired; // of the other list, by what they say: lists without uuids get new ones
    for (qsizetype i = 0; i < there.size(); ++i) {
        if (pairing.toFirst(i) < 0)
            ++unpaired[Content(there.at(i), Content::Name | Content::Date)];
    }
    QList<Difference> differences;
    for (qsizetype i = 0; i < here.size(); ++i) {
        const MvCalendarEvent &event = here.at(i);
        const qsizetype partner = pairing.toSecond(i);
        if (partner < 0 && unpaired.value(Content(event, Content::Name | Content::Date)) > 0)
            --unpaired[Content(event, Content::Name | Content::Date)];
        else if (partner < 0)
            differences.append({event, {}});
        else if (!isSameButForFile(event, there.at(partner)))
            differences.append({event, there.at(partner)});
    }
    return differences;
}

MvCalendarEvent MvCalendarEventMerge::successor(const MvCalendarEvent &event, const MvCalendarEventList &before,
                                                const MvCalendarEventList &after)
{
    const auto isIt = [&event](const MvCalendarEvent &other) {
        return other.uuid() == event.uuid() && isSame(other, event);
    };
    const auto found = std::find_if(before.cbegin(), before.cend(), isIt);
    if (found == before.cend())
        return {};
    SharedUuids shared;
    shared.addFrom(before);
    shared.addFrom(after);
    const qsizetype there = Pairing(before, after, shared).toSecond(found - before.cbegin());
    return there < 0 ? MvCalendarEvent() : after.at(there);
}

bool MvCalendarEventMerge::isSameFoto(const MvFoto &a, const MvFoto &b)
{
    if (a == b)
        return true;
    if (!a.isValid() || !b.isValid() || !a.mayBeOpened() || !b.mayBeOpened())
        return false;
    QFile first(a.localFilePath());
    QFile second(b.localFilePath());
    const QFileInfo info(first);
    return info.isFile() && QFileInfo(second).isFile() && info.size() == second.size() &&
           first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) && first.readAll() == second.readAll();
}

MvCalendarEventList MvCalendarEventMerge::withoutRepetitions(const MvCalendarEventList &events)
{
    QSet<Content> known;
    known.reserve(events.size());
    MvCalendarEventList result;
    result.setGroups(events.groups());
    for (const MvCalendarEvent &event : events) {
        const qsizetype before = known.size();
        known.insert(Content(event, Content::everything));
        if (known.size() > before)
            result.append(event);
    }
    return result;
}
