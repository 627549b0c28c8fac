// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvInkUse.h"
#include "MvProject/MvPrintedFoto.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QMap>
#include <QStringList>

class QTextStream;

/// What came of printing a calendar: the files, the texts that do not stand whole on their pages, the photos that were
/// not there and how finely the others are printed.
class MvRenderReport
{
    Q_DECLARE_TR_FUNCTIONS(MvRenderReport)

public:
    /// What the sources point to must outlive the report.
    explicit MvRenderReport(const MvCalendarDocument &document, const MvRenderingSources &sources = {});

    /// What was found when the page, counted from 0, was painted. A page may be painted for several files.
    void addPage(int page, const MvPageFindings &findings);

    void addFile(const QString &path) { m_files.append(path); }
    /// Photos that an export could not read.
    void addMissingFotos(const QStringList &paths);

    /// Entries that are not printed since their file has them in a form that cannot be read.
    void setSkippedEntries(const QFileInfo &file, const QList<MvCalendarEventFile::Skipped> &skipped);

    /// Of pages for a press, and the percentage up to which paper takes it.
    void setInks(const QList<MvInkUse> &inks, int limit);

    /// The object that the program's manual describes.
    QJsonObject toObject() const;
    QString toJson() const;
    /// One line when texts had no room, one when characters have no glyph, one per photo that is missing or will look
    /// coarse, one for those that are not quite fine, and, for a press, one per page with more ink than paper takes, or
    /// one for the page with most; otherwise nothing.
    void printHint(QTextStream &hints) const;

private:
    struct Page
    {
        QList<MvUnfittingText> unfitting;
        QList<MvUnfittingElement> elements;
        QList<MvPrintedFoto> fotos;
    };

    void printTextHints(QTextStream &hints) const;
    void printFotoHints(QTextStream &hints) const;
    void printInkHints(QTextStream &hints) const;

    const MvCalendarDocument m_document;
    const MvRenderingSources m_sources;
    QMap<int, Page> m_pages; // by number, from 0
    QStringList m_missingFotos;
    QStringList m_files;
    QList<MvInkUse> m_inks;
    int m_inkLimit = 0;
    QFileInfo m_entriesFile;
    QList<MvCalendarEventFile::Skipped> m_skipped;
};
