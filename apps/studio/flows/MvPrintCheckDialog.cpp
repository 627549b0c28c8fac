// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvPrintCheckDialog.h"

#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvProject/MvPrintCheck.h"
#include "MvProject/MvProject.h"
#include "common/MvStudioMessage.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int delay = 800; // milliseconds without changes before looking again

} // namespace

MvPrintCheckDialog::MvPrintCheckDialog(MvProject *project, QWidget *parent)
    : QDialog(parent)
    , m_project(project)
    , m_summary(new QLabel(this))
    , m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"printCheckDialog"_s);
    setWindowTitle(tr("Vor dem Druck prüfen"));
    m_summary->setObjectName(u"printSummary"_s);
    m_summary->setWordWrap(true);
    m_list->setObjectName(u"printFindings"_s);
    m_list->setAccessibleName(tr("Was nicht gut gedruckt würde"));
    m_list->setWordWrap(true);
    m_list->setAlternatingRowColors(true);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Close, this);
    m_show = buttons->addButton(tr("&Zeigen"), QDialogButtonBox::ActionRole);
    m_show->setObjectName(u"printShow"_s);
    m_show->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_show, &QPushButton::clicked, this, &MvPrintCheckDialog::chooseCurrent);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &MvPrintCheckDialog::chooseCurrent);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_summary);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 20);

    auto *later = new QTimer(this);
    later->setSingleShot(true);
    later->setInterval(delay);
    connect(later, &QTimer::timeout, this, &MvPrintCheckDialog::look);
    connect(project, &MvProject::documentChanged, later, qOverload<>(&QTimer::start));
    look();
}

void MvPrintCheckDialog::look()
{
    const int row = m_list->currentRow();
    m_findings = MvPrintCheck::ofDocument(m_project->document());
    m_list->clear();
    const QIcon warning = MvIconRegistry::instance().icon(u"ico_studio_warning"_s);
    for (const MvPrintFinding &finding : std::as_const(m_findings)) {
        auto *item = new QListWidgetItem(finding.toString(), m_list);
        if (finding.severity == MvPrintFinding::Severity::Strong)
            item->setIcon(warning);
    }
    m_list->setCurrentRow(qBound(-1, qMax(row, 0), m_list->count() - 1));
    m_summary->setText(m_findings.isEmpty() ? tr("Alles wird gut gedruckt, soweit das Programm sehen kann.")
                                            : tr("%n Stellen; ein Dreieck steht vor denen, die jeder sieht.", nullptr,
                                                 int(m_findings.size())));
    m_show->setEnabled(!m_findings.isEmpty());
}

void MvPrintCheckDialog::chooseCurrent()
{
    if (const int row = m_list->currentRow(); row >= 0)
        Q_EMIT findingChosen(m_findings.at(row));
}
