// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumCellColorPair.h"

#include <QSharedDataPointer>

struct MvCalendariumColorCellInfoImpl;

/// The colours of one cell as an object, for editors: text and background, in even and in odd weeks.
class MVCALENDAR_EXPORT MvCalendariumColorCellInfo
{
public:
    /// Black on transparent.
    MvCalendariumColorCellInfo();
    ~MvCalendariumColorCellInfo();
    MvCalendariumColorCellInfo(const MvCalendariumColorCellInfo &);
    MvCalendariumColorCellInfo(MvCalendariumColorCellInfo &&) noexcept;
    MvCalendariumColorCellInfo &operator=(const MvCalendariumColorCellInfo &);
    MvCalendariumColorCellInfo &operator=(MvCalendariumColorCellInfo &&) noexcept;

    QColor fontColor(bool even) const;
    QColor backgroundColor(bool even) const;
    void setFontColor(const QColor &color, bool even);
    void setBackgroundColor(const QColor &color, bool even);
    QColor color(const MvCalendarCellColorRole &role, bool even) const;
    void setColor(const QColor &color, const MvCalendarCellColorRole &role, bool even);

    /// The different visible colours, backgrounds first.
    QList<QColor> usedColors() const;
    /// Writes the pair of each role as attributes.
    void toXML(QDomElement &element) const;

    /// Contrast of two opaque colours, 1 (equal) to 21 (black on white), by relative luminance as in WCAG 2.1.
    static double colorContrast(const QColor &a, const QColor &b);
    /// Contrast of text and background on paper of the given colour; both may let it shine through.
    double cellContrast(const QColor &paper, bool even) const;
    /// The lower one of both parities.
    double minimumCellContrast(const QColor &paper) const;

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumColorCellInfo &a, const MvCalendariumColorCellInfo &b);

private:
    QSharedDataPointer<MvCalendariumColorCellInfoImpl> d;
};
