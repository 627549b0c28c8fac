// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvProductBase/MvHolidayBook.h"

#include <QMutexLocker>

template class MvSingleton<MvCalendariumHolidayCalculator>;

using namespace Qt::StringLiterals;

MvCalendariumHolidayCalculator::MvCalendariumHolidayCalculator()
{
    reloadData();
}

void MvCalendariumHolidayCalculator::reloadData()
{
    const MvDirectoryConfig &directories = MvDirectoryConfig::instance();
    auto fresh = std::make_shared<const MvHolidayBook>(
        [](const QString &name) { return MvDirectoryConfig::instance().resource(name); },
        directories.programDataFile(u"my-holidays.xml"_s));
    QMutexLocker lock(&m_mutex);
    m_book = std::move(fresh);
}

std::shared_ptr<const MvHolidayBook> MvCalendariumHolidayCalculator::book() const
{
    QMutexLocker lock(&m_mutex);
    return m_book;
}

MvCalendariumHolidayList MvCalendariumHolidayCalculator::holidaysOfYear(const MvCalendariumHolidayCacheKey &key) const
{
    return book()->holidaysOfYear(key);
}

QList<MvLocale> MvCalendariumHolidayCalculator::availableLanguages() const
{
    return book()->locales();
}

QStringList MvCalendariumHolidayCalculator::availableProvinces(const MvLocale &locale) const
{
    return book()->table(locale)->regionCodes();
}

QString MvCalendariumHolidayCalculator::provinceName(const MvLocale &locale, const QString &code) const
{
    return book()->table(locale)->regionName(code, locale.language());
}

QString MvCalendariumHolidayCalculator::findProvince(const MvLocale &locale, const QString &codeOrName) const
{
    return book()->table(locale)->findRegion(codeOrName);
}

QDate MvCalendariumHolidayCalculator::vacationsKnownUntil(const MvLocale &locale, const QString &province) const
{
    return book()->vacationsKnownUntil(locale, province);
}
