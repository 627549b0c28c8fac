// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// How much of the program is being started.
enum class MvInitializerOption {
    Everything,
    WithoutWidgets, // command line and render servers
};

/// Something a module wants done when the program starts and when it ends.
class MvInitializerAbstract
{
public:
    virtual ~MvInitializerAbstract() = default;
    virtual void setup(MvInitializerOption option) = 0;
    virtual void teardown() = 0;

protected:
    MvInitializerAbstract() = default;
    MvInitializerAbstract(const MvInitializerAbstract &) = default;
    MvInitializerAbstract &operator=(const MvInitializerAbstract &) = default;
};
