// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayConfig.h"

MvCalendariumHolidayConfig::MvCalendariumHolidayConfig()
    : m_language(QStringLiteral("de"), QStringLiteral("DE"))
{}

MvCalendariumHolidayConfig::MvCalendariumHolidayConfig(const MvLocale &language, const QString &province,
                                                       const MvCalendariumFeatures &features)
    : m_language(language)
    , m_province(province)
    , m_features(features)
{}

bool MvCalendariumHolidayConfig::hasFeatures(const MvCalendariumFeatures &features) const
{
    return (m_features.toInt() & features.toInt()) == features.toInt();
}

void MvCalendariumHolidayConfig::setFeature(const MvCalendariumFeatures &feature, bool on)
{
    if (on)
        m_features.expandTo(feature);
    else
        m_features.exclude(feature);
}

size_t qHash(const MvCalendariumHolidayConfig &config, size_t seed)
{
    return qHashMulti(seed, config.language(), config.province(), config.features().toInt());
}
