// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QString>

class MvCalendarPage;
class MvDateRange;

/// What calendars and their pages are called, in the language of the program: in its windows, for screen readers, and
/// as the title of files. (What is printed on a page is in the calendar's language, and the renderers' matter.)
class MVPROJECT_EXPORT MvCalendarTitle
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarTitle)

public:
    /// Of a calendar to which nobody has given a title: "Kalender 2027", "Kalender August 2026 bis Juli 2027". Empty
    /// for an invalid range.
    static QString ofRange(const MvDateRange &range);
    /// The page's months: "August 2026", "2027", "Aug. 2026 – Juli 2027", with "weitere Seite" for a free one;
    /// "Titelblatt" and "Rückseite". Empty for a page without a date.
    static QString ofPage(const MvCalendarPage &page);

private:
    static QString ofMonths(const MvCalendarPage &page);
};
