// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvGUIWidgets/mvguiwidgets_export.h"

#include <QSpinBox>

/// A whole number. It reports a typed number when it is complete, not digit by digit.
class MVGUIWIDGETS_EXPORT MvSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit MvSpinBox(QWidget *parent = nullptr);
    ~MvSpinBox() override;
};
