// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

/// Files that tests put somewhere, in folders that are made for them; false when that failed.
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

} // namespace MvTestFiles
