// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvPlatformIndependent.h"

#include <utility>

namespace {

std::unique_ptr<MvPlatformIndependent> &layerInUse()
{
    static std::unique_ptr<MvPlatformIndependent> layer = std::make_unique<MvPlatformIndependent>();
    return layer;
}

} // namespace

MvPlatformIndependent::~MvPlatformIndependent() = default;

MvPlatformIndependent &MvPlatformIndependent::instance()
{
    return *layerInUse();
}

std::unique_ptr<MvPlatformIndependent>
MvPlatformIndependent::setInstance(std::unique_ptr<MvPlatformIndependent> platform)
{
    if (!platform)
        platform = std::make_unique<MvPlatformIndependent>();
    return std::exchange(layerInUse(), std::move(platform));
}

void MvPlatformIndependent::fileWritten(const QFileInfo &)
{}

MvSimplePersonList MvPlatformIndependent::addressBookContacts()
{
    return {};
}
