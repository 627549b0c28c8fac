// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFoto/MvHeifImage.h"

#include "MvCore/MvLoadedModule.h"

MvHeifImage::~MvHeifImage() = default;

std::unique_ptr<MvHeifImage> MvHeifImage::open(QIODevice *device, QString *error)
{
    static MvLoadedModule module("MvHeif");
    auto *make = module.function<MvHeifImage *(QIODevice *)>("mvMakeHeifImage", error);
    return std::unique_ptr<MvHeifImage>(make ? make(device) : nullptr);
}
