// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarBorderType.h"

#include <QMarginsF>
#include <QSharedDataPointer>

struct MvCalendariumLayoutCellInfoImpl;
class QDomElement;
class QFont;

/// How the cells of one type are laid out: border, font, alignment, padding. A value; copies share.
class MVCALENDAR_EXPORT MvCalendariumLayoutCellInfo
{
public:
    /// Border width 2 without sides, the default font, centred, no padding.
    MvCalendariumLayoutCellInfo();
    explicit MvCalendariumLayoutCellInfo(const QDomElement &element);
    ~MvCalendariumLayoutCellInfo();
    MvCalendariumLayoutCellInfo(const MvCalendariumLayoutCellInfo &);
    MvCalendariumLayoutCellInfo(MvCalendariumLayoutCellInfo &&) noexcept;
    MvCalendariumLayoutCellInfo &operator=(const MvCalendariumLayoutCellInfo &);
    MvCalendariumLayoutCellInfo &operator=(MvCalendariumLayoutCellInfo &&) noexcept;

    /// Tenths of a millimetre. Kept for files that have it; lines are as wide as the grid of the colours says.
    int cellBorderWidth() const;
    MvCalendarBorderType borderType() const;
    QFont font() const;
    /// Points on the paper that the layout is made for, which no percentage of the user exceeds; 0 means no limit.
    int maxFontSize() const;
    Qt::Alignment textAlignment() const;
    /// Tenths of a millimetre.
    QMarginsF padding() const;

    /// Writes attributes and a "font" child that the constructor reads to an equal value.
    void toXML(QDomElement &element) const;

    MVCALENDAR_EXPORT friend bool operator==(const MvCalendariumLayoutCellInfo &a,
                                             const MvCalendariumLayoutCellInfo &b);

private:
    QSharedDataPointer<MvCalendariumLayoutCellInfoImpl> d;
};
