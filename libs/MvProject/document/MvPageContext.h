// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvDateRange.h"

#include <QString>

/// What a page needs to know of the calendar that it belongs to when it is painted: MvCalendarDocument::context().
struct MvPageContext
{
    MvPageContext() = default;
    /// A calendar without title and author.
    MvPageContext(const MvDateRange &calendarRange) // NOLINT(google-explicit-constructor): most pages print no title
        : range(calendarRange)
    {}
    MvPageContext(const MvDateRange &calendarRange, const QString &calendarTitle, const QString &calendarAuthor)
        : range(calendarRange)
        , title(calendarTitle)
        , author(calendarAuthor)
    {}

    MvDateRange range; ///< of the whole calendar
    QString title;     ///< as it is printed; empty for none
    QString author;

    bool operator==(const MvPageContext &) const = default;
};
