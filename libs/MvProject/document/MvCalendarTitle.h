// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvProject/mvproject_export.h"

#include <QString>

class MvCalendarPage;
class MvDateRange;

/// What calendars and their pages are called. Files and the titles that calendars keep are in the calendar's language,
/// whoever makes them; windows and messages in the program's.
class MVPROJECT_EXPORT MvCalendarTitle
{
public:
    /// That of the program's own texts.
    static MvLocale programLanguage();

    /// Of a calendar to which nobody has given a title: "Kalender 2027", "Kalender August 2026 bis Juli 2027". Empty
    /// for an invalid range.
    static QString ofRange(const MvDateRange &range, const MvLocale &language = programLanguage());
    /// The page's months: "August 2026", "2027", "Aug. 2026 – Juli 2027", with "weitere Seite" for a free one;
    /// "Titelblatt" and "Rückseite". Empty for a page without a date.
    static QString ofPage(const MvCalendarPage &page, const MvLocale &language = programLanguage());

private:
    static QString ofMonths(const MvCalendarPage &page, const MvLocale &language);
};
