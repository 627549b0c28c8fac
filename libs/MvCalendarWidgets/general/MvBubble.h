// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/MvBubblePlacement.h"
#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

class QScrollArea;

/// A small panel that stands beside something in its window and points at it with an arrow, never cut off by window or
/// screen: where there is little room, its content scrolls.
///
/// It is no window of its own, so that it is at its place on every platform. The keyboard stays in it. Whoever clicks
/// elsewhere, turns to another part of the window, uses one of its shortcuts or closes it, leaves the bubble;
/// mayLeave() may keep it open. It deletes itself when it has closed.
class MVGUIWIDGETS_EXPORT MvBubble : public QWidget
{
    Q_OBJECT

public:
    /// A hidden bubble in the widget's window.
    explicit MvBubble(QWidget *widget);
    ~MvBubble() override;

    /// Shows it beside a rectangle of the screen, or moves it there.
    void openAt(const QRect &target);
    /// Closes without asking mayLeave(); the keyboard goes back to where it was.
    void closeBubble();
    MvBubblePlacement placement() const { return m_placement; }

protected:
    /// What stands in the bubble; it belongs to the bubble. Called once.
    void setContent(QWidget *content);
    /// Someone turns to something else. False keeps the bubble open, and what was done there does not happen.
    virtual bool mayLeave() { return true; }
    /// The content may need another size.
    void adjust();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    bool holds(const QObject *object) const;
    bool leave();
    void onFocusChanged(QWidget *before, QWidget *now);
    QRect room() const;

    QScrollArea *m_scroll;
    QPointer<QWidget> m_focusBefore;
    QRect m_target; // in the window
    MvBubblePlacement m_placement;
    bool m_isLeaving = false;
};
