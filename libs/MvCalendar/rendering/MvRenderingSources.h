// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvLocale.h"

class MvCalendarEventSource;
class MvFotoSource;
struct MvRenderingProbe;

/// What a painting draws on besides the value that is painted. Whoever starts a painting chooses it and hands it down;
/// nothing below asks a global, so that the same page with the same sources is always the same picture.
///
/// What is not given is that of the default session. What is given must outlive the painting.
struct MVCALENDAR_EXPORT MvRenderingSources
{
    const MvCalendarEventSource *entries = nullptr; ///< the personal entries of a day
    MvFotoSource *fotos = nullptr;                  ///< the pixels of photos
    /// Of dates whose form the page's own language does not decide: the program's, where it is invalid.
    MvLocale language;
    MvRenderingProbe *probe = nullptr; ///< counts the work, for tests and benchmarks

    const MvCalendarEventSource &entriesOrDefault() const;
    MvFotoSource &fotosOrDefault() const;
};
