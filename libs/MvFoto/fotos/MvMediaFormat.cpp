// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvMediaFormat.h"

#include "MvFoto/MvImageLoader.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 80; // characters; leaves room for a counter in every file system

bool isFitForNames(QChar c)
{
    return c.isPrint() && !u"/\\:*?\"<>|"_s.contains(c);
}

QString cleanName(const QString &hint)
{
    QString name;
    for (const QChar c : hint) {
        if (isFitForNames(c) || c.isSurrogate())
            name.append(c);
    }
    name.truncate(longestName);
    if (!name.isEmpty() && name.back().isHighSurrogate())
        name.chop(1);
    while (name.startsWith(u'.')) // no hidden files, and nothing like ".."
        name.remove(0, 1);
    name = name.trimmed();
    return name.isEmpty() ? u"foto"_s : name;
}

} // namespace

MvMediaFormat MvMediaFormat::ofFile(const QFileInfo &file)
{
    static const QHash<QByteArray, Format> formats = {
        {"jpeg", Jpeg}, {"png", Png}, {"gif", Gif}, {"bmp", Bmp}, {"tiff", Tiff}, {"webp", WebP},
    };
    return formats.value(MvImageLoader::format(file), Unknown);
}

QString MvMediaFormat::createFilename(const MvMediaFormat &format, const QString &filenameHint,
                                      const QString &fileExtensionHint)
{
    const QString hint = fileExtensionHint.toLower();
    QString extension = u"png"_s;
    if (format == Jpeg)
        extension = hint == "jpeg"_L1 ? hint : u"jpg"_s;
    else if (!format.isValid())
        extension = u"jpg"_s;
    return cleanName(filenameHint) + u'.' + extension;
}
