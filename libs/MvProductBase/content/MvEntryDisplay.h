// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which personal entries a calendar shows and how they read. By default all of them, with their names alone.
struct MvEntryDisplay
{
    QStringList hiddenGroups; ///< ids; an entry all of whose groups are hidden is not shown
    QString text;             ///< a pattern with %name, %age, %year and %round, see MvEventText; empty: the name
    bool showTimes = false;   ///< before the text: "19:30 Probe"

    bool operator==(const MvEntryDisplay &) const = default;
};
