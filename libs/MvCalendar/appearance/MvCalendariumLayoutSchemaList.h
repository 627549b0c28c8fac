// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumLayoutSchema.h"

#include <QFileInfo>
#include <QList>

/// An ordered list of layout schemas, as a file holds it: one child element "calendararea" per schema.
class MVCALENDAR_EXPORT MvCalendariumLayoutSchemaList : public QList<MvCalendariumLayoutSchema>
{
public:
    using QList<MvCalendariumLayoutSchema>::QList;

    /// Appends the valid schemas of a file or element. A file that cannot be loaded adds nothing.
    void read(const QFileInfo &file);
    void read(const QDomElement &element);
    void write(QDomElement &element) const;

    /// The schemas of users, in order.
    MvCalendariumLayoutSchemaList userSchemaList() const;
};
