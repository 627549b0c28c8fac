// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumPreviewParameters.h"

#include "MvCore/MvSharedData.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvCalendariumHolidayConfigDefault.h"
#include "MvProductBase/MvDateRange.h"

struct MvCalendariumPreviewParametersImpl : MvSharedData
{
    MvCalendariumAppearance appearance;
    MvCalendariumContentConfig content{MvDateRange::createDefaultCalendarStart(), MvCalendariumHolidayConfig()};
    MvDateRange range = MvDateRange::createDefaultCalendarDateRange();

    bool operator==(const MvCalendariumPreviewParametersImpl &) const = default;
};

MvCalendariumPreviewParameters::MvCalendariumPreviewParameters()
    : d(new MvCalendariumPreviewParametersImpl)
{}

MvCalendariumPreviewParameters::MvCalendariumPreviewParameters(const MvCalendariumAppearance &appearance,
                                                               const MvCalendariumContentConfig &content,
                                                               const MvDateRange &range)
    : MvCalendariumPreviewParameters()
{
    d->appearance = appearance;
    d->content = content;
    d->range = range;
}

MvCalendariumPreviewParameters::~MvCalendariumPreviewParameters() = default;
MvCalendariumPreviewParameters::MvCalendariumPreviewParameters(const MvCalendariumPreviewParameters &) = default;
MvCalendariumPreviewParameters::MvCalendariumPreviewParameters(MvCalendariumPreviewParameters &&) noexcept = default;
MvCalendariumPreviewParameters &
MvCalendariumPreviewParameters::operator=(const MvCalendariumPreviewParameters &) = default;
MvCalendariumPreviewParameters &
MvCalendariumPreviewParameters::operator=(MvCalendariumPreviewParameters &&) noexcept = default;

MvCalendariumPreviewParameters MvCalendariumPreviewParameters::createDefault()
{
    MvCalendariumPreviewParameters parameters;
    parameters.d->content.setHolidayConfig(MvCalendariumHolidayConfigDefault::instance().defaultConfig());
    return parameters;
}

const MvCalendariumAppearance &MvCalendariumPreviewParameters::appearance() const
{
    return d->appearance;
}

void MvCalendariumPreviewParameters::setAppearance(const MvCalendariumAppearance &appearance)
{
    d->appearance = appearance;
}

const MvCalendariumContentConfig &MvCalendariumPreviewParameters::calendariumContent() const
{
    return d->content;
}

void MvCalendariumPreviewParameters::setCalendariumContent(const MvCalendariumContentConfig &content)
{
    d->content = content;
}

const MvDateRange &MvCalendariumPreviewParameters::calendarRange() const
{
    return d->range;
}

void MvCalendariumPreviewParameters::setCalendarRange(const MvDateRange &range)
{
    d->range = range;
}

bool operator==(const MvCalendariumPreviewParameters &a, const MvCalendariumPreviewParameters &b)
{
    return a.d == b.d || *a.d == *b.d;
}
