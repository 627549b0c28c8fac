// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTemporaryDir>

/// The surroundings of a test program while it lives: a temporary user folder, no screen, German (or the locale that
/// MV_TEST_LOCALE names).
class MvTestHome
{
public:
    MvTestHome();

private:
    QTemporaryDir m_home;
};
