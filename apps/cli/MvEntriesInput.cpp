// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesInput.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvRegularFile.h"
#include "MvProject/MvProjectFile.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostHints = 20;

} // namespace

bool MvEntriesInput::isProject(const QString &file)
{
    if (isStandardStream(file))
        return false;
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(file));
    return opened.isOk() && opened.file->peek(4096).contains("<calendarproject");
}

QString MvEntriesInput::nameOf(const QString &file)
{
    return isStandardStream(file) ? tr("Standardeingabe") : QDir::toNativeSeparators(file);
}

MvEntryReading MvEntriesInput::readStandardInput(const MvLocale &language)
{
    QFile input;
    const QByteArray bytes =
        input.open(stdin, QIODevice::ReadOnly) ? input.read(MvEntryIntake::largestFile + 1) : QByteArray();
    const QString name = nameOf(u"-"_s);
    MvEntryReading reading;
    if (bytes.size() > MvEntryIntake::largestFile)
        reading.error = tr("%1: mehr als %2 MB").arg(name).arg(MvEntryIntake::largestFile >> 20);
    else
        reading = MvEntryIntake::read(bytes, name, language);
    return reading;
}

MvEntryReading MvEntriesInput::readProject(const QString &file)
{
    const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(file));
    MvEntryReading reading;
    reading.error = content.error;
    if (reading.isOk() && content.entries) {
        reading.error = content.entries->refusal();
        reading.events = content.entries->events;
        reading.skipped = content.entries->skipped;
    } else if (reading.isOk() && !content.document.entriesFile().isEmpty()) {
        reading =
            MvEntryIntake::read(QFileInfo(content.document.entriesFile()), content.document.holidayConfig().language());
    } else if (reading.isOk()) { // it shows those of the user
        reading.events = MvCalendarEventRegistry::instance().ownEvents();
    }
    return reading;
}

MvEntryReading MvEntriesInput::read(const QString &file, const MvLocale &language)
{
    if (isStandardStream(file))
        return readStandardInput(language);
    return isProject(file) ? readProject(file) : MvEntryIntake::read(QFileInfo(file), language);
}

void MvEntriesInput::printSkipped(const MvEntryReading &reading, const QString &file, QTextStream &hints)
{
    const QString name = nameOf(file);
    for (const MvCalendarEventFile::Skipped &skipped : reading.skipped.mid(0, mostHints))
        hints << tr("%1: ausgelassen: %2").arg(name, skipped.describe()) << '\n';
    if (reading.skipped.size() > mostHints)
        hints << tr("%1: %n weitere ausgelassen", nullptr, int(reading.skipped.size()) - mostHints).arg(name) << '\n';
    for (const QString &note : reading.notes.mid(0, mostHints))
        hints << tr("%1: %2").arg(name, note) << '\n';
}
