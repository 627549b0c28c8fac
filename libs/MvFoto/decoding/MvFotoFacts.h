// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>
#include <QSize>
#include <QString>

/// What the file of a photo says about it, without decoding the picture. A value.
///
/// Cameras and telephones note when a photo was taken (EXIF). Messengers take that out, but most programs put the date
/// into the file's name; that counts when the file itself says nothing. When the file was changed never does: that is
/// the day on which it was copied.
struct MVFOTO_EXPORT MvFotoFacts
{
    QByteArray format;  // "jpeg", "png", "gif", "bmp", "tiff", "webp" or "heic", by content; empty for anything else
    QSize size;         // in pixels, upright; invalid when the file cannot be read
    QDateTime captured; // by the camera's clock, as UTC so that this computer's zone changes nothing; may be invalid
    QString error;      // why it cannot be a photo, in one sentence; empty when nothing is known against it
    QString description = {}; // what somebody wrote about it, on one line; what cameras write by themselves is left out

    /// Whether there is a size.
    bool isValid() const { return !size.isEmpty(); }

    /// Looks into the head of the file; devices and pipes are refused. Any thread.
    static MvFotoFacts of(const QFileInfo &file);
    /// The date, and the time if there is one, that a name begins with or has in it: "IMG_20260714_153012",
    /// "PXL_20260714_153012345", "IMG-20260714-WA0003", "2026-07-14 15.30.12", "Screenshot_2026-07-14-15-30-12".
    /// Invalid without one.
    static QDateTime capturedByName(const QString &fileName);

    bool operator==(const MvFotoFacts &) const = default;
};
