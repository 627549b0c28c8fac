// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QObject>

/// Keeps the mouse wheel from changing the widgets it is installed on, so that scrolling a panel changes nothing by
/// accident: what stands around them scrolls instead.
class MVGUIWIDGETS_EXPORT MvMouseWheelEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit MvMouseWheelEventFilter(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
