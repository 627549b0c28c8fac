// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayGrounds.h"

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumColorCellInfo.h"

#include <algorithm>

namespace {

constexpr int steps = 100; // of lightness

/// Of two layers, as they are seen.
QColor over(const QColor &upper, const QColor &lower)
{
    const float alpha = upper.alphaF();
    const auto mixed = [alpha](float above, float below) { return above * alpha + below * (1 - alpha); };
    return QColor::fromRgbF(mixed(upper.redF(), lower.redF()), mixed(upper.greenF(), lower.greenF()),
                            mixed(upper.blueF(), lower.blueF()));
}

QColor withLightness(const QColor &color, float lightness)
{
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF(), lightness).toRgb();
}

} // namespace

void MvDayGrounds::add(const MvCalendariumAppearance &appearance, const QColor &paper)
{
    const QColor sheet = paper.isValid() ? over(paper, Qt::white) : QColor(Qt::white);
    for (const MvCalendarCellTypeEnum type :
         {CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY,
          CALENDAR_CELL_TYPE_HOLIDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION}) {
        for (const MvParityLogicEnum parity : {MvParityLogicEnum::even, MvParityLogicEnum::odd}) {
            const QColor color =
                over(appearance.cellColor({MvCalendarCellColorRoleEnum::bgcolor, type, parity}), sheet);
            const auto isKnown = [&](const Ground &ground) { return ground.type == type && ground.color == color; };
            if (std::none_of(m_grounds.cbegin(), m_grounds.cend(), isKnown))
                m_grounds.append({type, color});
        }
    }
}

double MvDayGrounds::contrast(const QColor &color) const
{
    double lowest = 21;
    for (const Ground &ground : m_grounds)
        lowest = std::min(lowest, MvCalendariumColorCellInfo::colorContrast(color, ground.color));
    return lowest;
}

QList<MvCalendarCellType> MvDayGrounds::unreadableOn(const QColor &color) const
{
    QList<MvCalendarCellType> types;
    for (const Ground &ground : m_grounds) {
        if (MvCalendariumColorCellInfo::colorContrast(color, ground.color) < readableContrast &&
            !types.contains(ground.type))
            types.append(ground.type);
    }
    return types;
}

QColor MvDayGrounds::nearestReadable(const QColor &color) const
{
    if (contrast(color) >= readableContrast)
        return color;
    const float lightness = color.lightnessF();
    for (int step = 1; step <= steps; ++step) {
        const float away = float(step) / steps;
        for (const float tried : {lightness - away, lightness + away}) {
            const QColor candidate = withLightness(color, std::clamp(tried, 0.0F, 1.0F));
            if (contrast(candidate) >= readableContrast)
                return candidate;
        }
    }
    return {};
}
