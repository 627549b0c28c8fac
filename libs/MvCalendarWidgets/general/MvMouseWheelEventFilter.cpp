// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvMouseWheelEventFilter.h"

#include <QEvent>

MvMouseWheelEventFilter::MvMouseWheelEventFilter(QObject *parent)
    : QObject(parent)
{}

bool MvMouseWheelEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    event->ignore(); // goes on to the parent
    return true;
}
