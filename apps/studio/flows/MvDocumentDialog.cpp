// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvDocumentDialog.h"

#include "common/MvStudioMessage.h"
#include "panels/MvLayoutChooser.h"
#include "panels/MvPageSetupEditor.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvDocumentDialog::MvDocumentDialog(Parts parts, const MvCalendarDocument &document, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    if (parts & Layout) {
        m_layout = new MvLayoutChooser(this);
        m_layout->setDocument(document);
        row->addWidget(m_layout, 1);
        connect(m_layout, &MvLayoutChooser::activated, this, &QDialog::accept);
    }
    if (parts & Setup) {
        m_setup = new MvPageSetupEditor(this);
        m_setup->setFormat(document.format());
        m_setup->setRange(document.range());
        row->addWidget(m_setup, 0, Qt::AlignTop);
    }
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_accept = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row, 1);
    column->addWidget(buttons);
    if (m_layout)
        resize(m_setup ? QSize(1000, 620) : QSize(860, 620));
}

void MvDocumentDialog::setAcceptText(const QString &text)
{
    m_accept->setText(text);
}

MvCalendarDocument MvDocumentDialog::document() const
{
    MvCalendarDocument document = m_document;
    if (m_setup) {
        document.setFormat(m_setup->format());
        document.setRange(m_setup->range());
    }
    if (m_layout && m_layout->layoutId().isValid() &&
        m_layout->layoutId() != m_document.appearance().layoutSchema().ID())
        document.setAppearance(MvLayoutChooser::withLayout(m_document.appearance(), m_layout->layoutId()));
    return document;
}
