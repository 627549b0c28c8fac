// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFrame.h"

#include "MvFoto/MvFotoAccess.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

double clamped(double value, double minimum, double maximum, double otherwise)
{
    return std::isfinite(value) ? std::clamp(value, minimum, maximum) : otherwise;
}

} // namespace

MvFotoFrame::MvFotoFrame(const QString &path, Placement placement)
    : m_placement(placement)
{
    setPath(path);
}

bool MvFotoFrame::isMissing() const
{
    return isValid() && MvFotoAccess::preferredSize(MvFoto(QFileInfo(m_path))).isEmpty();
}

void MvFotoFrame::setPath(const QString &path)
{
    m_path = path.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void MvFotoFrame::setShare(double share)
{
    m_share = clamped(share, minimumShare, maximumShare, defaultShare);
}

void MvFotoFrame::setFocus(const QPointF &focus)
{
    m_focus = {clamped(focus.x(), 0.0, 1.0, 0.5), clamped(focus.y(), 0.0, 1.0, 0.5)};
}

QRectF MvFotoFrame::rect(const MvPageFormat &format) const
{
    if (!isValid() || !format.isValid())
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

QRectF MvFotoFrame::crop(const QSizeF &foto, const QSizeF &frame) const
{
    if (foto.isEmpty() || frame.isEmpty())
        return {};
    const QSizeF seen = frame.scaled(foto, Qt::KeepAspectRatio);
    const auto start = [](double focus, double whole, double part) {
        return std::clamp(focus * whole - part / 2.0, 0.0, std::max(0.0, whole - part));
    };
    return {{start(m_focus.x(), foto.width(), seen.width()), start(m_focus.y(), foto.height(), seen.height())}, seen};
}
