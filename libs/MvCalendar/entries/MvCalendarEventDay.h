// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvEventText.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvProductBase/MvEntryDisplay.h"
#include "MvProductBase/MvImageReference.h"

#include <QDate>
#include <QImage>
#include <QStringList>

#include <functional>

class MvCalendarEventIndex;
class MvCalendariumContentConfig;

/// The entries of one list on one day: a view of the list's index, to be used at once.
class MVCALENDAR_EXPORT MvCalendarEventDay
{
public:
    /// The day of the configuration; empty without an index, or when the configuration does not show entries.
    MvCalendarEventDay(const MvCalendarEventIndex *index, const MvCalendariumContentConfig &config);

    MvCalendarEventList events() const;
    /// What a page writes of them.
    QList<MvEventText> texts() const;
    QStringList descriptions() const;
    /// Of the first entry whose photo exists and may be opened.
    MvImageReference imageFile() const;
    /// The first image that is not null of what `decode` makes of the photos that exist.
    QImage image(const std::function<QImage(const MvFoto &)> &decode) const;

private:
    template <class Function>
    void visit(Function function) const;

    const MvCalendarEventIndex *m_index;
    QDate m_day;
    MvEntryDisplay m_display;
};
