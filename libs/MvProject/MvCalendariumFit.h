#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvProductBase/MvCalendariumContentConfig.h"

#include <QSizeF>

/// Fits a month's calendarium into the room that a photo, or a paper of unusual proportions, leaves it: short names of
/// weekdays where the long ones would meet, smaller fonts where a month's name or a day's number has no room.
///
/// It is the same for all months, so that pages of one layout look alike.
class MvCalendariumFit
{
public:
    MvCalendariumFit(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                     const MvSpaceMagnitude &pageSize, const QSizeF &room);

    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    /// The paper class that fonts are to be adapted to.
    const MvSpaceMagnitude &productSize() const { return m_productSize; }

private:
    void shortenWeekdays(const QSizeF &room);
    bool hasRoom(const QSizeF &room) const;

    MvCalendariumAppearance m_appearance;
    MvCalendariumContentConfig m_content;
    MvSpaceMagnitude m_productSize;
};
