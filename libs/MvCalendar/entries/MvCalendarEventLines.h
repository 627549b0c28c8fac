// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QByteArray>
#include <QString>

class MvCalendarEventTexts;

/// Goes through the bytes of a list as programs write it, at a fraction of the time that an XML reader takes: elements
/// with texts in elements, and nothing else.
///
/// Attributes, comments, other encodings, other elements, mistakes: at whatever it does not know it gives up. Nothing
/// of what it has given counts then, and an XML reader has to decide. Where it comes to the end, an XML reader would
/// have given the same.
class MVCALENDAR_EXPORT MvCalendarEventLines
{
public:
    /// The bytes must outlive this.
    explicit MvCalendarEventLines(QByteArrayView bytes);

    /// Goes to the next entry or group of the list, whose texts have been taken; false at the end of the file, and
    /// when it gives up.
    bool next();
    /// Whether next() has come to the end of the file.
    bool isAtEnd() const { return m_isAtEnd; }

    /// "CalendarEvent" or "CalendarEventGroup".
    const QString &element() const { return *m_element; }
    /// Where the element starts, from 1.
    int line() const { return m_elementLine; }
    /// The texts of the element; to be asked for once.
    MvCalendarEventTexts texts();

private:
    bool giveUp();
    bool take(QByteArrayView expected);
    bool takeEnd(QByteArrayView name);
    QByteArrayView takeName();
    bool takeText(QString &text);
    void skipBlanks();

    QByteArrayView m_bytes;
    qsizetype m_at = 0; // in the bytes
    int m_line = 1;     // of that
    const QString *m_element = nullptr;
    int m_elementLine = 0;
    bool m_isAtEnd = false;
    bool m_hasGivenUp = false;
};
