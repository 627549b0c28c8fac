// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvNewCalendar.h"

#include "MvProject/MvCalendarTheme.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

namespace {

/// From behind, so that the numbers of the months before stay.
void insertFacingPages(MvCalendarDocument &document)
{
    for (int month = int(document.pages().size()) - 1; month >= 0; --month) {
        MvCalendarPage page(document.appearance(), document.pages()[month].contentConfig());
        page.setKind(MvPageKind::Free);
        document.insertPage(month, page);
    }
}

} // namespace

MvCalendarDocument MvNewCalendar::make() const
{
    const MvCalendarTheme wanted = MvThemeRegistry::instance().findTheme(themeId);
    const MvCalendarTheme theme = wanted.isValid() ? wanted : MvThemeRegistry::instance().defaultTheme();
    MvCalendarDocument document;
    if (format.isValid())
        document.setFormat(format);
    if (range.isValid())
        document.setRange(range);
    document.setTitle(title);
    document.setAuthor(author);
    if (holidays)
        document.setHolidayConfig(*holidays);
    document.setAppearance(theme.appearance(MvPageKind::Month, document.range().start()));
    if (hasFacingPages)
        insertFacingPages(document);
    const auto insert = [&document](MvPageKind kind) {
        MvCalendarPage page(document.appearance(), document.pages().value(0).contentConfig());
        page.setKind(kind);
        document.insertPage(int(document.pages().size()), page);
    };
    if (hasCover)
        insert(MvPageKind::Cover);
    if (hasBack)
        insert(MvPageKind::Back);
    return MvThemeApplication::applied(document, theme);
}
