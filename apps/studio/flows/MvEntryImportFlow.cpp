// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvEntryImportFlow.h"

#include "MvCalendar/MvEntryFiles.h"
#include "common/MvStudioSettings.h"
#include "flows/MvBirthdayImport.h"
#include "flows/MvEntryImportReport.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

MvEntryImportFlow::MvEntryImportFlow(MvSession &session, MvBirthdayImport *birthdays, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_import(new MvEntryFileImport(session, window))
    , m_birthdays(birthdays)
    , m_window(window)
{
    connect(m_import, &MvEntryFileImport::finished, this, &MvEntryImportFlow::tell);
    connect(birthdays, &MvBirthdayImport::finished, this, &MvEntryImportFlow::begin);
}

void MvEntryImportFlow::start()
{
    auto *dialog = new QFileDialog(m_window, tr("Termine importieren"), MvStudioSettings::folder(u"entries"_s));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"entriesFileDialog"_s);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters(MvEntryFiles::openFilter().split(u";;"_s));
    connect(dialog, &QFileDialog::filesSelected, this, &MvEntryImportFlow::import);
    dialog->open();
}

void MvEntryImportFlow::import(const QStringList &files)
{
    if (files.isEmpty())
        return;
    MvStudioSettings::setFolder(u"entries"_s, QFileInfo(files.first()).absolutePath());
    dropOfOther();
    m_waiting += files;
    m_calendar.emplace(m_session);
    begin();
}

/// Says so when another calendar is open than the one for which files wait.
bool MvEntryImportFlow::dropOfOther()
{
    if (m_waiting.isEmpty() || m_calendar->isStillOpen())
        return false;
    m_waiting.clear();
    Q_EMIT message(MvOpenCalendar::closedText());
    return true;
}

/// Cards after the others: both tell what they have done.
void MvEntryImportFlow::begin()
{
    if (m_import->isRunning() || m_birthdays->isRunning() || m_waiting.isEmpty() || dropOfOther())
        return;
    QStringList cards;
    QStringList others;
    for (const QString &file : std::exchange(m_waiting, {}))
        (MvEntryFiles::kindOf(file) == MvEntryFiles::Kind::Cards ? cards : others).append(file);
    if (others.isEmpty()) {
        m_birthdays->import(cards);
        return;
    }
    m_waiting = cards;
    Q_EMIT message(tr("Die Termine werden gelesen …"));
    m_import->import(others);
}

void MvEntryImportFlow::tell(const MvEntryFileImport::Result &result)
{
    Q_EMIT message(result.summary());
    if (!result.isCancelled)
        (new MvEntryImportReport(result, m_window))->open();
    Q_EMIT finished();
    begin();
}
