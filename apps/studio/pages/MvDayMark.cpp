// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvDayMark.h"

#include "pages/MvPageCanvas.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"

#include <QPainter>

#include <utility>

namespace {

constexpr qreal lineWidth = 3; // pixels of the screen
constexpr int fillAlpha = 40;  // of 255
constexpr int margin = 40;     // pixels around the day that are in sight with it

} // namespace

MvDayMark::MvDayMark(MvPageCanvas *canvas)
    : QGraphicsObject(canvas->pageItem())
    , m_canvas(canvas)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(2.0); // over the days
    connect(canvas->pageItem(), &MvPageItem::refreshed, this, &MvDayMark::reveal);
    connect(canvas, &MvPageCanvas::currentPageChanged, this, [this] { pointAt({}); });
    connect(canvas->selection(), &MvPageSelection::changed, this, [this] { pointAt({}); });
}

void MvDayMark::pointAt(const QDate &date)
{
    prepareGeometryChange();
    m_date = date;
    m_isNew = true;
    reveal();
    update();
}

QRectF MvDayMark::place() const
{
    return m_date.isValid() ? m_canvas->pageItem()->dateRect(m_date) : QRectF();
}

/// A page that is just being shown knows its days on the next turn of the event loop only.
void MvDayMark::reveal()
{
    prepareGeometryChange();
    if (!place().isEmpty() && std::exchange(m_isNew, false))
        m_canvas->ensureVisible(mapRectToScene(place()), margin, margin);
}

QRectF MvDayMark::boundingRect() const
{
    const qreal width = lineWidth * 2 / m_canvas->transform().m11();
    return place().isEmpty() ? QRectF() : place().adjusted(-width, -width, width, width);
}

void MvDayMark::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    if (place().isEmpty())
        return;
    QColor color = m_canvas->palette().color(QPalette::Highlight);
    QPen pen(color, lineWidth);
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    color.setAlpha(fillAlpha);
    painter->setBrush(color);
    painter->drawRect(place());
}
