// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageInks.h"

#include <array>

namespace {

constexpr std::array writtenTypes = {
    CALENDAR_CELL_TYPE_WEEKDAY,      CALENDAR_CELL_TYPE_SATURDAY,     CALENDAR_CELL_TYPE_SUNDAY,
    CALENDAR_CELL_TYPE_HOLIDAY,      CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_HEAD_SATURDAY,
    CALENDAR_CELL_TYPE_HEAD_SUNDAY,  CALENDAR_CELL_TYPE_MONTH,        CALENDAR_CELL_TYPE_YEAR,
    CALENDAR_CELL_TYPE_WEEK_OF_YEAR, CALENDAR_CELL_TYPE_TITLE,        CALENDAR_CELL_TYPE_SCHOOL_VACATION,
};

} // namespace

QColor MvPageInks::ground() const
{
    if (m_page.background().color().isValid())
        return m_page.background().color();
    if (!m_page.appearance().isValid())
        return {};
    const QColor color = cell(CALENDAR_CELL_TYPE_EMPTY, false);
    return m_page.appearance().isOpaqueColor(color) ? color : QColor();
}

QColor MvPageInks::text() const
{
    return cell(CALENDAR_CELL_TYPE_WEEKDAY, true);
}

QColor MvPageInks::accent() const
{
    return cell(CALENDAR_CELL_TYPE_SUNDAY, true);
}

QColor MvPageInks::of(const MvTextElement &text) const
{
    if (text.color().isValid())
        return text.color();
    return text.isAccent() ? accent() : this->text();
}

QList<QColor> MvPageInks::of(const MvPageElement &element) const
{
    if (element.text())
        return {of(*element.text())};
    QList<QColor> colors;
    if (element.calendarium()) {
        for (const MvCalendarCellTypeEnum type : writtenTypes)
            colors.append(cell(type, true));
    }
    return colors;
}

QColor MvPageInks::cell(const MvCalendarCellType &type, bool isFont) const
{
    const auto role = isFont ? MvCalendarCellColorRoleEnum::textcolor : MvCalendarCellColorRoleEnum::bgcolor;
    return m_page.appearance().cellColor(MvCalendarCellColorKey(role, type, MvParityLogicEnum::even));
}
