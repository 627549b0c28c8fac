// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvFrameNotices.h"

#include "pages/MvScreenFotos.h"

#include "MvFoto/MvFotoResolution.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QColor placeholderColor(0xe4, 0xe6, 0xe9);
const QColor placeholderTextColor(0x4a, 0x50, 0x58);
const QColor dashColor(0x9a, 0xa1, 0xaa);
const QColor strongColor(0xb3, 0x1b, 0x1b);
const QColor discreetColor(0x33, 0x37, 0x3d, 0xb8);

/// Logical pixels and words of the screen, whatever the page's scale.
QRectF toPixels(QPainter &painter, const QRectF &rect, double ratio)
{
    const QRectF pixels = painter.transform().mapRect(rect);
    painter.resetTransform();
    painter.scale(ratio, ratio);
    return {pixels.topLeft() / ratio, pixels.size() / ratio};
}

void paintInvitation(QPainter &painter, const QRectF &rect, double ratio)
{
    constexpr double inset = 6.0;
    const QRectF pixels = toPixels(painter, rect, ratio);
    painter.fillRect(pixels, placeholderColor);
    QPen pen(dashColor, 1.5, Qt::DashLine);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (pixels.width() > 4 * inset && pixels.height() > 4 * inset)
        painter.drawRoundedRect(pixels.adjusted(inset, inset, -inset, -inset), inset, inset);
    const QString text = MvFrameNotices::tr("Foto hierher ziehen oder klicken");
    const QRectF room = pixels.adjusted(2 * inset, inset, -2 * inset, -inset);
    painter.setPen(placeholderTextColor);
    const QRectF needed = painter.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text);
    const bool fits = room.contains(needed.adjusted(1, 1, -1, -1));
    painter.drawText(room, Qt::AlignCenter | (fits ? Qt::TextWordWrap : 0), fits ? text : u"+"_s);
}

void paintNotice(QPainter &painter, const QRectF &rect, const QString &text, double ratio)
{
    painter.fillRect(rect, placeholderColor);
    const QRectF pixels = toPixels(painter, rect, ratio);
    painter.setPen(placeholderTextColor);
    painter.setClipRect(pixels, Qt::IntersectClip);
    painter.drawText(pixels, Qt::AlignCenter | Qt::TextWordWrap, text);
}

void paintFrame(QPainter &painter, const MvPageElement &element, const QRectF &page, MvScreenFotos *fotos, double ratio)
{
    const QRectF seen = element.rect() & page;
    if (seen.isEmpty())
        return;
    const MvFotoElement &foto = *element.foto();
    const QPointF middle = element.rect().center();
    painter.save();
    painter.translate(middle);
    painter.rotate(element.rotation());
    painter.translate(-middle);
    if (foto.isEmpty()) {
        paintInvitation(painter, seen, ratio);
    } else if (fotos->isUnreadable(foto.path())) {
        paintNotice(
            painter, seen,
            MvFrameNotices::tr("„%1“ lässt sich nicht lesen.\nDas Kontextmenü ersetzt das Foto durch ein anderes.")
                .arg(QFileInfo(foto.path()).fileName()),
            ratio);
    } else if (fotos->fullSize(foto.path()).isEmpty()) {
        paintNotice(painter, seen, MvFrameNotices::tr("Das Foto wird geladen …"), ratio);
    } else {
        const double resolution = MvFrameNotices::resolution(element, fotos);
        const QRectF pixels = toPixels(painter, seen, ratio);
        MvFrameNotices::paintBadge(painter, pixels.topRight() + QPointF(-6, 6), resolution, false);
    }
    painter.restore();
}

} // namespace

void MvFrameNotices::paint(QPainter &painter, const QList<MvPageElement> &elements, const QRectF &page,
                           MvScreenFotos *fotos, double pixelRatio)
{
    painter.save();
    painter.setFont(QGuiApplication::font());
    for (const MvPageElement &element : elements)
        if (element.foto())
            paintFrame(painter, element, page, fotos, pixelRatio);
    painter.restore();
}

double MvFrameNotices::resolution(const MvPageElement &element, MvScreenFotos *fotos)
{
    const MvFotoElement *foto = element.foto();
    if (!foto || foto->isEmpty())
        return 0.0;
    const QSizeF full = fotos->fullSize(foto->path());
    const QSizeF frame = element.rect().size();
    if (full.isEmpty() || frame.isEmpty())
        return 0.0;
    return MvFotoResolution::pixelsPerInch(foto->seenSize(full, frame), foto->covered(full, frame).size());
}

double MvFrameNotices::coarsest(const QList<MvPageElement> &elements, MvScreenFotos *fotos)
{
    double least = 0.0;
    for (const MvPageElement &element : elements) {
        const double own = resolution(element, fotos);
        if (own > 0.0 && (least == 0.0 || own < least))
            least = own;
    }
    return least;
}

void MvFrameNotices::paintBadge(QPainter &painter, const QPointF &corner, double pixelsPerInch, bool isSmall)
{
    if (pixelsPerInch <= 0.0 || pixelsPerInch >= discreetBelow)
        return;
    const bool isStrong = pixelsPerInch < strongBelow;
    painter.save();
    QFont font = QGuiApplication::font();
    font.setPointSizeF(font.pointSizeF() * (isSmall || !isStrong ? 0.8 : 1.0));
    font.setBold(isStrong);
    painter.setFont(font);
    const QString text = isSmall ? u"!"_s : tr("%1 ppi").arg(std::lround(pixelsPerInch));
    const QFontMetricsF metrics(font);
    const double height = metrics.height() + 4.0;
    QRectF badge(0, 0, std::max(height, metrics.horizontalAdvance(text) + height * 0.8), height);
    badge.moveTopRight(corner);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isStrong ? strongColor : discreetColor);
    painter.drawRoundedRect(badge, height / 2.0, height / 2.0);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, text);
    painter.restore();
}
