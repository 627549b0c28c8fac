// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QString>
#include <QStringList>

class MvSheetPlan;

/// Lays the pages of a finished PDF on sheets. Each page is kept once, as it is, and the sheets show it or parts of it;
/// bookmarks lead to the sheets, and what the file says of itself stays.
class MvPdfSheets
{
public:
    /// Reads one file and writes another. The plan is one for the trimmed pages of the file and has no error; the names
    /// are those of the pages, for those who sort tiles.
    static MvOutcome write(const QString &from, const QString &to, const MvSheetPlan &plan, const QStringList &names);
};
