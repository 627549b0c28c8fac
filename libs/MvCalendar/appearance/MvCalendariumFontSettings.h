// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvSpaceMagnitude.h"

#include <QFont>
#include <QString>

class QDomElement;

/// The user's choice of font, relative to the fonts of the layout schema.
class MVCALENDAR_EXPORT MvCalendariumFontSettings
{
public:
    /// The layout's own fonts, unchanged.
    MvCalendariumFontSettings() = default;
    MvCalendariumFontSettings(const QString &fontName, int fontSizePercentage, int fontSizePercentageHolidays,
                              QFont::Weight weight, QFont::Capitalization capitalization, double letterSpacing);
    /// Reads the attributes of the element; missing ones take their defaults.
    explicit MvCalendariumFontSettings(const QDomElement &element);
    virtual ~MvCalendariumFontSettings() = default;
    MvCalendariumFontSettings(const MvCalendariumFontSettings &) = default;
    MvCalendariumFontSettings(MvCalendariumFontSettings &&) noexcept = default;
    MvCalendariumFontSettings &operator=(const MvCalendariumFontSettings &) = default;
    MvCalendariumFontSettings &operator=(MvCalendariumFontSettings &&) noexcept = default;

    void write(QDomElement &element) const;

    /// Empty: the layout's family.
    QString fontName() const { return m_fontName; }
    void setFont(const QString &fontName) { m_fontName = fontName; }
    /// Change relative to the layout's size: 0 keeps it, 20 makes it 120 %, -50 half; brought into -100 to 900.
    int fontSizePercentage() const { return m_fontSizePercentage; }
    void setFontSizePercentage(int percentage);
    /// The same for the texts of holidays and entries inside a cell; -50 by default.
    int fontSizePercentageHolidays() const { return m_fontSizePercentageHolidays; }
    void setFontSizePercentageHolidays(int percentage);
    /// The size of old files, in steps of ten percent.
    void setFontSize(int size);
    QFont::Capitalization capitalization() const { return m_capitalization; }
    /// Between letters, in pixels at the layout's size; 0 keeps the layout's.
    double letterSpacing() const { return m_letterSpacing; }
    /// QFont::Normal keeps the layout's.
    QFont::Weight weight() const { return m_weight; }

    /// The font of a cell: the layout's font, changed by these settings, in pixels at 200 dpi, scaled from the paper
    /// class it was made for to that of the product, and at least `minimum` points high (measured at 254 dpi).
    QFont font(const QFont &baseFont, const MvSpaceMagnitude &optimisedSize, const MvSpaceMagnitude &magnitude,
               int minimum) const;
    /// The same for the texts of holidays and entries.
    QFont fontHolidays(const QFont &baseFont, const MvSpaceMagnitude &optimisedSize, const MvSpaceMagnitude &magnitude,
                       int minimum) const;

    bool operator==(const MvCalendariumFontSettings &other) const;

private:
    QFont scaledFont(const QFont &baseFont, int percentage, const MvSpaceMagnitude &optimisedSize,
                     const MvSpaceMagnitude &magnitude, int minimum) const;

    QString m_fontName;
    int m_fontSizePercentage = 0;
    int m_fontSizePercentageHolidays = -50;
    QFont::Capitalization m_capitalization = QFont::MixedCase;
    double m_letterSpacing = 0.0;
    QFont::Weight m_weight = QFont::Normal;
};
