// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"

#include <QList>

/// An ordered list of colour schemas, as choosers show it. Indexes out of range give transparent colours.
class MVCALENDAR_EXPORT MvCalendariumColorSchemaList : public QList<MvCalendariumColorSchema>
{
public:
    using QList<MvCalendariumColorSchema>::QList;

    /// Appends the schema unless an equal one is in the list; says whether it did.
    bool insertSchema(const MvCalendariumColorSchema &schema);
    /// Removes the equal schema; says whether there was one.
    bool deleteSchema(const MvCalendariumColorSchema &schema);
    /// The schemas of users, in order.
    MvCalendariumColorSchemaList userSchemaList() const;

    /// Background and text of a weekday's cell, the colours that stand for the schema.
    QColor backgroundColor(int index, bool even) const;
    QColor textColor(int index, bool even) const;
    bool isBackgroundEqualText(int index, bool even) const;
};
