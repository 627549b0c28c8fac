// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class MvFotoHandle;
class MvPageItem;
class MvProject;
class QGraphicsView;
class QSlider;
class QToolButton;

/// A small bar over the lower edge of the photo that the mouse is over, or that is chosen: a slider for its zoom and
/// buttons to turn it and to show it whole.
class MvFotoBar : public QWidget
{
    Q_OBJECT

public:
    /// A child of the view's viewport; nothing else is owned.
    MvFotoBar(MvProject *project, MvPageItem *item, MvFotoHandle *handle, QGraphicsView *view);

public Q_SLOTS:
    /// Goes where the photo is now, or away.
    void follow();

protected:
    void leaveEvent(QEvent *event) override;

private:
    void place(int element);
    void zoom(int value);
    void turn();
    void toggleFit();

    MvProject *m_project;
    MvPageItem *m_item;
    MvFotoHandle *m_handle;
    QGraphicsView *m_view;
    QSlider *m_zoom;
    QToolButton *m_whole;
    QToolButton *m_turn;
    int m_element = -1;
};
