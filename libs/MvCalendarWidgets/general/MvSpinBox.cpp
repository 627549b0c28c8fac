// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvSpinBox.h"

MvSpinBox::MvSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setKeyboardTracking(false);
}

MvSpinBox::~MvSpinBox() = default;
