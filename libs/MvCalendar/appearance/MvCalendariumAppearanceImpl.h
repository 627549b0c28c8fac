// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"
#include "MvCalendar/MvCalendariumFontSettings.h"
#include "MvCalendar/MvCalendariumLayoutSchema.h"
#include "MvCalendar/MvColumnHeaders.h"
#include "MvCore/MvSharedData.h"
#include "MvCore/MvSpaceMagnitude.h"

class MvCalendariumColorSchemaRegistry;

/// The record behind MvCalendariumAppearance.
struct MvCalendariumAppearanceImpl : MvSharedData
{
    static constexpr int mostMonthsAhead = 1200; // either way: a century

    MvCalendariumLayoutSchema layoutSchema;
    MvCalendariumColorSchema colorSchema;
    MvCalendariumFontSettings fontSettings;
    MvColumnHeaders columnHeaders;
    int offsetMonth = 0;
    MvSpaceMagnitude optimizedSize = MAGNITUDE_A4;
    bool overrideShowCalendarWeek = false;

    void read(const QDomElement &element, bool adaptGrid, MvCalendariumColorSchemaRegistry *registry);
    void write(QDomElement &element, bool embedUserSchema) const;

    void setColorSchemaById(const MvCalendariumColorSchemaID &id, MvCalendariumColorSchemaRegistry *registry);
    /// Takes the schema with the paper class it is made for.
    void setLayoutSchema(const MvCalendariumLayoutSchema &schema);
    void setLayoutSchemaById(const MvCalendariumLayoutSchemaID &id);
    void adaptGridToLayout();

    bool operator==(const MvCalendariumAppearanceImpl &) const = default;

private:
    void readColorSchema(const QDomElement &element, MvCalendariumColorSchemaRegistry *registry);
    void encodeColorSchema(QDomElement &element, bool embedUserSchema) const;
};
