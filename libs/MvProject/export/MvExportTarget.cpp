// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvExportTarget.h"

#include "MvCore/MvBackground.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvHtmlExporter.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPictureExporter.h"
#include "MvProject/MvSheetPlan.h"
#include "MvProject/MvSvgExporter.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Reports the pages of several files as if they were the pages of one.
class PageObserver : public MvExportObserver
{
public:
    PageObserver(MvExportObserver *all, int page, int total)
        : m_all(all)
        , m_page(page)
        , m_total(total)
    {}

    void pagesDone(int done, int) override
    {
        if (m_all)
            m_all->pagesDone(m_page + done, m_total);
    }
    bool isCancelled() const override { return m_all && m_all->isCancelled(); }

private:
    MvExportObserver *m_all;
    int m_page;
    int m_total;
};

} // namespace

MvExportTarget::MvExportTarget(const QString &path, Pdf pdf)
    : m_path(path)
    , m_suffix(QFileInfo(path).suffix().toLower())
    , m_pdf(pdf)
{}

MvFileNamePattern::Paths MvExportTarget::files(const MvPageSource &pages) const
{
    if (!isDocument() && m_suffix != u"svg"_s && !isPicture())
        return {{tr("%1: die Endung muss .pdf, .html, .png, .jpg, .tif oder .svg sein").replace(u"%1"_s, m_path), {}},
                {}};
    if (!isDocument() || isDocumentPerPage())
        return MvFileNamePattern(m_path).paths(pages);
    if (m_pdf == Pdf::OneOfEachPage)
        return {{}, {MvFileNamePattern(m_path).pathOfAll(pages)}};
    return {{}, {m_path}};
}

MvOutcome MvExportTarget::checkSize(const MvPageFormat &format, int dpi) const
{
    return isPicture() ? MvPictureExporter::checkSize(format, dpi) : MvOutcome();
}

MvOutcome MvExportTarget::checkSheets(const MvPageSource &pages) const
{
    if (!isPdf() || !m_sheets.areSheets())
        return {};
    if (m_sheets.kind == MvSheetSettings::Kind::Several && isDocumentPerPage() && pages.pages.size() > 1)
        return {tr("%1: jede Seite wird eine Datei für sich; mehrere auf einem Blatt brauchen einen Namen ohne %m, %y "
                   "und %n")
                    .replace(u"%1"_s, m_path),
                {}};
    return {MvSheetPlan(m_sheets, pages.format.trimSize(), int(pages.pages.size())).error(), {}};
}

MvOutcome MvExportTarget::checkPlace() const
{
    MvOutcome outcome;
    const QFileInfo folder(QFileInfo(m_path).path());
    if (!folder.exists())
        outcome.error = tr("%1: den Ordner %2 gibt es nicht");
    else if (!folder.isDir() || !folder.isWritable())
        outcome.error = tr("%1: in %2 lässt sich nicht schreiben");
    else if (QFileInfo(m_path).isDir())
        outcome.error = tr("%1 ist ein Ordner");
    outcome.error.replace(u"%1"_s, m_path).replace(u"%2"_s, folder.filePath());
    return outcome;
}

MvExportResult MvExportTarget::write(const MvPageSource &pages, int dpi, MvExportObserver *observer) const
{
    const MvFileNamePattern::Paths names = files(pages);
    if (!names.isOk())
        return MvExportResult::failed(names.error);
    if (!isForReading() && !MvBackground::keepThreads())
        return MvExportResult::failed(u"%1: %2"_s.arg(m_path, MvBackground::noThreads()));
    MvExportResult result;
    if (isDocumentPerPage())
        result = writeDocuments(pages, names.paths, observer);
    else if (isDocument())
        result = writeDocument(pages, names.paths.constFirst(), observer);
    else if (isPicture())
        result = MvPictureExporter::write(pages, m_path, dpi, observer, m_jobs);
    else
        result = MvSvgExporter::write(pages, m_path, observer, m_jobs);
    if (pages.missingFotos)
        result.missingFotos = pages.missingFotos();
    return result;
}

bool MvExportTarget::isDocument() const
{
    return isPdf() || isForReading();
}

MvExportResult MvExportTarget::writeDocument(const MvPageSource &pages, const QString &path,
                                             MvExportObserver *observer) const
{
    if (isForReading())
        return MvHtmlExporter::write(pages, QFileInfo(path), observer);
    return MvPdfExporter::write(pages, QFileInfo(path), observer, m_jobs, m_press, m_sheets);
}

bool MvExportTarget::isPdf() const
{
    return m_suffix == u"pdf"_s;
}

bool MvExportTarget::isForReading() const
{
    return m_suffix == u"html"_s;
}

bool MvExportTarget::isPicture() const
{
    return MvPictureExporter::suffixes().contains(m_suffix);
}

bool MvExportTarget::isDocumentPerPage() const
{
    const QString name = QFileInfo(m_path).fileName().remove(u"%%"_s);
    return m_pdf == Pdf::OneOfEachPage && isDocument() &&
           (name.contains(u"%m"_s) || name.contains(u"%y"_s) || name.contains(u"%n"_s));
}

MvExportResult MvExportTarget::writeDocuments(const MvPageSource &pages, const QStringList &paths,
                                              MvExportObserver *observer) const
{
    MvExportResult all;
    for (int page = 0; page < paths.size() && all.isOk(); ++page) {
        PageObserver pageObserver(observer, page, int(paths.size()));
        const MvExportResult one = writeDocument(pages.part({page}), paths[page], &pageObserver);
        all.files += one.files;
        all.inks += one.inks;
        all.error = one.error;
        all.isCancelled = one.isCancelled;
    }
    return all;
}

int MvExportTarget::imageResolution(int dpi) const
{
    return isPicture() ? dpi : MvPdfExporter::resolution;
}
