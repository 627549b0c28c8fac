// SPDX-License-Identifier: LGPL-2.1-or-later
#include "flows/MvBirthdayImport.h"

#include "MvCalendar/MvAddressBookImport.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvBackground.h"
#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "common/MvProgressDialog.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvImportReport.h"
#include "flows/MvUndoCommandEventList.h"

#include <QFileDialog>
#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>
#include <QWidget>

using namespace Qt::StringLiterals;

using Order = MvVCardDate::Order;

namespace {

constexpr int progressInterval = 100; // milliseconds
constexpr int progressDelay = 400;    // until a dialog shows it: small files are read by then
constexpr int progressSteps = 1000;

} // namespace

MvBirthdayImport::MvBirthdayImport(MvProject *project, QWidget *window)
    : QObject(window)
    , m_project(project)
    , m_session(project->session())
    , m_window(window)
{
    connect(&m_progressTimer, &QTimer::timeout, this, &MvBirthdayImport::showProgress);
}

MvBirthdayImport::~MvBirthdayImport()
{
    if (m_import)
        m_import->cancel();
}

void MvBirthdayImport::start()
{
    auto *dialog = new QFileDialog(m_window, tr("Geburtstage aus einem Adressbuch importieren"),
                                   MvStudioSettings::folder(u"contacts"_s));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"contactsFileDialog"_s);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({tr("Visitenkarten (*.vcf *.vcard)"), tr("Alle Dateien (*)")});
    connect(dialog, &QFileDialog::filesSelected, this, &MvBirthdayImport::import);
    dialog->open();
}

void MvBirthdayImport::import(const QStringList &files)
{
    if (isRunning() || files.isEmpty())
        return;
    MvStudioSettings::setFolder(u"contacts"_s, QFileInfo(files.first()).absolutePath());
    Q_EMIT message(tr("Das Adressbuch wird gelesen …"));
    QList<QFileInfo> infos;
    for (const QString &file : files)
        infos.append(QFileInfo(file));
    const MvCalendarDocument &calendar = m_project->document();
    m_import = std::make_shared<MvAddressBookImport>(infos, calendar.isValid() ? calendar.holidayConfig().language()
                                                                               : MvLocale());
    m_calendar.emplace(m_session);
    runInBackground([](MvAddressBookImport &import) { import.readCards(); }, &MvBirthdayImport::askForOrder);
}

void MvBirthdayImport::runInBackground(const std::function<void(MvAddressBookImport &)> &work,
                                       void (MvBirthdayImport::*then)())
{
    if (!m_progress)
        m_progressTimer.start(progressDelay);
    auto *watcher = new QFutureWatcher<void>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, then, import = m_import] {
        watcher->deleteLater();
        if (import != m_import) // it was cancelled
            return;
        m_calendar->isStillOpen() ? (this->*then)() : drop();
    });
    const auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    watcher->setFuture(promise->future());
    MvBackground::start(*QThreadPool::globalInstance(), [promise, work, import = m_import] {
        work(*import);
        promise->finish();
    });
}

void MvBirthdayImport::showProgress()
{
    if (!m_progress) {
        m_progress = new MvProgressDialog(tr("Geburtstage importieren"), tr("Das Adressbuch wird gelesen …"), m_window);
        connect(m_progress, &MvProgressDialog::canceled, this, &MvBirthdayImport::cancel);
        m_progress->open();
        m_progressTimer.start(progressInterval);
    }
    m_progress->setProgress(int(m_import->progress() * progressSteps), progressSteps);
}

void MvBirthdayImport::hideProgress()
{
    m_progressTimer.stop();
    if (m_progress)
        m_progress->finish();
    m_progress = nullptr;
}

void MvBirthdayImport::cancel()
{
    if (!isRunning())
        return;
    m_import->cancel();
    m_import.reset(); // its photos go when the thread lets go of it
    hideProgress();
    Q_EMIT message(tr("Import abgebrochen; es wurde nichts übernommen"));
    Q_EMIT finished(0, 0);
}

void MvBirthdayImport::drop()
{
    hideProgress();
    m_import.reset();
    Q_EMIT message(MvOpenCalendar::closedText());
    MvStudioMessage::information(m_window, tr("Keine Geburtstage übernommen"), MvOpenCalendar::closedText());
    Q_EMIT finished(0, 0);
}

/// Of a date that is read differently in different countries.
void MvBirthdayImport::askForOrder()
{
    const MvVCardDate example = m_import->openExample();
    if (example.isEmpty()) {
        makeEntries(Order::Unknown);
        return;
    }
    hideProgress();
    const QLocale locale = MvApplicationLocale::instance().locale();
    const auto read = [&](Order order) { return locale.toString(example.date(order), tr("d. MMMM")); };
    MvRequestHandler::ChoiceRequest request;
    request.title = tr("Geburtstage importieren");
    request.text = tr("Ist mit „%1“ der %2 gemeint?").arg(example.text(), read(Order::DayFirst));
    request.details =
        tr("In der Datei steht nirgends, ob der Tag oder der Monat vorn steht. Ihre Antwort gilt für alle "
           "Daten, die so geschrieben sind.");
    request.buttons = {tr("Ja, der %1").arg(read(Order::DayFirst)), tr("Nein, der %1").arg(read(Order::MonthFirst)),
                       tr("Diese auslassen")};
    const auto answered = [self = QPointer(this), import = std::weak_ptr(m_import)](int button) {
        static constexpr Order orders[] = {Order::DayFirst, Order::MonthFirst, Order::Unknown};
        if (self && self->m_import && self->m_import == import.lock())
            self->makeEntries(orders[qBound(0, button, 2)]);
    };
    MvRequestHandler::current().askChoice(request, m_window, answered);
}

void MvBirthdayImport::makeEntries(Order order)
{
    runInBackground([order, known = m_session.entries().activeEventList()](
                        MvAddressBookImport &import) { import.makeEntries(known, order); },
                    &MvBirthdayImport::finish);
}

void MvBirthdayImport::finish()
{
    hideProgress();
    const std::shared_ptr<MvAddressBookImport> import = std::exchange(m_import, nullptr);
    MvCalendarEventRegistry &registry = m_session.entries();
    const MvCalendarEventList events = registry.onlyNewEvents(registry.activeEventList(), import->takeEvents());
    if (!events.isEmpty())
        m_session.undo().push(new MvUndoCommandEventList(tr("Geburtstage importieren"), events, m_session));
    const MvImportReport report(import->report(), int(events.size()), problemOfFile());
    Q_EMIT message(report.summary());
    if (report.isError())
        MvStudioMessage::error(m_window, report.summary(), report.details());
    else
        MvStudioMessage::information(m_window, report.summary(), report.details());
    Q_EMIT finished(import->report().found, int(events.size()));
}

/// Why the entries are not on disk yet; empty when they are.
QString MvBirthdayImport::problemOfFile() const
{
    const MvCalendarEventStore &file = m_session.entries().userFile();
    if (!file.hasUnsavedChanges())
        return {};
    const QString text = file.problem().text;
    return text.isEmpty() ? tr("Ein anderes Programm arbeitet gerade mit der Datei; gespeichert wird danach.") : text;
}
