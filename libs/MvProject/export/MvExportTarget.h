// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvExportResult.h"
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPressSettings.h"
#include "MvProject/MvSheetSettings.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QString>

class MvExportObserver;
class MvPageFormat;
class MvPageSource;

/// A file, or a pattern for files, that a calendar is to be written to; its suffix says what it becomes: .pdf, .html,
/// .svg, or a picture of MvPictureExporter.
class MVPROJECT_EXPORT MvExportTarget
{
    Q_DECLARE_TR_FUNCTIONS(MvExportTarget)

public:
    /// Whether a PDF or HTML document whose name has a placeholder of MvFileNamePattern is that one file, or becomes
    /// one of each page.
    enum class Pdf { OneFile, OneOfEachPage };

    explicit MvExportTarget(const QString &path, Pdf pdf = Pdf::OneFile);

    QString path() const { return m_path; }
    /// How many pages are made at a time; 0, as it is at first, for what suits the computer.
    void setJobs(int jobs) { m_jobs = jobs; }
    /// What a PDF is made for; other files have nothing of it.
    void setPress(const MvPressSettings &press) { m_press = press; }
    /// On which sheets of a printer the pages of a PDF are laid; other files have nothing of it.
    void setSheets(const MvSheetSettings &sheets) { m_sheets = sheets; }
    bool isPdf() const;
    /// Whether the file holds what there is to read on the pages (MvPageSource::content) instead of their pictures.
    bool isForReading() const;
    /// The dots per inch at which images are needed, when pictures are to have so many.
    int imageResolution(int dpi) const;

    /// The files that the pages become. What is wrong with the name itself, for these pages, is an error.
    MvFileNamePattern::Paths files(const MvPageSource &pages) const;
    /// Whether pages of this format may become pictures of that resolution; other files have no limits.
    MvOutcome checkSize(const MvPageFormat &format, int dpi) const;
    /// Whether these pages may be laid on the sheets that are set.
    MvOutcome checkSheets(const MvPageSource &pages) const;
    /// Whether a file of that name can be written, as far as it can be told beforehand.
    MvOutcome checkPlace() const;

    /// Writes the pages. The observer, if any, is not owned. Threads of QThreadPool::globalInstance(), in which Qt
    /// paints, are begun and kept from then on; where there is none for pages, that is an error.
    MvExportResult write(const MvPageSource &pages, int dpi, MvExportObserver *observer = nullptr) const;

private:
    /// Holds all pages, unless its name asks for one of each page.
    bool isDocument() const;
    bool isDocumentPerPage() const;
    bool isPicture() const;
    MvExportResult writeDocument(const MvPageSource &pages, const QString &path, MvExportObserver *observer) const;
    MvExportResult writeDocuments(const MvPageSource &pages, const QStringList &paths,
                                  MvExportObserver *observer) const;

    QString m_path;
    QString m_suffix; // lower case
    Pdf m_pdf;
    int m_jobs = 0;
    MvPressSettings m_press;
    MvSheetSettings m_sheets;
};
