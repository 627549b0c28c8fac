// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoElement.h"
#include "MvProject/mvproject_export.h"

#include <QFont>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

/// How the slots of templates are dressed: which layouts stand for the kinds of calendaria that templates ask for, how
/// titles, months and captions are set, which border photos have. A theme brings one; a default one is plain. A value.
struct MVPROJECT_EXPORT MvTemplateStyle
{
    /// What a slot of a template shows of the calendar.
    enum class Shows {
        Grid,       ///< the month as a grid, the page's own layout
        Bare,       ///< the same without the month's name, which stands beside it
        Strip,      ///< all days in a row
        List,       ///< a day per row
        Planner,    ///< a day per row with columns for people
        Birthdays,  ///< a day per row without weekdays
        Month,      ///< its name alone
        Year,       ///< twelve months
        YearNumber, ///< its number alone
        Small,      ///< a month as a small grid of numbers, without texts
    };
    /// What a text of a template is for.
    enum class Role { Title, Subtitle, Month, Caption, Text };

    /// How texts of a role are set; what is not given is as the template has it.
    struct TextStyle
    {
        QString family; // empty: that of the page's layout
        std::optional<QFont::Weight> weight;
        std::optional<bool> isItalic;
        std::optional<bool> hasCapitals;
        std::optional<double> letterSpacing; // percent
        std::optional<bool> isAccent;
        double scale = 1.0; // of the template's points

        bool operator==(const TextStyle &) const = default;
    };

    QMap<Shows, QString> layouts; // ids; what is missing is as usual
    QMap<Role, TextStyle> texts;
    MvFotoElement::Border border;

    /// The id of the layout for it: the style's own or the usual one; empty for that of the page.
    QString layout(Shows shows) const;

    /// Words of files: "grid", "bare", "strip", "list", "planner", "birthdays", "month", "year", "yearnumber", "small".
    static std::optional<Shows> showsFromName(const QString &name);
    static QString showsName(Shows shows);
    static QStringList showsNames();
    /// "title", "subtitle", "month", "caption", "text".
    static std::optional<Role> roleFromName(const QString &name);
    static QStringList roleNames();

    bool operator==(const MvTemplateStyle &) const = default;
};
