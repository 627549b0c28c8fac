// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventStore.h"

#include "MvCalendar/MvCalendarEventBytes.h"
#include "MvCalendar/MvCalendarEventMerge.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvSafeFileWriter.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// milliseconds
constexpr int firstRetry = 25;
constexpr int slowestRetry = 500;
constexpr int toldAsBusy = 3000;

/// Readable, if only in part. A well-formed file of another kind says nothing about entries.
bool isList(const MvCalendarEventFile::Content &content)
{
    return content.isRead() && !content.isForeign();
}

} // namespace

MvCalendarEventStore::MvCalendarEventStore(QObject *parent)
    : MvCalendarEventStore(Kept::InUserFile, parent)
{}

MvCalendarEventStore::MvCalendarEventStore(Kept kept, QObject *parent)
    : QObject(parent)
    , m_kept(kept)
    , m_bytes(std::make_unique<MvCalendarEventBytes>())
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &MvCalendarEventStore::saveNow);
    if (const QCoreApplication *application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, &MvCalendarEventStore::saveNow);
}

MvCalendarEventStore::~MvCalendarEventStore() = default;

QFileInfo MvCalendarEventStore::file() const
{
    if (m_kept == Kept::InMemory)
        return {};
    return MvDirectoryConfig::instance().programDataFile(u"calendarEvents.xml"_s);
}

bool MvCalendarEventStore::isFile(const QFileInfo &file) const
{
    return file.absoluteFilePath() == this->file().absoluteFilePath();
}

bool MvCalendarEventStore::isInPlace() const
{
    return QFileInfo(file().filePath()).isFile();
}

// ---- problems

bool MvCalendarEventStore::Problem::operator==(const Problem &other) const
{
    return kind == other.kind && text == other.text && setAside.filePath() == other.setAside.filePath();
}

MvCalendarEventStore::Problem MvCalendarEventStore::problem() const
{
    return m_writeProblem.isProblem() ? m_writeProblem : m_readProblem;
}

MvCalendarEventStore::Problem MvCalendarEventStore::problemOf(Problem::Kind kind, const QString &text) const
{
    return {kind, text, file(), {}, MvSafeFileWriter::backups(file()), {}};
}

void MvCalendarEventStore::changeProblem(Problem *problem, const Problem &value)
{
    const Problem before = this->problem();
    *problem = value;
    if (!(this->problem() == before))
        Q_EMIT problemChanged();
}

void MvCalendarEventStore::fail(Problem::Kind kind, const QString &text)
{
    qWarning().noquote() << text;
    changeProblem(&m_writeProblem, problemOf(kind, text));
}

QString MvCalendarEventStore::notSaved(const QString &reason) const
{
    return tr("%1 konnte nicht gespeichert werden: %2")
        .arg(QDir::toNativeSeparators(file().absoluteFilePath()), reason);
}

void MvCalendarEventStore::dismissReadProblem()
{
    changeProblem(&m_readProblem, {});
}

// ---- reading

MvCalendarEventFile::Content MvCalendarEventStore::read(bool becomesTheList)
{
    if (m_kept == Kept::InMemory) {
        MvCalendarEventFile::Content none;
        none.error = tr("Diese Einträge stehen in keiner Datei.");
        none.isMissing = true;
        return none;
    }
    const QByteArray stamp = MvFileGuard::stamp(file()); // before reading: a later change is then noticed
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(file());
    if (becomesTheList) {
        m_inFile = isList(content) ? content.events : MvCalendarEventList();
        m_present = m_inFile;
        m_stamp = stamp;
        m_isWrittenHere = false;
    }
    m_couldNotBeRead = false;
    noteContent(content);
    return content;
}

void MvCalendarEventStore::noteContent(const MvCalendarEventFile::Content &content)
{
    const bool isUnreadable = !isList(content) && !content.isMissing;
    const bool isPart = isList(content) && !content.isComplete;
    m_mustBeSetAside = isUnreadable || isPart;
    m_couldNotBeRead = m_couldNotBeRead || m_mustBeSetAside;
    if (m_mustBeSetAside)
        m_lastRead = isPart ? content.events : MvCalendarEventList();
    if (isUnreadable)
        changeProblem(&m_readProblem,
                      problemOf(Problem::Unreadable,
                                tr("Ihre Einträge konnten nicht gelesen werden. %1").arg(content.refusal())));
    else if (isPart) {
        Problem part =
            problemOf(Problem::PartlyReadable, tr("Ein Teil Ihrer Einträge in %1 konnte nicht gelesen werden.")
                                                   .arg(QDir::toNativeSeparators(file().absoluteFilePath())));
        part.skipped = content.skipped;
        changeProblem(&m_readProblem, part);
    } else if (m_readProblem.setAside.filePath().isEmpty()) // readable again before it was overwritten here
        dismissReadProblem();
}

MvCalendarEventList MvCalendarEventStore::withChangesOfOthers(const MvCalendarEventList &events)
{
    if (m_kept == Kept::InMemory)
        return events;
    const QByteArray stamp = MvFileGuard::stamp(file());
    if (stamp == m_stamp && !stamp.isEmpty())
        return events;
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(file()); // also when it is gone by now
    noteContent(content);
    if (!isList(content)) // an unreadable file does not mean that all entries were removed
        return events;
    MvLogger::legacyLog(u"CalendarEvents ACTION:mergeOtherInstance VALUE:%1"_s.arg(content.events.size()));
    return MvCalendarEventMerge::threeWay(MvCalendarEventMerge::withoutRepetitions(m_inFile), // as others read it
                                          events, content.events, content.isComplete);
}

// ---- writing

void MvCalendarEventStore::keep(const MvCalendarEventList &events, const Adopt &adopt)
{
    m_errorElsewhere.reset();
    m_present = events;
    if (m_kept == Kept::InMemory) {
        if (adopt)
            adopt(events);
        return;
    }
    if (!m_pending && isInFile(events)) {
        MvLogger::legacyLog(savingLine());
        if (adopt)
            adopt(events);
        MvPlatformIndependent::instance().fileWritten(QFileInfo(file().absoluteFilePath()));
        return;
    }
    m_pending = {events, bool(adopt)};
    tryPending(adopt);
}

/// This list was written by this program and the file has not changed since.
bool MvCalendarEventStore::isInFile(const MvCalendarEventList &events) const
{
    return m_isWrittenHere && m_inFile.isSame(events) && !m_stamp.isEmpty() && m_stamp == MvFileGuard::stamp(file());
}

QString MvCalendarEventStore::savingLine() const
{
    return u"CalendarEvents ACTION:saveToFile VALUE:%1"_s.arg(file().baseName());
}

void MvCalendarEventStore::noteWritten(const MvCalendarEventList &events)
{
    m_inFile = events;
    m_stamp = MvFileGuard::stamp(file());
    m_isWrittenHere = true;
}

bool MvCalendarEventStore::saveNow()
{
    if (!m_pending)
        return true;
    const MvCalendarEventList before = m_pending->events;
    bool isReplaced = false;
    tryPending([&](const MvCalendarEventList &events) {
        isReplaced = events != before || events.groups() != before.groups();
    });
    if (isReplaced)
        Q_EMIT eventsReplaced(m_present);
    return !m_pending;
}

void MvCalendarEventStore::tryPending(const Adopt &adopt)
{
    const Pending pending = *m_pending;
    m_retry.stop();
    MvDirectoryConfig::instance().programDataDir().mkpath(u"."_s);
    const MvFileGuard guard(file(), 0);
    const MvCalendarEventList all = guard.isLocked() ? withChangesOfOthers(pending.events) : pending.events;
    if (pending.adopts) {
        m_present = all;
        m_pending->events = all;
        adopt(all);
    }
    if (guard.state() == MvFileGuard::State::HeldByOthers) {
        waitForOthers(guard.reason());
        return;
    }
    m_waiting.invalidate();
    m_retry.setInterval(0);
    if (!guard.isLocked()) {
        fail(Problem::NotSaved, notSaved(guard.reason()));
        return;
    }
    if (!setAside() || !write(all))
        return;
    if (pending.adopts ||
        (all == pending.events &&
         all.groups() == pending.events.groups())) { // else the caller's list lacks some: the next change takes it in
        noteWritten(all);
    }
    m_pending.reset();
    changeProblem(&m_writeProblem, {});
}

void MvCalendarEventStore::waitForOthers(const QString &reason)
{
    if (!m_waiting.isValid())
        m_waiting.start();
    if (m_waiting.elapsed() >= toldAsBusy && m_writeProblem.kind != Problem::Busy)
        fail(Problem::Busy, tr("%1 konnte noch nicht gespeichert werden: %2 Es wird weiter versucht.")
                                .arg(QDir::toNativeSeparators(file().absoluteFilePath()), reason));
    const int next = m_retry.interval() > 0 ? m_retry.interval() * 2 : firstRetry;
    if (QCoreApplication::instance()) // nobody else has an event loop; the next change or saveNow() tries again
        m_retry.start(std::min(next, slowestRetry));
}

/// Keeps a file that holds what is not in the list.
bool MvCalendarEventStore::setAside()
{
    if (m_mustBeSetAside && QFileInfo::exists(file().absoluteFilePath())) {
        const QString aside = MvSafeFileWriter::setAside(file());
        if (aside.isEmpty()) {
            fail(Problem::NotSaved, tr("%1 ist nicht vollständig lesbar und ließ sich nicht beiseitelegen. Es wurde "
                                       "nichts überschrieben.")
                                        .arg(QDir::toNativeSeparators(file().absoluteFilePath())));
            return false;
        }
        MvLogger::legacyLog(u"CalendarEvents ACTION:setAside VALUE:%1"_s.arg(aside));
        Problem told = m_readProblem;
        told.setAside = QFileInfo(aside);
        changeProblem(&m_readProblem, told);
    }
    m_mustBeSetAside = false;
    return true;
}

bool MvCalendarEventStore::write(const MvCalendarEventList &events)
{
    MvLogger::legacyLog(savingLine());
    // while a person may still want a backup, none is pushed out by newer ones
    const auto backups = m_readProblem.isProblem() ? MvSafeFileWriter::Backups::None : MvSafeFileWriter::Backups::Keep;
    const MvOutcome result = MvSafeFileWriter::write(file(), m_bytes->of(events), backups);
    if (!result.isOk()) {
        fail(Problem::NotSaved, result.error);
        return false;
    }
    if (!result.notes.isEmpty())
        MvLogger::legacyLog(u"CalendarEvents ACTION:saveToFile NOTE:%1"_s.arg(result.notes.join(u' ')));
    MvPlatformIndependent::instance().fileWritten(QFileInfo(file().absoluteFilePath()));
    return true;
}

void MvCalendarEventStore::writeElsewhere(const QFileInfo &file, const MvCalendarEventList &events)
{
    MvLogger::legacyLog(u"CalendarEvents ACTION:saveToFile VALUE:%1"_s.arg(file.baseName()));
    const MvOutcome result = MvSafeFileWriter::write(file, MvCalendarEventFile::toBytes(events));
    m_errorElsewhere = result.error;
    if (!result.isOk()) {
        qWarning().noquote() << result.error;
        return;
    }
    if (!result.notes.isEmpty())
        MvLogger::legacyLog(u"CalendarEvents ACTION:saveToFile NOTE:%1"_s.arg(result.notes.join(u' ')));
    MvPlatformIndependent::instance().fileWritten(QFileInfo(file.absoluteFilePath()));
}

MvOutcome MvCalendarEventStore::restoreBackup(const QFileInfo &backup)
{
    const MvCalendarEventFile::Content content = MvCalendarEventFile::read(backup);
    if (!isList(content))
        return {content.refusal(), {}};
    if (m_kept == Kept::InMemory) {
        m_present = content.events;
        Q_EMIT eventsReplaced(m_present);
        return {};
    }
    MvDirectoryConfig::instance().programDataDir().mkpath(u"."_s);
    const MvFileGuard guard(file(), 0);
    if (!guard.isLocked())
        return {notSaved(guard.reason()), {}};
    const MvCalendarEventList present = withChangesOfOthers(m_present);
    m_mustBeSetAside = m_mustBeSetAside || m_readProblem.setAside.filePath().isEmpty();
    if (!setAside())
        return {m_writeProblem.text, {}};
    const MvCalendarEventList before = m_readProblem.isProblem() ? m_lastRead : m_inFile;
    const MvCalendarEventList all = MvCalendarEventMerge::threeWay(before, content.events, present);
    m_present = all;
    m_pending = {all, true};
    m_retry.stop();
    if (write(all)) {
        noteWritten(all);
        m_pending.reset();
        m_couldNotBeRead = false;
        changeProblem(&m_writeProblem, {});
        dismissReadProblem();
    }
    Q_EMIT eventsReplaced(all);
    return {};
}
