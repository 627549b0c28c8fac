// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvInkUse.h"

#include <QFileInfo>
#include <QList>

/// What became of an export. Every file named is complete; a file that could not be written is as it was before.
struct MvExportResult : MvOutcome
{
    QList<QFileInfo> files;
    bool isCancelled = false; // ended by its observer: pages are missing
    QStringList missingFotos; // paths of those whose places stayed empty, since they could not be read
    QList<MvInkUse> inks;     // of each page, when it was written for a press

    static MvExportResult failed(const QString &error) { return {{error, {}}, {}, false, {}, {}}; }
    static MvExportResult cancelled() { return {{}, {}, true, {}, {}}; }
    /// Every page was exported.
    bool isOk() const { return MvOutcome::isOk() && !isCancelled; }
    explicit operator bool() const { return isOk(); }
};
