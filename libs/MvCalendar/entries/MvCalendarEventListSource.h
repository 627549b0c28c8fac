// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventIndex.h"
#include "MvCalendar/MvCalendarEventSource.h"

/// A list of entries as a source for painting, whatever document a key names: the entries of a file, or those that a
/// host program keeps itself. Unreachable for editors, and nothing is ever written.
class MVCALENDAR_EXPORT MvCalendarEventListSource : public MvCalendarEventSource
{
public:
    explicit MvCalendarEventListSource(const MvCalendarEventList &events);
    ~MvCalendarEventListSource() override;

    const MvCalendarEventList &events() const { return m_index.events(); }

    /// An invalid one.
    MvProjectIdentifier project() const override;
    MvCalendarEventList events(const MvCalendariumContentKey &key) const override;
    QList<MvEventText> texts(const MvCalendariumContentKey &key) const override;
    QStringList descriptions(const MvCalendariumContentKey &key) const override;
    MvImageReference imageFile(const MvCalendariumContentKey &key) const override;
    QImage eventImage(const MvCalendariumContentKey &key, const QSize &bounds, MvFotoSource &fotos) const override;

private:
    MvCalendarEventIndex m_index;
};
