// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvWindowFit.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr QMargins frame(4, 36, 4, 4); // as wide as usual ones are; nobody knows it before the window is there

} // namespace

QRect MvWindowFit::roomFor(const QWidget *window)
{
    const QWidget *parent = window->parentWidget();
    const QScreen *screen =
        parent != nullptr ? parent->window()->screen() : QGuiApplication::screenAt(window->geometry().center());
    return (screen != nullptr ? screen : window->screen())->availableGeometry().marginsRemoved(frame);
}

bool MvWindowFit::eventFilter(QObject *watched, QEvent *event)
{
    auto *dialog = event->type() == QEvent::Show ? qobject_cast<QDialog *>(watched) : nullptr;
    if (dialog == nullptr || event->spontaneous() || !dialog->isWindow())
        return false;
    const QRect room = roomFor(dialog);
    if (room.contains(dialog->geometry()))
        return false;
    dialog->resize(dialog->size().boundedTo(room.size()));
    QRect place = dialog->geometry();
    place.moveLeft(qMax(room.left(), qMin(place.left(), room.right() + 1 - place.width())));
    place.moveTop(qMax(room.top(), qMin(place.top(), room.bottom() + 1 - place.height())));
    dialog->setGeometry(place);
    return false;
}
