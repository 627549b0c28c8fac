// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QList>
#include <QString>

/// The layouts that are shipped, by name alone: for lists, which need neither fonts nor cells.
class MVCALENDAR_EXPORT MvLayoutCatalogue
{
public:
    struct Layout
    {
        QString id;
        QString name; // in the program's language, as the description
        QString description;
    };

    /// In the user's data folder.
    static QString userFileName() { return QStringLiteral("000-user-calendar-layout.xml"); }

    /// Whether these are all layouts there are: nobody has any of their own, or others in place of the shipped ones.
    static bool isComplete();
    /// In the order of the shipped file.
    static QList<Layout> layouts();
};
