// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFrame.h"

#include <algorithm>
#include <cmath>

MvFotoFrame::MvFotoFrame(const QString &path, Placement placement)
    : m_foto(path)
    , m_placement(placement)
{}

void MvFotoFrame::setShare(double share)
{
    m_share = std::isfinite(share) ? std::clamp(share, minimumShare, maximumShare) : defaultShare;
}

QRectF MvFotoFrame::place(const MvPageFormat &format) const
{
    if (!format.isValid())
        return {};
    QRectF rect = format.mediaRect();
    const QRectF trim = format.trimRect();
    switch (m_placement) {
    case Placement::Top:
        rect.setBottom(m_share * trim.height());
        break;
    case Placement::Left:
        rect.setRight(m_share * trim.width());
        break;
    case Placement::Right:
        rect.setLeft((1.0 - m_share) * trim.width());
        break;
    }
    return rect;
}
