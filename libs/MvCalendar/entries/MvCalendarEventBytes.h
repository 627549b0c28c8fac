// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QUuid>

#include <functional>

/// What a file of entries holds: UTF-8, indented by 2, groups, then the valid entries in order.
///
/// An object keeps what it has written last. Of the next list only those entries are put into words that were not in
/// it, so that one change among thousands writes one change.
class MvCalendarEventBytes
{
public:
    static const QString listElement;
    static const QString entryElement;
    static const QString groupElement;

    /// What the file has for the path of a photo; the path itself without a function.
    using PathText = std::function<QString(const QString &path)>;

    explicit MvCalendarEventBytes(const PathText &pathText = {});

    QByteArray of(const MvCalendarEventList &events);

private:
    void append(QByteArray &bytes, const QString &name, const QList<std::pair<QString, QString>> &texts) const;
    void append(QByteArray &bytes, const MvCalendarEvent &event) const;
    /// Where the entry stands in what was written last; -1 if not there as it is now. It is looked for at its neighbour
    /// first.
    qsizetype find(const MvCalendarEvent &event, qsizetype expected);

    PathText m_pathText;
    MvCalendarEventList m_events; // written last
    QByteArray m_bytes;
    QList<qsizetype> m_places;       // of each of the events, and of their end
    QHash<QUuid, qsizetype> m_index; // of these events, once somebody asks
};
