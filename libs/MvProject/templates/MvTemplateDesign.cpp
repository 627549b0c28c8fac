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

/// What stands on the field beside a zone at the head, beside one at the foot instead; edges on the trim stay.
QRectF lifted(const QRectF &rect, Qt::Edges bleed, double zone)
{
    return rect.adjusted(0.0, bleed.testFlag(Qt::TopEdge) ? 0.0 : -zone, 0.0,
                         bleed.testFlag(Qt::BottomEdge) ? 0.0 : -zone);
}

} // namespace

MvPageTemplate MvTemplateDesign::dressed(const MvTemplateStyle &style) const
{
    const auto divide = [divisions = divisions, style, isBoundAtFoot = isBoundAtFoot](const MvPageFormat &format) {
        QList<MvTemplateSlot> places;
        const bool isLifted = isBoundAtFoot && format.binding() == MvPageFormat::Binding::Top;
        const QList<MvTemplateRule> rules = divisions.value(format.shape());
        for (const MvTemplateRule &rule : rules) {
            MvTemplateSlot place = rule.slotFor(format, style);
            if (isLifted)
                place.element.setRect(lifted(place.element.rect(), rule.bleed, format.bindingRect().height()));
            places.append(place);
        }
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
