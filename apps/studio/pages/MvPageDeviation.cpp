// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageDeviation.h"

#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvThemeRegistry.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double same = 1.0; // tenth of a millimetre: files round

/// What is compared of a page.
struct Look
{
    MvCalendariumLayoutSchemaID layout;
    MvCalendariumFontSettings fonts;
    QString division;      // the template; one word for all that the theme takes turns with
    bool isMoved = false;  // by hand
    bool hasPhoto = false; // of a simple page: without one its place says nothing
    MvFotoFrame::Placement placement = MvFotoFrame::Placement::Top;
    double share = 0.0;
    MvFotoElement::Fit fit = MvFotoElement::Fit::Fill;
    double border = 0.0;

    bool isLike(const Look &other) const
    {
        const bool isPlaced = !hasPhoto || !other.hasPhoto || (placement == other.placement && share == other.share);
        return isPlaced && layout == other.layout && fonts == other.fonts && division == other.division &&
               isMoved == other.isMoved && fit == other.fit && border == other.border;
    }
};

/// Frames were moved, or put there without a template.
bool isMovedByHand(const MvCalendarPage &page, const MvPageFormat &format)
{
    if (page.isSimple())
        return !page.elements().isEmpty();
    const QList<MvTemplateSlot> places = page.pageTemplate().slotsFor(format);
    if (places.isEmpty())
        return false;
    return std::any_of(page.elements().begin(), page.elements().end(), [&places](const MvPageElement &element) {
        const auto place = std::find_if(places.begin(), places.end(), [&element](const MvTemplateSlot &one) {
            return one.element.slot() == element.slot();
        });
        if (place == places.end())
            return true;
        const QRectF away(element.rect().topLeft() - place->element.rect().topLeft(),
                          element.rect().size() - place->element.rect().size());
        return std::max({qAbs(away.x()), qAbs(away.y()), qAbs(away.width()), qAbs(away.height())}) > same;
    });
}

Look lookOf(const MvCalendarPage &page, const MvPageFormat &format, const QStringList &turns)
{
    Look look;
    look.layout = page.appearance().layoutSchema().ID();
    look.fonts = page.appearance().fontSettings();
    look.division = turns.contains(page.templateId()) ? u"*"_s : page.isSimple() ? QString() : page.templateId();
    look.isMoved = isMovedByHand(page, format);
    look.hasPhoto = page.isSimple() && page.fotoFrame().isValid();
    look.placement = page.fotoFrame().placement();
    look.share = page.fotoFrame().share();
    for (const MvPageElement &element : page.elementsOn(format)) {
        if (!element.foto())
            continue;
        look.fit = element.foto()->fit();
        look.border = element.foto()->border().width;
        break;
    }
    return look;
}

} // namespace

QList<bool> MvPageDeviation::of(const MvCalendarDocument &document)
{
    const QStringList turns = MvThemeRegistry::instance().findTheme(document.themeId()).templateIds(MvPageKind::Month);
    QList<Look> looks;
    QList<int> months;
    for (int page = 0; page < document.pages().size(); ++page) {
        if (document.pages().at(page).kind() != MvPageKind::Month)
            continue;
        months.append(page);
        looks.append(lookOf(document.pages().at(page), document.format(), turns));
    }
    QList<bool> deviating(document.pages().size(), false);
    for (int month = 0; month < months.size(); ++month) {
        const auto alike =
            std::count_if(looks.begin(), looks.end(), [&](const Look &other) { return looks.at(month).isLike(other); });
        deviating[months.at(month)] = 2 * alike < looks.size();
    }
    return deviating;
}
