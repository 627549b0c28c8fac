// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvPictureIntake.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvFoto/MvFotoBin.h"
#include "MvFoto/MvGuardedImageReader.h"
#include "MvFoto/MvMediaFormat.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QImageWriter>

namespace {

constexpr int jpegQuality = 90;
constexpr double timeLimit = 3.0;                  // seconds for one picture
constexpr qsizetype mostBytes = 2LL * 1024 * 1024; // of a file kept as it is; what is more is no picture

QImage read(MvGuardedImageReader *reader, int longestSide)
{
    reader->setTimeLimit(timeLimit);
    const QSize size = reader->size();
    const int longer = qMin(longestSide, qMax(size.width(), size.height()));
    return reader->read({longer, longer}); // smaller ones are not enlarged
}

/// Whether it can be shown as it is, upright and in its size.
bool isFit(const QByteArray &bytes, const QByteArray &format, const QSize &size, int longestSide)
{
    if ((format != "jpeg" && format != "png") || bytes.size() > mostBytes || size.width() > longestSide ||
        size.height() > longestSide)
        return false;
    QBuffer buffer;
    buffer.setData(bytes);
    return QImageReader(&buffer, format).transformation() == QImageIOHandler::TransformationNone;
}

QByteArray encoded(const QImage &image, bool isJpeg)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, isJpeg ? "jpeg" : "png");
    if (isJpeg)
        writer.setQuality(jpegQuality);
    return writer.write(image) ? bytes : QByteArray();
}

} // namespace

QImage MvPictureIntake::decoded(const QByteArray &bytes, int longestSide)
{
    MvGuardedImageReader reader(bytes);
    return read(&reader, longestSide);
}

MvPictureIntake::Result MvPictureIntake::put(const QByteArray &bytes, const QDir &folder, const QString &nameHint,
                                             int longestSide)
{
    MvGuardedImageReader reader(bytes);
    const QSize size = reader.size();
    const QImage image =
        read(&reader, longestSide); // decoded even if it is kept as it is, to make sure that it is a picture
    if (image.isNull())
        return {{reader.error(), {}}, {}};
    const bool isJpeg = reader.format() == "jpeg" || reader.format() == "heic";
    const QByteArray content = isFit(bytes, reader.format(), size, longestSide) ? bytes : encoded(image, isJpeg);
    if (content.isEmpty())
        return {{tr("Das Bild ließ sich nicht umwandeln."), {}}, {}};
    const MvMediaFormat format = isJpeg ? MvMediaFormat::Jpeg : MvMediaFormat::Png;
    const QFileInfo file = MvFotoBin(folder).reserve(MvMediaFormat::createFilename(format, nameHint, {}));
    const MvOutcome written = MvSafeFileWriter::write(file, content, MvSafeFileWriter::Backups::None);
    if (!written.isOk())
        QFile::remove(file.absoluteFilePath());
    return {written, file};
}
