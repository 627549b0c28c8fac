// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QString>
#include <QVarLengthArray>

#include <utility>

class QDomElement;
class QXmlStreamReader;

/// The texts of the child elements of one entry in a file, by element name; of equal names the first one counts.
class MVCALENDAR_EXPORT MvCalendarEventTexts
{
public:
    MvCalendarEventTexts() = default;
    explicit MvCalendarEventTexts(const QDomElement &element);
    /// The reader stands on the entry's start element and is left on its end element. Unlike a document in memory, it
    /// keeps texts of blanks alone.
    explicit MvCalendarEventTexts(QXmlStreamReader &reader);

    /// Does nothing when there is a text of that name.
    void add(QLatin1StringView name, const QString &text);

    bool isEmpty() const { return m_texts.isEmpty(); }
    /// Others than nearly all entries have.
    bool hasExtras() const { return m_hasExtras; }
    bool contains(const QString &name) const { return find(name) != nullptr; }
    /// Empty when missing.
    QString text(const QString &name) const;

private:
    void add(const QString &name, const QString &text);
    const QString *find(const QString &name) const;

    QVarLengthArray<std::pair<QString, QString>, 13> m_texts; // as many as an entry may have
    bool m_hasExtras = false;
};
