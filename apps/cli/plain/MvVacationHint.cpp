// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvVacationHint.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QDate knownUntil(const MvLocale &locale, const QString &region)
{
    return MvCalendariumHolidayCalculator::instance().vacationsKnownUntil(locale, region);
}

bool anyRegionHasVacations(const MvLocale &locale)
{
    const QStringList regions = MvCalendariumHolidayCalculator::instance().availableProvinces(locale);
    return std::any_of(regions.begin(), regions.end(),
                       [&locale](const QString &region) { return knownUntil(locale, region).isValid(); });
}

} // namespace

void MvVacationHint::print(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints)
{
    if (!config.hasFeatures(FEATURE_SCHOOL_VACATIONS)) // the tables of vacations need not be read
        return;
    const MvLocale locale = config.language();
    const QDate until = knownUntil(locale, config.province());
    if (config.province().isEmpty() && !until.isValid())
        return;
    const QString where = config.province().isEmpty() ? locale.country() : config.province();
    if (!until.isValid())
        hints << tr("Ferien %1: keine bekannt").arg(where) << '\n';
    else if (until < neededUntil)
        hints << tr("Ferien %1 bis %2").arg(where, until.toString(u"yyyy-MM"_s)) << '\n';
}

void MvVacationHint::printAsked(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints)
{
    const MvLocale locale = config.language();
    if (!config.province().isEmpty() || knownUntil(locale, {}).isValid())
        print(config, neededUntil, hints);
    else if (anyRegionHasVacations(locale))
        hints << tr("ohne --region keine Schulferien: „mvcalendar regions --country %1“ nennt die Regionen")
                     .arg(locale.country())
              << '\n';
    else
        hints << tr("Ferien %1: keine bekannt").arg(locale.country()) << '\n';
}
