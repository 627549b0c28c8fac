// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCanvasAccessible.h"

#include "MvCalendar/MvGraphicsItemCalendariumCell.h"

#include <QGraphicsScene>
#include <QGraphicsView>

#include <algorithm>

namespace {

MvGraphicsItemCalendariumCell *cellOf(QGraphicsItem *item)
{
    return item ? qobject_cast<MvGraphicsItemCalendariumCell *>(item->toGraphicsObject()) : nullptr;
}

} // namespace

MvCanvasAccessible::MvCanvasAccessible(QGraphicsView *view)
    : QAccessibleWidget(view, QAccessible::Canvas)
{}

QGraphicsView *MvCanvasAccessible::view() const
{
    return qobject_cast<QGraphicsView *>(object());
}

QList<MvGraphicsItemCalendariumCell *> MvCanvasAccessible::cells() const
{
    QList<MvGraphicsItemCalendariumCell *> cells;
    const QList<QGraphicsItem *> items =
        view() && view()->scene() ? view()->scene()->items() : QList<QGraphicsItem *>();
    for (QGraphicsItem *item : items) {
        MvGraphicsItemCalendariumCell *cell = cellOf(item);
        if (cell && cell->isVisible())
            cells.append(cell);
    }
    std::stable_sort(cells.begin(), cells.end(), [](const auto *a, const auto *b) { return a->date() < b->date(); });
    return cells;
}

int MvCanvasAccessible::childCount() const
{
    return QAccessibleWidget::childCount() + int(cells().size());
}

QAccessibleInterface *MvCanvasAccessible::child(int index) const
{
    const int ownCount = QAccessibleWidget::childCount();
    if (index < ownCount)
        return QAccessibleWidget::child(index);
    return QAccessible::queryAccessibleInterface(cells().value(index - ownCount));
}

int MvCanvasAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    auto *cell = child ? qobject_cast<MvGraphicsItemCalendariumCell *>(child->object()) : nullptr;
    if (!cell)
        return QAccessibleWidget::indexOfChild(child);
    const qsizetype index = cells().indexOf(cell);
    return index < 0 ? -1 : QAccessibleWidget::childCount() + int(index);
}

QAccessibleInterface *MvCanvasAccessible::childAt(int x, int y) const
{
    if (view()) {
        const QList<QGraphicsItem *> items = view()->items(view()->viewport()->mapFromGlobal(QPoint(x, y)));
        for (QGraphicsItem *item : items) {
            if (MvGraphicsItemCalendariumCell *cell = cellOf(item))
                return QAccessible::queryAccessibleInterface(cell);
        }
    }
    return QAccessibleWidget::childAt(x, y);
}

QAccessibleInterface *MvCanvasAccessible::focusChild() const
{
    MvGraphicsItemCalendariumCell *cell = view() && view()->scene() ? cellOf(view()->scene()->focusItem()) : nullptr;
    return cell ? QAccessible::queryAccessibleInterface(cell) : QAccessibleWidget::focusChild();
}
