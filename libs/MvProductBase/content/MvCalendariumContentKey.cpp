// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumContentKey.h"

MvCalendariumContentKey::MvCalendariumContentKey(const MvCalendariumContentConfig &config,
                                                 const MvProjectIdentifier &project)
    : m_config(config)
    , m_project(project)
{}

size_t qHash(const MvCalendariumContentKey &key, size_t seed)
{
    return qHashMulti(seed, key.config(), key.project());
}
