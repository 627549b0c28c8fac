// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvPdfImageEncoder.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QSize>

class MvPdfFile;
class MvPressColors;

/// The pictures of a PDF, each of them once, however often it is painted. Their pixels are not kept.
class MvPdfImages
{
public:
    /// The file outlives it, and so does the press, if the pictures are for one.
    /// Photos in colour may keep theirs there.
    explicit MvPdfImages(MvPdfFile &file, const MvPressColors *press = nullptr, bool keepsFotoColors = false)
        : m_file(file)
        , m_press(press)
        , m_keepsFotoColors(keepsFotoColors)
    {}

    /// The object of a part of the picture, in at most about so many pixels. The part lies inside and is not empty.
    int object(const QImage &image, const QRect &part, const QSize &needed);
    /// Of such an object, for the press.
    MvPdfImageEncoder::Ink ink(int object) const { return m_inks.value(object); }

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
    MvPdfImageEncoder::Stream packed(const QImage &image);
    static MvPdfImageEncoder::Stream inColors(const QImage &image);
    MvPdfImageEncoder::Stream inOwnColors(const QImage &image);

    MvPdfFile &m_file;
    const MvPressColors *m_press;
    const bool m_keepsFotoColors;
    int m_profile = 0; // object of the one that such photos have
    QHash<Use, int> m_uses;
    QHash<QByteArray, int> m_contents; // by a hash of the pixels
    QHash<int, MvPdfImageEncoder::Ink> m_inks;
};
