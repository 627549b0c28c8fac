// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QString>

#include <optional>

/// Project files: a document, and its list of entries if it has one of its own, as XML (docs/file-formats.md); reading
/// and writing, without any state.
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
        /// The calendar's own list, as far as it could be read; none in files of before there were such lists, and
        /// where the document names a list in another file.
        std::optional<MvCalendarEventFile::Content> entries;
    };

    /// The suffix of project files, without a dot: "mvcalendar".
    static QString suffix();

    /// Reads a file; the document is only to be used when there is no error.
    static Content read(const QFileInfo &file);

    /// A calendar's list, or none.
    using Entries = std::optional<MvCalendarEventList>;

    /// Writes the file in one go, with backups. Photos of the entries stay where they are (MvProjectEntryFotos). The
    /// error names the file. Any thread.
    static MvOutcome write(const MvCalendarDocument &document, const Entries &entries, const QFileInfo &file);
    /// The same for a calendar without a list of its own.
    static MvOutcome write(const MvCalendarDocument &document, const QFileInfo &file);

    /// The whole file. Photos below the folder are written relative to it. The original path and its file's stamp are
    /// for recovery.
    static QByteArray toBytes(const MvCalendarDocument &document, const QDir &folder, const QString &originalPath = {},
                              const QByteArray &originalStamp = {}, const Entries &entries = {});
};
