// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QLabel>

/// A place to drop something on, with a hint or a picture of what lies there. Who cannot drag presses it: by a click,
/// Space or Enter. Screen readers see a button.
///
/// Dropping itself is left to the widget around it.
class MVGUIWIDGETS_EXPORT MvDropLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MvDropLabel(QWidget *parent = nullptr);
    ~MvDropLabel() override;

    /// Shows that what is being dragged can be dropped here.
    void setDropOffered(bool offered);

Q_SIGNALS:
    void pressed();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QColor frameColor() const;

    bool m_isDropOffered = false;
    bool m_isMouseDown = false;
};
