// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvFoto/mvfoto_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QString>

/// Takes a picture that comes as the bytes of a file into a folder of photos. Any thread.
///
/// A JPEG or PNG that is small enough, and stands upright, is written as it is. Everything else is decoded and scaled
/// once: a JPEG or HEIC becomes a JPEG, pictures in other formats, which may have transparent parts, become PNG.
/// Reading is bounded in memory and time.
class MVFOTO_EXPORT MvPictureIntake
{
    Q_DECLARE_TR_FUNCTIONS(MvPictureIntake)

public:
    static constexpr int sideOfEntries = 1200; // pixels: a day's cell needs no more

    /// The error does not say whose picture it is; the folder is then as it was.
    struct Result : MvOutcome
    {
        QFileInfo file; // the new file in the folder
    };

    /// The file gets a free name like the hint, which need not be fit for names. The longer side is at most that many
    /// pixels afterwards.
    static Result put(const QByteArray &bytes, const QDir &folder, const QString &nameHint, int longestSide);
    /// The picture in no more than this size; null when it cannot be read.
    static QImage decoded(const QByteArray &bytes, int longestSide);
};
