// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/// Pages as a person writes them: "1-3, 5".
class MvPageRange
{
    Q_DECLARE_TR_FUNCTIONS(MvPageRange)

public:
    struct Pages : MvOutcome
    {
        QList<int> numbers; // counted from 0, in ascending order, each once; empty on error
    };

    /// An empty text means all. A part that is no page or range of pages, and a page out of range, are errors.
    static Pages parse(const QString &text, int pageCount);
};
