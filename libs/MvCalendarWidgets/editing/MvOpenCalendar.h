// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvModelBase/MvProjectIdentifier.h"

#include <QCoreApplication>
#include <QString>

class QObject;

/// The calendar that is open when something begins that ends later, such as reading a file: what was meant for it must
/// not come into the one that is open by then.
class MVCALENDARWIDGETS_EXPORT MvOpenCalendar
{
    Q_DECLARE_TR_FUNCTIONS(MvOpenCalendar)

public:
    /// The session must stay.
    explicit MvOpenCalendar(const MvSession &session);

    /// Entries that are changed now are still those of this calendar.
    bool isStillOpen() const;
    /// The same after a person has chosen something for it: where they are not, the person is told that nothing has
    /// changed.
    bool isStillOpenOrTell(QObject *asker) const;
    /// Why nothing was taken from a file, for a person.
    static QString closedText();

private:
    const MvSession *m_session;
    MvProjectIdentifier m_project;
};
