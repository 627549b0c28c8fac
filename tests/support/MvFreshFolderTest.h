// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFolderTest.h"

/// Base of test classes whose functions each find their folder empty.
class MvFreshFolderTest : public MvFolderTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init()
    {
        MvFolderTest::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }
};
