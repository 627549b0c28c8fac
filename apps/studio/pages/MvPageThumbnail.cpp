// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageThumbnail.h"

#include "pages/MvScreenFotos.h"

#include "MvProject/MvCalendarPage.h"

#include <QPainter>

namespace {

const QColor placeholderColor(0xe4, 0xe6, 0xe9);

/// So small, lines and letters cover only a part of their pixels: drawn again, they are as dark as they should be.
constexpr int passes = 2;

void paintFoto(QPainter &painter, const MvFotoFrame &frame, const QRectF &rect, MvScreenFotos *fotos)
{
    if (rect.isEmpty())
        return;
    const QSize bounds = MvScreenFotos::boundsFor(painter.transform().mapRect(rect));
    const QImage image = fotos != nullptr ? fotos->foto(frame.path(), bounds) : QImage();
    if (image.isNull())
        painter.fillRect(rect, placeholderColor);
    else
        painter.drawImage(rect, image, frame.crop(image.size(), rect.size()));
}

} // namespace

QImage MvPageThumbnail::make(const MvCalendarPage &page, const MvPageFormat &format, const MvDateRange &range,
                             const QSize &size, double ratio, MvScreenFotos *fotos, const MvRenderingSources &sources)
{
    if (!format.isValid() || size.isEmpty())
        return {};
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const double scaleX = image.width() / format.trimSize().width();
    const double scaleY = image.height() / format.trimSize().height();
    const MvRenderingRule rule(MvRenderingRule::Thumbnail);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    rule.encodeInto(painter);
    painter.scale(scaleX, scaleY);
    page.paintGround(painter, format);
    paintFoto(painter, page.fotoFrame(), page.fotoFrame().rect(format), fotos);
    const MvPaintRecording calendarium = page.record(format, range, {}, rule, scaleX, sources);
    for (int pass = 0; pass < passes; ++pass)
        calendarium.replay(painter);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}
