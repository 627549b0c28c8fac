// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/// The pages that a call names: "1-3,cover,months".
class MvPageSelection
{
    Q_DECLARE_TR_FUNCTIONS(MvPageSelection)

public:
    struct Pages : MvOutcome
    {
        QList<int> numbers; ///< counted from 0, ascending, each once
    };

    /// Numbers from 1 and ranges of them, and the words "cover", "months", "free" and "back", between commas. A page
    /// that the calendar does not have is an error.
    static Pages parse(const QString &text, const MvCalendarDocument &document);
};
