// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsItem>
#include <QString>

/// Shows where what is dragged over the page, a photo or an entry, will go: the place is tinted and named.
class MvPageDropTarget : public QGraphicsItem
{
public:
    explicit MvPageDropTarget(QGraphicsItem *parent);

    void showAt(const QRectF &rect, const QString &text);
    QString text() const { return isVisible() ? m_text : QString(); }

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QRectF m_rect;
    QString m_text;
};
