// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QDomElement>
#include <QFileInfo>
#include <QList>
#include <QString>

class MvCalendarEventFotoFinder;
class QXmlStreamReader;

/// Files of entries ("CalendarEvents"): reading and writing, without any state.
class MVCALENDAR_EXPORT MvCalendarEventFile
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFile)

public:
    /// What a file holds, but the list does not.
    struct Skipped
    {
        int line = 0;   // of its start, from 1
        QString name;   // of the entry, or of an element that is no entry; may be empty
        QString reason; // for a person: "das Datum „17.05.1941“ ist nicht zu lesen"

        /// "Zeile 12, „Oma“: das Datum …"
        QString describe() const;
    };

    struct Content
    {
        MvCalendarEventList events;
        QString error;           // for a person, with file and place; empty when the file was read to its end
        QString foreign;         // for a person, with file; set when it is well-formed, but no list of entries
        QList<Skipped> skipped;  // in the order of the file
        QString note;            // for a person, with file: photos that may not be opened; else empty
        bool isMissing = false;  // there is no such file; error is set, too
        bool isComplete = false; // everything in the file is in the list: writing it back loses nothing

        bool isRead() const { return error.isEmpty(); }
        bool isForeign() const { return !foreign.isEmpty(); }
        /// Why the file is not to be used as a list, for a person; empty for a list, even if some of it was skipped.
        QString refusal() const { return isRead() ? foreign : error; }
    };

    /// Reads a file. Photos that may not be opened give one warning for the file. May be called in any thread.
    static Content read(const QFileInfo &file);

    /// Reads a list that is part of a file, from its first tag to its last one, as UTF-8; the line is that of its start
    /// in the file. The error, if it is no such list, knows nothing of the file.
    static Content readPart(const QByteArray &list, int line, MvCalendarEventFotoFinder fotos);

    /// Reads a list within a document that somebody else reads: the reader is at its element before and at its end
    /// afterwards. What is wrong with the document is the reader's.
    static Content readWithin(QXmlStreamReader &reader, MvCalendarEventFotoFinder fotos);

    /// One line for each, at most so many, then how many more there are.
    static QString describe(const QList<Skipped> &skipped, int most);

    /// The valid entries among the child elements "CalendarEvent", in order, each equal one once; and the groups.
    static MvCalendarEventList readElement(const QDomElement &element);

    /// The whole file: UTF-8, indented by 2, groups, then the valid entries in order.
    static QByteArray toBytes(const MvCalendarEventList &events);
    /// The same without the file's first line, as part of a document: photos below the folder are relative to it.
    static QByteArray toBytesWithin(const MvCalendarEventList &events, const QDir &folder);
    /// The element of a list: "CalendarEvents".
    static QString elementName();
};
