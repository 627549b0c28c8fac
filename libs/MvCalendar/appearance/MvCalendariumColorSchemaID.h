// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QHash>
#include <QString>

#include <compare>

class QDataStream;
class QDebug;
class QDomElement;

/// The id of a colour schema; those of users start with "USER_".
class MVCALENDAR_EXPORT MvCalendariumColorSchemaID
{
public:
    MvCalendariumColorSchemaID() = default;
    explicit MvCalendariumColorSchemaID(const QString &id)
        : m_id(id)
    {}

    /// A new id for a user's schema: "USER_" and a random number below 100000.
    static MvCalendariumColorSchemaID create();

    /// True for every id but the empty one.
    bool isValid() const { return !m_id.isEmpty(); }
    bool isUserSchema() const;
    QString toString() const { return m_id; }
    void clear() { m_id.clear(); }

    /// Reads the attribute "colorschema", or "schema" when that is empty; an old id becomes the current one.
    void read(const QDomElement &element);
    /// Writes the attribute "colorschema".
    void write(QDomElement &element) const;

    bool operator==(const MvCalendariumColorSchemaID &) const = default;
    auto operator<=>(const MvCalendariumColorSchemaID &other) const { return m_id.compare(other.m_id) <=> 0; }

private:
    QString m_id;
};

MVCALENDAR_EXPORT QDataStream &operator<<(QDataStream &stream, const MvCalendariumColorSchemaID &id);
MVCALENDAR_EXPORT QDebug operator<<(QDebug debug, const MvCalendariumColorSchemaID &id);

inline size_t qHash(const MvCalendariumColorSchemaID &id, size_t seed = 0)
{
    return qHash(id.toString(), seed);
}
