// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryIntake.h"

#include <QByteArray>
#include <QCoreApplication>

/// Birthdays and anniversaries of visiting cards (vCard) as entries, with their photos: for whoever takes a file as it
/// is and cannot ask. MvAddressBookImport is for the others; both make the same entries of the same cards.
class MvCardIntake
{
    Q_DECLARE_TR_FUNCTIONS(MvCardIntake)

public:
    /// Photos lie in the reading's folder. The language is that in which a wedding is named.
    static MvEntryReading read(const QByteArray &bytes, const MvLocale &language);
};
