// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvEnumWrapper.h"

class QDomElement;

/// What a renderer draws.
enum MvCalendarRenderingInformationEnum : qint32 {
    calendar_render_nothing = 0,
    calendar_render_year_long = 1,
    calendar_render_year_short = 2,
    calendar_render_month_number = 16,
    calendar_render_month_short = 32,
    calendar_render_month_long = 64,
    calendar_render_title = 256,
    calendar_render_days = 512,
    calendar_render_week_of_year = 1024,
    calendar_render_days_of_week = 2048,
    calendar_render_years = 4096,
    calendar_render_borders = 8192,
    calendar_render_all_years = 16384,
    calendar_render_year_school = 32768,
    calendar_render_comments_separate = 0x10000,
    calendar_render_comments_on_top = 0x20000,
    calendar_render_multiple_comments_layout_horizontal = 0x40000,
    calendar_render_multiple_comments_layout_vertical = 0x80000,
    calendar_render_comments = 0xF0000,
    calendar_render_no_empty_weeks = 0x100000,
    calendar_render_days_of_week_short = 0x200000,
    calendar_render_days_of_week_only_in_front = 0x400000,
    calendar_render_no_texts = 0x800000, // days are numbers and colours alone: no names of holidays, no entries
};

extern template class MVCALENDAR_EXPORT MvEnumWrapper<MvCalendarRenderingInformationEnum>;

/// A set of rendering flags. Stored in the attribute "renderinfo", each flag by its own name; unknown names count for
/// 0.
class MVCALENDAR_EXPORT MvCalendarRenderingInformation : public MvEnumWrapper<MvCalendarRenderingInformationEnum>
{
    MV_ENUM_WRAPPER(MvCalendarRenderingInformation, MvCalendarRenderingInformationEnum)

    /// Reads the attribute "renderinfo"; missing: 0.
    void fromXML(const QDomElement &element);
    /// Writes the attribute "renderinfo".
    void toXML(QDomElement &element) const;
};
