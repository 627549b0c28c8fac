// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QSize>

class MvPdfFile;

/// The pictures of a PDF, each of them once, however often it is painted. Their pixels are not kept.
class MvPdfImages
{
public:
    /// The file outlives it.
    explicit MvPdfImages(MvPdfFile &file)
        : m_file(file)
    {}

    /// The object of a part of the picture, in at most about so many pixels. The part lies inside and is not empty.
    int object(const QImage &image, const QRect &part, const QSize &needed);

private:
    struct Use
    {
        qint64 image;
        QRect part;
        QSize needed;

        bool operator==(const Use &) const = default;
        friend size_t qHash(const Use &use, size_t seed)
        {
            return qHashMulti(seed, use.image, use.part.x(), use.part.y(), use.part.width(), use.part.height(),
                              use.needed.width());
        }
    };

    int add(const QImage &image);

    MvPdfFile &m_file;
    QHash<Use, int> m_uses;
    QHash<QByteArray, int> m_contents; // by a hash of the pixels
};
