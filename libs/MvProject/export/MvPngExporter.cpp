// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPngExporter.h"

#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageSource.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCoreApplication>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

static_assert(MvPngExporter::maximumPixels < 32768); // the raster engine counts in 16 bits

/// Pixels per tenth of a millimetre with which the page reaches the picture's edges: half pixels would shine through.
double coveringScale(const MvPageFormat &format, const QSize &pixels)
{
    return std::max(pixels.width() / format.trimSize().width(), pixels.height() / format.trimSize().height());
}

QImage emptyPage(const MvPageFormat &format, int dpi)
{
    QImage image(MvPngExporter::pixelSize(format, dpi), QImage::Format_RGB32);
    image.setDotsPerMeterX(int(std::lround(dpi / 0.0254)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setColorSpace(QColorSpace(QColorSpace::SRgb));
    return image;
}

/// The file's bytes; empty on error.
QByteArray encode(const QImage &image, const QString &title, QString *error)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "png");
    writer.setText(u"Title"_s, title);
    if (!writer.write(image))
        *error = writer.errorString();
    return error->isEmpty() ? buffer.data() : QByteArray();
}

} // namespace

QSize MvPngExporter::pixelSize(const MvPageFormat &format, int dpi)
{
    const QSizeF pixels = format.trimSize() * (dpi / MvMath::tenthMillimetresPerInch);
    return {int(std::lround(pixels.width())), int(std::lround(pixels.height()))};
}

MvOutcome MvPngExporter::checkSize(const MvPageFormat &format, int dpi)
{
    MvOutcome outcome;
    const QSize size = pixelSize(format, dpi);
    if (dpi < minimumDpi || dpi > maximumDpi) {
        outcome.error =
            QCoreApplication::translate("MvPngExporter", "%1 Punkte je Zoll gehen nicht; erlaubt sind %2 bis %3")
                .arg(dpi)
                .arg(minimumDpi)
                .arg(maximumDpi);
    } else if (std::max(size.width(), size.height()) > maximumPixels) {
        outcome.error = QCoreApplication::translate("MvPngExporter",
                                                    "Die Seite wäre %1 × %2 Bildpunkte groß; erlaubt sind %3 je Seite")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(maximumPixels);
    }
    return outcome;
}

MvExportResult MvPngExporter::write(const MvPageSource &source, const QString &pattern, int dpi,
                                    MvExportObserver *observer)
{
    const MvFileNamePattern::Paths names = MvFileNamePattern(pattern).paths(source);
    for (const MvOutcome &checked : {source.check(), checkSize(source.format, dpi), MvOutcome(names)}) {
        if (!checked.isOk())
            return MvExportResult::failed(checked.error);
    }
    QImage image = emptyPage(source.format, dpi);
    if (image.isNull())
        return MvExportResult::failed(
            QCoreApplication::translate("MvPngExporter", "Der Speicher reicht nicht für eine Seite"));

    const QStringList &paths = names.paths;
    MvExportResult result;
    for (int page = 0; page < paths.size(); ++page) {
        image.fill(Qt::white);
        QPainter painter(&image);
        source.paintPage(painter, page, {}, coveringScale(source.format, image.size()));
        painter.end();
        QString error;
        const QByteArray bytes = encode(image, source.title, &error);
        result.isCancelled = observer && observer->isCancelled();
        if (result.isCancelled)
            return result;
        if (error.isEmpty())
            error = MvSafeFileWriter::write(QFileInfo(paths[page]), bytes, MvSafeFileWriter::Backups::None).error;
        if (!error.isEmpty()) {
            result.error = u"%1: %2"_s.arg(paths[page], error);
            return result;
        }
        result.files.append(QFileInfo(paths[page]));
        if (observer)
            observer->pagesDone(page + 1, int(paths.size()));
    }
    return result;
}
