// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCalendar/MvCalendarRenderingInformation.h"
#include "MvCalendar/MvCalendariumLayoutCellInfo.h"
#include "MvCalendar/MvCalendariumLayoutSchemaID.h"
#include "MvCalendar/MvCalendariumType.h"
#include "MvCore/MvSharedData.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvXML/MvLocalizedText.h"

#include <QHash>

/// The record behind MvCalendariumLayoutSchema.
struct MvCalendariumLayoutSchemaImpl : MvSharedData
{
    MvCalendariumLayoutSchemaID id;
    MvLocalizedText name;
    MvLocalizedText description;
    MvCalendariumType type;
    MvCalendarRenderingInformation renderingInformation;
    MvSpaceMagnitude optimizedSize; // none: the layout does not say
    bool showHolidays = true;
    QHash<MvCalendarCellType, MvCalendariumLayoutCellInfo> cells; // by single type
    bool noCellHasABorder = true;
    QString columnHeaders; // suggested to new pages, as are the next two
    int holidayFontPercentage = defaultHolidayFontPercentage;
    MvCalendariumLayoutSchemaID monthLayout;

    static constexpr int defaultHolidayFontPercentage = -50;

    void read(const QDomElement &element);
    void write(QDomElement &element) const;

    bool operator==(const MvCalendariumLayoutSchemaImpl &) const = default;

private:
    void readSuggestions(const QDomElement &element);
    void writeSuggestions(QDomElement &element) const;
    void readCells(const QDomElement &element);
    void copyCellInfoIfMissing(const MvCalendarCellType &from, const MvCalendarCellType &to);
};
