// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/mvproductbase_export.h"

#include <QDate>

/// Easter Sunday, of the western and of the eastern churches.
class MVPRODUCTBASE_EXPORT MvEaster
{
public:
    /// By the Gregorian calendar; an invalid date before 1583, when that calendar had no Easter.
    static QDate gregorian(int year);
    /// By the Julian calendar, given as the Gregorian date of that day; an invalid date before 1583.
    static QDate orthodox(int year);
};
