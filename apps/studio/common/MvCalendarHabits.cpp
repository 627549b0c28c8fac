// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvCalendarHabits.h"

#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvProject/MvCalendarDocument.h"
#include "common/MvStudioSettings.h"

using namespace Qt::StringLiterals;

namespace {

const QString languageKey = u"calendar/language"_s;
const QString provinceKey = u"calendar/province"_s;
const QString paperKey = u"calendar/paper"_s; // width and height in millimetres
const QString bleedKey = u"calendar/bleed"_s;
const QString bindingKey = u"calendar/binding"_s;
const QString bindingZoneKey = u"calendar/bindingZone"_s;

constexpr double tenths = 10.0; // of a millimetre

void store(const QString &key, const QString &value)
{
    if (MvStudioSettings::text(key) != value)
        MvStudioSettings::setText(key, value);
}

} // namespace

void MvCalendarHabits::remember(const MvCalendarDocument &document)
{
    if (!document.isValid())
        return;
    const MvCalendariumHolidayConfig holidays = document.holidayConfig();
    const QSizeF size = document.format().trimSize() / tenths;
    store(languageKey, holidays.language().name());
    store(provinceKey, holidays.province());
    store(paperKey, u"%1x%2"_s.arg(size.width()).arg(size.height()));
    store(bleedKey, QString::number(document.format().bleed()));
    store(bindingKey, MvPageFormat::bindingName(document.format().binding()));
    store(bindingZoneKey, QString::number(document.format().bindingZone()));
}

void MvCalendarHabits::applyTo(MvCalendarDocument &document)
{
    const MvLocale language(MvStudioSettings::text(languageKey));
    if (MvCalendariumHolidayCache::instance().availableLanguages().contains(language)) {
        MvCalendariumHolidayConfig holidays = document.holidayConfig();
        holidays.setLanguage(language);
        holidays.setProvince(MvStudioSettings::text(provinceKey));
        document.setHolidayConfig(holidays);
    }
    MvPageFormat format = MvPageFormat::fromName(MvStudioSettings::text(paperKey));
    if (!format.isValid())
        return;
    format.setBleed(MvStudioSettings::text(bleedKey).toDouble());
    format.setBinding(MvPageFormat::bindingFromName(MvStudioSettings::text(bindingKey)));
    if (const QString zone = MvStudioSettings::text(bindingZoneKey); !zone.isEmpty())
        format.setBindingZone(zone.toDouble());
    document.setFormat(format);
}
