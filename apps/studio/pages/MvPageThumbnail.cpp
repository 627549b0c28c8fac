// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageThumbnail.h"

#include "pages/MvSampleFoto.h"
#include "pages/MvScreenFotoSource.h"
#include "pages/MvScreenFotos.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvProject/MvCalendarPage.h"

#include <QPainter>

#include <optional>

namespace {

const QColor placeholderColor(0xe4, 0xe6, 0xe9);

/// So small, lines and letters cover only a part of their pixels: drawn again, they are as dark as they should be.
constexpr int passes = 2;

/// Where a picture without photos takes them from: nothing is decoded, and nobody waits.
class NoFotos : public MvFotoSource
{
public:
    QImage scaled(const QFileInfo &, const QSize &) override { return {}; }
};

/// What the photos of the page leave: frames that are empty or whose photo is not there yet.
void paintEmptyFrames(QPainter &painter, const MvCalendarPage &page, const MvPageFormat &format, MvScreenFotos *fotos,
                      MvPageThumbnail::Empty empty)
{
    int number = 0;
    for (const MvPageElement &element : page.elementsOn(format)) {
        const MvFotoElement *foto = element.foto();
        if (!foto || element.rect().isEmpty())
            continue;
        ++number;
        if (!foto->isEmpty() && fotos && fotos->isAtHand(foto->path()))
            continue;
        const QPointF middle = element.rect().center();
        painter.save();
        painter.translate(middle);
        painter.rotate(element.rotation());
        painter.translate(-middle);
        if (empty == MvPageThumbnail::Empty::Sample)
            MvSampleFoto::paint(painter, element.rect(), number);
        else
            painter.fillRect(element.rect(), placeholderColor);
        painter.restore();
    }
}

} // namespace

QImage MvPageThumbnail::make(const MvCalendarPage &page, const MvPageFormat &format, const MvPageContext &context,
                             const QSize &size, double ratio, MvScreenFotos *fotos, const MvRenderingSources &sources,
                             Empty empty, Edge edge)
{
    if (!format.isValid() || size.isEmpty())
        return {};
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const QRectF sheet = edge == Edge::Bleed ? format.mediaRect() : format.trimRect();
    const double scaleX = image.width() / sheet.width();
    const double scaleY = image.height() / sheet.height();
    const MvRenderingRule rule(MvRenderingRule::Thumbnail);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    rule.encodeInto(painter);
    painter.scale(scaleX, scaleY);
    painter.translate(-sheet.topLeft());
    NoFotos none;
    std::optional<MvScreenFotoSource> shown;
    if (fotos)
        shown.emplace(*fotos);
    MvRenderingSources given = sources;
    if (!given.fotos) // the default would decode here and now
        given.fotos = shown ? static_cast<MvFotoSource *>(&*shown) : &none;
    page.paintGround(painter, format);
    paintEmptyFrames(painter, page, format, fotos, empty);
    if (shown) {
        MvRenderingRule(0).encodeInto(painter); // places without a photo have been painted
        page.paintFoto(painter, format, *shown);
        rule.encodeInto(painter);
    }
    const MvPaintRecording calendarium = page.record(format, context, {}, rule, scaleX, given);
    for (int pass = 0; pass < passes; ++pass)
        calendarium.replay(painter);
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}
