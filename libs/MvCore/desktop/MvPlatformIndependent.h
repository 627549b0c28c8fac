// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSimplePersonList.h"
#include "MvCore/mvcore_export.h"

#include <QFileInfo>

#include <memory>

/// What the surrounding system can do for the program. The base does nothing and knows nobody; a program puts its own
/// layer in its place at start-up.
class MVCORE_EXPORT MvPlatformIndependent
{
public:
    MvPlatformIndependent() = default;
    virtual ~MvPlatformIndependent();
    MvPlatformIndependent(const MvPlatformIndependent &) = delete;
    MvPlatformIndependent &operator=(const MvPlatformIndependent &) = delete;

    /// The layer in use.
    static MvPlatformIndependent &instance();
    /// Replaces the layer in use and gives back the former one; null brings the base back. References from
    /// instance() to the former layer live as long as the returned pointer.
    static std::unique_ptr<MvPlatformIndependent> setInstance(std::unique_ptr<MvPlatformIndependent> platform);

    /// Told after a user's file is complete and in its place.
    virtual void fileWritten(const QFileInfo &file);

    /// The contacts of the system's address book. May take a while and may ask the user for permission.
    virtual MvSimplePersonList addressBookContacts();
};
