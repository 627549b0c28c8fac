// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTemporaryDir>

/// The surroundings of a test program while it lives: a temporary user folder, no screen, German.
class MvTestHome
{
public:
    MvTestHome();

private:
    QTemporaryDir m_home;
};
