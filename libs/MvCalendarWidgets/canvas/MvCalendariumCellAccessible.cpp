// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumCellAccessible.h"

#include "MvCalendar/MvCalendariumView.h"
#include "MvCalendar/MvCanvasAccessible.h"
#include "MvCalendar/MvGraphicsItemCalendariumCell.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (className == "MvGraphicsItemCalendariumCell"_L1) {
        if (auto *cell = qobject_cast<MvGraphicsItemCalendariumCell *>(object))
            return new MvCalendariumCellAccessible(cell);
    }
    if (className == "MvCalendariumView"_L1) {
        if (auto *view = qobject_cast<MvCalendariumView *>(object))
            return new MvCanvasAccessible(view);
    }
    return nullptr;
}

QGraphicsView *viewOf(const MvGraphicsItemCalendariumCell *cell)
{
    return cell && cell->scene() ? cell->scene()->views().value(0) : nullptr;
}

} // namespace

void MvCalendariumCellAccessible::install()
{
    static const bool isInstalled = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(isInstalled)
}

MvCalendariumCellAccessible::MvCalendariumCellAccessible(MvGraphicsItemCalendariumCell *cell)
    : QAccessibleObject(cell)
{}

MvGraphicsItemCalendariumCell *MvCalendariumCellAccessible::cell() const
{
    return qobject_cast<MvGraphicsItemCalendariumCell *>(object());
}

bool MvCalendariumCellAccessible::isValid() const
{
    return cell() && viewOf(cell());
}

QWindow *MvCalendariumCellAccessible::window() const
{
    const QGraphicsView *view = viewOf(cell());
    return view ? view->window()->windowHandle() : nullptr;
}

QAccessibleInterface *MvCalendariumCellAccessible::parent() const
{
    QGraphicsView *view = viewOf(cell());
    return view ? QAccessible::queryAccessibleInterface(view) : nullptr;
}

QAccessibleInterface *MvCalendariumCellAccessible::child(int) const
{
    return nullptr;
}

int MvCalendariumCellAccessible::childCount() const
{
    return 0;
}

int MvCalendariumCellAccessible::indexOfChild(const QAccessibleInterface *) const
{
    return -1;
}

QString MvCalendariumCellAccessible::text(QAccessible::Text type) const
{
    switch (type) {
    case QAccessible::Name:
        return cell()->accessibleName();
    case QAccessible::Description:
        return cell()->accessibleDescription();
    case QAccessible::Help:
        return cell()->toolTip();
    default:
        return {};
    }
}

QRect MvCalendariumCellAccessible::rect() const
{
    return cell()->screenRect();
}

QAccessible::Role MvCalendariumCellAccessible::role() const
{
    return QAccessible::Button;
}

QAccessible::State MvCalendariumCellAccessible::state() const
{
    QAccessible::State state;
    state.focusable = true;
    state.focused = cell()->hasFocus();
    state.invisible = !cell()->isVisible();
    if (const QGraphicsView *view = viewOf(cell())) {
        const QRect seen(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size());
        state.offscreen = !seen.intersects(rect());
    }
    return state;
}

void *MvCalendariumCellAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : QAccessibleObject::interface_cast(type);
}

QStringList MvCalendariumCellAccessible::actionNames() const
{
    return {pressAction(), setFocusAction()};
}

void MvCalendariumCellAccessible::doAction(const QString &action)
{
    if (!cell()->isVisible())
        return;
    if (action == pressAction())
        cell()->press();
    else if (action == setFocusAction())
        Q_EMIT cell()->focusRequested(cell()->date());
}

QStringList MvCalendariumCellAccessible::keyBindingsForAction(const QString &) const
{
    return {};
}
