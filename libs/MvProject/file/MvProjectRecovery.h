// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QList>
#include <QString>

class MvProject;

/// What programs that died had not saved. MvProjectAutosave puts it down. GUI thread.
class MVPROJECT_EXPORT MvProjectRecovery
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectRecovery)

public:
    struct Entry
    {
        QFileInfo file;       // with the unsaved state
        QString originalPath; // of the project; empty for one that was never saved
        QString title;        // of the document
        QDateTime time;       // of the state
    };

    /// The states whose programs live no more, latest first.
    static QList<Entry> found();

    /// Opens the state. The project keeps its original path and is modified; the entry's file stays until it is saved
    /// or given up, if an MvProjectAutosave watches the project. On error nothing changes.
    static MvOutcome open(const Entry &entry, MvProject &project);

    /// Removes the state for good.
    static void discard(const Entry &entry);
};
