// SPDX-License-Identifier: LGPL-2.1-or-later
#include "pages/MvPageDropTarget.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QWidget>

#include <algorithm>

namespace {

constexpr double lineWidth = 3.0; // pixels
constexpr double labelPadding = 8.0;
constexpr int tintAlpha = 70;

} // namespace

MvPageDropTarget::MvPageDropTarget(QGraphicsItem *parent)
    : QGraphicsItem(parent)
{
    setZValue(2.0);
    setAcceptedMouseButtons(Qt::NoButton);
    setVisible(false);
}

void MvPageDropTarget::showAt(const QRectF &rect, const QString &text)
{
    if (isVisible() && rect == m_rect && text == m_text)
        return;
    prepareGeometryChange();
    m_rect = rect;
    m_text = text;
    setVisible(true);
    update();
}

/// The label may be wider than a day: the whole page belongs to it.
QRectF MvPageDropTarget::boundingRect() const
{
    return parentItem()->boundingRect();
}

void MvPageDropTarget::paint(QPainter *painter, const QStyleOptionGraphicsItem * /*option*/, QWidget *widget)
{
    const QPalette palette = QGuiApplication::palette();
    const QColor color = palette.color(QPalette::Highlight);
    QColor tint = color;
    tint.setAlpha(tintAlpha);
    const QTransform transform = painter->worldTransform();
    painter->save();
    painter->resetTransform();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF rect = transform.mapRect(m_rect);
    painter->setPen(QPen(color, lineWidth));
    painter->setBrush(tint);
    painter->drawRoundedRect(rect.adjusted(lineWidth / 2, lineWidth / 2, -lineWidth / 2, -lineWidth / 2), 4, 4);

    painter->setFont(widget != nullptr ? widget->font() : QGuiApplication::font());
    const QFontMetricsF metrics(painter->font());
    QRectF label(0, 0, metrics.horizontalAdvance(m_text) + 2 * labelPadding, metrics.height() + labelPadding);
    QRectF room = transform.mapRect(parentItem()->boundingRect());
    if (widget != nullptr)
        room &= QRectF(widget->rect());
    label.moveCenter((rect & room).center());
    label.moveLeft(std::clamp(label.left(), room.left(), std::max(room.left(), room.right() - label.width())));
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(label, label.height() / 2, label.height() / 2);
    painter->setPen(palette.color(QPalette::HighlightedText));
    painter->drawText(label, Qt::AlignCenter, m_text);
    painter->restore();
}
