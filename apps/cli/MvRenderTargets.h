// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/MvExportTarget.h"
#include "MvProject/MvPressSettings.h"
#include "plain/MvCliArguments.h"
#include "plain/MvCliCommand.h"

#include <QCoreApplication>
#include <QList>

class MvCliValues;

/// Where "render" writes: the files of --output, or the standard output, and whether these may replace others.
class MvRenderTargets
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderTargets)

public:
    static QList<MvCliOption> options();

    /// Mistakes are left with the values, which keep the first one.
    MvRenderTargets(MvCliValues &values, const MvCliArguments &arguments);

    int dpi() const { return m_dpi; }
    /// In percent of one ink; of files for a press.
    int inkLimit() const { return m_press.usedInkLimit(); }
    /// What hints are about.
    QString name() const { return m_name; }
    bool isStandardOutput() const { return m_isStandardOutput; }

    /// Says what becomes of the pages on a printer's sheets.
    void hintAtSheets(const MvPageSource &pages, QTextStream &hints) const;
    /// What is wrong with the names for these pages, or keeps the files from being written.
    MvCliCommand::Result check(const MvPageSource &pages) const;
    /// Writes one target after the other; the first that fails ends it. Every file that was written is in the result.
    MvExportResult write(const MvPageSource &pages, const MvCliCommand::Streams &streams) const;

private:
    QString writtenTwice(const MvPageSource &pages) const;
    MvExportTarget target(const QString &path) const;
    MvExportResult writeToStandardOutput(const MvPageSource &pages, const MvCliCommand::Streams &streams) const;
    static MvOutcome copy(QFile &source, QTextStream &out);

    QList<MvExportTarget> m_targets;
    QString m_name;
    int m_dpi = 0;
    bool m_replaces = true;
    MvPressSettings m_press;
    MvSheetSettings m_sheets;
    int m_jobs = 0;
    bool m_isStandardOutput = false;
};
