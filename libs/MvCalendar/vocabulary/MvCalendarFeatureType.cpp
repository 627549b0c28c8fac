// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarFeatureType.h"

#include <QCoreApplication>

template class MvEnumWrapper<MvCalendarFeatureTypeEnum>;

void MvCalendarFeatureType::fillTable(Table *table) const
{
    table->insert(QStringLiteral("startDate"), MvCalendarFeatureTypeEnum::startDate);
    table->insert(QStringLiteral("holidayOwnDate"), MvCalendarFeatureTypeEnum::holidayOwnDate);
    table->insert(QStringLiteral("calendarColor"), MvCalendarFeatureTypeEnum::calendarColor);
    table->insert(QStringLiteral("addOn"), MvCalendarFeatureTypeEnum::addOn);
}

QString MvCalendarFeatureType::visibleName() const
{
    const auto translated = [](const char *text) { return QCoreApplication::translate("MvCalendarFeatureType", text); };
    switch (value()) {
    case MvCalendarFeatureTypeEnum::startDate:
        return translated(QT_TRANSLATE_NOOP("MvCalendarFeatureType", "Startdatum"));
    case MvCalendarFeatureTypeEnum::holidayOwnDate:
        return translated(QT_TRANSLATE_NOOP("MvCalendarFeatureType", "Feiertage & eigene Einträge"));
    case MvCalendarFeatureTypeEnum::calendarColor:
        return translated(QT_TRANSLATE_NOOP("MvCalendarFeatureType", "Farben"));
    case MvCalendarFeatureTypeEnum::addOn:
        return translated(QT_TRANSLATE_NOOP("MvCalendarFeatureType", "Extras"));
    case MvCalendarFeatureTypeEnum::articleVariants:
        return translated(QT_TRANSLATE_NOOP("MvCalendarFeatureType", "Artickelvarianten"));
    }
    return {};
}

QString MvCalendarFeatureType::describe() const
{
    return QStringLiteral("MvCalendarFeatureType(%1)").arg(encodeCSV());
}
