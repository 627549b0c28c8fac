// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventListSource.h"
#include "MvCliProject.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QTextStream>

#include <memory>

class QTemporaryDir;

/// The personal entries of a calendar that is printed: where they come from, and what of their file is left out.
class MvRenderEntries
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderEntries)

public:
    /// Those of a file of any kind (MvEntriesInput), or of standard input, for a calendar in that language; nothing is
    /// stored, and the user's own ones stay as they are.
    static MvRenderEntries ofFile(const QString &path, const MvLocale &language);
    /// Those that a calendar shows: of its own list, of the list in a file that it names, or the user's; none where no
    /// page shows entries.
    static MvRenderEntries ofProject(const MvCliProject &project);
    /// The user's own ones, which the program has read.
    static MvRenderEntries own();

    /// Why nothing is to be printed, in one line for a person; empty when the entries are known.
    const QString &error() const { return m_error; }
    bool areShown() const { return m_areShown; }
    /// They come from a list of this program's own form.
    bool isList() const { return m_isList; }
    const QFileInfo &file() const { return m_file; }
    /// The entries of the file, for painting; null for the user's own ones. Owned here and by copies.
    const MvCalendarEventSource *source() const { return m_source.get(); }
    MvCalendarEventList list() const;
    const QList<MvCalendarEventFile::Skipped> &skipped() const { return m_skipped; }

    /// Lines for a person: what was left out, and that there is nothing else.
    void printHints(QTextStream &hints) const;

private:
    void take(const MvCalendarEventFile::Content &content, const QFileInfo &file);

    QFileInfo m_file;
    QString m_error;
    bool m_areShown = false;
    bool m_isFile = false; // named by the call
    bool m_isList = false;
    QStringList m_notes;
    std::shared_ptr<const QTemporaryDir> m_fotos; // in which photos of the file lie
    std::shared_ptr<const MvCalendarEventListSource> m_source;
    QList<MvCalendarEventFile::Skipped> m_skipped;
};
