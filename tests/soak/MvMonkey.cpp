// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvMonkey.h"

#include <QtTest>
#include <QtWidgets/QtWidgets>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int watchInterval = 10; // milliseconds
constexpr int patientTicks = 4;
constexpr int patientActions = 30; // on one dialog
constexpr int mostWindows = 5;

QString nameOf(const QObject *object)
{
    QString name = QString::fromLatin1(object->metaObject()->className());
    for (; object; object = object->parent()) {
        if (!object->objectName().isEmpty())
            return name + u' ' + object->objectName();
    }
    return name;
}

bool isReadyForMouse(const QWidget *widget)
{
    return widget->isVisible() && !widget->visibleRegion().isEmpty();
}

/// The place on the widget's window; never beside it, where a resize is still under way.
QPoint placeOn(const QWindow *window, const QWidget *widget, const QPoint &point)
{
    const QPoint place = widget->mapTo(widget->window(), point);
    return {qBound(0, place.x(), window->width() - 1), qBound(0, place.y(), window->height() - 1)};
}

} // namespace

MvMonkey::MvMonkey(QWidget *window, quint32 seed, const QStringList &files, const QString &folder)
    : m_window(window)
    , m_random(seed)
    , m_files(files)
    , m_folder(folder)
{
    qApp->installEventFilter(this);
    note(u"seed %1"_s.arg(seed));
    QTimer::singleShot(watchInterval, this, &MvMonkey::watch);
}

MvMonkey::~MvMonkey()
{
    qApp->removeEventFilter(this);
}

/// Told at once: what was done last is there when the program has died of it.
void MvMonkey::note(const QString &action)
{
    std::fprintf(stderr, "%s\n", qPrintable(action));
}

// ---- acting

void MvMonkey::act()
{
    m_ticks = 0;
    m_isResting = false;
    tameDialogs();
    if (qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) { // is being answered
        QTest::qWait(1);
        return;
    }
    const Action action = chooseAction();
    (this->*action)();
    QCoreApplication::processEvents();
    if (QWidget *modal = QApplication::activeModalWidget(); modal != m_lastModal) {
        m_lastModal = modal;
        m_modalAge = 0;
    } else if (modal && ++m_modalAge > patientActions) {
        note(u"close "_s + nameOf(modal));
        modal->close();
        m_modalAge = 0;
    }
}

MvMonkey::Action MvMonkey::chooseAction()
{
    static const QList<Choice> choices{
        {340, &MvMonkey::click},    {150, &MvMonkey::clickCanvas},   {50, &MvMonkey::drag},
        {40, &MvMonkey::turnWheel}, {160, &MvMonkey::pressKey},      {80, &MvMonkey::typeText},
        {50, &MvMonkey::dropFile},  {100, &MvMonkey::triggerAction}, {40, &MvMonkey::raiseDock},
    };
    int all = 0;
    for (const Choice &choice : choices)
        all += choice.weight;
    int number = below(all);
    for (const Choice &choice : choices) {
        if (number < choice.weight)
            return choice.action;
        number -= choice.weight;
    }
    return &MvMonkey::click;
}

QWidget *MvMonkey::currentWindow()
{
    if (QWidget *popup = QApplication::activePopupWidget(); popup && below(10) > 0)
        return popup;
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    QWidgetList windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->windowHandle() && widget->windowType() != Qt::ToolTip)
            windows.append(widget);
    }
    if (windows.isEmpty() || below(2) == 0)
        return m_window;
    return oneOf(windows);
}

QWidget *MvMonkey::someWidget(QPoint *point)
{
    QWidget *window = currentWindow();
    QWidgetList widgets{window};
    QWidgetList useful;
    for (QWidget *child : window->findChildren<QWidget *>()) {
        if (child->window() != window || !isReadyForMouse(child))
            continue;
        widgets.append(child);
        if (child->isEnabled() && (child->focusPolicy() & Qt::ClickFocus))
            useful.append(child);
    }
    QWidget *widget = below(5) > 0 && !useful.isEmpty() ? oneOf(useful) : oneOf(widgets);
    if (const auto *area = qobject_cast<QAbstractScrollArea *>(widget); area && isReadyForMouse(area->viewport()))
        widget = area->viewport();
    const QRect rect = widget->visibleRegion().boundingRect();
    *point = rect.isEmpty() ? QPoint(1, 1) : rect.topLeft() + QPoint(below(rect.width()), below(rect.height()));
    return widget;
}

QWidget *MvMonkey::canvas() const
{
    auto *view = m_window->findChild<QAbstractScrollArea *>(u"pageCanvas"_s);
    return view ? view->viewport() : nullptr;
}

void MvMonkey::press(QWidget *widget, const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    const QPointer<QWindow> window = widget->window()->windowHandle();
    if (!window)
        return;
    const QPoint place = placeOn(window, widget, point);
    QTest::mouseMove(window, place);
    if (window && window->isVisible())
        QTest::mousePress(window, button, modifiers, place);
    if (window)
        QTest::mouseRelease(window, button, modifiers, place);
}

void MvMonkey::click()
{
    QPoint point;
    QWidget *widget = someWidget(&point);
    const Qt::MouseButton button = below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    static const QList<Qt::KeyboardModifiers> modifiers{{}, {}, {}, {}, Qt::ShiftModifier, Qt::ControlModifier};
    note(u"click %1 %2,%3 button %4"_s.arg(nameOf(widget)).arg(point.x()).arg(point.y()).arg(button));
    const QPointer<QWidget> target = widget;
    press(widget, point, button, oneOf(modifiers));
    const QPointer<QWindow> window = target ? target->window()->windowHandle() : nullptr;
    if (window && below(9) == 0)
        QTest::mouseDClick(window, Qt::LeftButton, {}, placeOn(window, target, point));
}

void MvMonkey::clickCanvas()
{
    QWidget *view = canvas();
    if (!view || !isReadyForMouse(view) || QApplication::activeModalWidget())
        return click();
    const QPoint point(below(view->width()), below(view->height()));
    note(u"click page %1,%2"_s.arg(point.x()).arg(point.y()));
    press(view, point, below(6) == 0 ? Qt::RightButton : Qt::LeftButton);
}

void MvMonkey::drag()
{
    QPoint point;
    QWidget *widget = someWidget(&point);
    if (below(3) == 0 && canvas() && isReadyForMouse(canvas()) && !QApplication::activeModalWidget()) {
        widget = canvas();
        point = {below(widget->width()), below(widget->height())};
    }
    const QPointer<QWindow> window = widget->window()->windowHandle();
    if (!window)
        return;
    const QPoint way(below(400) - 200, below(400) - 200);
    note(u"drag %1 %2,%3 by %4,%5"_s.arg(nameOf(widget)).arg(point.x()).arg(point.y()).arg(way.x()).arg(way.y()));
    const QPointer<QWidget> source = widget;
    static const QList<Qt::KeyboardModifiers> modifiers{{}, {}, Qt::AltModifier, Qt::ControlModifier};
    const Qt::KeyboardModifiers held = oneOf(modifiers);
    QTest::mousePress(window, Qt::LeftButton, held, placeOn(window, widget, point));
    for (int step = 1; step <= 5 && window && source; ++step)
        QTest::mouseMove(window, placeOn(window, source, point + way * step / 5));
    if (window)
        QTest::mouseRelease(window, Qt::LeftButton, held, {window->width() / 2, window->height() / 2});
}

void MvMonkey::turnWheel()
{
    QPoint point;
    QWidget *widget = someWidget(&point);
    QWindow *window = widget->window()->windowHandle();
    if (!window)
        return;
    constexpr int notch = 120;
    const QPoint turn(0, below(2) == 0 ? notch : -notch);
    const Qt::KeyboardModifiers modifiers = below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier;
    note(u"wheel %1 %2"_s.arg(nameOf(widget)).arg(turn.y()));
    const QPoint place = placeOn(window, widget, point);
    QWheelEvent event(place, window->mapToGlobal(place), {}, turn, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window, &event);
}

void MvMonkey::pressKey()
{
    static const QList<Qt::Key> keys{Qt::Key_Tab,      Qt::Key_Tab,     Qt::Key_Escape, Qt::Key_Enter,
                                     Qt::Key_Return,   Qt::Key_Delete,  Qt::Key_F2,     Qt::Key_Left,
                                     Qt::Key_Right,    Qt::Key_Up,      Qt::Key_Down,   Qt::Key_Space,
                                     Qt::Key_Space,    Qt::Key_Backtab, Qt::Key_Home,   Qt::Key_End,
                                     Qt::Key_PageDown, Qt::Key_PageUp,  Qt::Key_Menu,   Qt::Key_Backspace};
    if (below(3) == 0) {
        const QString letters = u"aeknrstÄß0123456789&<."_s;
        const QChar letter = letters.at(below(int(letters.size())));
        sendKey(letter.toUpper().unicode(), {}, letter);
        return;
    }
    static const QList<Qt::KeyboardModifiers> modifiers{{}, {}, {}, Qt::ShiftModifier, Qt::AltModifier};
    const Qt::Key key = oneOf(keys);
    sendKey(key, oneOf(modifiers), key == Qt::Key_Space ? u" "_s : QString());
}

/// A word, and mostly what makes it count.
void MvMonkey::typeText()
{
    static const QStringList words{u"Oma"_s, u"12"_s,           u"7"_s, u"ß & <b>"_s, u"29.02.2000"_s,
                                   u"1-3"_s, u"Tag der Eiche"_s};
    for (const QChar letter : oneOf(words))
        sendKey(letter.toUpper().unicode(), {}, letter);
    if (below(4) > 0)
        sendKey(Qt::Key_Return, {}, {});
}

void MvMonkey::sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = QApplication::activeModalWidget();
    if (!window)
        window = QApplication::activeWindow();
    if (!window)
        window = m_window;
    const QPointer<QWindow> handle = window->windowHandle();
    if (!handle || qobject_cast<QFileDialog *>(window)) // that is answered elsewhere
        return;
    if (!text.isEmpty() && window->windowType() == Qt::Popup &&
        window->findChild<QCalendarWidget *>()) // the library's own editor for a typed date leaks
        return;
    note(u"key %1 in %2"_s.arg(QKeySequence(key | int(modifiers)).toString(), nameOf(window)));
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        if (type == QEvent::KeyPress && handle && qt_sendShortcutOverrideEvent(handle, 0, key, modifiers, text))
            continue; // a shortcut
        if (handle)
            QCoreApplication::sendEvent(handle, &event);
    }
}

void MvMonkey::dropFile()
{
    QPoint point;
    QWidget *widget = someWidget(&point);
    if (below(2) == 0 && canvas() && isReadyForMouse(canvas()) && !QApplication::activeModalWidget()) {
        widget = canvas();
        point = {below(widget->width()), below(widget->height())};
    }
    while (!widget->acceptDrops() && widget->parentWidget() && !widget->isWindow()) {
        point = widget->mapToParent(point);
        widget = widget->parentWidget();
    }
    if (!widget->acceptDrops())
        return;
    const QString file = oneOf(m_files);
    note(u"drop %1 on %2 %3,%4"_s.arg(QFileInfo(file).fileName(), nameOf(widget)).arg(point.x()).arg(point.y()));
    const QPointer<QWidget> target = widget;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    const Qt::KeyboardModifiers modifiers = below(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
    QCoreApplication::sendEvent(widget, &enter);
    if (!enter.isAccepted() || !target)
        return;
    QDragMoveEvent move(point, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
    QCoreApplication::sendEvent(widget, &move);
    if (target && below(5) > 0 && move.isAccepted()) {
        QDropEvent drop(point, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(widget, &drop);
    } else if (target) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(widget, &leave);
    }
}

void MvMonkey::triggerAction()
{
    if (QApplication::activeModalWidget())
        return click();
    static const QStringList often{u"undo"_s,         u"undo"_s,      u"redo"_s,    u"nextPage"_s,
                                   u"previousPage"_s, u"firstPage"_s, u"lastPage"_s};
    static const QStringList ofFrames{
        u"addPhotoFrame"_s, u"addTextFrame"_s,       u"addSmallMonth"_s,     u"duplicateFrame"_s,
        u"removeFrame"_s,   u"frameToFrontAction"_s, u"frameToBackAction"_s, u"freeFrames"_s,
        u"placeFrame"_s,    u"distributePhotos"_s,   u"nextElement"_s,       u"nextElement"_s,
        u"chooseTheme"_s,   u"chooseTemplate"_s,     u"showWelcome"_s,       u"printMarks"_s};
    QList<QAction *> actions{m_window->findChild<QAction *>(oneOf(below(2) == 0 ? often : ofFrames))};
    if (below(6) == 0) // or any
        actions = m_window->findChildren<QAction *>();
    actions.removeIf([](const QAction *action) {
        return !action->isEnabled() || !action->isVisible() || action->menu() || action->objectName().isEmpty();
    });
    if (actions.isEmpty())
        return;
    QAction *action = oneOf(actions);
    note(u"action "_s + action->objectName());
    action->trigger();
}

void MvMonkey::raiseDock()
{
    if (QApplication::activeModalWidget())
        return click();
    QDockWidget *dock = oneOf(m_window->findChildren<QDockWidget *>());
    note(u"raise "_s + dock->objectName());
    if (!dock->isVisible() && !dock->toggleViewAction()->isChecked())
        dock->toggleViewAction()->trigger();
    if (dock->isFloating())
        dock->setFloating(false);
    dock->raise();
}

void MvMonkey::closeOthers()
{
    note(u"close everything"_s);
    m_isResting = true;
    constexpr int mostRounds = 5000; // an export that is cancelled ends with its page
    for (int round = 0; round < mostRounds; ++round) {
        QWidget *other = QApplication::activePopupWidget();
        if (!other)
            other = QApplication::activeModalWidget();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (!other && widget->isVisible() && widget != m_window && !qobject_cast<QDockWidget *>(widget) &&
                !widget->inherits("QDockWidgetGroupWindow") && widget->windowType() != Qt::ToolTip)
                other = widget;
        }
        if (!other)
            break;
        other->close();
        QTest::qWait(1);
    }
}

// ---- what must not happen

bool MvMonkey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == m_window) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::Show) {
        if (auto *dialog = qobject_cast<QFileDialog *>(watched)) {
            dialog->setOption(QFileDialog::ReadOnly);
            QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
        }
    }
    return QObject::eventFilter(watched, event);
}

void MvMonkey::answer(QFileDialog *dialog)
{
    auto *edit = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
    if (!dialog->isVisible() || !edit)
        return;
    if (QApplication::activeModalWidget() != dialog) { // something is asked above it
        QTimer::singleShot(watchInterval, dialog, [this, dialog] { answer(dialog); });
        return;
    }
    QString path =
        dialog->acceptMode() == QFileDialog::AcceptSave ? m_folder + u"/neu%1"_s.arg(below(3)) : oneOf(m_files);
    if (dialog->fileMode() == QFileDialog::Directory)
        path = m_folder;
    if (below(3) == 0 || path.isEmpty()) {
        note(u"no file for "_s + nameOf(dialog));
        dialog->reject();
        return;
    }
    note(u"file %1 for %2"_s.arg(QFileInfo(path).fileName(), nameOf(dialog)));
    const QPointer<QFileDialog> guard = dialog;
    edit->setText(path);
    static_cast<QDialog *>(dialog)->accept();
    if (guard && guard->isVisible())
        guard->reject();
}

/// Exports go to the folder, small; and no more windows are open than a person would keep.
void MvMonkey::tameDialogs()
{
    QWidgetList others;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || widget == m_window)
            continue;
        others.append(widget);
        if (auto *target = widget->findChild<QLineEdit *>(u"exportTarget"_s);
            target && !target->text().startsWith(m_folder))
            target->setText(m_folder + u"/export.pdf"_s);
        if (auto *dpi = widget->findChild<QSpinBox *>(u"exportDpi"_s))
            dpi->setValue(dpi->minimum());
    }
    if (others.size() > mostWindows && !QApplication::activeModalWidget() && !QApplication::activePopupWidget())
        oneOf(others)->close();
}

/// Called by a timer: as long as no new action begins, somebody is waited for.
void MvMonkey::watch()
{
    QTimer::singleShot(watchInterval, this, &MvMonkey::watch); // now, since what follows may begin a loop itself
    if (!m_isResting && ++m_ticks > patientTicks)
        leaveInnerLoop();
}

void MvMonkey::leaveInnerLoop()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        note(u"inner popup "_s + nameOf(popup));
        QTest::mouseClick(popup, Qt::LeftButton, {}, popup->rect().topLeft() + QPoint(20, below(popup->height())));
        if (auto *still = QApplication::activePopupWidget(); still == popup)
            popup->close();
        return;
    }
    QWidget *modal = QApplication::activeModalWidget();
    if (modal && m_ticks > 4 * patientTicks) {
        note(u"inner close "_s + nameOf(modal));
        modal->close();
        return;
    }
    if (modal) {
        const QList<QAbstractButton *> buttons = modal->findChildren<QAbstractButton *>();
        note(u"inner dialog "_s + nameOf(modal));
        if (!buttons.isEmpty() && !qobject_cast<QFileDialog *>(modal))
            QTest::mouseClick(oneOf(buttons), Qt::LeftButton);
        return;
    }
    if (m_window->windowHandle() && m_ticks == 4 * patientTicks) { // something is being dragged
        note(u"inner release"_s);
        QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, {}, {1, 1});
    }
}
