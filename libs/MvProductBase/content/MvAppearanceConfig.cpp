// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvAppearanceConfig.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <algorithm>

bool MvAppearanceConfig::vacationsAvailable()
{
    const MvCalendariumHolidayCalculator &calculator = MvCalendariumHolidayCalculator::instance();
    const QList<MvLocale> locales = calculator.availableLanguages();
    return std::any_of(locales.cbegin(), locales.cend(), [&calculator](const MvLocale &locale) {
        const QStringList provinces = calculator.availableProvinces(locale);
        return std::any_of(provinces.cbegin(), provinces.cend(), [&](const QString &province) {
            return calculator.vacationsKnownUntil(locale, province).isValid();
        });
    });
}
