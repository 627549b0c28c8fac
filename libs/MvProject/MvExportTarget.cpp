#include "MvProject/MvExportTarget.h"

#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPngExporter.h"
#include "MvProject/MvSvgExporter.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

MvExportTarget::MvExportTarget(const QString &path)
    : m_path(path)
    , m_suffix(QFileInfo(path).suffix().toLower())
{}

QString MvExportTarget::nameError(const MvPageSource &pages) const
{
    if (m_suffix != u"pdf"_s && m_suffix != u"png"_s && m_suffix != u"svg"_s)
        return tr("%1: die Endung muss .pdf, .png oder .svg sein").replace(u"%1"_s, m_path);
    QString error;
    if (m_suffix != u"pdf"_s)
        MvFileNamePattern(m_path).paths(pages.pages, &error, pages.numbers);
    return error;
}

QString MvExportTarget::placeError() const
{
    const QFileInfo folder(QFileInfo(m_path).path());
    if (!folder.exists())
        return tr("%1: den Ordner %2 gibt es nicht").replace(u"%1"_s, m_path).replace(u"%2"_s, folder.filePath());
    if (!folder.isDir() || !folder.isWritable())
        return tr("%1: in %2 lässt sich nicht schreiben").replace(u"%1"_s, m_path).replace(u"%2"_s, folder.filePath());
    if (QFileInfo(m_path).isDir())
        return tr("%1 ist ein Ordner").replace(u"%1"_s, m_path);
    return {};
}

MvExportResult MvExportTarget::write(const MvPageSource &pages, int dpi, MvExportObserver *observer) const
{
    if (const QString error = nameError(pages); !error.isEmpty())
        return {error, {}};
    if (m_suffix == u"pdf"_s)
        return MvPdfExporter::write(pages, QFileInfo(m_path), observer);
    if (m_suffix == u"png"_s)
        return MvPngExporter::write(pages, m_path, dpi, observer);
    return MvSvgExporter::write(pages, m_path, observer);
}

int MvExportTarget::imageResolution(int dpi) const
{
    return m_suffix == u"png"_s ? dpi : MvPdfExporter::resolution;
}
