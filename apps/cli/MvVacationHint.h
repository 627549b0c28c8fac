#pragma once

#include "MvProductBase/MvCalendariumHolidayConfig.h"

#include <QCoreApplication>
#include <QDate>
#include <QTextStream>

/// Says where the known school vacations end: they are announced a few years ahead only.
class MvVacationHint
{
    Q_DECLARE_TR_FUNCTIONS(MvVacationHint)

public:
    /// Prints one line if vacations are not known for the region up to the day; nothing if there are no vacations to
    /// show, or no table at all for a whole country.
    static void print(const MvCalendariumHolidayConfig &config, const QDate &neededUntil, QTextStream &hints);
};
