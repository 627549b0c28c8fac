// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvRestoreEntriesDialog.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCore/MvApplicationLocale.h"
#include "common/MvStudioMessage.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestCounted = 1024LL * 1024; // bytes; nobody waits for more

/// Number of entries; none when they are not counted or cannot be read, which the text says.
int countEntries(const QFileInfo &backup, QString *text)
{
    if (backup.size() > largestCounted)
        return 0;
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(backup);
    const auto count = int(content.events.size());
    *text = content.refusal().isEmpty() ? MvRestoreEntriesDialog::tr("%n Einträge", nullptr, count)
                                        : MvRestoreEntriesDialog::tr("nicht lesbar");
    return count;
}

} // namespace

MvRestoreEntriesDialog::MvRestoreEntriesDialog(const QList<QFileInfo> &backups, QWidget *parent)
    : QDialog(parent)
    , m_backups(backups)
    , m_list(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"restoreEntriesDialog"_s);
    setWindowTitle(tr("Einträge wiederherstellen"));
    auto *text = new QLabel(tr("Die Einträge der gewählten Fassung kommen in Ihre Liste zurück. Was Sie seither "
                               "eingegeben haben, bleibt; die jetzige Datei wird beiseitegelegt."),
                            this);
    text->setWordWrap(true);
    m_list->setObjectName(u"backupList"_s);
    m_list->setAccessibleName(tr("Frühere Fassungen"));
    m_list->setRootIsDecorated(false);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHeaderLabels({tr("Fassung vom"), tr("Inhalt"), tr("Datei")});
    for (const QFileInfo &backup : backups)
        addRow(backup);
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);
    if (!m_list->currentItem())
        m_list->setCurrentItem(m_list->topLevelItem(0));

    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton *restore = buttons->addButton(tr("Wiederherstellen"), QDialogButtonBox::AcceptRole);
    restore->setObjectName(u"restoreNowButton"_s);
    restore->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, &QDialog::accept);
    connect(this, &QDialog::accepted, this, [this] {
        const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
        if (row >= 0)
            Q_EMIT restoreRequested(m_backups.at(row));
    });

    auto *column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(m_list, 1);
    column->addWidget(buttons);
    resize(640, 320);
}

void MvRestoreEntriesDialog::addRow(const QFileInfo &backup)
{
    const QString time = MvApplicationLocale::instance().locale().toString(backup.lastModified(), QLocale::ShortFormat);
    const QString path = QDir::toNativeSeparators(backup.filePath());
    QString content;
    const int count = countEntries(backup, &content);
    auto *row = new QTreeWidgetItem(m_list, {time, content, backup.fileName()});
    row->setToolTip(2, path);
    if (count > 0 && !m_list->currentItem()) // the newest that gives something back
        m_list->setCurrentItem(row);
}
