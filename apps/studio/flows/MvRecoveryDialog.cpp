// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvRecoveryDialog.h"

#include "MvCore/MvApplicationLocale.h"
#include "common/MvStudioMessage.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvRecoveryDialog::MvRecoveryDialog(const QList<MvProjectRecovery::Entry> &entries, QWidget *parent)
    : QDialog(parent)
    , m_entries(entries)
    , m_list(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"recoveryDialog"_s);
    setWindowTitle(tr("Nicht Gespeichertes wiederherstellen"));
    auto *text = new QLabel(tr("Das Programm wurde beim letzten Mal nicht richtig beendet. Diese Kalender waren noch "
                               "nicht gespeichert:"),
                            this);
    text->setWordWrap(true);
    m_list->setObjectName(u"recoveryList"_s);
    m_list->setAccessibleName(tr("Nicht gespeicherte Kalender"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("Kalender"), tr("Stand"), tr("Datei")});
    const QLocale locale = MvApplicationLocale::instance().locale();
    for (const MvProjectRecovery::Entry &entry : entries) {
        const QString path =
            entry.originalPath.isEmpty() ? tr("noch nie gespeichert") : QDir::toNativeSeparators(entry.originalPath);
        QString name = entry.originalPath.isEmpty() ? entry.title : QFileInfo(entry.originalPath).completeBaseName();
        if (name.isEmpty())
            name = tr("Unbenannt");
        auto *row =
            new QTreeWidgetItem(m_list, {name, locale.toString(entry.time.toLocalTime(), QLocale::ShortFormat), path});
        row->setToolTip(2, path);
    }
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->setCurrentItem(m_list->topLevelItem(0));

    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox({}, this);
    m_open = buttons->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Open), QDialogButtonBox::AcceptRole);
    m_discard =
        buttons->addButton(MvStudioMessage::buttonText(QDialogButtonBox::Discard), QDialogButtonBox::DestructiveRole);
    QPushButton *later = buttons->addButton(tr("Später entscheiden"), QDialogButtonBox::RejectRole);
    m_open->setObjectName(u"recoveryOpen"_s);
    m_discard->setObjectName(u"recoveryDiscard"_s);
    later->setObjectName(u"recoveryLater"_s);
    m_open->setDefault(true);
    connect(m_open, &QPushButton::clicked, this, &MvRecoveryDialog::openCurrent);
    connect(m_discard, &QPushButton::clicked, this, &MvRecoveryDialog::discardCurrent);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, &MvRecoveryDialog::openCurrent);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &MvRecoveryDialog::updateButtons);

    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(640, 320);
}

void MvRecoveryDialog::openCurrent()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row < 0)
        return;
    accept();
    Q_EMIT openRequested(m_entries.at(row));
}

void MvRecoveryDialog::discardCurrent()
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row < 0)
        return;
    MvProjectRecovery::discard(m_entries.takeAt(row));
    delete m_list->takeTopLevelItem(row);
    updateButtons();
    if (m_entries.isEmpty())
        reject();
}

void MvRecoveryDialog::updateButtons()
{
    m_open->setEnabled(m_list->currentItem());
    m_discard->setEnabled(m_list->currentItem());
}
