// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QString>
#include <QStringList>

class MvLocale;
class MvSheetPlan;
class QFile;

/// Lays the pages of a finished PDF on sheets. The pages stay as they are, and the sheets show them or parts of them;
/// bookmarks lead to the sheets, each page is read from the first of its own, and what the file says of itself stays.
class MvPdfSheets
{
public:
    /// Reads one file and writes another, which is open and empty. The plan is one for the trimmed pages of the file
    /// and has no error; the names are those of the pages, for those who sort tiles; the language is that
    /// of what is written beside them.
    static MvOutcome write(QFile &from, QFile &to, const MvSheetPlan &plan, const QStringList &names,
                           const MvLocale &language);
};
