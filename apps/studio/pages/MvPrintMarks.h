// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QGraphicsItem>

class MvPageItem;
class MvProject;

/// What a print shop does with the page, drawn over it on request: where it is cut and how far the bleed reaches, the
/// margin in which nothing important should stand, and the zone that the binding takes.
class MvPrintMarks : public QGraphicsItem
{
public:
    /// The item is the parent and owns it. Hidden at first.
    MvPrintMarks(const MvProject *project, MvPageItem *item);

    QRectF boundingRect() const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    const MvProject *m_project;
    MvPageItem *m_item;
};
