// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QStringList>

/// Entries as a table: CSV or TSV, as spreadsheets write them.
///
/// What the columns are is guessed from their headings and contents; whoever can ask a person shows the guess first and
/// reads with what was chosen.
class MVCALENDAR_EXPORT MvEntryTable
{
    Q_DECLARE_TR_FUNCTIONS(MvEntryTable)

public:
    enum Column {
        Ignored,
        Name,
        Date,
        EndDate,
        Time,
        Repetition,
        Exceptions,
        ExtraDates,
        LeapDay,
        Groups,
        Uuid,
        EndTime,
        WholeDay
    };
    enum DateOrder { DayMonthYear, MonthDayYear };

    struct Format
    {
        QString encoding = QStringLiteral("UTF-8"); ///< or "Windows-1252", "UTF-16", "UTF-16LE", "UTF-16BE"
        QChar separator = u';';
        bool hasHeadings = false;
        QList<Column> columns;
        DateOrder order = DayMonthYear; ///< of "04/12/2027"; other forms say it themselves
        bool isOrderOpen = false;       ///< nothing in the table settles it
        bool isYearly = false;          ///< of rows that do not say how they repeat
    };

    static constexpr qsizetype mostRows = 100000;

    static Format guess(const QByteArray &bytes);
    static MvEntryReading read(const QByteArray &bytes) { return read(bytes, guess(bytes)); }
    static MvEntryReading read(const QByteArray &bytes, const Format &format);
    /// With headings, in UTF-8 with a mark, so that spreadsheets read it. A tab gives TSV.
    static QByteArray toBytes(const MvCalendarEventList &events, QChar separator = u';');

    /// A row of the table and the line of its start.
    struct Row
    {
        int line;
        QStringList cells;
    };
    /// For a preview. A quotation mark that nobody closes ends with its line. A first line that only says the
    /// separator, as spreadsheets write it ("sep=;"), is none of the rows.
    static QList<Row> rows(const QByteArray &bytes, const Format &format, qsizetype most = mostRows);
};
