// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvLineEdit.h"

MvLineEdit::MvLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
}

MvLineEdit::~MvLineEdit() = default;
