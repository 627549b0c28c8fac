// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvSchemaNameDialog.h"

#include "common/MvStudioMessage.h"

#include "MvCalendar/MvUserColorSchemata.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int usualLetters = 36; // the field's width

} // namespace

MvSchemaNameDialog::MvSchemaNameDialog(const QString &title, const QString &name, const MvCalendariumColorSchemaID &id,
                                       QWidget *parent)
    : QDialog(parent)
    , m_id(id)
    , m_name(new QLineEdit(name, this))
    , m_hint(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"schemaNameDialog"_s);
    setWindowTitle(title);
    m_name->setObjectName(u"schemaName"_s);
    m_name->setMaxLength(MvUserColorSchemata::longestName);
    m_name->setMinimumWidth(usualLetters * fontMetrics().averageCharWidth());
    m_name->selectAll();
    auto *label = new QLabel(tr("&Name des Farbschemas:"), this);
    label->setBuddy(m_name);
    m_hint->setObjectName(u"schemaNameHint"_s);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setMinimumHeight(2 * fontMetrics().lineSpacing()); // so that the buttons stay where they are
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    auto *column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(m_name);
    column->addWidget(m_hint);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &MvSchemaNameDialog::checkName);
    checkName();
}

QString MvSchemaNameDialog::name() const
{
    return m_name->text();
}

void MvSchemaNameDialog::checkName()
{
    const MvOutcome checked = MvUserColorSchemata::checkName(name(), m_id);
    m_hint->setText(checked.error);
    m_accept->setEnabled(checked.isOk());
}
