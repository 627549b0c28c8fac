// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QString>
#include <QStringList>

class MvSheetPlan;
class QFile;

/// Lays the pages of a finished PDF on sheets. Each page is kept once, as it is, and the sheets show it or parts of it;
/// bookmarks lead to the sheets, and what the file says of itself stays.
class MvPdfSheets
{
public:
    /// Reads one file and writes another, which is open and empty. The plan is one for the trimmed pages of the file
    /// and has no error; the names are those of the pages, for those who sort tiles.
    static MvOutcome write(QFile &from, QFile &to, const MvSheetPlan &plan, const QStringList &names);
};
