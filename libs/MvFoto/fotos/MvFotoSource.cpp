// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvFotoSource.h"

#include "MvFoto/MvImageLoader.h"

MvFotoSource::~MvFotoSource() = default;

QSize MvFotoSource::fullSize(const QFileInfo &file)
{
    return MvImageLoader::instance().size(file);
}
