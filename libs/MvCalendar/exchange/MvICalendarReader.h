// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/MvICalendarEvent.h"
#include "MvCalendar/MvICalendarZones.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMap>
#include <QMultiHash>
#include <QString>

class MvICalendarEntryMaker;

/// Reads an iCalendar once, from its first line to its last. Files of other programs are often a little wrong: what
/// can be understood is taken, the rest is named with its line.
class MvICalendarReader
{
public:
    static constexpr qsizetype mostEvents = 100000;

    MvEntryReading read(const QByteArray &bytes);

private:
    struct Open
    {
        QByteArray name;
        int line;
        QString summary;
    };
    /// Which entries came from a calendar of the file.
    struct Calendar
    {
        QString name;
        qsizetype first;
        qsizetype end;
    };

    void skip(int line, const QString &name, const QString &reason);
    void take(const MvVCardProperty &property, int line);
    void begin(const QByteArray &name, int line);
    void end(const QByteArray &name);
    void takeWithin(const QByteArray &component, const MvVCardProperty &property);
    void takeOfEvent(const MvVCardProperty &property);
    void endEvent();
    void endFile(int leftOutLines, int firstLeftOut);

    void endCalendar();
    void dropOldVersions();
    void addEntry(const MvICalendarEvent &event, const MvICalendarEntryMaker &maker);
    void applyOverride(const MvICalendarEvent &event, const QDate &date);
    void groupByCalendars();
    void addNotes();
    bool isInEvent() const;

    MvEntryReading m_result;
    QList<Open> m_open;
    bool m_hasCalendar = false;
    qsizetype m_eventCount = 0;

    // of the calendar that is being read
    QString m_calendarName;
    MvICalendarZones m_zones;
    MvICalendarEvent m_event;
    QList<MvICalendarEvent> m_events;
    QMultiHash<QString, qsizetype> m_series; // entries by UID

    QList<Calendar> m_calendars;
    QMap<QString, int> m_leftOut; // what entries have no place for: how often
    QSet<QString> m_unknownZones;
};
