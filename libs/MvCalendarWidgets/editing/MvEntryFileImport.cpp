// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryFileImport.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryTableDialog.h"

#include "MvCore/MvBackground.h"

#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

QString MvEntryFileImport::Result::summary() const
{
    if (isDropped)
        return MvOpenCalendar::closedText();
    if (isCancelled)
        return MvEntryFileImport::tr("Nichts übernommen");
    if (report.added + report.changed + report.equal == 0 && !errors.isEmpty())
        return MvEntryFileImport::tr("%n Dateien ließen sich nicht lesen.", nullptr, int(errors.size()));
    return report.describe();
}

MvEntryFileImport::MvEntryFileImport(MvSession &session, QWidget *window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
{}

MvEntryFileImport::~MvEntryFileImport() = default;

void MvEntryFileImport::import(const QStringList &files)
{
    if (m_isRunning || files.isEmpty())
        return;
    m_isRunning = true;
    m_files = files;
    m_readings.clear();
    m_result = {};
    m_calendar.emplace(m_session);
    next();
}

void MvEntryFileImport::next()
{
    if (m_files.isEmpty() || !m_calendar->isStillOpen()) {
        copyFotos();
        return;
    }
    const QString file = m_files.takeFirst();
    if (MvEntryIntake::isTable(QFileInfo(file)))
        askForTable(file);
    else
        readInThread(file);
}

void MvEntryFileImport::askForTable(const QString &file)
{
    MvEntryTableDialog::ask(QFileInfo(file), m_window, this, [this, file](const std::optional<MvEntryReading> &table) {
        if (table) {
            add(file, *table);
        } else { // all files are one step: none is taken then
            m_readings.clear();
            m_files.clear();
            m_result.isCancelled = true;
            next();
        }
    });
}

void MvEntryFileImport::readInThread(const QString &file)
{
    auto *watcher = new QFutureWatcher<MvEntryReading>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher, file] {
        watcher->deleteLater();
        add(file, watcher->result());
    });
    const auto promise = std::make_shared<QPromise<MvEntryReading>>();
    promise->start();
    watcher->setFuture(promise->future());
    MvBackground::start(*QThreadPool::globalInstance(), [promise, file] {
        promise->addResult(MvEntryIntake::read(QFileInfo(file)));
        promise->finish();
    });
}

void MvEntryFileImport::add(const QString &file, const MvEntryReading &reading)
{
    if (reading.isOk())
        m_readings.append({QFileInfo(file).fileName(), reading});
    else
        m_result.errors.append(reading.error);
    next();
}

/// Photos of a list that lie beside it are copied first, in the background.
void MvEntryFileImport::copyFotos()
{
    if (!m_calendar->isStillOpen()) {
        finish();
        return;
    }
    MvCalendarEventList all;
    for (const auto &[name, reading] : std::as_const(m_readings))
        all += reading.events;
    m_session.entries().prepareFotos(all, this, [this] {
        if (m_calendar->isStillOpen())
            take();
        finish();
    });
}

void MvEntryFileImport::take()
{
    MvCalendarEventRegistry &registry = m_session.entries();
    const MvCalendarEventList before = registry.activeEventList();
    MvCalendarEventList after = before;
    for (const auto &[name, reading] : std::as_const(m_readings)) {
        MvEntryIntake::Report report;
        after = MvEntryIntake::joined(after, reading, &report);
        m_result.report.added += report.added;
        m_result.report.changed += report.changed;
        m_result.report.equal += report.equal;
        m_result.report.skipped += report.skipped;
        for (const MvCalendarEventFile::Skipped &skipped : std::as_const(report.skipped))
            m_result.lines.append(tr("%1: %2").arg(name, skipped.describe()));
        for (const QString &note : std::as_const(report.notes))
            m_result.lines.append(tr("%1: %2").arg(name, note));
    }
    QList<MvEntryChange> changes;
    for (qsizetype i = 0; i < after.size(); ++i) {
        const MvCalendarEvent old = i < before.size() ? before.at(i) : MvCalendarEvent();
        if (!old.isValid() || !(old == after.at(i)))
            changes.append({old, after.at(i)});
    }
    const QString name = tr("Termine importieren");
    MvEntryEdits(m_session).change(name, name, changes, MvEntryEdits::Reach::AsSet, after.groups());
}

void MvEntryFileImport::finish()
{
    m_result.isDropped = !m_result.isCancelled && !m_calendar->isStillOpen();
    m_readings.clear();
    m_isRunning = false;
    Q_EMIT finished(std::exchange(m_result, {}));
}
