// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesPlace.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCore/MvRegularFile.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvEntriesInput.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectEntryFotos.h"

#include <QDir>

MvEntriesPlace::MvEntriesPlace(const QString &path)
    : m_path(path)
{}

MvEntriesPlace::~MvEntriesPlace() = default;

MvEntryReading MvEntriesPlace::read()
{
    MvEntryReading reading;
    if (m_path.isEmpty()) {
        const MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
        const MvCalendarEventStore::Problem problem = registry.userFile().problem();
        if (problem.kind == MvCalendarEventStore::Problem::Unreadable)
            reading.error = problem.text;
        reading.events = registry.ownEvents();
    } else if (MvEntriesInput::isProject(m_path)) {
        reading = readProject();
    } else {
        reading = readFile();
    }
    if (reading.isOk() && !reading.skipped.isEmpty())
        reading.error = tr("%1 ist nicht vollständig lesbar und bleibt, wie es ist: %2")
                            .arg(QDir::toNativeSeparators(m_path), reading.skipped.first().describe());
    return reading;
}

MvEntryReading MvEntriesPlace::readFile()
{
    const QFileInfo file(m_path);
    m_guard.emplace(file);
    MvEntryReading reading;
    if (!m_guard->isLocked())
        reading.error = tr("%1: %2").arg(QDir::toNativeSeparators(m_path), m_guard->reason());
    if (!reading.isOk() || !file.exists())
        return reading;
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    constexpr qint64 enough = 4096; // to know the kind
    if (opened.isOk() && MvEntryIntake::kindOf(opened.file->peek(enough)) != MvEntryIntake::Kind::List) {
        reading.error =
            tr("%1 ist keine Liste von Einträgen (XML) und bleibt, wie es ist").arg(QDir::toNativeSeparators(m_path));
        return reading;
    }
    return MvEntryIntake::read(file);
}

MvEntryReading MvEntriesPlace::readProject()
{
    MvEntryReading reading = MvEntriesInput::read(m_path);
    if (!reading.isOk() || !reading.skipped.isEmpty())
        return reading;
    m_project = std::make_unique<MvProject>();
    m_project->keepEntries();
    const MvOutcome opened = m_project->open(QFileInfo(m_path));
    reading.error = opened.error;
    reading.notes = opened.notes;
    reading.events = MvCalendarEventRegistry::instance().activeEventList();
    return reading;
}

MvOutcome MvEntriesPlace::takeFoto(MvCalendarEvent &event, const QFileInfo &file) const
{
    if (m_path.isEmpty())
        return event.takeFoto(MvFoto(file));
    event.relocateFoto(MvFoto(file)); // a copy comes into being when it is stored
    if (event.imageSize().isValid())
        return {};
    return {tr("%1 lässt sich nicht als Foto lesen").arg(QDir::toNativeSeparators(file.filePath())), {}};
}

MvOutcome MvEntriesPlace::store(MvCalendarEventList events, const QList<QUuid> &added)
{
    if (m_path.isEmpty())
        return storeOwn(events);
    return m_project ? storeProject(events) : storeFile(std::move(events), added);
}

MvOutcome MvEntriesPlace::storeOwn(const MvCalendarEventList &events) const
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setOwnEvents(events);
    registry.userFile().saveNow();
    return {registry.lastSaveError(), {}};
}

MvOutcome MvEntriesPlace::storeFile(MvCalendarEventList events, const QList<QUuid> &added) const
{
    QStringList notes;
    for (MvCalendarEvent &event : events) {
        if (!added.contains(event.uuid()) || !event.foto().isValid())
            continue;
        const MvProjectEntryFotos::Taken taken =
            MvProjectEntryFotos::takeAlong(MvCalendarEventList{event}, QFileInfo(m_path).absoluteDir());
        event.relocateFoto(taken.events.first().foto());
        notes += taken.notes;
    }
    MvOutcome written = MvSafeFileWriter::write(QFileInfo(m_path), MvCalendarEventFile::toBytes(events));
    written.notes += notes;
    return written;
}

MvOutcome MvEntriesPlace::storeProject(const MvCalendarEventList &events)
{
    const MvProjectEntryFotos::Taken taken =
        MvProjectEntryFotos::takeAlong(events, m_project->fileInfo().absoluteDir());
    MvCalendarEventRegistry::instance().setEvents(taken.events);
    MvOutcome saved = m_project->save();
    saved.notes += taken.notes;
    if (saved.isOk() && !m_project->document().holidayConfig().hasFeatures(MvCalendariumFeatures(FEATURE_ENTRIES)))
        saved.notes.append(tr("Auf den Seiten dieses Kalenders sind persönliche Einträge ausgeschaltet."));
    return saved;
}
