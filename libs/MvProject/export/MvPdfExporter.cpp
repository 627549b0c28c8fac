// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfExporter.h"

#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfBoxes.h"

#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isCancelled(const MvExportObserver *observer)
{
    return observer && observer->isCancelled();
}

/// Paints all pages with the lower left corner of the media box at that of the PDF page, which is up to a point larger.
QString paintRawFile(QTemporaryFile &file, const MvPageSource &source, MvExportObserver *observer)
{
    const QSizeF media = source.format.mediaRect().size() * MvPdfBoxes::pointsPerTenthMillimetre;
    const QSize points(int(std::ceil(media.width())), int(std::ceil(media.height())));

    QPdfWriter writer(&file);
    writer.setResolution(MvPdfExporter::resolution);
    writer.setTitle(MvPrintableText::onOneLine(source.title));
    writer.setCreator(u"MvCalendar"_s);
    writer.setPageLayout(QPageLayout(QPageSize(points, u"page"_s, QPageSize::ExactMatch), QPageLayout::Portrait, {}));

    constexpr double scale = MvPdfExporter::resolution / MvMath::tenthMillimetresPerInch;
    const double top = MvMath::point2pixel(points.height() - media.height(), MvPdfExporter::resolution);
    const QPointF corner(source.format.bleed() * scale, source.format.bleed() * scale + top);

    QPainter painter;
    if (!painter.begin(&writer))
        return QCoreApplication::translate("MvPdfExporter", "Die Seiten lassen sich nicht zeichnen");
    const int total = int(source.pages.size());
    for (int page = 0; page < total && !isCancelled(observer); ++page) {
        if (page > 0 && !writer.newPage())
            return QCoreApplication::translate("MvPdfExporter", "Seite %1 lässt sich nicht anlegen").arg(page + 1);
        source.paintPage(painter, page, corner, scale);
        if (observer)
            observer->pagesDone(page + 1, total);
    }
    painter.end();
    return file.flush() && file.error() == QFile::NoError ? QString() : file.errorString();
}

} // namespace

MvExportResult MvPdfExporter::write(const MvPageSource &source, const QFileInfo &target, MvExportObserver *observer)
{
    QString error = source.error();
    QTemporaryFile raw(QDir::tempPath() + u"/mvcalendar-XXXXXX.pdf"_s);
    if (error.isEmpty() && !raw.open())
        error = raw.errorString();
    if (error.isEmpty())
        error = paintRawFile(raw, source, observer);
    bool isWritten = false;
    if (error.isEmpty() && !isCancelled(observer)) {
        error = MvPdfBoxes::finish(raw.fileName(), source, [&](const QByteArray &content) {
            if (isCancelled(observer)) // finishing the file can take long
                return QString();
            isWritten = true;
            return MvSafeFileWriter::write(target, content, MvSafeFileWriter::Backups::None).error;
        });
    }
    if (!error.isEmpty())
        return {u"%1: %2"_s.arg(target.filePath(), error), {}};
    return isWritten ? MvExportResult{{}, {target}} : MvExportResult{{}, {}, true};
}
