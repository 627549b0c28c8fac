// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvDirectFotoSource.h"

#include "MvFoto/MvImageLoader.h"

MvDirectFotoSource &MvDirectFotoSource::instance()
{
    static MvDirectFotoSource source;
    return source;
}

QImage MvDirectFotoSource::scaled(const QFileInfo &file, const QSize &bounds)
{
    return MvImageLoader::instance().loadScaled(file, bounds);
}
