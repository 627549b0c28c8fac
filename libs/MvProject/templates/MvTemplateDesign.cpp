// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTemplateDesign.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kindWords{
    std::pair{MvPageKind::Month, "month"_L1},
    std::pair{MvPageKind::Cover, "cover"_L1},
    std::pair{MvPageKind::Free, "free"_L1},
    std::pair{MvPageKind::Back, "back"_L1},
};

} // namespace

MvPageTemplate MvTemplateDesign::dressed(const MvTemplateStyle &style) const
{
    const auto divide = [divisions = divisions, style](const MvPageFormat &format) {
        QList<MvTemplateSlot> places;
        const QList<MvTemplateRule> rules = divisions.value(format.shape());
        for (const MvTemplateRule &rule : rules)
            places.append(rule.slotFor(format, style));
        return places;
    };
    return {id, kind, name.text(u"de"_s), name.text(u"en"_s), divide};
}

QString MvTemplateDesign::kindName(MvPageKind kind)
{
    const auto found =
        std::find_if(kindWords.begin(), kindWords.end(), [&](const auto &word) { return word.first == kind; });
    return found == kindWords.end() ? QString() : QString(found->second);
}

std::optional<MvPageKind> MvTemplateDesign::kindFromName(const QString &name)
{
    const auto found =
        std::find_if(kindWords.begin(), kindWords.end(), [&](const auto &word) { return word.second == name; });
    return found == kindWords.end() ? std::nullopt : std::optional(found->first);
}
