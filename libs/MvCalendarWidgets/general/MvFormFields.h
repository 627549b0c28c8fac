// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QList>

class QWidget;

/// What the fields of a form have in common.
class MVGUIWIDGETS_EXPORT MvFormFields
{
public:
    /// Tab goes from field to field as they stand here, whenever they were made.
    static void setTabOrder(const QList<QWidget *> &fields);
    /// The mouse wheel scrolls what stands around the fields, and changes none of them.
    static void keepWheelOut(const QList<QWidget *> &fields);
};
