// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QLineEdit>

/// A line of text, with a button that clears it.
class MVGUIWIDGETS_EXPORT MvLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit MvLineEdit(QWidget *parent = nullptr);
    ~MvLineEdit() override;
};
