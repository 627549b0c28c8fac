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

constexpr int maximumPixels = 32000; // the raster engine counts in 16 bits

QSize pixelSize(const MvPageFormat &format, int dpi)
{
    const QSizeF pixels = format.trimSize() * (dpi / MvMath::tenthMillimetresPerInch);
    return {int(std::lround(pixels.width())), int(std::lround(pixels.height()))};
}

/// Pixels per tenth of a millimetre with which the page reaches the picture's edges: half pixels would shine through.
double coveringScale(const MvPageFormat &format, const QSize &pixels)
{
    return std::max(pixels.width() / format.trimSize().width(), pixels.height() / format.trimSize().height());
}

QString check(const MvPageSource &source, int dpi)
{
    if (const QString error = source.error(); !error.isEmpty())
        return error;
    if (dpi < MvPngExporter::minimumDpi || dpi > MvPngExporter::maximumDpi) {
        return QCoreApplication::translate("MvPngExporter", "%1 Punkte je Zoll gehen nicht; erlaubt sind %2 bis %3")
            .arg(dpi)
            .arg(MvPngExporter::minimumDpi)
            .arg(MvPngExporter::maximumDpi);
    }
    const QSize size = pixelSize(source.format, dpi);
    if (std::max(size.width(), size.height()) > maximumPixels) {
        return QCoreApplication::translate("MvPngExporter",
                                           "Die Seite wäre %1 × %2 Bildpunkte groß; erlaubt sind %3 je Seite")
            .arg(size.width())
            .arg(size.height())
            .arg(maximumPixels);
    }
    return {};
}

QImage emptyPage(const MvPageFormat &format, int dpi)
{
    QImage image(pixelSize(format, dpi), QImage::Format_RGB32);
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

MvExportResult MvPngExporter::write(const MvPageSource &source, const QString &pattern, int dpi,
                                    MvExportObserver *observer)
{
    MvExportResult result;
    result.error = check(source, dpi);
    QStringList paths;
    if (result.isOk())
        paths = MvFileNamePattern(pattern).paths(source.pages, &result.error, source.numbers);
    if (!result.isOk())
        return result;
    QImage image = emptyPage(source.format, dpi);
    if (image.isNull())
        return {QCoreApplication::translate("MvPngExporter", "Der Speicher reicht nicht für eine Seite"), {}};

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
