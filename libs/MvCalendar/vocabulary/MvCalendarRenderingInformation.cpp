// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarRenderingInformation.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLParser.h"

template class MvEnumWrapper<MvCalendarRenderingInformationEnum>;

void MvCalendarRenderingInformation::fillTable(Table *table) const
{
    table->insert(QStringLiteral("calendar_render_nothing"), calendar_render_nothing);
    table->insert(QStringLiteral("calendar_render_year_long"), calendar_render_year_long);
    table->insert(QStringLiteral("calendar_render_year_short"), calendar_render_year_short);
    table->insert(QStringLiteral("calendar_render_month_number"), calendar_render_month_number);
    table->insert(QStringLiteral("calendar_render_month_short"), calendar_render_month_short);
    table->insert(QStringLiteral("calendar_render_month_long"), calendar_render_month_long);
    table->insert(QStringLiteral("calendar_render_title"), calendar_render_title);
    table->insert(QStringLiteral("calendar_render_days"), calendar_render_days);
    table->insert(QStringLiteral("calendar_render_week_of_year"), calendar_render_week_of_year);
    table->insert(QStringLiteral("calendar_render_days_of_week"), calendar_render_days_of_week);
    table->insert(QStringLiteral("calendar_render_years"), calendar_render_years);
    table->insert(QStringLiteral("calendar_render_borders"), calendar_render_borders);
    table->insert(QStringLiteral("calendar_render_all_years"), calendar_render_all_years);
    table->insert(QStringLiteral("calendar_render_year_school"), calendar_render_year_school);
    table->insert(QStringLiteral("calendar_render_comments_separate"), calendar_render_comments_separate);
    table->insert(QStringLiteral("calendar_render_comments_on_top"), calendar_render_comments_on_top);
    table->insert(QStringLiteral("calendar_render_multiple_comments_layout_horizontal"),
                  calendar_render_multiple_comments_layout_horizontal);
    table->insert(QStringLiteral("calendar_render_multiple_comments_layout_vertical"),
                  calendar_render_multiple_comments_layout_vertical);
    table->insert(QStringLiteral("calendar_render_comments"), calendar_render_comments);
    table->insert(QStringLiteral("calendar_render_no_empty_weeks"), calendar_render_no_empty_weeks);
    table->insert(QStringLiteral("calendar_render_days_of_week_short"), calendar_render_days_of_week_short);
    table->insert(QStringLiteral("calendar_render_days_of_week_only_in_front"),
                  calendar_render_days_of_week_only_in_front);
    table->insert(QStringLiteral("calendar_render_no_texts"), calendar_render_no_texts);
}

void MvCalendarRenderingInformation::fromXML(const QDomElement &element)
{
    decode(MvXMLParser::textAttribute(element, QStringLiteral("renderinfo")));
}

void MvCalendarRenderingInformation::toXML(QDomElement &element) const
{
    MvXMLBuilder::addAttribute(element, QStringLiteral("renderinfo"), encodeCSV());
}
