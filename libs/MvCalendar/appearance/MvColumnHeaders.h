// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QString>
#include <QStringList>

/// The headings of a page's free columns: a list, which only files have joined to one text.
///
/// In the text they are parted by "$$". A "$" at the end of a heading or before another one is followed by an invisible
/// word joiner there, so that it parts nothing. Text and list are taken apart and put together once, when they are set.
class MVCALENDAR_EXPORT MvColumnHeaders
{
public:
    MvColumnHeaders() = default;
    explicit MvColumnHeaders(const QString &text);
    explicit MvColumnHeaders(const QStringList &headers);

    const QString &text() const { return m_text; }
    /// Those that are not empty.
    const QStringList &list() const { return m_list; }

    bool operator==(const MvColumnHeaders &other) const { return m_text == other.m_text; }

private:
    QString m_text; // as it was read: the years of a page are parted by all of it
    QStringList m_list;
};
