// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFoto/mvfoto_export.h"

#include <QHashFunctions>
#include <QString>

/// Tells one state of a photo's file from another, without looking into it. A value.
struct MVFOTO_EXPORT MvFotoStamp
{
    qint64 changed = -1; // milliseconds since the epoch; -1 for a file that is not there
    qint64 bytes = -1;

    /// As the file is now. Asks the disk, which may be far away.
    static MvFotoStamp of(const QString &path);

    bool operator==(const MvFotoStamp &) const = default;
};

inline size_t qHash(const MvFotoStamp &stamp, size_t seed = 0)
{
    return qHashMulti(seed, stamp.changed, stamp.bytes);
}
