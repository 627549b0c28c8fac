// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>
#include <QWidget>

class QFileDialog;
class QWindow;

/// Somebody who hits buttons, keys and pages of a window and of whatever it opens, at random but after a seed. Events
/// go the way of real ones, through the window below the pointer, so that popups and modal dialogs take their part.
///
/// Dialogs for files are answered from a list, so that nothing outside of it is touched; the window does not close.
/// Whoever enters an event loop of his own (menus of buttons, dragging, questions) is answered from a timer.
class MvMonkey : public QObject
{
    Q_OBJECT

public:
    /// Files that may be chosen wherever a file is asked for, and a folder for new ones.
    MvMonkey(QWidget *window, quint32 seed, const QStringList &files, const QString &folder);
    ~MvMonkey() override;

    /// One action; it is told on the error output.
    void act();
    /// Closes what is open above and beside the window.
    void closeOthers();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Action = void (MvMonkey::*)();
    struct Choice
    {
        int weight;
        Action action;
    };

    int below(int number) { return int(m_random.bounded(number)); }
    template <class List>
    auto oneOf(const List &list)
    {
        return list.at(below(int(list.size())));
    }
    Action chooseAction();
    static void note(const QString &action);

    void click();
    void clickCanvas();
    void drag();
    void turnWheel();
    void pressKey();
    void typeText();
    void dropFile();
    void triggerAction();
    void raiseDock();

    /// The window that a person could use now.
    QWidget *currentWindow();
    /// A widget on it, the small ones as likely as the large ones; and a point of the widget that is to be seen.
    QWidget *someWidget(QPoint *point);
    QWidget *canvas() const;
    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text);
    void press(QWidget *widget, const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {});
    void tameDialogs();
    void answer(QFileDialog *dialog);
    void watch();
    void leaveInnerLoop();

    QPointer<QWidget> m_window;
    QRandomGenerator m_random;
    const QStringList m_files;
    const QString m_folder;
    QPointer<QWidget> m_lastModal;
    int m_modalAge = 0;
    int m_ticks = 0;          // of the watch since the last action began
    bool m_isResting = false; // nothing is begun, whatever time it takes
};
