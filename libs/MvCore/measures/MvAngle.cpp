// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvAngle.h"

#include <QTransform>

QRectF MvAngle::rotateRect(const QRectF &rect) const
{
    QRectF turned = QTransform().rotate(m_degrees).mapRect(QRectF({0.0, 0.0}, rect.size()));
    turned.moveCenter(rect.center());
    return turned;
}
