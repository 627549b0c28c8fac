// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvModelBase/MvProjectIdentifier.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/mvproductbase_export.h"

/// Under what a day's holidays and entries are filed: the content configuration of the day and the document.
class MVPRODUCTBASE_EXPORT MvCalendariumContentKey
{
public:
    MvCalendariumContentKey() = default;
    MvCalendariumContentKey(const MvCalendariumContentConfig &config, const MvProjectIdentifier &project);

    MvCalendariumContentConfig config() const { return m_config; }
    QDate date() const { return m_config.date(); }
    MvProjectIdentifier project() const { return m_project; }

    bool operator==(const MvCalendariumContentKey &) const = default;

private:
    MvCalendariumContentConfig m_config;
    MvProjectIdentifier m_project;
};

MVPRODUCTBASE_EXPORT size_t qHash(const MvCalendariumContentKey &key, size_t seed = 0);
