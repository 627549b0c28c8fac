// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// A calendarium on a page: the grid of its month, a line or a small month beside it, a year at its foot. A value.
class MvCalendariumElement
{
public:
    static constexpr int mostMonthsAway = 1200;

    MvCalendariumElement() = default;
    /// The id of a layout, "" for the page's own.
    explicit MvCalendariumElement(const QString &layout)
        : m_layout(layout)
    {}

    /// The layout's id; empty for the page's own, which an unknown id is replaced by as well.
    QString layout() const { return m_layout; }
    void setLayout(const QString &id) { m_layout = id; }
    /// Which month it shows, counted from the page's own; -1200 to 1200, clamped.
    int monthOffset() const { return m_monthOffset; }
    void setMonthOffset(int months) { m_monthOffset = qBound(-mostMonthsAway, months, mostMonthsAway); }
    /// It stands on a photo: under it lies a veil of the page's ground, as strong as legibility demands.
    bool isOnFoto() const { return m_isOnFoto; }
    void setOnFoto(bool on) { m_isOnFoto = on; }
    /// Above a layout that does not show its month stands the line that the layout names for it.
    bool hasMonthLine() const { return m_hasMonthLine; }
    void setMonthLine(bool line) { m_hasMonthLine = line; }

    bool operator==(const MvCalendariumElement &) const = default;

private:
    QString m_layout;
    int m_monthOffset = 0;
    bool m_isOnFoto = false;
    bool m_hasMonthLine = true;
};
