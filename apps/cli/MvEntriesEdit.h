// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "plain/MvCliCommand.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

class MvCliValues;
class MvEntriesPlace;

/// "entries add" and "entries remove": one entry, as a person names it.
class MvEntriesEdit
{
    Q_DECLARE_TR_FUNCTIONS(MvEntriesEdit)

public:
    static QList<MvCliOption> options();

    /// Prints the uuid of the new entry; of the one that is there, when an equal one is.
    static MvCliCommand::Result add(const MvCliArguments &arguments, const MvCliCommand::Streams &streams);
    /// Prints the entry that is gone. Where the call fits several, these are hints, and nothing is removed.
    static MvCliCommand::Result remove(const MvCliArguments &arguments, const MvCliCommand::Streams &streams);

private:
    /// By uuid, or by text and date; positions in the list.
    static QList<qsizetype> found(const MvCalendarEventList &events, const QString &text, const QDate &date,
                                  bool hasYear);
    static MvCalendarEvent entryOf(MvCliValues &values, const QString &text, const QString &date);
    static void takeRepetition(MvCalendarEvent &entry, MvCliValues &values);
    static void takeTimes(MvCalendarEvent &entry, MvCliValues &values);
};
