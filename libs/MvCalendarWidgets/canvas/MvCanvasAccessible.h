// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QAccessibleWidget>
#include <QList>

class MvGraphicsItemCalendariumCell;
class QGraphicsView;

/// An MvCalendariumView as a screen reader sees it: besides its scroll bars, the dates of its calendaria in order. A
/// program's own class for its view can derive from it to list further items.
class MVCALENDARWIDGETS_EXPORT MvCanvasAccessible : public QAccessibleWidget
{
public:
    explicit MvCanvasAccessible(QGraphicsView *view);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

protected:
    QGraphicsView *view() const;
    /// The visible ones, by date.
    QList<MvGraphicsItemCalendariumCell *> cells() const;
};
