// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCellStyles.h"

#include "MvCalendar/MvRenderingProbe.h"
#include "MvCore/MvMath.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double smallestPoints = 6.5; // of what people read on paper
constexpr double pageDpi = 254.0;      // a pixel of the page is a tenth of a millimetre

double floorOfType(const QFont &onPaper)
{
    return std::min(MvMath::point2pixel(smallestPoints, pageDpi), double(onPaper.pixelSize()));
}

/// Not smaller than the floor, which is rounded up since fonts have whole pixels.
QFont scaled(QFont font, double factor, double floor)
{
    const int size = std::max(static_cast<int>(font.pixelSize() * factor), static_cast<int>(std::ceil(floor)));
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * size / font.pixelSize());
    font.setPixelSize(size);
    return font;
}

/// What it holds, made on the first call.
template <class Value, class Make>
const Value &once(std::optional<Value> &value, const Make &make)
{
    if (!value)
        value.emplace(make());
    return *value;
}

} // namespace

void MvCellStyles::setPaper(const MvSpaceMagnitude &paper)
{
    m_paper = paper;
    m_styles.clear();
}

void MvCellStyles::setMinimum(int points)
{
    m_minimum = points;
    m_styles.clear();
}

void MvCellStyles::setScale(double fonts, double paddings)
{
    m_fontScale = fonts;
    m_paddingScale = paddings;
    for (auto &[type, style] : m_styles) {
        style.font.reset();
        style.fontHolidays.reset();
        style.metrics.reset();
        style.padding.reset();
    }
}

// ---- fonts

const QFont &MvCellStyles::fontOnPaper(const MvCalendarCellType &type) const
{
    return once(style(type).onPaper, [&] { return counted(m_appearance.font(type, m_paper, m_minimum)); });
}

const QFont &MvCellStyles::fontHolidaysOnPaper(const MvCalendarCellType &type) const
{
    return once(style(type).holidaysOnPaper,
                [&] { return counted(m_appearance.fontHolidays(type, m_paper, m_minimum)); });
}

QFont MvCellStyles::counted(const QFont &font) const
{
    if (m_probe)
        ++m_probe->fonts;
    return font;
}

const QFont &MvCellStyles::font(const MvCalendarCellType &type) const
{
    if (m_fontScale == 1.0)
        return fontOnPaper(type);
    return once(style(type).font,
                [&] { return scaled(fontOnPaper(type), m_fontScale, floorOfType(fontOnPaper(type))); });
}

const QFont &MvCellStyles::fontHolidays(const MvCalendarCellType &type) const
{
    // where larger numbers than the layout's become smaller again, texts stay as they are
    const double enlarged = 1.0 + 0.01 * std::max(0, m_appearance.fontSettings().fontSizePercentage());
    const double scale = std::min(1.0, m_fontScale * enlarged);
    if (scale == 1.0)
        return fontHolidaysOnPaper(type);
    return once(style(type).fontHolidays,
                [&] { return scaled(fontHolidaysOnPaper(type), scale, floorOfType(fontHolidaysOnPaper(type))); });
}

const QFontMetrics &MvCellStyles::fontMetrics(const MvCalendarCellType &type) const
{
    return once(style(type).metrics, [&] {
        return m_fontScale == 1.0 ? m_appearance.fontMetrics(type, m_paper, m_minimum) : QFontMetrics(font(type));
    });
}

double MvCellStyles::smallestPixelSize(const MvCalendarCellType &type) const
{
    return floorOfType(fontOnPaper(type));
}

double MvCellStyles::smallestHolidayPixelSize(const MvCalendarCellType &type) const
{
    return floorOfType(fontHolidaysOnPaper(type));
}

// ---- cells

QMarginsF MvCellStyles::padding(const MvCalendarCellType &type) const
{
    return once(style(type).padding, [&] { return m_appearance.padding(type) * m_paddingScale; });
}

const MvCalendarBorderType &MvCellStyles::borders(const MvCalendarCellType &type) const
{
    return once(style(type).borders, [&] { return m_appearance.borderType(type); });
}

bool MvCellStyles::hasBorder(const MvCalendarCellType &type) const
{
    return once(style(type).hasBorder, [&] { return m_appearance.shouldIPaintTheBorder(type); });
}

const QColor &MvCellStyles::backgroundColor(const MvCalendarCellType &type, bool even) const
{
    return once(style(type).backgrounds[even ? 1 : 0], [&] {
        return m_appearance.cellColor({MvCalendarCellColorRoleEnum::bgcolor, type, MvParityLogic(even)});
    });
}

const QColor &MvCellStyles::fontColor(const MvCalendarCellType &type, bool even) const
{
    return once(style(type).fontColors[even ? 1 : 0], [&] {
        return m_appearance.cellColor({MvCalendarCellColorRoleEnum::textcolor, type, MvParityLogic(even)});
    });
}
