#include "MvProductBase/MvAbstractHolidayCache.h"

MvAbstractHolidayCache::MvAbstractHolidayCache(QObject *parent)
    : QObject(parent)
{}

MvAbstractHolidayCache::~MvAbstractHolidayCache() = default;
