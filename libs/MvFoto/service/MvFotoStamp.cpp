// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoStamp.h"

#include <QDateTime>
#include <QFileInfo>

MvFotoStamp MvFotoStamp::of(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() ? MvFotoStamp{file.lastModified().toMSecsSinceEpoch(), file.size()} : MvFotoStamp();
}
