// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageElement.h"

#include <algorithm>
#include <cmath>

MvPageElement::MvPageElement(const QRectF &rect, const Content &content, const QString &slot)
    : m_slot(slot)
    , m_rect(rect)
    , m_content(content)
{}

void MvPageElement::setRotation(double degrees)
{
    m_rotation = std::isfinite(degrees) ? std::clamp(degrees, -largestRotation, largestRotation) : 0.0;
}

QPolygonF MvPageElement::outline() const
{
    const QPointF middle = m_rect.center();
    QTransform turned = QTransform::fromTranslate(middle.x(), middle.y());
    turned.rotate(rotation());
    turned.translate(-middle.x(), -middle.y());
    return turned.map(QPolygonF({m_rect.topLeft(), m_rect.topRight(), m_rect.bottomRight(), m_rect.bottomLeft()}));
}

bool MvPageElement::contains(const QPointF &point) const
{
    return !m_rect.isEmpty() && outline().containsPoint(point, Qt::OddEvenFill);
}

bool MvPageElement::isOnFoto() const
{
    return (text() && text()->isOnFoto()) || (calendarium() && calendarium()->isOnFoto());
}
