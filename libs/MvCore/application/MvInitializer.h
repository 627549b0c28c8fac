// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvInitializerAbstract.h"
#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QList>

class MvInitializer;
extern template class MVCORE_EXPORT MvSingleton<MvInitializer>;

/// Keeps the start-up hooks of the loaded modules and calls them in the order of their registration.
class MVCORE_EXPORT MvInitializer : public MvSingleton<MvInitializer>
{
public:
    /// Keeps the hook, which must outlive the program's run. A hook registered after setup() is set up at once.
    void registerInitializer(MvInitializerAbstract *initializer);

    /// Sets every hook up; a second call does nothing until teardown().
    void setup(MvInitializerOption option);
    /// Tears the hooks down in reverse order.
    void teardown();

private:
    QList<MvInitializerAbstract *> m_initializers;
    MvInitializerOption m_option = MvInitializerOption::Everything;
    bool m_isSetUp = false;
};
