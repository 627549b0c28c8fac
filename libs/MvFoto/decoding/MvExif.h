// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QImageIOHandler>
#include <QString>

/// What a camera notes beside the picture (EXIF), read by libexif. A value; damaged notes are as good as none.
class MvExif
{
public:
    MvExif() = default;
    /// A block as MvExifBlock or MvHeifImage find it: with the mark "Exif" at its beginning or without.
    explicit MvExif(const QByteArray &block);

    /// When the photo was taken, by the camera's clock: a time without a zone, given as UTC so that neither zone nor
    /// summer time of this computer changes it. Else when it was made digital, else what it says last. Invalid without
    /// any of them.
    QDateTime captured() const { return m_captured; }
    /// What somebody wrote about the picture; what cameras write there by themselves does not count.
    QString description() const { return m_description; }
    /// How the picture is to be turned to stand upright.
    QImageIOHandler::Transformations turn() const { return m_turn; }
    /// Whether the colours are those of Adobe RGB, which some cameras note here and nowhere else.
    bool isAdobeRgb() const { return m_isAdobeRgb; }

private:
    QDateTime m_captured;
    QString m_description;
    QImageIOHandler::Transformations m_turn;
    bool m_isAdobeRgb = false;
};
