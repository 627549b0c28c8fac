// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvThemeApplication.h"

#include "MvProject/MvFotoAim.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvThemeRegistry.h"

namespace {

/// What a page needs that is one of a month and its photo on facing pages; empty for others, and where a person has
/// chosen what the photo's page looks like.
QString facingTemplate(const MvCalendarDocument &document, int page, const MvCalendarTheme &theme)
{
    if (document.isFacingMonth(page))
        return theme.facingTemplateId();
    const bool isNew = document.pages()[page].templateId().isEmpty();
    return isNew && document.isFacingMonth(page + 1) ? MvCalendarTheme::facingFotoTemplateId() : QString();
}

} // namespace

MvCalendarDocument MvThemeApplication::applied(const MvCalendarDocument &document, const MvCalendarTheme &theme)
{
    if (!theme.isValid())
        return document;
    MvCalendarDocument themed = document;
    // pages of years become pages of months first
    themed.setAppearance(theme.appearance(MvPageKind::Month, document.range().start(), document.appearance()));
    int month = 0;
    for (int page = 0; page < themed.pages().size(); ++page) {
        const bool isMonth = themed.isMonthPage(page);
        MvCalendarPage changed = applied(themed.pages().at(page), theme, themed.format(), isMonth ? month : 0);
        if (const QString facing = facingTemplate(themed, page, theme); !facing.isEmpty())
            changed.setTemplate(pageTemplate(theme.id(), facing), themed.format());
        themed.setPage(page, changed);
        month += isMonth ? 1 : 0;
    }
    themed.setThemeId(theme.id());
    return MvFotoAim::followed(document, themed);
}

MvCalendarPage MvThemeApplication::applied(const MvCalendarPage &page, const MvCalendarTheme &theme,
                                           const MvPageFormat &format, int number)
{
    MvCalendarPage themed = page;
    themed.setAppearance(theme.appearance(page.kind(), page.contentConfig().date(), page.appearance()));
    MvPageBackground ground = page.background();
    ground.setColor(theme.backgroundColor());
    themed.setBackground(ground);
    const bool keepsTemplate = page.kind() == MvPageKind::Free && !page.templateId().isEmpty();
    const QString id = keepsTemplate ? page.templateId() : theme.templateId(page.kind(), number);
    const MvPageTemplate found = MvPageTemplateRegistry::instance().findTemplate(id, theme.style());
    if (found.isValid())
        themed.setTemplate(found, format);
    return themed;
}

MvPageTemplate MvThemeApplication::pageTemplate(const QString &themeId, const QString &templateId)
{
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(themeId);
    return MvPageTemplateRegistry::instance().findTemplate(templateId, theme.style());
}

QList<MvPageTemplate> MvThemeApplication::pageTemplates(const QString &themeId, MvPageKind kind)
{
    const MvCalendarTheme theme = MvThemeRegistry::instance().findTheme(themeId);
    return MvPageTemplateRegistry::instance().templates(kind, theme.style());
}
