// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvCalendarPage.h"
#include "MvProject/MvCalendarTheme.h"
#include "MvProject/MvPageTemplate.h"
#include "MvProject/mvproject_export.h"

#include <QList>
#include <QString>

/// Gives a calendar, or a page of it, the look of a theme. Photos and texts stay: what the new templates have no room
/// for is kept with its page and comes back with one that has.
class MVPROJECT_EXPORT MvThemeApplication
{
public:
    /// The document in the theme: layouts, colours, fonts and templates of all pages. Free pages keep their template.
    /// Months that face a page with their photo (MvCalendarDocument::isFacingMonth()) get a template without one. An
    /// invalid theme changes nothing.
    static MvCalendarDocument applied(const MvCalendarDocument &document, const MvCalendarTheme &theme);
    /// The page in the theme. `number`: of a month the how manieth it is, counted from 0.
    static MvCalendarPage applied(const MvCalendarPage &page, const MvCalendarTheme &theme, const MvPageFormat &format,
                                  int number = 0);

    /// The template dressed in the theme; plain when there is no such theme, invalid when there is no such template.
    /// Who gives a page another template takes it from here.
    static MvPageTemplate pageTemplate(const QString &themeId, const QString &templateId);
    /// Those for pages of the kind, dressed: what a chooser offers.
    static QList<MvPageTemplate> pageTemplates(const QString &themeId, MvPageKind kind);
};
