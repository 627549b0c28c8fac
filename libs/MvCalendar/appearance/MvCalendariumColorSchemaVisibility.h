// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

/// Where a colour schema is offered.
enum MvCalendariumColorSchemaVisibilityEnum : qint32 {
    SCHEMA_VISIBILITY_KEPT = 1,    // found by its id, but not offered
    SCHEMA_VISIBILITY_OFFERED = 2, // offered in choosers
    SCHEMA_VISIBILITY_UNKNOWN = 4, // not in the registry
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendariumColorSchemaVisibilityEnum>;

/// A set of visibilities. Names: "kept", "offered", "unknown".
class MVCALENDAR_EXPORT MvCalendariumColorSchemaVisibility
    : public MvEnumWrapper<MvCalendariumColorSchemaVisibilityEnum>
{
    MV_ENUM_WRAPPER(MvCalendariumColorSchemaVisibility, MvCalendariumColorSchemaVisibilityEnum)
};
