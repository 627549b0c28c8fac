#include "MvProject/MvPngExporter.h"

#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
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

} // namespace

MvExportResult MvPngExporter::write(const MvPageSource &source, const QString &pattern, int dpi)
{
    MvExportResult result;
    result.error = check(source, dpi);
    QStringList paths;
    if (result.isOk())
        paths = MvFileNamePattern(pattern).paths(source.pages, &result.error);
    if (!result.isOk())
        return result;

    QImage image(pixelSize(source.format, dpi), QImage::Format_RGB32);
    if (image.isNull())
        return {QCoreApplication::translate("MvPngExporter", "Der Speicher reicht nicht für eine Seite"), {}};
    image.setDotsPerMeterX(int(std::lround(dpi / 0.0254)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setColorSpace(QColorSpace(QColorSpace::SRgb));

    for (int page = 0; page < paths.size(); ++page) {
        image.fill(Qt::white);
        QPainter painter(&image);
        source.paintPage(painter, page, {}, coveringScale(source.format, image.size()));
        painter.end();

        QBuffer buffer;
        QImageWriter writer(&buffer, "png");
        writer.setText(u"Title"_s, source.title);
        QString error = writer.write(image) ? QString() : writer.errorString();
        if (error.isEmpty())
            error =
                MvSafeFileWriter::write(QFileInfo(paths[page]), buffer.data(), MvSafeFileWriter::Backups::None).error;
        if (!error.isEmpty()) {
            result.error = u"%1: %2"_s.arg(paths[page], error);
            return result;
        }
        result.files.append(QFileInfo(paths[page]));
    }
    return result;
}
