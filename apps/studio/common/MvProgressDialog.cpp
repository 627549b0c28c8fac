// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvProgressDialog.h"

#include "common/MvStudioMessage.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvProgressDialog::MvProgressDialog(const QString &title, const QString &text, QWidget *parent)
    : QDialog(parent)
    , m_text(new QLabel(text, this))
    , m_bar(new QProgressBar(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"progressDialog"_s);
    setWindowTitle(title);
    m_bar->setObjectName(u"progressBar"_s);
    m_bar->setAccessibleName(title);
    m_bar->setRange(0, 0);
    m_bar->setFormat(tr("%p %"));
    m_text->setTextFormat(Qt::PlainText);
    constexpr int letters = 60;
    m_text->setText(
        fontMetrics().elidedText(m_text->text(), Qt::ElideMiddle, fontMetrics().averageCharWidth() * letters));
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Cancel, this);
    m_cancel = buttons->button(QDialogButtonBox::Cancel);
    m_cancel->setObjectName(u"progressCancel"_s);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_text);
    column->addWidget(m_bar);
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * letters);
}

void MvProgressDialog::setProgress(int done, int total)
{
    m_bar->setRange(0, total);
    m_bar->setValue(done);
}

void MvProgressDialog::reject()
{
    if (!m_cancel->isEnabled())
        return;
    m_cancel->setEnabled(false);
    m_text->setText(tr("Wird abgebrochen …"));
    Q_EMIT canceled();
}

void MvProgressDialog::finish()
{
    accept();
}
