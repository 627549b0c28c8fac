// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvCore/mvcore_export.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <memory>

/// Opens files that come from outside, for reading: regular ones only, and never waiting, since a pipe that nobody
/// writes to must not stop the program. Any thread.
class MVCORE_EXPORT MvRegularFile
{
    Q_DECLARE_TR_FUNCTIONS(MvRegularFile)

public:
    struct Opened : MvOutcome
    {
        std::unique_ptr<QFile> file; // open, with the path as its name; null on error
    };

    /// Shipped files (":/...") are opened, too; folders, devices and pipes are refused. The error is a sentence without
    /// the file's name.
    static Opened open(const QFileInfo &file);
};
