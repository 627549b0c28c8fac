// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvVeilField.h"

#include <algorithm>

namespace {

constexpr double tolerance = 1.0; // of a page unit: edges that are to be the same
constexpr double fadeGutters = 4.0;

/// The photo that the element stands on: the uppermost beneath its middle; empty when there is none.
QRectF fotoBeneath(const MvPageElement &element, const QList<MvPageElement> &elements, const QRectF &ground)
{
    QRectF beneath = ground;
    for (const MvPageElement &other : elements) {
        if (other.foto() && other.rect().contains(element.rect().center()))
            beneath = other.rect();
    }
    return beneath;
}

/// The edge of a field: a gutter outside the element, or that of the photo where it is as near as a margin, or where
/// element and photo both reach the edge of the page.
double edgeOf(double element, double foto, double field, double trim, double gutter, double outwards)
{
    const bool isNearFoto = (foto - element) * outwards <= 2.0 * gutter + tolerance;
    const bool fotoReachesTrim = (foto - trim) * outwards >= -tolerance;
    const bool elementReachesField = (element - field) * outwards >= -tolerance;
    return isNearFoto || (fotoReachesTrim && elementReachesField) ? foto : element + outwards * gutter;
}

MvVeilField fieldOf(const MvPageElement &element, const QRectF &foto, const MvPageFormat &format)
{
    const QRectF rect = element.rect();
    const QRectF field = format.fieldRect();
    const QRectF trim = format.trimRect();
    const double gutter = format.gutter();
    QRectF grown(QPointF(edgeOf(rect.left(), foto.left(), field.left(), trim.left(), gutter, -1.0),
                         edgeOf(rect.top(), foto.top(), field.top(), trim.top(), gutter, -1.0)),
                 QPointF(edgeOf(rect.right(), foto.right(), field.right(), trim.right(), gutter, 1.0),
                         edgeOf(rect.bottom(), foto.bottom(), field.bottom(), trim.bottom(), gutter, 1.0)));
    return {grown, {element}};
}

bool touches(const QRectF &field, const QRectF &foto)
{
    return field.left() <= foto.left() + tolerance || field.top() <= foto.top() + tolerance ||
           field.right() >= foto.right() - tolerance || field.bottom() >= foto.bottom() - tolerance;
}

bool holdsTextsAlone(const MvVeilField &field)
{
    return std::all_of(field.elements.begin(), field.elements.end(),
                       [](const MvPageElement &element) { return element.text(); });
}

/// A field of texts at the photo's head or foot as wide as the photo.
void makeBand(MvVeilField &field, const QRectF &foto, const MvPageFormat &format)
{
    const bool isAtHead = field.rect.top() <= foto.top() + tolerance;
    const bool isAtFoot = field.rect.bottom() >= foto.bottom() - tolerance;
    if (isAtHead == isAtFoot)
        return;
    field.rect.setLeft(foto.left());
    field.rect.setRight(foto.right());
    const double fade = std::min(fadeGutters * format.gutter(), std::max(0.0, foto.height() - field.rect.height()));
    (isAtFoot ? field.fadeAbove : field.fadeBelow) = fade;
}

} // namespace

QList<MvVeilField> MvVeilField::of(const QList<MvPageElement> &elements, const MvPageFormat &format, bool hasGroundFoto)
{
    const QRectF ground = hasGroundFoto ? format.mediaRect() : QRectF();
    QList<MvVeilField> fields;
    for (const MvPageElement &element : elements) {
        const QRectF foto = element.isOnFoto() ? fotoBeneath(element, elements, ground) : QRectF();
        if (foto.isEmpty() || element.rect().isEmpty())
            continue;
        MvVeilField field = fieldOf(element, foto, format);
        if (!touches(field.rect, foto))
            continue;
        for (qsizetype i = fields.size() - 1; i >= 0; --i) {
            if (fields.at(i).rect.intersects(field.rect)) {
                field.rect |= fields.at(i).rect;
                field.elements += fields.takeAt(i).elements;
            }
        }
        fields.append(field);
    }
    for (MvVeilField &field : fields) {
        if (holdsTextsAlone(field))
            makeBand(field, fotoBeneath(field.elements.constFirst(), elements, ground), format);
    }
    return fields;
}
