// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QObject>

class QRect;
class QWidget;

/// Keeps dialogs on the screen: one that opens larger than the screen's room, with the frame that window managers put
/// around it, becomes as small as it can, and moves to where all of it is seen.
///
/// To be installed as an event filter of the application.
class MVGUIWIDGETS_EXPORT MvWindowFit : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// What the window may take up without its frame, on the screen of the window it belongs to.
    static QRect roomFor(const QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
