// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoElement.h"

#include "MvFoto/MvFotoAccess.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr int quarters = 4;

double clamped(double value, double minimum, double maximum, double otherwise)
{
    return std::isfinite(value) ? std::clamp(value, minimum, maximum) : otherwise;
}

/// From a photo of the size to the same after quarter turns.
QTransform turning(const QSizeF &foto, int turns)
{
    const std::array<QTransform, quarters> transforms = {QTransform(), QTransform(0, 1, -1, 0, foto.height(), 0),
                                                         QTransform(-1, 0, 0, -1, foto.width(), foto.height()),
                                                         QTransform(0, -1, 1, 0, 0, foto.width())};
    return transforms[size_t(turns)];
}

/// What a rectangle of the size needs along the axes when it is rotated.
QSizeF rotatedExtent(const QSizeF &size, double degrees)
{
    if (degrees == 0.0)
        return size;
    const double angle = degrees * std::numbers::pi / 180.0;
    const double cosine = std::abs(std::cos(angle));
    const double sine = std::abs(std::sin(angle));
    return {size.width() * cosine + size.height() * sine, size.width() * sine + size.height() * cosine};
}

double startOfPart(double focus, double whole, double part)
{
    return std::clamp(focus - part / 2.0, 0.0, std::max(0.0, whole - part));
}

} // namespace

/// How a photo lies in a frame.
struct MvFotoElement::Lie
{
    QSizeF turned;   // the photo after its quarter turns
    QRectF covered;  // part of the frame
    QRectF seen;     // of the turned photo, before it is rotated about its middle
    QTransform turn; // from the photo to the turned one

    double unitsPerPixel() const { return covered.width() / seen.width(); }
};

MvFotoElement::MvFotoElement(const QString &path)
{
    setPath(path);
}

bool MvFotoElement::isMissing() const
{
    return !isEmpty() && MvFotoAccess::preferredSize(MvFoto(QFileInfo(m_path))).isEmpty();
}

void MvFotoElement::setPath(const QString &path)
{
    m_path = path.isEmpty() ? QString() : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

void MvFotoElement::setZoom(double zoom)
{
    m_zoom = clamped(zoom, 1.0, largestZoom, 1.0);
}

void MvFotoElement::setFocus(const QPointF &focus)
{
    m_focus = {clamped(focus.x(), 0.0, 1.0, 0.5), clamped(focus.y(), 0.0, 1.0, 0.5)};
}

void MvFotoElement::setQuarterTurns(int turns)
{
    m_quarterTurns = (turns % quarters + quarters) % quarters;
}

void MvFotoElement::setStraightening(double degrees)
{
    m_straightening = clamped(degrees, -largestStraightening, largestStraightening, 0.0);
}

void MvFotoElement::setBrightness(int brightness)
{
    m_brightness = std::clamp(brightness, -strongestCorrection, strongestCorrection);
}

void MvFotoElement::setContrast(int contrast)
{
    m_contrast = std::clamp(contrast, -strongestCorrection, strongestCorrection);
}

void MvFotoElement::setBorder(const Border &border)
{
    m_border.width = clamped(border.width, 0.0, widestBorder, 0.0);
    m_border.color = border.color.isValid() ? QColor::fromRgba(border.color.rgba()) : Border().color;
}

MvFotoElement MvFotoElement::withPictureOf(const MvFotoElement &other) const
{
    MvFotoElement taken = other;
    taken.m_fit = m_fit;
    taken.m_border = m_border;
    return taken;
}

MvFotoElement::Lie MvFotoElement::lie(const QSizeF &foto, const QSizeF &frame) const
{
    if (foto.isEmpty() || frame.isEmpty())
        return {};
    Lie lie;
    lie.turn = turning(foto, m_quarterTurns);
    lie.turned = m_quarterTurns % 2 == 0 ? foto : foto.transposed();
    QSizeF covered = frame;
    QSizeF seen;
    if (m_fit == Fit::Whole) {
        const QSizeF fitted = lie.turned.scaled(frame, Qt::KeepAspectRatio) * m_zoom;
        covered = fitted.boundedTo(frame);
        seen = covered * (lie.turned.width() / fitted.width());
    } else {
        seen = frame.scaled(lie.turned, Qt::KeepAspectRatio) / m_zoom;
    }
    QSizeF extent = rotatedExtent(seen, m_straightening);
    if (m_straightening != 0.0) { // what would stand over the photo's edges makes it larger
        const QSizeF room = m_fit == Fit::Fill ? lie.turned / m_zoom : lie.turned;
        const double smaller = std::min({1.0, room.width() / extent.width(), room.height() / extent.height()});
        seen *= smaller;
        extent *= smaller;
    }
    const QPointF focus = lie.turn.map(QPointF(m_focus.x() * foto.width(), m_focus.y() * foto.height()));
    const QPointF start(startOfPart(focus.x(), lie.turned.width(), extent.width()),
                        startOfPart(focus.y(), lie.turned.height(), extent.height()));
    lie.seen = QRectF(start, seen);
    if (m_straightening != 0.0)
        lie.seen.moveCenter(QRectF(start, extent).center());
    lie.covered =
        QRectF(QPointF((frame.width() - covered.width()) / 2.0, (frame.height() - covered.height()) / 2.0), covered);
    return lie;
}

QRectF MvFotoElement::covered(const QSizeF &foto, const QSizeF &frame) const
{
    return lie(foto, frame).covered;
}

QTransform MvFotoElement::transform(const QSizeF &foto, const QSizeF &frame) const
{
    const Lie found = lie(foto, frame);
    if (found.seen.isEmpty())
        return {};
    const QPointF from = found.seen.center();
    const QPointF to = found.covered.center();
    const double scale = found.unitsPerPixel();
    return found.turn * QTransform::fromTranslate(-from.x(), -from.y()) * QTransform().rotate(m_straightening) *
           QTransform::fromScale(scale, scale) * QTransform::fromTranslate(to.x(), to.y());
}

QPolygonF MvFotoElement::seen(const QSizeF &foto, const QSizeF &frame) const
{
    const QRectF part = covered(foto, frame);
    if (part.isEmpty())
        return {};
    const QPolygonF corners({part.topLeft(), part.topRight(), part.bottomRight(), part.bottomLeft()});
    return transform(foto, frame).inverted().map(corners);
}

QSizeF MvFotoElement::seenSize(const QSizeF &foto, const QSizeF &frame) const
{
    return lie(foto, frame).seen.size();
}

QRectF MvFotoElement::crop(const QSizeF &foto, const QSizeF &frame) const
{
    return lie(foto, frame).seen;
}

QPointF MvFotoElement::movedFocus(const QSizeF &foto, const QSizeF &frame, const QPointF &distance) const
{
    const Lie found = lie(foto, frame);
    if (found.seen.isEmpty())
        return m_focus;
    const QPointF moved = QTransform().rotate(-m_straightening).map(distance) / found.unitsPerPixel();
    const QSizeF extent = rotatedExtent(found.seen.size(), m_straightening);
    const QPointF middle = found.seen.center() - moved;
    const QPointF kept(startOfPart(middle.x(), found.turned.width(), extent.width()) + extent.width() / 2.0,
                       startOfPart(middle.y(), found.turned.height(), extent.height()) + extent.height() / 2.0);
    const QPointF inFoto = found.turn.inverted().map(kept);
    return {inFoto.x() / foto.width(), inFoto.y() / foto.height()};
}
