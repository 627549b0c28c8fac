// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvEaster.h"

namespace {

constexpr int firstGregorianYear = 1583;

} // namespace

QDate MvEaster::gregorian(int year)
{
    if (year < firstGregorianYear)
        return {};
    // the algorithm of Meeus, Jones and Butcher: the golden number, the corrections of the century, the full moon, and
    // the days from it to Sunday
    const int golden = year % 19;
    const int century = year / 100;
    const int yearOfCentury = year % 100;
    const int moonCorrection = (century - (century + 8) / 25 + 1) / 3;
    const int epact = (19 * golden + century - century / 4 - moonCorrection + 15) % 30;
    const int toSunday = (32 + 2 * (century % 4) + 2 * (yearOfCentury / 4) - epact - yearOfCentury % 4) % 7;
    const int lateMoon = (golden + 11 * epact + 22 * toSunday) / 451;
    const int day = epact + toSunday - 7 * lateMoon + 114;
    return QDate(year, day / 31, day % 31 + 1);
}

QDate MvEaster::orthodox(int year)
{
    if (year < firstGregorianYear)
        return {};
    const int moon = (19 * (year % 19) + 15) % 30;
    const int toSunday = (2 * (year % 4) + 4 * (year % 7) - moon + 34) % 7;
    const int day = moon + toSunday + 114;
    const int julianLag = year / 100 - year / 400 - 2; // days that the Julian calendar is behind
    return QDate(year, day / 31, day % 31 + 1).addDays(julianLag);
}
