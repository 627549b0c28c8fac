// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvComputerFonts.h"

#include <memory>

#include <fontconfig/fontconfig.h>

namespace {

struct Release
{
    void operator()(FcConfig *config) const { FcConfigDestroy(config); }
};
using Config = std::unique_ptr<FcConfig, Release>;

bool arePutOff = false;

/// Who made it current holds it, too.
bool makeCurrent(const Config &config)
{
    return config && FcConfigSetCurrent(config.get());
}

} // namespace

void MvComputerFonts::putOff()
{
    arePutOff = makeCurrent(Config(FcConfigCreate())); // without folders: Qt finds no fonts in it
}

void MvComputerFonts::read()
{
    if (arePutOff)
        makeCurrent(Config(FcInitLoadConfigAndFonts()));
    arePutOff = false;
}
