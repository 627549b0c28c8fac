// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"
#include "MvRenderEntries.h"
#include "plain/MvCliCommand.h"

#include <QJsonObject>

class MvCliValues;
class MvRenderTargets;

/// What came of printing one calendar, for who prints many.
struct MvRenderOutcome
{
    MvCalendarDocument document;
    MvRenderEntries entries;
    QJsonObject report; // of MvRenderReport
    int pages = 0;
    bool isInterrupted = false; // by MvInterruption: pages are missing, those that are there are whole
};

/// "render": prints a calendar into files: that of a project, one made of photos, or one that options describe.
class MvRenderCommand : public MvCliCommand
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderCommand)

public:
    QString name() const override { return QStringLiteral("render"); }
    QString summary() const override;
    QList<MvCliOption> options() const override;
    QStringList examples() const override;
    bool hasPages() const override { return true; }
    Result run(const MvCliArguments &arguments, const Streams &streams) const override;
    /// The same; of a call that fails, the outcome holds what had been done by then.
    static Result render(const MvCliArguments &arguments, const Streams &streams, MvRenderOutcome &outcome);

private:
    /// What of the call decides on its own, so that it must not be given beside a project.
    static void excludeDecidedByProject(MvCliValues &values);
    static Result write(const MvCalendarDocument &document, const QList<int> &pages, const MvRenderEntries &entries,
                        const MvRenderTargets &targets, bool isReported, const Streams &streams,
                        MvRenderOutcome &outcome);
    /// Loads the entries that were asked for and has the pages show them.
    static MvRenderEntries takeEntries(const MvCliValues &values, const MvCliProject &project,
                                       MvCalendarDocument &document);
    /// Which of them are shown and how they read; the error is a sentence.
    static QString takeEntryDisplay(const MvCliArguments &arguments, const MvRenderEntries &entries,
                                    MvCalendarDocument &document);
    /// What a person should know before printing.
    static void printHints(const MvCalendarDocument &document, const MvRenderEntries &entries, bool areVacationsAsked,
                           QTextStream &hints);
    static void hintAtLeapDayEntries(const MvRenderEntries &entries, QTextStream &hints);
    static void hintAtMissingFonts(const MvCalendariumAppearance &appearance, QTextStream &hints);
};
