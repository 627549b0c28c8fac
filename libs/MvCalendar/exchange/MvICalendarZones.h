// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRecurrenceRule.h"

#include "MvProductBase/MvVCardProperty.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

/// The time zones of an iCalendar, and its times as this computer shows them.
///
/// A zone is known by its name, if systems have it, or by what the file says of it: from which moments on which offset
/// counts. A time without a zone, or of one that nobody knows, stays as it stands in the file.
class MvICalendarZones
{
public:
    struct Time
    {
        QDate date;
        QTime time;    ///< invalid: a whole day
        QString error; ///< for a person; empty when it was read
    };

    /// A VTIMEZONE begins; what is taken until the next one says how it is.
    void begin();
    /// One of its parts begins: standard or daylight saving time.
    void beginPart();
    void take(const MvVCardProperty &property);

    /// A date or a time, "20270301" or "20270301T193000Z", in the zone of that name; none for an empty one.
    Time read(const QString &text, const QString &zone);
    /// The same with the zone that the property names.
    Time read(const MvVCardProperty &property) { return read(property.text(), zoneOf(property)); }
    static QString zoneOf(const MvVCardProperty &property);

    /// Names that were asked for in vain.
    const QSet<QString> &unknown() const { return m_unknown; }

private:
    struct Part
    {
        QDateTime start; // in the zone's own time, written as world time
        MvRecurrenceRule rule;
        QList<QDateTime> more; // besides those of the rule
        int offset = 0;        // seconds
        int offsetBefore = 0;
    };

    static void takeOfPart(Part &part, const MvVCardProperty &property);
    static QDateTime latestStart(const Part &part, const QDateTime &time);
    static int offsetAt(const QList<Part> &parts, const QDateTime &time);
    QDateTime toLocal(const QDate &date, const QTime &time, const QString &zone);

    QHash<QString, QList<Part>> m_zones;
    QSet<QString> m_unknown;
    QString m_open;          // the name of the zone that is being read
    QList<Part> m_openParts; // of it
    bool m_isInPart = false;
};
