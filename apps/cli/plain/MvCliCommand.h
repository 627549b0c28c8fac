// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "plain/MvCliArguments.h"
#include "plain/MvCliOption.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTextStream>

/// One command of the program: what it is called, which options it takes, what it does.
class MvCliCommand
{
public:
    /// Exit codes.
    enum ExitCode {
        Done = 0,
        Failed = 1,      // the command was understood, but something could not be read or written
        Misused = 2,     // the command was not understood
        PrintsBadly = 3, // of "validate": the calendar can be printed, but something on it would look bad
        Interrupted = 4  // of "batch": a signal ended it, some calendars are left for the next run
    };

    /// Where a command writes: results to one stream, hints for a person to the other. What is going on, to a third, if
    /// somebody asked for it; null otherwise.
    struct Streams
    {
        QTextStream &out;
        QTextStream &hints;
        QTextStream *progress = nullptr;
        bool isQuiet = false;       // no names of files that were written
        QTextStream *err = nullptr; // for what cannot wait until the command is done; may be missing
    };

    struct Result
    {
        ExitCode code = Done;
        QString error; // one line for a person
    };

    virtual ~MvCliCommand() = default;
    MvCliCommand(const MvCliCommand &) = delete;
    MvCliCommand &operator=(const MvCliCommand &) = delete;

    virtual QString name() const = 0;
    virtual QString summary() const = 0;
    virtual QList<MvCliOption> options() const = 0;
    /// Calls as somebody would type them, without the program's name.
    virtual QStringList examples() const = 0;

    /// Whether a call of it needs neither pages nor entries nor colours, so that what these need is not loaded.
    virtual bool isPlain(const QStringList &) const { return false; }
    /// Whether it lays out pages, for which the program needs fonts and all that belongs to them.
    virtual bool hasPages() const { return false; }
    virtual Result run(const MvCliArguments &arguments, const Streams &streams) const = 0;

    /// Options that several commands share.
    static MvCliOption countryOption();
    static MvCliOption languageOption();
    static MvCliOption regionOption();
    static MvCliOption formatOption(const QStringList &formats);
    /// "--json", the short form of "--format json".
    static MvCliOption jsonOption();
    /// The project, with or without "--project".
    static MvCliOption projectOption();
    /// What every command takes: how much it says, and whether the file of MvCliConfig counts.
    static QList<MvCliOption> commonOptions();

protected:
    MvCliCommand() = default;

    static Result misused(const QString &error) { return {Misused, error}; }
    static Result failed(const QString &error) { return {Failed, error}; }
};
