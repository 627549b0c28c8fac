// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"

#include <QCoreApplication>
#include <QString>
#include <QTextStream>

/// Entries that a call names: a file of any kind that holds some, known by its content, or standard input.
class MvEntriesInput
{
    Q_DECLARE_TR_FUNCTIONS(MvEntriesInput)

public:
    /// The name that stands for standard input, and for standard output.
    static bool isStandardStream(const QString &file) { return file == QStringLiteral("-"); }
    /// As a person calls it: "Standardeingabe", or the file's path.
    static QString nameOf(const QString &file);
    /// A calendar of this program: its entries are part of it.
    static bool isProject(const QString &file);

    /// A list, an iCalendar, a table, visiting cards, or the entries of a calendar of this program. The language is
    /// that of the calendar that shows them (MvEntryIntake).
    static MvEntryReading read(const QString &file, const MvLocale &language = {});
    /// Lines for a person: what was left out, and what of the others.
    static void printSkipped(const MvEntryReading &reading, const QString &file, QTextStream &hints);

private:
    static MvEntryReading readStandardInput(const MvLocale &language);
    static MvEntryReading readProject(const QString &file);
};
