#include "MvVacationHint.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"

using namespace Qt::StringLiterals;

void MvVacationHint::print(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints)
{
    if (!config.hasFeatures(FEATURE_SCHOOL_VACATIONS) || config.province().isEmpty())
        return;
    const QDate until =
        MvCalendariumHolidayCalculator::instance().vacationsKnownUntil(config.language(), config.province());
    if (!until.isValid())
        hints << tr("Ferien %1: keine bekannt").arg(config.province()) << '\n';
    else if (until < neededUntil)
        hints << tr("Ferien %1 bis %2").arg(config.province(), until.toString(u"yyyy-MM"_s)) << '\n';
}
