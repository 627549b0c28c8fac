#include "MvGUIWidgets/MvLineEdit.h"

MvLineEdit::MvLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
}

MvLineEdit::~MvLineEdit() = default;
