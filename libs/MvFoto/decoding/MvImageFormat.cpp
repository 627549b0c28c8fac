// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvImageFormat.h"

#include <QList>

namespace {

struct Signature
{
    QByteArray start;
    QByteArray format;
};

/// The kinds of HEIF files that hold photos as telephones and cameras write them.
bool isHeic(const QByteArray &head)
{
    static const QList<QByteArray> brands = {"heic", "heix", "heim", "heis", "mif1", "msf1", "hevc", "hevx"};
    return head.mid(4, 4) == "ftyp" && brands.contains(head.mid(8, 4));
}

const QList<Signature> &signatures()
{
    static const QList<Signature> list = {
        {QByteArrayLiteral("\xff\xd8\xff"), "jpeg"}, {QByteArrayLiteral("\x89PNG\r\n\x1a\n"), "png"},
        {QByteArrayLiteral("GIF87a"), "gif"},        {QByteArrayLiteral("GIF89a"), "gif"},
        {QByteArrayLiteral("II*\0"), "tiff"},        {QByteArrayLiteral("MM\0*"), "tiff"},
    };
    return list;
}

} // namespace

QByteArray MvImageFormat::fromContent(const QByteArray &head)
{
    for (const Signature &signature : signatures()) {
        if (head.startsWith(signature.start))
            return signature.format;
    }
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WEBP")
        return "webp";
    if (isHeic(head))
        return "heic";
    // two letters alone are too little: the sizes of the known headers follow at offset 14
    if (head.startsWith("BM") && head.size() >= 18 && head.at(15) == 0 && head.at(16) == 0 && head.at(17) == 0)
        return "bmp";
    return {};
}
