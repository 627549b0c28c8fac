// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvTemplateRule.h"

#include <algorithm>

namespace {

using Shows = MvTemplateStyle::Shows;

constexpr double fotoGutter = 2.0 / 3.0; // of the field's gutter, between photos that lie close

QRectF middlePart(const QRectF &area, double aspect)
{
    QSizeF size = area.size();
    if (size.width() > aspect * size.height())
        size.setWidth(aspect * size.height());
    else
        size.setHeight(size.width() / aspect);
    QRectF part(QPointF(), size);
    part.moveCenter(area.center());
    return part;
}

/// A row alone with room for a line of the smallest type on small papers, too: half the gutters above and below, at the
/// edges of the field the whole of the other one.
QRectF withLineHeight(const QRectF &rect, const MvTemplateRule &rule, const MvPageFormat &format)
{
    const double gutter = format.gutter();
    const double above = rule.firstRow == 1 ? 0.0 : rule.firstRow == MvPageFormat::fieldRows ? gutter : gutter / 2.0;
    return rect.adjusted(0, -above, 0, gutter - above);
}

Shows thatHasRoom(const MvTemplateRule::Calendarium &calendarium, double height)
{
    Shows shows = calendarium.shows;
    const bool isList = shows == Shows::List || shows == Shows::Planner || shows == Shows::Birthdays;
    if (isList && height < MvTemplateRule::lowestList) // without a line, the month stands elsewhere on the page
        shows = calendarium.hasMonthLine ? Shows::Grid : Shows::Bare;
    if ((shows == Shows::Grid || shows == Shows::Bare) && height < MvTemplateRule::lowestGrid)
        shows = Shows::Strip;
    return shows;
}

MvPageElement::Content dressed(const MvTemplateRule::Foto &foto, const MvTemplateStyle &style)
{
    MvFotoElement element;
    element.setBorder(foto.border > 0.0 ? MvFotoElement::Border{foto.border, Qt::white} : style.border);
    return element;
}

MvPageElement::Content dressed(const MvTemplateRule::Text &text, const MvTemplateStyle &style)
{
    MvTextElement element = text.element;
    const MvTemplateStyle::TextStyle look = style.texts.value(text.role);
    element.setPoints(element.points() * look.scale);
    if (!look.family.isEmpty())
        element.setFamily(look.family);
    if (look.weight)
        element.setWeight(*look.weight);
    if (look.isItalic)
        element.setItalic(*look.isItalic);
    if (look.hasCapitals)
        element.setCapitals(*look.hasCapitals);
    if (look.letterSpacing)
        element.setLetterSpacing(*look.letterSpacing);
    if (look.isAccent)
        element.setAccent(*look.isAccent);
    return element;
}

MvPageElement::Content dressed(const MvTemplateRule::Calendarium &calendarium, const MvTemplateStyle &style,
                               double height)
{
    MvCalendariumElement element(style.layout(thatHasRoom(calendarium, height)));
    element.setMonthOffset(calendarium.monthOffset);
    element.setOnFoto(calendarium.isOnFoto);
    element.setMonthLine(calendarium.hasMonthLine);
    return element;
}

} // namespace

QRectF MvTemplateRule::rect(const MvPageFormat &format) const
{
    QRectF rect = format.fieldArea(firstColumn, lastColumn, firstRow, lastRow);
    const double closer = format.gutter() * (1.0 - fotoGutter) / 2.0;
    // beside a photo that bleeds, what stands there has the margin that it has at the page's other edges
    const double retreat = bleed & (Qt::LeftEdge | Qt::RightEdge) ? -format.gutter() : 0.0;
    const QRectF media = format.mediaRect();
    const auto edge = [&](Qt::Edge side, double inside, double outside, double outwards) {
        const bool isUpright = side == Qt::LeftEdge || side == Qt::RightEdge;
        const double shift = joins.testFlag(side) ? closer : isUpright ? retreat : 0.0;
        return bleed.testFlag(side) ? outside : inside + outwards * shift;
    };
    rect.setLeft(edge(Qt::LeftEdge, rect.left(), media.left(), -1.0));
    rect.setTop(edge(Qt::TopEdge, rect.top(), media.top(), -1.0));
    rect.setRight(edge(Qt::RightEdge, rect.right(), media.right(), 1.0));
    rect.setBottom(edge(Qt::BottomEdge, rect.bottom(), media.bottom(), 1.0));
    if (const auto *foto = std::get_if<Foto>(&content); foto && foto->aspect > 0.0)
        return middlePart(rect, foto->aspect);
    const bool isLine = std::holds_alternative<Text>(content) && firstRow == lastRow;
    return isLine ? withLineHeight(rect, *this, format) : rect;
}

MvTemplateSlot MvTemplateRule::slotFor(const MvPageFormat &format, const MvTemplateStyle &style) const
{
    const QRectF place = rect(format);
    MvPageElement element;
    if (const auto *foto = std::get_if<Foto>(&content)) {
        element = MvPageElement(place, dressed(*foto, style), slot);
        element.setRotation(foto->rotation);
    } else if (const auto *text = std::get_if<Text>(&content)) {
        element = MvPageElement(place, dressed(*text, style), slot);
    } else {
        element = MvPageElement(place, dressed(std::get<Calendarium>(content), style, place.height()), slot);
    }
    return {element};
}
