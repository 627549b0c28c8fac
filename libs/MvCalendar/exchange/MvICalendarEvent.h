// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvVCardProperty.h"

#include <QByteArray>
#include <QList>
#include <QMultiHash>
#include <QString>

/// One event of an iCalendar as it stands there: those of its properties that an entry is made of.
class MvICalendarEvent
{
public:
    explicit MvICalendarEvent(int line = 0)
        : m_line(line)
    {}

    /// Whether an entry has a place for it; if not, nothing is kept.
    bool take(const MvVCardProperty &property);

    /// Of its beginning in the file, from 1.
    int line() const { return m_line; }
    bool has(const char *name) const { return m_properties.contains(name); }
    qsizetype count(const char *name) const { return m_properties.count(name); }
    QList<MvVCardProperty> values(const char *name) const { return m_properties.values(name); }
    /// Empty when it is not there.
    MvVCardProperty value(const char *name) const { return m_properties.value(name); }
    /// Without blanks around it.
    QString raw(const char *name) const { return value(name).text().trimmed(); }

    QString uid() const { return raw("UID"); }
    QString name() const { return MvVCardProperty::unescaped(value("SUMMARY").text()).simplified(); }
    int sequence() const { return raw("SEQUENCE").toInt(); }
    /// A single date of a series, changed or called off.
    bool isOverride() const { return has("RECURRENCE-ID"); }
    bool isCancelled() const { return raw("STATUS").compare(QStringView(u"CANCELLED"), Qt::CaseInsensitive) == 0; }

private:
    int m_line;
    QMultiHash<QByteArray, MvVCardProperty> m_properties;
};
