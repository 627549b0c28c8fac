// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCliCommand.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvRenderEntries.h"

class MvCliValues;

/// "render": prints a calendar into files.
class MvRenderCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderCommand)

public:
    QString name() const override { return QStringLiteral("render"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;

private:
    static MvCalendarDocument documentFromOptions(MvCliValues &values);
    /// An unreadable file gives an error, what could not be taken from it hints.
    static MvOutcome readProject(const MvCliValues &values, MvCalendarDocument &document, QTextStream &hints);
    static void excludeDecidedByProject(MvCliValues &values);
    /// What is wrong with the names of the files, or keeps them from being written.
    static Result checkTargets(const QStringList &paths, const MvCalendarDocument &document, int dpi);
    static Result write(const MvCalendarDocument &document, const MvRenderEntries &entries,
                        const MvCliArguments &arguments, int dpi, const Streams &streams);
    static MvDateRange range(MvCliValues &values);
    static MvPageFormat pageFormat(MvCliValues &values);
    static MvCalendariumAppearance appearance(MvCliValues &values);
    /// The headings of the free columns.
    static QStringList columns(MvCliValues &values, const MvCalendariumAppearance &appearance);
    static MvCalendariumHolidayConfig holidayConfig(MvCliValues &values);
    /// Loads the entries that were asked for and has the pages show them.
    static MvRenderEntries takeEntries(const MvCliValues &values, MvCalendarDocument &document);
    /// What a person should know before printing.
    static void printHints(const MvCalendarDocument &document, const MvRenderEntries &entries, bool areVacationsAsked,
                           QTextStream &hints);
    static void hintAtLeapDayEntries(const MvRenderEntries &entries, QTextStream &hints);
    static void hintAtMissingFonts(const MvCalendariumAppearance &appearance, QTextStream &hints);
};
