// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvEntryMove.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QCoreApplication>
#include <QString>

#include <functional>

class QObject;

/// Asks which times of an entry that repeats are meant: this one, or all of them.
class MVCALENDARWIDGETS_EXPORT MvEntryQuestion
{
    Q_DECLARE_TR_FUNCTIONS(MvEntryQuestion)

public:
    using Answer = std::function<void(const QList<MvEntryChange> &changes)>;

    /// Calls back with what is to be done to move the entry, at once where nothing is to be asked, and with nothing
    /// when the person leaves it as it is. The entry may be given with further changes.
    static void askForMove(const MvEntryMove &move, const MvCalendarEvent &changed, QObject *asker,
                           const Answer &answer);
    /// The same for deleting what is on the day.
    static void askForDeletion(const MvCalendarEvent &event, const QDate &day, QObject *asker, const Answer &answer);
    /// "Samstag, 16. Januar"
    static QString dayText(const QDate &date);
};
