// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QGraphicsView>

/// A graphics view whose dates a screen reader finds: they are the children of its accessible interface
/// (MvCanvasAccessible). Calendaria work in any graphics view; only in one of these, or of a class derived from it, are
/// their dates read out, and other views of the program stay as they are.
class MVCALENDARWIDGETS_EXPORT MvCalendariumView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit MvCalendariumView(QWidget *parent = nullptr);
    /// The scene is not owned.
    explicit MvCalendariumView(QGraphicsScene *scene, QWidget *parent = nullptr);
    ~MvCalendariumView() override;
};
