// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfExporter.h"

#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfBoxes.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Of the file's coordinates to a dot: texts are written in whole ones, which are right to 0.002 mm and short.
constexpr int unitsPerDot = 24;
constexpr double dotsPerUnit = MvPdfExporter::resolution / MvMath::tenthMillimetresPerInch; // of the page

bool isCancelled(const MvExportObserver *observer)
{
    return observer && observer->isCancelled();
}

/// The page in dots, as it is painted for a target with so many.
MvPaintRecording recordPage(const MvPageSource &source, int page, const QPointF &corner)
{
    QImage dots(1, 1, QImage::Format_Mono);
    dots.setDotsPerMeterX(int(std::lround(MvPdfExporter::resolution / 0.0254)));
    dots.setDotsPerMeterY(dots.dotsPerMeterX());
    MvPaintRecorder recorder(&dots);
    QPainter painter(&recorder);
    source.paintPage(painter, page, corner, dotsPerUnit);
    painter.end();
    return recorder.recording();
}

/// Paints all pages with the lower left corner of the media box at that of the PDF page, which is up to a point larger.
MvOutcome paintRawFile(QTemporaryFile &file, const MvPageSource &source, MvExportObserver *observer)
{
    const QSizeF media = source.format.mediaRect().size() * MvPdfBoxes::pointsPerTenthMillimetre;
    const QSize points(int(std::ceil(media.width())), int(std::ceil(media.height())));

    QPdfWriter writer(&file);
    writer.setResolution(unitsPerDot * MvPdfExporter::resolution);
    writer.setTitle(MvPrintableText::onOneLine(source.title));
    writer.setCreator(u"MvCalendar"_s);
    writer.setPageLayout(QPageLayout(QPageSize(points, u"page"_s, QPageSize::ExactMatch), QPageLayout::Portrait, {}));

    const double top = MvMath::point2pixel(points.height() - media.height(), MvPdfExporter::resolution);
    const QPointF corner(source.format.bleed() * dotsPerUnit, source.format.bleed() * dotsPerUnit + top);

    QPainter painter;
    if (!painter.begin(&writer))
        return {QCoreApplication::translate("MvPdfExporter", "Die Seiten lassen sich nicht zeichnen"), {}};
    painter.scale(unitsPerDot, unitsPerDot);
    const int total = int(source.pages.size());
    for (int page = 0; page < total && !isCancelled(observer); ++page) {
        if (page > 0 && !writer.newPage())
            return {QCoreApplication::translate("MvPdfExporter", "Seite %1 lässt sich nicht anlegen").arg(page + 1),
                    {}};
        recordPage(source, page, corner).replay(painter);
        if (observer)
            observer->pagesDone(page + 1, total);
    }
    painter.end();
    if (!file.flush() || file.error() != QFile::NoError)
        return {file.errorString(), {}};
    return {};
}

} // namespace

MvExportResult MvPdfExporter::write(const MvPageSource &source, const QFileInfo &target, MvExportObserver *observer)
{
    MvOutcome outcome = source.check();
    QTemporaryFile raw(QDir::tempPath() + u"/mvcalendar-XXXXXX.pdf"_s);
    if (outcome.isOk() && !raw.open())
        outcome.error = raw.errorString();
    if (outcome.isOk())
        outcome = paintRawFile(raw, source, observer);
    bool isWritten = false;
    if (outcome.isOk() && !isCancelled(observer)) {
        outcome = MvPdfBoxes::finish(raw.fileName(), source, [&](const QByteArray &content) {
            if (isCancelled(observer)) // finishing the file can take long
                return MvOutcome();
            isWritten = true;
            return MvSafeFileWriter::write(target, content, MvSafeFileWriter::Backups::None);
        });
    }
    if (!outcome.isOk())
        return MvExportResult::failed(u"%1: %2"_s.arg(target.filePath(), outcome.error));
    return isWritten ? MvExportResult{outcome, {target}, false} : MvExportResult::cancelled();
}
