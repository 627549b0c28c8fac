// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QString>

/// Project files: a document as XML (docs/file-formats.md), reading and writing, without any state.
class MVPROJECT_EXPORT MvProjectFile
{
    Q_DECLARE_TR_FUNCTIONS(MvProjectFile)

public:
    /// What a file holds. The error names file, place and what to do; notes tell what could not be taken as it stands.
    struct Content : MvOutcome
    {
        MvCalendarDocument document;
        QString originalPath;     // of a recovered document: the file it belongs to; empty for a new project
        QByteArray originalStamp; // MvFileGuard's, of that file when the document was opened or saved; may be unknown
    };

    /// The suffix of project files, without a dot: "mvcalendar".
    static QString suffix();

    /// Reads a file; the document is only to be used when there is no error.
    static Content read(const QFileInfo &file);

    /// Writes the file in one go, with backups. The error names the file. Any thread.
    static MvOutcome write(const MvCalendarDocument &document, const QFileInfo &file);

    /// The whole file. Photos below the folder are written relative to it. The original path and its file's stamp are
    /// for recovery.
    static QByteArray toBytes(const MvCalendarDocument &document, const QDir &folder, const QString &originalPath = {},
                              const QByteArray &originalStamp = {});
};
