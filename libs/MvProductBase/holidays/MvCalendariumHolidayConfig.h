// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProductBase/MvCalendariumFeatures.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QString>

/// Whose holidays a calendar shows and what it makes of them.
///
/// A default-constructed one speaks German, belongs to no region and has every feature off.
class MVPRODUCTBASE_EXPORT MvCalendariumHolidayConfig
{
public:
    MvCalendariumHolidayConfig();
    MvCalendariumHolidayConfig(const MvLocale &language, const QString &province,
                               const MvCalendariumFeatures &features = {});

    /// Selects the words on the page and the country of the holidays.
    MvLocale language() const { return m_language; }
    void setLanguage(const MvLocale &language) { m_language = language; }

    /// The code of a region of that country ("BY"); empty for what holds in the whole country only.
    QString province() const { return m_province; }
    void setProvince(const QString &province) { m_province = province; }

    MvCalendariumFeatures features() const { return m_features; }
    void setFeatures(const MvCalendariumFeatures &features) { m_features = features; }
    /// True when every bit of the given features is on; so for none at all, too.
    bool hasFeatures(const MvCalendariumFeatures &features) const;
    /// Switches every bit of the given feature on or off.
    void setFeature(const MvCalendariumFeatures &feature, bool on);

    bool operator==(const MvCalendariumHolidayConfig &) const = default;

private:
    MvLocale m_language;
    QString m_province;
    MvCalendariumFeatures m_features;
};

MVPRODUCTBASE_EXPORT size_t qHash(const MvCalendariumHolidayConfig &config, size_t seed = 0);
