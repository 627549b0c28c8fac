// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayNumberSize.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString widestNumber = u"28"_s;
constexpr double gap = 0.25; // between the numbers of two days, of the size of type
constexpr double hair = 2.0; // above and below

QSizeF sizeIn(const QFont &font)
{
    const MvTextOutline number = MvTextOutlineCache::instance().outline(font, widestNumber);
    return {number.advance() + gap * font.pixelSize(), number.bounds().height() + 2.0 * hair};
}

} // namespace

QSizeF MvDayNumberSize::asPrinted(const MvCalendariumRenderer &renderer)
{
    QSizeF size;
    for (const MvCalendarCellType &type : renderer.dayCellTypes())
        size = size.expandedTo(sizeIn(renderer.font(type)));
    return size;
}

QSizeF MvDayNumberSize::atFloor(const MvCalendariumRenderer &renderer)
{
    QSizeF size;
    for (const MvCalendarCellType &type : renderer.dayCellTypes()) {
        QFont font = renderer.font(type);
        font.setPixelSize(static_cast<int>(std::ceil(renderer.smallestPixelSize(type))));
        size = size.expandedTo(sizeIn(font));
    }
    return size;
}
