// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"

#include <QHash>
#include <QRandomGenerator>
#include <QSet>

/// A step of somebody who edits entries. The id begins the entry's name, however often it is renamed: "17", "17.4".
struct MvEntryEdit
{
    enum What { Add, Change, Remove, NewUuid };

    What what = Add;
    MvCalendarEvent before;
    MvCalendarEvent after;

    QString id() const { return idOf(what == Add ? after : before); }
    static QString idOf(const MvCalendarEvent &event) { return event.description().section(u'.', 0, 0); }
};

/// Somebody who edits at random: entries with a uuid of their own, of one series, and with none.
class MvEntryEditor
{
public:
    /// The prefix begins all ids, so that those of several editors differ.
    MvEntryEditor(quint32 seed, const QString &prefix)
        : m_random(seed)
        , m_prefix(prefix)
    {}

    /// The beginning of the series, which nobody touches: that it is one can be seen in every list.
    static MvCalendarEventList beginning() { return {entry(u"=1"_qs, 1, series()), entry(u"=2"_qs, 2, series())}; }

    MvEntryEdit next(const MvCalendarEventList &events)
    {
        const MvCalendarEvent event = events.isEmpty() ? MvCalendarEvent() : events.at(bounded(int(events.size())));
        const int what = bounded(10);
        if (what < 4 || !event.isValid() || event.description().startsWith(u'=')) {
            const QUuid uuids[] = {QUuid::createUuid(), series(), QUuid()};
            return {MvEntryEdit::Add, {}, entry(m_prefix + QString::number(++m_count), bounded(3), uuids[bounded(3)])};
        }
        if (what == 9) // as if it had been read from a file without uuids
            return {MvEntryEdit::NewUuid, event,
                    MvCalendarEvent(event.description(), event.dateTime(), true, MvFoto(), QUuid::createUuid(), {})};
        if (what == 8)
            return {MvEntryEdit::Remove, event, {}};
        MvCalendarEvent changed = event;
        if (what == 7)
            changed.setDateTime(event.dateTime().addDays(1));
        else
            changed.setEventName(u"%1.%2%3"_qs.arg(MvEntryEdit::idOf(event), m_prefix).arg(++m_count));
        return {MvEntryEdit::Change, event, changed};
    }

    int bounded(int end) { return m_random.bounded(end); }

private:
    static QUuid series() { return QUuid::createUuidV5(QUuid(), u"series"_qs); }
    static MvCalendarEvent entry(const QString &name, int day, const QUuid &uuid)
    {
        return MvCalendarEvent(name, QDate(2000, 1, 1).addDays(day).startOfDay(), true, MvFoto(), uuid, {});
    }

    QRandomGenerator m_random;
    QString m_prefix;
    int m_count = 0;
};

/// What several editors did to entries, and whether a list can come from that in any order.
class MvEntryHistory
{
public:
    /// An edit that may not have come into effect leaves open what became of the entry.
    void note(int who, MvEntryEdit::What what, const QString &id, bool isSure = true)
    {
        Story &story = m_stories[id];
        story.isSure = story.isSure && isSure;
        if (what == MvEntryEdit::Change)
            story.changedBy.insert(who);
        else if (what == MvEntryEdit::Remove)
            story.removedBy.insert(who);
    }

    /// What is wrong with the list that all of them left; empty when nothing is.
    QString mistakeIn(const MvCalendarEventList &events) const
    {
        QHash<QString, int> found;
        QSet<MvCalendarEvent> known;
        for (const MvCalendarEvent &event : events) {
            ++found[MvEntryEdit::idOf(event)];
            if (known.contains(event))
                return event.description() + u" is there twice"_qs;
            known.insert(event);
        }
        for (auto it = m_stories.cbegin(); it != m_stories.cend(); ++it) {
            const Story &story = it.value();
            const bool isOnce = story.changedBy.size() < 2; // else two may have changed it at the same time
            const bool isRemoved =
                isOnce && !story.removedBy.isEmpty() && (story.changedBy - story.removedBy).isEmpty();
            const int count = found.value(it.key());
            if (count == 0 && story.isSure && story.removedBy.isEmpty())
                return it.key() + u" is lost"_qs;
            if (count > 0 && story.isSure && isRemoved)
                return it.key() + u" is back"_qs;
            if (count > 1 && isOnce)
                return u"%1 is there %2 times"_qs.arg(it.key()).arg(count);
        }
        return {};
    }

private:
    struct Story
    {
        QSet<int> changedBy;
        QSet<int> removedBy;
        bool isSure = true;
    };
    QHash<QString, Story> m_stories;
};
