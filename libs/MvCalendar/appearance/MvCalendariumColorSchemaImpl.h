// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellColorInfo.h"
#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvCore/MvSharedData.h"
#include "MvModelBase/MvBorderConfig.h"

class QDomElement;

/// The record behind MvCalendariumColorSchema.
struct MvCalendariumColorSchemaImpl : MvSharedData
{
    MvCalendarCellColorInfo cells;
    MvBorderConfig grid; // the default border
    bool deprecated = false;

    bool read(const QDomElement &element);
    void write(QDomElement &element, const MvCalendariumColorSchemaID &id) const;
    QString describeDifference(const MvCalendariumColorSchemaImpl &other) const;

    bool operator==(const MvCalendariumColorSchemaImpl &) const = default;

private:
    MvBorderConfig decodeGridInformation(const QDomElement &element) const;
    MvBorderConfig decodeLegacyGrid(const QDomElement &element) const;
    static QColor guessBorderColor(const QDomElement &element);
};
