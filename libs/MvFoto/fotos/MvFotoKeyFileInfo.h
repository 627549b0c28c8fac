// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/MvVideoFrameIndex.h"
#include "MvFoto/mvfoto_export.h"

#include <QDir>
#include <QFileInfo>
#include <QString>

/// What names a photo: a file, and the frame in it when it is a video.
class MVFOTO_EXPORT MvFotoKeyFileInfo
{
public:
    MvFotoKeyFileInfo() = default;
    /// A relative path counts from the folder. An empty path gives an invalid key.
    MvFotoKeyFileInfo(const QString &path, const MvVideoFrameIndex &frame, const QDir &relativeTo);

    bool isValid() const { return !m_path.isEmpty(); }
    /// The absolute path, cleaned of "." and "..".
    QString path() const { return m_path; }
    MvVideoFrameIndex frame() const { return m_frame; }

    /// Whether the photo may be opened. A key from a file that points where that file has no business is kept, and
    /// written back, but never opened. Not part of comparisons.
    bool mayBeOpened() const { return m_mayBeOpened; }
    void forbidOpening() { m_mayBeOpened = false; }

    bool operator==(const MvFotoKeyFileInfo &other) const;
    /// By path, then by frame.
    bool operator<(const MvFotoKeyFileInfo &other) const;

private:
    QString m_path;
    MvVideoFrameIndex m_frame;
    bool m_mayBeOpened = true;
};
