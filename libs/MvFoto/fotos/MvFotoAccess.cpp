// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoAccess.h"

#include "MvFoto/MvImageLoader.h"

#include <algorithm>

QSize MvFotoAccess::preferredSize(const MvFoto &foto)
{
    return foto.mayBeOpened() ? MvImageLoader::instance().size(foto.localFileInfo()) : QSize();
}

QImage MvFotoAccess::fullRes(const MvFoto &foto)
{
    return foto.mayBeOpened() ? MvImageLoader::instance().load(foto.localFileInfo()) : QImage();
}

QImage MvFotoAccess::midRes(const MvFoto &foto, int quality, int caching)
{
    const int side = 128 << std::clamp(quality, 0, 7);
    MvImageLoader &loader = MvImageLoader::instance();
    const QSize full = preferredSize(foto);
    const QSize target = full.width() > side || full.height() > side ? QSize(side, side) : full;
    if (full.isEmpty())
        return {};
    return caching & UseMemory ? loader.loadScaled(foto.localFileInfo(), target)
                               : loader.loadUncached(foto.localFileInfo(), target);
}

QString MvFotoAccess::error(const MvFoto &foto)
{
    return foto.mayBeOpened() ? MvImageLoader::instance().error(foto.localFileInfo()) : QString();
}

QImage MvFotoAccess::scaled(const MvFoto &foto, const QSize &bounds)
{
    if (!foto.mayBeOpened())
        return {};
    return MvImageLoader::instance().loadScaled(foto.localFileInfo(), bounds);
}
