// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCalendarDraft.h"

#include "panels/MvLayoutChooser.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvProject/MvThemeApplication.h"

using namespace Qt::StringLiterals;

namespace {

/// Simple pages in the chosen layout.
MvCalendarDocument planner(const MvNewCalendar &wanted, const MvCalendariumLayoutSchemaID &layout)
{
    MvCalendarDocument document;
    if (wanted.format.isValid())
        document.setFormat(wanted.format);
    if (wanted.range.isValid())
        document.setRange(wanted.range);
    document.setTitle(wanted.title);
    document.setAuthor(wanted.author);
    if (wanted.holidays)
        document.setHolidayConfig(*wanted.holidays);
    const auto &layouts = MvCalendariumLayoutSchemaRegistry::instance();
    MvCalendariumAppearance appearance;
    appearance.setColorSchema(MvCalendariumColorSchemaRegistry::instance().defaultSchema());
    document.setAppearance(
        MvLayoutChooser::withLayout(appearance, layout.isValid() ? layout : layouts.defaultSchema().ID()));
    return document;
}

} // namespace

MvCalendarDocument MvCalendarDraft::make() const
{
    if (kind == MvCalendarKind::Planner)
        return planner(wanted, layout);
    MvCalendarDocument document = wanted.make();
    if (kind == MvCalendarKind::Fotos)
        return document;
    const MvPageTemplate people = MvThemeApplication::pageTemplate(document.themeId(), u"MONTH_PEOPLE"_s);
    for (int number = 0; number < document.pages().size() && people.isValid(); ++number) {
        if (!document.isMonthPage(number))
            continue;
        MvCalendarPage page = document.pages().at(number);
        page.setTemplate(people, document.format());
        document.setPage(number, page);
    }
    return document;
}
