// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvAbstractHolidayCache.h"

MvAbstractHolidayCache::MvAbstractHolidayCache(QObject *parent)
    : QObject(parent)
{}

MvAbstractHolidayCache::~MvAbstractHolidayCache() = default;
