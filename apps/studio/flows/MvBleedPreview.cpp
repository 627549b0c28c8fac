// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvBleedPreview.h"

#include "MvProject/MvCalendarPage.h"
#include "MvProject/MvPageFormat.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

MvBleedPreview::MvBleedPreview(const QImage &page, const QRectF &trim, double bleed, MvPressSettings::Bleed kind)
    : m_page(page)
    , m_trim(trim)
    , m_bleed(bleed)
    , m_kind(kind)
{}

/// Along one direction: before the page, beside it, or behind it.
MvBleedPreview::Band MvBleedPreview::band(int side, double from, double length) const
{
    constexpr double lastBit = 2.5; // of the edge, when it is stretched
    const double reach = std::min(length, m_kind == MvPressSettings::Bleed::Stretched ? lastBit : m_bleed);
    if (side < 0)
        return {from, reach, from - m_bleed, m_bleed};
    return side == 0 ? Band{from, length, from, length} : Band{from + length - reach, reach, from + length, m_bleed};
}

void MvBleedPreview::paint(QPainter &painter) const
{
    QTransform toPixels = QTransform::fromTranslate(-m_trim.x(), -m_trim.y());
    toPixels *= QTransform::fromScale(m_page.width() / m_trim.width(), m_page.height() / m_trim.height());
    for (int place = 0; place < 9; ++place) {
        const int column = place % 3 - 1;
        const int row = place / 3 - 1;
        if (column == 0 && row == 0)
            continue; // the page itself
        const Band across = band(column, m_trim.left(), m_trim.width());
        const Band down = band(row, m_trim.top(), m_trim.height());
        const QRect part =
            toPixels.mapRect(QRectF(across.from, down.from, across.length, down.length)).toAlignedRect() &
            m_page.rect();
        QImage turned = m_page.copy(part).mirrored(column != 0, row != 0);
        turned.setDevicePixelRatio(1.0);
        painter.drawImage(QRectF(across.at, down.at, across.size, down.size), turned);
    }
}

QList<QRectF> MvBleedPreview::besideFotos(const MvCalendarPage &page, const MvPageFormat &format)
{
    constexpr double tolerance = 2.0; // a frame that is so near to the trim ends there
    const QRectF trim = format.trimRect();
    const QRectF media = format.mediaRect();
    const auto grown = [](double edge, double at, double to) { return std::abs(edge - at) < tolerance ? to : edge; };
    QList<QRectF> parts;
    for (const MvPageElement &element : page.elementsOn(format)) {
        if (!element.foto() || element.foto()->isEmpty() || element.rect().isEmpty())
            continue;
        const QRectF rect = element.rect();
        const QRectF reach(
            QPointF(grown(rect.left(), trim.left(), media.left()), grown(rect.top(), trim.top(), media.top())),
            QPointF(grown(rect.right(), trim.right(), media.right()),
                    grown(rect.bottom(), trim.bottom(), media.bottom())));
        if (reach != rect)
            parts.append(reach);
    }
    return parts;
}
