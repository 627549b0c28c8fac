// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvFotoKeyFileInfo.h"
#include "MvFoto/MvMediaFormat.h"
#include "MvFoto/mvfoto_export.h"

#include <QDebug>
#include <QFileInfo>
#include <QSharedDataPointer>
#include <QString>

struct MvFotoImpl;

/// A handle to a photo. It names the photo and holds no pixels; MvFotoAccess gives those.
class MVFOTO_EXPORT MvFoto
{
public:
    /// No photo.
    MvFoto();
    /// A file; it need not exist. An empty path gives no photo.
    explicit MvFoto(const QFileInfo &file);
    explicit MvFoto(const MvFotoKeyFileInfo &key);
    ~MvFoto();
    MvFoto(const MvFoto &);
    MvFoto(MvFoto &&) noexcept;
    MvFoto &operator=(const MvFoto &);
    MvFoto &operator=(MvFoto &&) noexcept;

    /// True when a photo is named, whether or not its file exists.
    bool isValid() const;
    bool isLocalFile() const { return isValid(); }
    /// See MvFotoKeyFileInfo::mayBeOpened().
    bool mayBeOpened() const;

    MvFotoKeyFileInfo key() const;
    QFileInfo localFileInfo() const;
    /// The absolute path; empty without a photo.
    QString localFilePath() const;

    /// Looks into the file.
    MvMediaFormat mediaFormat() const;
    /// The file's name without its extension, for naming copies.
    QString filenameHint() const;
    QString fileExtensionHint() const;

    friend MVFOTO_EXPORT bool operator==(const MvFoto &a, const MvFoto &b);
    friend MVFOTO_EXPORT bool operator<(const MvFoto &a, const MvFoto &b);

private:
    QSharedDataPointer<MvFotoImpl> d;
};

MVFOTO_EXPORT bool operator==(const MvFoto &a, const MvFoto &b);
/// By path; no photo comes first.
MVFOTO_EXPORT bool operator<(const MvFoto &a, const MvFoto &b);
MVFOTO_EXPORT QDebug operator<<(QDebug debug, const MvFoto &foto);
/// Equal photos have equal hashes.
MVFOTO_EXPORT size_t qHash(const MvFoto &foto, size_t seed = 0);
