// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintCheckDialog.h"

#include "common/MvStudioMessage.h"
#include "flows/MvPrintFindingList.h"
#include "flows/MvPrintWatch.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvPrintCheckDialog::MvPrintCheckDialog(MvPrintWatch *watch, QWidget *parent)
    : QDialog(parent)
    , m_watch(watch)
    , m_summary(new QLabel(this))
    , m_list(new MvPrintFindingList(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"printCheckDialog"_s);
    setWindowTitle(tr("Vor dem Druck prüfen"));
    m_summary->setObjectName(u"printSummary"_s);
    m_summary->setWordWrap(true);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Close, this);
    m_show = buttons->addButton(tr("&Zeigen"), QDialogButtonBox::ActionRole);
    m_show->setObjectName(u"printShow"_s);
    m_show->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_show, &QPushButton::clicked, this, [this] {
        if (m_list->current())
            Q_EMIT findingChosen(*m_list->current());
    });
    connect(m_list, &MvPrintFindingList::currentChanged, this, &MvPrintCheckDialog::findingChosen);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_summary);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 20);
    connect(watch, &MvPrintWatch::completed, this, &MvPrintCheckDialog::look);
    look();
    watch->hurry();
}

void MvPrintCheckDialog::look()
{
    const bool isComplete = m_watch->isComplete();
    m_list->setFindings(m_watch->findings(), isComplete);
    m_summary->setText(isComplete ? MvPrintFindingList::summary(m_list->findings().size())
                                  : tr("Die Seiten werden geprüft …"));
    m_show->setEnabled(!m_list->findings().isEmpty());
}
