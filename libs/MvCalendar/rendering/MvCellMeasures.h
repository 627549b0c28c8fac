// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellType.h"
#include "MvCore/MvRealRange.h"

#include <QSizeF>
#include <QStringList>

class MvCalendariumRenderer;
class QPaintDevice;

/// How much room the cells of a renderer need, in page units unless said otherwise: from the fonts, paddings and words
/// of the renderer, without a painter. See the operations of the same names of MvCalendariumRenderer.
class MvCellMeasures
{
public:
    /// The renderer must outlive the measures.
    explicit MvCellMeasures(const MvCalendariumRenderer &renderer)
        : m_renderer(renderer)
    {}

    /// In pixels of the device.
    QSizeF minimumSizeFont(const MvCalendarCellType &type, QPaintDevice *device, const QString &text) const;
    QSizeF maximumSizeOfStrings(const MvCalendarCellType &type, const QStringList &texts) const;
    double minimumHeightOfCellType(const MvCalendarCellType &type, bool rotated) const;
    double contentWidthOfCellType(const MvCalendarCellType &type, bool shortNames) const;
    double widthOfCellType(const MvCalendarCellType &type, bool shortNames) const;
    MvRealRange widthRangeOfCellTypes(const MvCalendarCellType &types, bool shortNames) const;
    double maxHeadWidth() const;
    double maxContentWidth() const;
    /// In pixels of the device.
    QSizeF minimumSizeWeekdays(bool shortNames, QPaintDevice *device) const;

private:
    const MvCalendariumRenderer &m_renderer;
};
