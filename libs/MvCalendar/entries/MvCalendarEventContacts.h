// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QCoreApplication>

/// Entries of the contacts in the system's address book (MvPlatformIndependent).
class MVCALENDAR_EXPORT MvCalendarEventContacts
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendarEventContacts)

public:
    /// An entry for each contact, with a copy of its picture in the photo folder and the contact's uuid; an invalid one
    /// for a contact without a name or a birthday.
    static MvCalendarEventList entries();
    /// Tells the user how many of the found birthdays are new.
    static void tellImported(int foundInAddressBook, int imported);
};
