// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCore/MvSpaceMagnitude.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QMarginsF>

#include <array>
#include <optional>
#include <unordered_map>

struct MvRenderingProbe;

/// What each type of cell looks like on the paper that is painted: fonts, paddings, lines and colours of an appearance.
/// Everything is resolved when it is first asked for, once; painting a cell looks nothing up in schemas.
class MvCellStyles
{
public:
    explicit MvCellStyles(const MvCalendariumAppearance &appearance)
        : m_appearance(appearance)
    {}

    const MvCalendariumAppearance &appearance() const { return m_appearance; }
    /// The paper class; none leaves fonts as the layout made them.
    void setPaper(const MvSpaceMagnitude &paper);
    /// The smallest size in points of a font that is adapted to the paper.
    void setMinimum(int points);
    /// Factors to fonts, which keep to the floor of their type, and to paddings.
    void setScale(double fonts, double paddings);
    /// Counts the fonts that are resolved; may be null.
    void setProbe(MvRenderingProbe *probe) { m_probe = probe; }

    const QFont &font(const MvCalendarCellType &type) const;
    /// Of the texts of days.
    const QFont &fontHolidays(const MvCalendarCellType &type) const;
    const QFontMetrics &fontMetrics(const MvCalendarCellType &type) const;
    /// The pixel size below which no text of the type is made smaller: 6.5 points on paper, or less where the layout
    /// has less on this paper.
    double smallestPixelSize(const MvCalendarCellType &type) const;
    double smallestHolidayPixelSize(const MvCalendarCellType &type) const;
    QMarginsF padding(const MvCalendarCellType &type) const;
    /// The sides with a line.
    const MvCalendarBorderType &borders(const MvCalendarCellType &type) const;
    bool hasBorder(const MvCalendarCellType &type) const;
    const QColor &backgroundColor(const MvCalendarCellType &type, bool even) const;
    const QColor &fontColor(const MvCalendarCellType &type, bool even) const;

private:
    struct Style
    {
        std::optional<QFont> onPaper; // as the layout has it there, before it is scaled
        std::optional<QFont> holidaysOnPaper;
        std::optional<QFont> font;
        std::optional<QFont> fontHolidays;
        std::optional<QFontMetrics> metrics;
        std::optional<QMarginsF> padding;
        std::optional<MvCalendarBorderType> borders;
        std::optional<bool> hasBorder;
        std::array<std::optional<QColor>, 2> backgrounds; // of odd and of even weeks
        std::array<std::optional<QColor>, 2> fontColors;
    };

    Style &style(const MvCalendarCellType &type) const { return m_styles[type.toInt()]; }
    const QFont &fontOnPaper(const MvCalendarCellType &type) const;
    const QFont &fontHolidaysOnPaper(const MvCalendarCellType &type) const;
    QFont counted(const QFont &font) const;

    MvCalendariumAppearance m_appearance;
    MvSpaceMagnitude m_paper;
    int m_minimum = 6;
    double m_fontScale = 1.0;
    double m_paddingScale = 1.0;
    MvRenderingProbe *m_probe = nullptr;
    mutable std::unordered_map<int, Style> m_styles; // by type; references stay valid
};
