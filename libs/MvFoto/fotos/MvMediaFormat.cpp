// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvMediaFormat.h"

#include "MvCore/MvFileName.h"
#include "MvFoto/MvImageLoader.h"

#include <QHash>

using namespace Qt::StringLiterals;

MvMediaFormat MvMediaFormat::ofFile(const QFileInfo &file)
{
    static const QHash<QByteArray, Format> formats = {
        {"jpeg", Jpeg}, {"png", Png}, {"gif", Gif}, {"bmp", Bmp}, {"tiff", Tiff}, {"webp", WebP}, {"heic", Heic},
    };
    return formats.value(MvImageLoader::format(file), Unknown);
}

QString MvMediaFormat::namePatterns()
{
    return u"*.jpg *.jpeg *.png *.heic *.heif *.tif *.tiff *.webp *.bmp *.gif"_s;
}

QString MvMediaFormat::createFilename(const MvMediaFormat &format, const QString &filenameHint,
                                      const QString &fileExtensionHint)
{
    const QString hint = fileExtensionHint.toLower();
    QString extension = u"png"_s;
    if (format == Jpeg)
        extension = hint == "jpeg"_L1 ? hint : u"jpg"_s;
    else if (!format.isValid() || format == Heic)
        extension = u"jpg"_s;
    const QString name = MvFileName::cleaned(filenameHint);
    return (name.isEmpty() ? u"foto"_s : name) + u'.' + extension;
}
