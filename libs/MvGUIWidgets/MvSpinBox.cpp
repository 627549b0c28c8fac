#include "MvGUIWidgets/MvSpinBox.h"

MvSpinBox::MvSpinBox(QWidget *parent)
    : QSpinBox(parent)
{
    setKeyboardTracking(false);
}

MvSpinBox::~MvSpinBox() = default;
