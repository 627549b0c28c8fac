// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRenderEntries.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvCore/MvRegularFile.h"
#include "MvEntriesInput.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostHints = 20;

/// What cannot be opened or is empty counts as one: then that is what is said of it.
bool isListFile(const QString &path)
{
    if (MvEntriesInput::isStandardStream(path) || MvEntriesInput::isProject(path))
        return false;
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(path));
    return !opened.isOk() || opened.file->size() == 0 ||
           MvEntryIntake::kindOf(opened.file->peek(4096)) == MvEntryIntake::Kind::List;
}

} // namespace

MvRenderEntries MvRenderEntries::ofFile(const QString &path, const MvLocale &language)
{
    MvRenderEntries entries;
    entries.m_isFile = true;
    entries.m_isList = isListFile(path);
    MvCalendarEventFile::Content content;
    if (!entries.m_isList) {
        const MvEntryReading reading = MvEntriesInput::read(path, language);
        content.events = reading.events;
        content.error = reading.error;
        content.skipped = reading.skipped;
        entries.m_notes = reading.notes;
        entries.m_fotos = reading.fotos;
    }
    if (entries.m_isList)
        content = MvEntryIntake::readAsList(QFileInfo(path));
    entries.take(content, QFileInfo(path));
    return entries;
}

void MvRenderEntries::take(const MvCalendarEventFile::Content &content, const QFileInfo &file)
{
    m_file = file;
    m_error = content.refusal();
    m_skipped = content.skipped;
    m_areShown = m_error.isEmpty() && !content.events.isEmpty();
    if (m_error.isEmpty()) // an empty list is not the user's
        m_source = std::make_shared<const MvCalendarEventListSource>(content.events);
}

MvRenderEntries MvRenderEntries::ofProject(const MvCliProject &project)
{
    const QString file = project.document.entriesFile();
    if (!project.document.holidayConfig().hasFeatures(FEATURE_ENTRIES))
        return {};
    if (!project.entries)
        return file.isEmpty() ? own() : ofFile(file, project.document.holidayConfig().language());
    MvRenderEntries entries;
    entries.take(*project.entries, project.file);
    return entries;
}

MvCalendarEventList MvRenderEntries::list() const
{
    return m_source ? m_source->events() : MvCalendarEventRegistry::instance().activeEventList();
}

MvRenderEntries MvRenderEntries::own()
{
    using Problem = MvCalendarEventStore::Problem;
    const Problem problem = MvCalendarEventRegistry::instance().userFile().problem();
    MvRenderEntries entries;
    entries.m_file = problem.file;
    entries.m_skipped = problem.skipped;
    entries.m_areShown = true;
    if (problem.kind != Problem::Unreadable)
        return entries;
    entries.m_error = problem.text;
    if (!problem.backups.isEmpty()) {
        const QFileInfo &backup = problem.backups.first();
        entries.m_error += u' ' + tr("Eine frühere Fassung vom %1: %2")
                                      .arg(QLocale().toString(backup.lastModified(), QLocale::ShortFormat),
                                           QDir::toNativeSeparators(backup.filePath()));
    }
    return entries;
}

void MvRenderEntries::printHints(QTextStream &hints) const
{
    const QString file = MvEntriesInput::nameOf(m_file.filePath());
    for (const MvCalendarEventFile::Skipped &skipped : m_skipped.mid(0, mostHints))
        hints << tr("%1: nicht gedruckt: %2").arg(file, skipped.describe()) << '\n';
    if (m_skipped.size() > mostHints)
        hints << tr("%1: %n weitere nicht gedruckt; --report json nennt alle", nullptr,
                    int(m_skipped.size() - mostHints))
                     .arg(file)
              << '\n';
    for (const QString &note : m_notes)
        hints << tr("%1: %2").arg(file, note) << '\n';
    if (m_isFile && !m_areShown)
        hints << tr("%1: keine Einträge gefunden").arg(file) << '\n';
}
