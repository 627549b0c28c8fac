// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPushButton>

class MvPageItem;
class QGraphicsView;

/// A button over the upper corner of a page that has no photo and no frame for one yet: there a photo would find its
/// place by itself.
class MvFotoInvitation : public QPushButton
{
    Q_OBJECT

public:
    /// A child of the view's viewport; nothing else is owned.
    MvFotoInvitation(const MvPageItem *item, QGraphicsView *view);

public Q_SLOTS:
    /// Goes where the page is now, or away.
    void follow();

private:
    const MvPageItem *m_item;
    QGraphicsView *m_view;
};
