#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvProject/MvCalendarDocument.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

class QTextStream;

/// What came of printing a calendar: the files, the texts that had no room on their pages, the photos that were not
/// there.
class MvRenderReport
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderReport)

public:
    explicit MvRenderReport(const MvCalendarDocument &document);

    void addFile(const QString &path) { m_files.append(path); }

    /// Entries that are not printed since their file has them in a form that cannot be read.
    void setSkippedEntries(const QFileInfo &file, const QList<MvCalendarEventFile::Skipped> &skipped);

    /// An object with "files", a list of paths, "missingPhotos", the paths of photos that are not there or cannot be
    /// read, "skippedEntries", a list of objects with "file", "line" (from 1), "name" and "reason", and "unfitting", a
    /// list of objects with "page" (from 1), "date" (ISO), "text" and "rect" ("x", "y", "width", "height" in tenths of
    /// a millimetre from the corner of the trimmed page).
    QString toJson() const;
    /// One line when texts had no room, one per missing photo, otherwise nothing.
    void printHint(QTextStream &hints) const;

private:
    struct Entry
    {
        int page; // from 1
        MvUnfittingText text;
    };

    QList<Entry> m_unfitting;
    QStringList m_missingPhotos;
    QStringList m_files;
    QFileInfo m_entriesFile;
    QList<MvCalendarEventFile::Skipped> m_skipped;
};
