// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvInitializer.h"

template class MvSingleton<MvInitializer>;

void MvInitializer::registerInitializer(MvInitializerAbstract *initializer)
{
    if (!initializer || m_initializers.contains(initializer))
        return;
    m_initializers.append(initializer);
    if (m_isSetUp)
        initializer->setup(m_option);
}

void MvInitializer::setup(MvInitializerOption option)
{
    if (m_isSetUp)
        return;
    m_isSetUp = true;
    m_option = option;
    for (MvInitializerAbstract *initializer : std::as_const(m_initializers))
        initializer->setup(option);
}

void MvInitializer::teardown()
{
    if (!m_isSetUp)
        return;
    m_isSetUp = false;
    for (auto it = m_initializers.crbegin(); it != m_initializers.crend(); ++it)
        (*it)->teardown();
}
