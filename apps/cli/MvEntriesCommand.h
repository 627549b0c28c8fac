// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvEntryIntake.h"
#include "plain/MvCliCommand.h"

/// "entries": personal entries listed, added and removed, taken in from other programs, given to them, checked.
class MvEntriesCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvEntriesCommand)

public:
    QString name() const override { return QStringLiteral("entries"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool hasPages() const override { return true; } // calendars and photos are read
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    static QStringList actions();
    static Result misuse(const MvCliArguments &arguments);
    static Result import(const MvCliArguments &arguments, const Streams &streams);
    static Result check(const MvEntryReading &reading, const QString &file, const Streams &streams);
    static Result exportTo(MvCalendarEventList events, const MvCliArguments &arguments, const Streams &streams);
    /// Those that --holidays and --vacations ask for.
    static MvCalendarEventList holidays(const MvCliArguments &arguments, QString *error, QTextStream &hints);
};
