// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPictureExporter.h"

#include "MvCore/MvMath.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageFiles.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPngFile.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

static_assert(MvPictureExporter::maximumPixels < 32768); // the raster engine counts in 16 bits

/// Pixels per tenth of a millimetre with which the page reaches the picture's edges: half pixels would shine through.
double coveringScale(const MvPageFormat &format, const QSize &pixels)
{
    return std::max(pixels.width() / format.trimSize().width(), pixels.height() / format.trimSize().height());
}

/// What a kind of picture needs to be small and good.
struct PictureKind
{
    const char *format;
    int quality;     // of QImageWriter; -1 for its own
    int compression; // of QImageWriter; -1 for its own
};

/// TIFF: LZW. PNG has a class of its own, MvPngFile.
PictureKind kindOf(const QString &pattern)
{
    const QString suffix = QFileInfo(pattern).suffix().toLower();
    if (suffix.startsWith(u"jp"_s))
        return {"jpeg", 93, -1};
    if (suffix.startsWith(u"tif"_s))
        return {"tiff", -1, 1};
    return {"png", -1, -1};
}

int dotsPerMetre(int dpi)
{
    return int(std::lround(dpi / 0.0254));
}

MvPaintRecording recordPage(const MvPageSource &source, int page, int dpi)
{
    QImage dots(1, 1, QImage::Format_RGB32); // measures as the picture does
    dots.setDotsPerMeterX(dotsPerMetre(dpi));
    dots.setDotsPerMeterY(dots.dotsPerMeterX());
    MvPaintRecorder recorder(&dots);
    QPainter painter(&recorder);
    source.paintPage(painter, page, {}, coveringScale(source.format, MvPictureExporter::pixelSize(source.format, dpi)));
    painter.end();
    return recorder.recording();
}

MvPageFiles::Content encode(const MvPaintRecording &recording, const QSize &size, int dpi, const PictureKind &kind,
                            const QString &title)
{
    QImage image(size, QImage::Format_RGB32);
    const QString noMemory =
        QCoreApplication::translate("MvPictureExporter", "Der Speicher reicht nicht für eine Seite");
    if (image.isNull())
        return {{}, noMemory};
    image.setDotsPerMeterX(dotsPerMetre(dpi));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.setColorSpace(QColorSpace(QColorSpace::SRgb));
    image.fill(Qt::white);
    QPainter painter(&image);
    recording.replay(painter);
    painter.end();
    if (qstrcmp(kind.format, "png") == 0) {
        const QByteArray file = MvPngFile::packed(image, title);
        return {file, file.isEmpty() ? noMemory : QString()};
    }
    QBuffer buffer;
    QImageWriter writer(&buffer, kind.format);
    writer.setQuality(kind.quality);
    writer.setCompression(kind.compression);
    writer.setText(u"Title"_s, title);
    if (!writer.write(image))
        return {{}, writer.errorString()};
    return {buffer.data(), {}};
}

} // namespace

QSize MvPictureExporter::pixelSize(const MvPageFormat &format, int dpi)
{
    const QSizeF pixels = format.trimSize() * (dpi / MvMath::tenthMillimetresPerInch);
    return {int(std::lround(pixels.width())), int(std::lround(pixels.height()))};
}

MvOutcome MvPictureExporter::checkSize(const MvPageFormat &format, int dpi)
{
    MvOutcome outcome;
    const QSize size = pixelSize(format, dpi);
    if (dpi < minimumDpi || dpi > maximumDpi) {
        outcome.error =
            QCoreApplication::translate("MvPictureExporter", "%1 Punkte je Zoll gehen nicht; erlaubt sind %2 bis %3")
                .arg(dpi)
                .arg(minimumDpi)
                .arg(maximumDpi);
    } else if (std::max(size.width(), size.height()) > maximumPixels) {
        outcome.error = QCoreApplication::translate("MvPictureExporter",
                                                    "Die Seite wäre %1 × %2 Bildpunkte groß; erlaubt sind %3 je Seite")
                            .arg(size.width())
                            .arg(size.height())
                            .arg(maximumPixels);
    }
    return outcome;
}

QStringList MvPictureExporter::suffixes()
{
    return {u"png"_s, u"jpg"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s};
}

MvExportResult MvPictureExporter::write(const MvPageSource &source, const QString &pattern, int dpi,
                                        MvExportObserver *observer, int jobs)
{
    const MvFileNamePattern::Paths names = MvFileNamePattern(pattern).paths(source);
    for (const MvOutcome &checked : {source.check(), checkSize(source.format, dpi), MvOutcome(names)}) {
        if (!checked.isOk())
            return MvExportResult::failed(checked.error);
    }
    const auto record = [&](int page) { return recordPage(source, page, dpi); };
    const auto made = [size = pixelSize(source.format, dpi), dpi, kind = kindOf(pattern), title = source.title](
                          const MvPaintRecording &recording) { return encode(recording, size, dpi, kind, title); };
    return MvPageFiles::write(names.paths, jobs, record, made, observer);
}
