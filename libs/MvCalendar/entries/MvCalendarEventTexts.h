// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QHash>
#include <QString>

class QDomElement;
class QXmlStreamReader;

/// The texts of the child elements of one entry in a file, by element name; of equal names the first one counts.
class MVCALENDAR_EXPORT MvCalendarEventTexts
{
public:
    explicit MvCalendarEventTexts(const QDomElement &element);
    /// The reader stands on the entry's start element and is left on its end element. Unlike a document in memory, it
    /// keeps texts of blanks alone.
    explicit MvCalendarEventTexts(QXmlStreamReader &reader);

    bool isEmpty() const { return m_texts.isEmpty(); }
    bool contains(const QString &name) const { return m_texts.contains(name); }
    /// Empty when missing.
    QString text(const QString &name) const { return m_texts.value(name); }

private:
    QHash<QString, QString> m_texts;
};
