// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvEventText.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvModelBase/MvProjectIdentifier.h"
#include "MvProductBase/MvImageReference.h"

#include <QImage>
#include <QSize>
#include <QStringList>

class MvCalendariumContentKey;
class MvFotoSource;

/// What painting needs to know of personal entries: what stands on a day, and its photo.
///
/// A page paints the entries of the source it is handed, so that two calendars in one program can show different
/// ones. MvCalendarEventRegistry is such a source, and MvCalendarEventListSource makes one of any list. Asking changes
/// nothing and searches nothing: a page asks for every cell, several times.
///
/// All answers are empty when the configuration of the key does not show entries (FEATURE_ENTRIES). GUI thread.
class MVCALENDAR_EXPORT MvCalendarEventSource
{
public:
    MvCalendarEventSource() = default;
    virtual ~MvCalendarEventSource();
    MvCalendarEventSource(const MvCalendarEventSource &) = delete;
    MvCalendarEventSource &operator=(const MvCalendarEventSource &) = delete;

    /// Whose entries are shown: the document to put into keys.
    virtual MvProjectIdentifier project() const = 0;
    /// The entries of the key's document on the key's day, in list order.
    virtual MvCalendarEventList events(const MvCalendariumContentKey &key) const = 0;
    /// What a page writes of those that the key's configuration shows, in list order; an entry that lasts several days
    /// on each of them. By default the names.
    virtual QList<MvEventText> texts(const MvCalendariumContentKey &key) const;
    /// The same as plain texts.
    virtual QStringList descriptions(const MvCalendariumContentKey &key) const = 0;
    /// The photo's file of the first of them whose photo exists and may be opened, with its size; else empty.
    virtual MvImageReference imageFile(const MvCalendariumContentKey &key) const = 0;
    /// The first of their photos that can be read, within the bounds (pixels), as the photos' source gives it; else
    /// null.
    virtual QImage eventImage(const MvCalendariumContentKey &key, const QSize &bounds, MvFotoSource &fotos) const = 0;
};
