// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

/// The features of a calendar product that its editor offers.
enum class MvCalendarFeatureTypeEnum : qint32 {
    startDate = 8,
    holidayOwnDate = 16,
    calendarColor = 32,
    addOn = 64,
    articleVariants = 128, // shown, but never written: it has no persistent name
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendarFeatureTypeEnum>;

/// A set of features; unknown names count for 0.
class MVCALENDAR_EXPORT MvCalendarFeatureType : public MvEnumWrapper<MvCalendarFeatureTypeEnum>
{
    MV_ENUM_WRAPPER(MvCalendarFeatureType, MvCalendarFeatureTypeEnum)

    /// The name shown to users; empty for a value that is not a single feature.
    QString visibleName() const;
    /// The persistent names of the features, for debugging.
    QString describe() const;
};
