// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QString>

#include <optional>

/// What a new photo calendar is made of: a cover, a page for every month, a back, in a theme and still without photos.
struct MVPROJECT_EXPORT MvNewCalendar
{
    MvDateRange range;   // invalid: that of a new document
    MvPageFormat format; // invalid: A4 landscape
    QString themeId;     // unknown or empty: the default theme
    QString title;       // on the cover; may be empty
    QString author;
    std::optional<MvCalendariumHolidayConfig> holidays; // else those of a new document
    bool hasCover = true;
    bool hasBack = true;
    bool hasFacingPages = false; // a page for the photo before each month, which hangs above it

    /// The calendar. Valid whenever layouts and colours are shipped.
    MvCalendarDocument make() const;
};
