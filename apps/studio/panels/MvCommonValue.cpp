// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCommonValue.h"

#include "MvGUIWidgets/MvColorSelectionButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

QString MvCommonValue::different()
{
    return tr("verschieden");
}

void MvCommonValue::show(QComboBox *box, const std::optional<QVariant> &data)
{
    box->setPlaceholderText(different());
    box->setCurrentIndex(data ? box->findData(*data) : -1);
}

void MvCommonValue::show(QCheckBox *box, const std::optional<bool> &isOn)
{
    box->setTristate(!isOn); // a click leads from between to on, and then there is no way back
    box->setCheckState(!isOn ? Qt::PartiallyChecked : *isOn ? Qt::Checked : Qt::Unchecked);
}

void MvCommonValue::show(MvColorSelectionButton *button, const std::optional<QColor> &color)
{
    button->setColor(color.value_or(QColor()));
    if (color)
        return;
    button->setToolTip(different());
    button->setAccessibleDescription(different());
}

void MvCommonValue::show(QLineEdit *line, const std::optional<QString> &text, const QString &hint)
{
    line->setPlaceholderText(text ? hint : different());
    if (line->text() != text.value_or(QString()))
        line->setText(text.value_or(QString()));
}
