// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvBlankFotoSource.h"

MvBlankFotoSource &MvBlankFotoSource::instance()
{
    static MvBlankFotoSource source;
    return source;
}

QImage MvBlankFotoSource::scaled(const QFileInfo &file, const QSize &bounds)
{
    const QSize full = fullSize(file);
    if (full.isEmpty() || bounds.isEmpty())
        return {};
    QImage blank(full.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}), QImage::Format_Mono);
    blank.fill(0);
    return blank;
}
