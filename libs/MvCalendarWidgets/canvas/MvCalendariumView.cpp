// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumView.h"

#include "MvCalendar/MvCalendariumCellAccessible.h"

MvCalendariumView::MvCalendariumView(QWidget *parent)
    : MvCalendariumView(nullptr, parent)
{}

MvCalendariumView::MvCalendariumView(QGraphicsScene *scene, QWidget *parent)
    : QGraphicsView(scene, parent)
{
    MvCalendariumCellAccessible::install(); // before anybody asks for the view's interface
}

MvCalendariumView::~MvCalendariumView() = default;
