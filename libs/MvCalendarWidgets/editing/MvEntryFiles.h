// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

/// The files that entries come from and go to, by their names: filters of dialogs, what may be dropped, and writing.
class MVCALENDARWIDGETS_EXPORT MvEntryFiles
{
    Q_DECLARE_TR_FUNCTIONS(MvEntryFiles)

public:
    enum class Kind { None, List, Calendar, Cards, Table };

    /// By the name's suffix; reading goes by the content.
    static Kind kindOf(const QString &path);
    /// All kinds at once, then each by itself, then every file.
    static QString openFilter();
    /// What entries can be written as, one kind after the other.
    static QString saveFilter();
    /// Writes calendar or table, as the suffix says, and a list for any other.
    static MvOutcome write(const MvCalendarEventList &events, const QFileInfo &file);
};
