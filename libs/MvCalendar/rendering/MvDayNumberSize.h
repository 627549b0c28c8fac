// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QSizeF>

class MvCalendariumRenderer;

/// What the number of a day needs, whatever day it is: its width with the gap that keeps it apart from the next day's,
/// and the height of what is seen of it. In page units.
class MVCALENDAR_EXPORT MvDayNumberSize
{
public:
    /// In the fonts that the renderer has.
    static QSizeF asPrinted(const MvCalendariumRenderer &renderer);
    /// At the floor of type.
    static QSizeF atFloor(const MvCalendariumRenderer &renderer);
};
