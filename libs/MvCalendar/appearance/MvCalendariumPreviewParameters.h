// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"

#include <QSharedDataPointer>

class MvCalendariumContentConfig;
class MvDateRange;
struct MvCalendariumPreviewParametersImpl;

/// What a preview of a calendarium shows: appearance, content and the range of the whole calendar. A value; copies
/// share.
class MVCALENDAR_EXPORT MvCalendariumPreviewParameters
{
public:
    /// A default appearance, the first month of a default calendar with a default holiday configuration, and its range.
    MvCalendariumPreviewParameters();
    MvCalendariumPreviewParameters(const MvCalendariumAppearance &appearance, const MvCalendariumContentConfig &content,
                                   const MvDateRange &range);
    ~MvCalendariumPreviewParameters();
    MvCalendariumPreviewParameters(const MvCalendariumPreviewParameters &);
    MvCalendariumPreviewParameters(MvCalendariumPreviewParameters &&) noexcept;
    MvCalendariumPreviewParameters &operator=(const MvCalendariumPreviewParameters &);
    MvCalendariumPreviewParameters &operator=(MvCalendariumPreviewParameters &&) noexcept;

    /// The same with the holiday configuration that new calendars begin with.
    static MvCalendariumPreviewParameters createDefault();

    const MvCalendariumAppearance &appearance() const;
    void setAppearance(const MvCalendariumAppearance &appearance);
    const MvCalendariumContentConfig &calendariumContent() const;
    void setCalendariumContent(const MvCalendariumContentConfig &content);
    const MvDateRange &calendarRange() const;
    void setCalendarRange(const MvDateRange &range);

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumPreviewParameters &a,
                                             const MvCalendariumPreviewParameters &b);

private:
    QSharedDataPointer<MvCalendariumPreviewParametersImpl> d;
};
