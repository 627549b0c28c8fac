// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

/// Files that tests put somewhere, in folders that are made for them (false when that failed), and what others say of
/// them.
namespace MvTestFiles {

inline bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return QFileInfo(path).dir().mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly) &&
           file.write(content) == content.size() && file.flush();
}

/// A photo of one colour. The file's suffix decides its format.
inline bool writeFoto(const QString &path, const QSize &size = {16, 12}, const QColor &color = Qt::blue)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return QFileInfo(path).dir().mkpath(QStringLiteral(".")) && image.save(path);
}

/// A photo without two fields alike, as the bytes of a file.
inline QByteArray fotoBytes(const QSize &size, const char *format, QImage::Format pixels = QImage::Format_RGB32)
{
    QImage image(size, pixels);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor((x * 37 + y * 11) % 256, (x * y) % 256, (x + y * 53) % 256));
    QBuffer buffer;
    return image.save(&buffer, format) ? buffer.data() : QByteArray();
}

/// Empty when it cannot be read.
inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What another program prints; empty when it fails.
inline QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

/// Whether another program finds nothing wrong with it.
inline bool isSoundPdf(const QString &path)
{
    return outputOf(QStringLiteral("qpdf"), {QStringLiteral("--check"), path}).contains("No syntax");
}

} // namespace MvTestFiles
