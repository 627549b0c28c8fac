// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QHash>
#include <QString>

#include <compare>

class QDomElement;

/// The id of a layout schema; those of users start with "USER_".
class MVCALENDAR_EXPORT MvCalendariumLayoutSchemaID
{
public:
    MvCalendariumLayoutSchemaID() = default;
    explicit MvCalendariumLayoutSchemaID(const QString &id)
        : m_id(id)
    {}

    /// True for every id but the empty one.
    bool isValid() const { return !m_id.isEmpty(); }
    bool isUserID() const;
    QString toString() const { return m_id; }
    void clear() { m_id.clear(); }

    /// Reads the attribute "layoutschema", or "schema" when that is empty.
    void read(const QDomElement &element);
    /// Writes the attribute "layoutschema".
    void write(QDomElement &element) const;

    bool operator==(const MvCalendariumLayoutSchemaID &) const = default;
    auto operator<=>(const MvCalendariumLayoutSchemaID &other) const { return m_id.compare(other.m_id) <=> 0; }

private:
    QString m_id;
};

inline size_t qHash(const MvCalendariumLayoutSchemaID &id, size_t seed = 0)
{
    return qHash(id.toString(), seed);
}
