// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumFontSettings.h"
#include "MvProject/MvPageBackground.h"
#include "MvProject/MvPageKind.h"
#include "MvProject/MvTemplateStyle.h"
#include "MvProject/mvproject_export.h"
#include "MvXML/MvLocalizedText.h"

#include <QColor>
#include <QDate>
#include <QMap>
#include <QString>
#include <QStringList>

/// The look of a whole calendar: layouts, colours, fonts, the treatment of photos, and the templates of cover, months
/// and back. A value that MvThemeReader fills; MvThemeApplication gives it to a document.
class MVPROJECT_EXPORT MvCalendarTheme
{
public:
    /// None; invalid.
    MvCalendarTheme() = default;

    bool isValid() const { return !m_id.isEmpty(); }
    QString id() const { return m_id; }
    /// In the language of the program.
    QString name() const { return m_name.text(); }
    const MvLocalizedText &localizedName() const { return m_name; }
    /// A sentence for choosers.
    QString description() const { return m_description.text(); }

    /// What templates are dressed in.
    const MvTemplateStyle &style() const { return m_style; }

    /// The appearance of a page for the month. Covers and backs may have colours of their own, months those of their
    /// season. What was asked of the appearance before stays: column headers and calendar weeks.
    MvCalendariumAppearance appearance(MvPageKind kind, const QDate &month,
                                       const MvCalendariumAppearance &before = {}) const;
    /// The colour beneath everything; invalid for that of the colour schema.
    QColor backgroundColor() const { return m_background; }

    /// The id of the template for a page: of months the one whose turn it is, counted from 0; of free pages the first.
    QString templateId(MvPageKind kind, int number = 0) const;
    /// The templates that pages of the kind take turns with.
    QStringList templateIds(MvPageKind kind) const { return m_templates.value(kind); }

    /// The id of the template for months that face a page with their photo: one without photos.
    QString facingTemplateId() const { return m_facing; }
    /// The id of the template for such a page: the photo alone, with nothing at its binding edge.
    static QString facingFotoTemplateId();

    /// The ids of all colour schemas that its pages may have.
    QStringList colorSchemaIds() const;
    /// The ids of all layouts that it names, that of the pages first.
    QStringList layoutIds() const;
    /// The families that it names beside those of its layouts.
    QStringList fontFamilies() const;

private:
    friend class MvThemeReader;

    QString m_id;
    MvLocalizedText m_name;
    MvLocalizedText m_description;
    MvTemplateStyle m_style;
    QString m_layout;
    QString m_colors;
    QMap<int, QString> m_colorsOfMonths; // 1 to 12
    QMap<MvPageKind, QString> m_colorsOfKinds;
    MvCalendariumFontSettings m_fonts;
    bool m_hasDayTextSize = false; // else the layout suggests it
    QColor m_background;
    QMap<MvPageKind, QStringList> m_templates;
    QString m_facing = QStringLiteral("MONTH_PLAIN");
};
