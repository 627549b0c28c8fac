// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvGUIWidgets/MvFormFields.h"

#include "MvGUIWidgets/MvMouseWheelEventFilter.h"

#include <QWidget>

void MvFormFields::setTabOrder(const QList<QWidget *> &fields)
{
    for (qsizetype i = 1; i < fields.size(); ++i)
        QWidget::setTabOrder(fields.at(i - 1), fields.at(i));
}

void MvFormFields::keepWheelOut(const QList<QWidget *> &fields)
{
    for (QWidget *field : fields)
        field->installEventFilter(new MvMouseWheelEventFilter(field));
}
