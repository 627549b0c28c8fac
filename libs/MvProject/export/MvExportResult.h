// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFileInfo>
#include <QList>
#include <QString>

/// What became of an export. Every file named is complete; a file that could not be written is as it was before.
struct MvExportResult
{
    QString error; // for a person; empty when nothing went wrong
    QList<QFileInfo> files;
    bool isCancelled = false; // ended by its observer: pages are missing

    bool isOk() const { return error.isEmpty() && !isCancelled; }
};
