// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoPainter.h"

#include "MvFoto/MvFotoResolution.h"
#include "MvFoto/MvFotoSource.h"
#include "MvModelBase/MvRenderingRule.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"
#include "MvProject/MvFotoTone.h"

#include <QFileInfo>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor fieldColor(0xE6, 0xE6, 0xE6);
constexpr QColor textColor(0x59, 0x59, 0x59); // contrast of more than 4.5 to the field

constexpr double degreesPerQuarter = 90.0;

constexpr QSize unknownBounds(1024, 1024); // pixels, of a photo whose size is not known

/// The longer side of photos on a screen, in steps, so that zooming does not decode one for every factor.
int screenSide(int needed)
{
    int side = 512; // pixels
    while (side < 16384 && side < needed)
        side *= 2;
    return side;
}

} // namespace

void MvFotoPainter::paint(const QRectF &rect, double rotation)
{
    if (rect.isEmpty() || m_foto.isEmpty())
        return;
    if (rotation == 0.0)
        return paintUpright(rect);
    m_painter.save();
    m_painter.translate(rect.center());
    m_painter.rotate(rotation);
    m_painter.translate(-rect.center());
    m_isTilted = true;
    paintUpright(rect);
    m_painter.restore();
}

void MvFotoPainter::paintUpright(const QRectF &rect)
{
    const QFileInfo file(m_foto.path());
    const QSize full = m_fotos.fullSize(file);
    QImage image;
    QSizeF seen;
    QRectF covered;
    if (!full.isEmpty()) {
        covered = m_foto.covered(full, rect.size()).translated(rect.topLeft());
        seen = m_foto.seenSize(full, rect.size());
        const double pixelsPerUnit = std::sqrt(std::abs(m_painter.deviceTransform().determinant()));
        image = decode(full, pixelsPerUnit * covered.width() / seen.width());
    } else {
        m_fotos.scaled(file, unknownBounds); // so that it knows of one that is not there
    }
    if (!image.isNull()) {
        draw(image, full, rect);
        drawBorder(covered);
        MvFotoResolution::paintWarning(m_painter, covered, MvFotoResolution::pixelsPerInch(seen, covered.size()));
        return;
    }
    const MvRenderingRule rule = MvRenderingRule::decodeFrom(m_painter);
    const bool isScreen = rule.hasFlag(MvRenderingRule::InteractiveScreen);
    if (isScreen || rule.hasFlag(MvRenderingRule::Thumbnail))
        paintPlaceholder(rect, isScreen);
}

QImage MvFotoPainter::decode(const QSize &full, double devicePixelsPerFotoPixel) const
{
    const QFileInfo file(m_foto.path());
    const double scale = std::min(1.0, devicePixelsPerFotoPixel); // what is larger than the photo is not in its file
    const QSize needed(std::max(1, int(std::ceil(full.width() * scale))),
                       std::max(1, int(std::ceil(full.height() * scale))));
    if (MvRenderingRule::decodeFrom(m_painter).hasFlag(MvRenderingRule::Print))
        return m_fotos.scaled(file, needed);
    const int side = screenSide(std::max(needed.width(), needed.height()));
    const bool isLarger = full.width() > side || full.height() > side;
    return m_fotos.scaled(file, isLarger ? QSize(side, side) : full);
}

/// A photo with a border ends beneath it, so that nothing of it shines through beside the border.
void MvFotoPainter::draw(const QImage &image, const QSize &full, const QRectF &rect)
{
    const QRectF covered = m_foto.covered(full, rect.size());
    const double inset = borderWidth(covered) / 2.0;
    const QRectF shown = covered.adjusted(inset, inset, -inset, -inset);
    if (m_foto.straightening() != 0.0 || m_isTilted) { // not every target can turn or clip images
        m_painter.save();
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
        m_painter.drawImage(shown.translated(rect.topLeft()), corrected(seenIn(shown, rect.size(), image, full)));
        m_painter.restore();
        return;
    }
    const QRectF seen = m_foto.crop(full, rect.size());
    const double scale = double(image.width()) / full.width();
    const double beneath = inset * seen.width() / covered.width();
    const QImage turned = m_foto.quarterTurns() == 0
                              ? image
                              : image.transformed(QTransform().rotate(degreesPerQuarter * m_foto.quarterTurns()));
    const QRectF seenShown = seen.adjusted(beneath, beneath, -beneath, -beneath);
    drawCropped(turned, {seenShown.topLeft() * scale, seenShown.size() * scale}, shown.translated(rect.topLeft()));
}

QImage MvFotoPainter::seenIn(const QRectF &part, const QSizeF &frame, const QImage &image, const QSize &full) const
{
    const double pixelsPerUnit =
        m_foto.seenSize(full, frame).width() / m_foto.covered(full, frame).width() * image.width() / full.width();
    const auto pixels = [pixelsPerUnit](double length) {
        return std::max(1, int(std::lround(length * pixelsPerUnit)));
    };
    QImage seen(pixels(part.width()), pixels(part.height()),
                image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    seen.fill(Qt::transparent);
    QPainter painter(&seen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(seen.width() / part.width(), seen.height() / part.height());
    painter.translate(-part.topLeft());
    painter.setTransform(m_foto.transform(full, frame), true);
    painter.drawImage(QRectF(QPointF(), QSizeF(full)), image);
    return seen;
}

QImage MvFotoPainter::corrected(const QImage &image) const
{
    return MvFotoTone(m_foto.brightness(), m_foto.contrast()).applied(image);
}

double MvFotoPainter::borderWidth(const QRectF &covered) const
{
    return std::min({m_foto.border().width, covered.width() / 2.0, covered.height() / 2.0});
}

void MvFotoPainter::drawBorder(const QRectF &covered)
{
    const double width = borderWidth(covered);
    if (width <= 0.0)
        return;
    QPainterPath ring; // odd-even: the inner rectangle is left out
    ring.addRect(covered);
    ring.addRect(covered.adjusted(width, width, -width, -width));
    m_painter.fillPath(ring, m_foto.border().color);
}

/// Whole pixels of the image are drawn, clipped to the rectangle: some targets would round the part that is seen, and
/// so distort it.
void MvFotoPainter::drawCropped(const QImage &image, const QRectF &seen, const QRectF &rect)
{
    const QRect pixels = seen.toAlignedRect() & image.rect();
    const double unitsPerPixel = rect.width() / seen.width();
    const QRectF target(rect.topLeft() + (QPointF(pixels.topLeft()) - seen.topLeft()) * unitsPerPixel,
                        QSizeF(pixels.size()) * unitsPerPixel);
    m_painter.save();
    m_painter.setClipRect(rect, Qt::IntersectClip);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(target, corrected(pixels == image.rect() ? image : image.copy(pixels)));
    m_painter.restore();
}

void MvFotoPainter::paintPlaceholder(const QRectF &rect, bool isNamed)
{
    m_painter.fillRect(rect, fieldColor);
    if (!isNamed)
        return;
    QFont font;
    font.setPixelSize(40); // 4 mm
    const int width = int(0.9 * rect.width());
    const QStringList lines = {tr("Foto fehlt"), MvPrintableText::onOneLine(QFileInfo(m_foto.path()).fileName())};
    const double lineHeight = 60.0;
    double baseline = rect.center().y() - 5.0;
    for (const QString &line : lines) {
        const MvTextOutline outline =
            MvTextOutlineCache::instance().outline(font, MvTextPainter::elided(width, font, line));
        MvOutlinePainter::fillOutline(m_painter, {rect.center().x() - outline.advance() / 2.0, baseline}, outline,
                                      textColor);
        baseline += lineHeight;
    }
}
