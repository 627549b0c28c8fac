#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDomElement>
#include <QFileInfo>
#include <QString>

/// Files of entries ("CalendarEvents"): reading and writing, without any state.
class MVCALENDAR_EXPORT MvCalendarEventFile
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventFile)

public:
    struct Content
    {
        MvCalendarEventList events;
        QString error;           // for a person, with file and place; empty when the file was read
        bool isMissing = false;  // there is no such file; error is set, too
        bool isComplete = false; // everything in the file is in the list: writing it back loses nothing

        bool isRead() const { return error.isEmpty(); }
    };

    /// Reads a file. Photos that may not be opened give one warning for the file.
    static Content read(const QFileInfo &file);

    /// The valid entries among the child elements "CalendarEvent", in order, each equal one once.
    static MvCalendarEventList readElement(const QDomElement &element);

    /// The whole file: UTF-8, indented by 2, the valid entries in order.
    static QByteArray toBytes(const MvCalendarEventList &events);
};
