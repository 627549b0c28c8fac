// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvCalendarTheme.h"

#include "MvCalendar/MvCalendariumColorSchemaID.h"
#include "MvCalendar/MvCalendariumLayoutSchemaID.h"

MvCalendariumAppearance MvCalendarTheme::appearance(MvPageKind kind, const QDate &month,
                                                    const MvCalendariumAppearance &before) const
{
    MvCalendariumAppearance appearance = before;
    const QString headers = before.columnHeaders();
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(m_layout));
    appearance.adoptLayoutSuggestions();
    if (!headers.isEmpty())
        appearance.setColumnHeaders(headers);
    MvCalendariumFontSettings fonts = m_fonts;
    if (!m_hasDayTextSize)
        fonts.setFontSizePercentageHolidays(appearance.fontSettings().fontSizePercentageHolidays());
    appearance.setFontSettings(fonts);
    const QString seasonal = m_colorsOfMonths.value(month.month(), m_colors);
    const QString colors = m_colorsOfKinds.value(kind, seasonal);
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(colors));
    appearance.adaptGridToLayout();
    return appearance;
}

QString MvCalendarTheme::templateId(MvPageKind kind, int number) const
{
    const QStringList ids = templateIds(kind);
    return ids.isEmpty() ? QString() : ids.at(qMax(0, number) % ids.size());
}

QString MvCalendarTheme::facingFotoTemplateId()
{
    return QStringLiteral("FREE_FACING");
}

QStringList MvCalendarTheme::colorSchemaIds() const
{
    QStringList ids{m_colors};
    ids += m_colorsOfMonths.values();
    ids += m_colorsOfKinds.values();
    ids.removeDuplicates();
    return ids;
}

QStringList MvCalendarTheme::layoutIds() const
{
    QStringList ids{m_layout};
    ids += m_style.layouts.values();
    ids.removeAll(QString());
    ids.removeDuplicates();
    return ids;
}

QStringList MvCalendarTheme::fontFamilies() const
{
    QStringList families{m_fonts.fontName()};
    for (const MvTemplateStyle::TextStyle &text : m_style.texts)
        families.append(text.family);
    families.removeAll(QString());
    families.removeDuplicates();
    return families;
}
