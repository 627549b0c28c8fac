// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTemplateStyle.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Shows = MvTemplateStyle::Shows;
using Role = MvTemplateStyle::Role;

struct Kind
{
    Shows shows = Shows();
    QLatin1StringView name;
    QLatin1StringView usualLayout;
};

constexpr std::array kinds{
    Kind{Shows::Grid, "grid"_L1, ""_L1},
    Kind{Shows::Bare, "bare"_L1, "MONTH_GRID_BARE"_L1},
    Kind{Shows::Strip, "strip"_L1, "ONE_ROW_STRIP"_L1},
    Kind{Shows::List, "list"_L1, "DAY_LIST"_L1},
    Kind{Shows::Planner, "planner"_L1, "FAMILY_PLANNER"_L1},
    Kind{Shows::Birthdays, "birthdays"_L1, "BIRTHDAY_LIST"_L1},
    Kind{Shows::Month, "month"_L1, "MONTH_LINE"_L1},
    Kind{Shows::Year, "year"_L1, "YEAR_GRID"_L1},
    Kind{Shows::YearNumber, "yearnumber"_L1, "YEAR_ONLY"_L1},
    Kind{Shows::Small, "small"_L1, "MONTH_SMALL"_L1},
};

constexpr std::array roles{
    std::pair{Role::Title, "title"_L1}, std::pair{Role::Subtitle, "subtitle"_L1},
    std::pair{Role::Month, "month"_L1}, std::pair{Role::Caption, "caption"_L1},
    std::pair{Role::Text, "text"_L1},
};

const Kind &kindOf(Shows shows)
{
    return *std::find_if(kinds.begin(), kinds.end(), [&](const Kind &kind) { return kind.shows == shows; });
}

} // namespace

QString MvTemplateStyle::layout(Shows shows) const
{
    return layouts.value(shows, kindOf(shows).usualLayout);
}

std::optional<Shows> MvTemplateStyle::showsFromName(const QString &name)
{
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const Kind &kind) { return kind.name == name; });
    return found == kinds.end() ? std::nullopt : std::optional(found->shows);
}

QString MvTemplateStyle::showsName(Shows shows)
{
    return kindOf(shows).name;
}

QStringList MvTemplateStyle::showsNames()
{
    QStringList names;
    for (const Kind &kind : kinds)
        names.append(kind.name);
    return names;
}

std::optional<Role> MvTemplateStyle::roleFromName(const QString &name)
{
    const auto found = std::find_if(roles.begin(), roles.end(), [&](const auto &role) { return role.second == name; });
    return found == roles.end() ? std::nullopt : std::optional(found->first);
}

QStringList MvTemplateStyle::roleNames()
{
    QStringList names;
    for (const auto &role : roles)
        names.append(role.second);
    return names;
}
