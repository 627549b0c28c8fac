// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryIntake.h"

#include "MvCalendar/MvCardIntake.h"
#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvFileText.h"
#include "MvCalendar/MvICalendar.h"

#include "MvCore/MvRegularFile.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 looked = 4096; // bytes that tell what a file is

/// Groups of the other list by those of this one.
QHash<QString, QString> groupIds(MvEventGroupList &groups, const MvEventGroupList &others, MvEntryIntake::Origin origin)
{
    QHash<QString, QString> ids;
    for (const MvEventGroup &group : others) {
        const bool isKnown = groups.findName(group.name);
        if (!isKnown && origin == MvEntryIntake::Origin::OtherList) {
            ids.insert(group.id, group.id);
            if (!groups.find(group.id))
                groups.put(group);
            continue;
        }
        ids.insert(group.id, groups.idOfName(group.name));
        if (!isKnown) { // with its colour and the rest
            MvEventGroup own = group;
            own.id = ids.value(group.id);
            groups.put(own);
        }
    }
    return ids;
}

MvEntryReading readingOf(const MvCalendarEventFile::Content &content)
{
    MvEntryReading reading;
    reading.error = content.refusal();
    reading.events = content.events;
    reading.skipped = content.skipped;
    if (!content.note.isEmpty())
        reading.notes.append(content.note);
    return reading;
}

/// Of those that a list has more than once.
QSet<QUuid> sharedUuids(const MvCalendarEventList &events)
{
    QSet<QUuid> known;
    QSet<QUuid> shared;
    for (const MvCalendarEvent &event : events)
        (known.contains(event.uuid()) ? shared : known).insert(event.uuid());
    return shared;
}

bool isSame(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.description() == b.description() && a.dateTime().date() == b.dateTime().date() &&
           a.storedRecurrent() == b.storedRecurrent() && a.hasSameExtras(b);
}

size_t keyOf(const MvCalendarEvent &event)
{
    return qHashMulti(0, event.description(), event.dateTime().date(), event.endDate(), event.time(),
                      event.repetition());
}

} // namespace

QString MvEntryIntake::Report::describe() const
{
    return MvEntryIntake::tr("%1 neu, %2 geändert, %3 gleich, %4 ausgelassen")
        .arg(added)
        .arg(changed)
        .arg(equal)
        .arg(skipped.size());
}

MvEntryIntake::Kind MvEntryIntake::kindOf(const QByteArray &begin)
{
    const QByteArray some = begin.left(looked);
    const QString text = MvFileText::decoded(some, MvFileText::encodingOf(some)).remove(QChar(0xFEFF)).trimmed();
    if (text.startsWith(u'<'))
        return Kind::List;
    if (text.startsWith(u"BEGIN:VCALENDAR", Qt::CaseInsensitive))
        return Kind::Calendar;
    if (text.startsWith(u"BEGIN:VCARD", Qt::CaseInsensitive))
        return Kind::Cards;
    if (text.contains(QChar(0)))
        return Kind::Unknown;
    return text.contains(u'\n') || text.contains(u';') || text.contains(u',') || text.contains(u'\t') ? Kind::Table
                                                                                                      : Kind::Unknown;
}

bool MvEntryIntake::isTable(const QFileInfo &file)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    return opened.isOk() && opened.file->size() <= largestFile && kindOf(opened.file->peek(looked)) == Kind::Table;
}

MvEntryReading MvEntryIntake::read(const QFileInfo &file, const MvLocale &language)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    const QString name = QDir::toNativeSeparators(file.filePath());
    MvEntryReading reading;
    if (!opened.isOk())
        reading.error = tr("%1: %2").arg(name, opened.error);
    else if (kindOf(opened.file->peek(looked)) == Kind::List)
        reading = readingOf(MvCalendarEventFile::read(file)); // whose photos lie beside it, and which may be larger
    else if (opened.file->size() > largestFile)
        reading.error = tr("%1: Die Datei ist größer als %2 MB.").arg(name).arg(largestFile >> 20);
    else
        reading = read(opened.file->readAll(), name, language);
    return reading;
}

MvEntryReading MvEntryIntake::read(const QByteArray &bytes, const QString &name, const MvLocale &language)
{
    MvEntryReading reading;
    switch (kindOf(bytes)) {
    case Kind::Calendar:
        reading = MvICalendar::read(bytes);
        break;
    case Kind::Table:
        reading = MvEntryTable::read(bytes);
        break;
    case Kind::List: {
        QTemporaryFile file;
        if (file.open() && file.write(bytes) == bytes.size() && file.flush()) {
            const MvCalendarEventFile::Content content = MvCalendarEventFile::read(QFileInfo(file.fileName()));
            reading = readingOf(content);
            reading.error.replace(QDir::toNativeSeparators(file.fileName()), name);
        }
        return reading; // which says its name itself
    }
    case Kind::Cards:
        reading = MvCardIntake::read(bytes, language);
        break;
    case Kind::Unknown:
        reading.error = tr("Das ist weder eine Liste von Einträgen noch ein Kalender (iCalendar), eine Tabelle (CSV) "
                           "oder eine Datei mit Visitenkarten (vCard).");
        break;
    }
    if (!reading.isOk())
        reading.error = tr("%1: %2").arg(name, reading.error);
    return reading;
}

MvCalendarEventFile::Content MvEntryIntake::readAsList(const QFileInfo &file)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    const Kind kind = opened.isOk() ? kindOf(opened.file->peek(looked)) : Kind::List;
    if (kind == Kind::Calendar || kind == Kind::Table) {
        const MvEntryReading reading = read(file);
        if (reading.isOk() || kind == Kind::Calendar)
            return asList(reading, file);
    }
    return MvCalendarEventFile::read(file); // which says what is wrong with it
}

MvCalendarEventFile::Content MvEntryIntake::asList(const MvEntryReading &reading, const QFileInfo &file)
{
    MvCalendarEventFile::Content content;
    content.events = reading.events;
    content.error = reading.error;
    content.skipped = reading.skipped;
    QStringList notes;
    for (const QString &note : reading.notes)
        notes.append(tr("%1: %2").arg(QDir::toNativeSeparators(file.filePath()), note));
    content.note = notes.join(u'\n');
    content.isComplete = reading.isOk() && reading.skipped.isEmpty();
    return content;
}

MvCalendarEventList MvEntryIntake::inGroups(const MvEventGroupList &groups, const MvCalendarEventList &events,
                                            Origin origin)
{
    MvCalendarEventList result = events;
    MvEventGroupList all = groups;
    const QHash<QString, QString> ids = groupIds(all, events.groups(), origin);
    result.setGroups(all);
    for (MvCalendarEvent &event : result) {
        QStringList own;
        for (const QString &id : event.groups())
            own.append(ids.value(id, id));
        if (own != event.groups())
            event.setGroups(own);
    }
    return result;
}

MvCalendarEventList MvEntryIntake::joined(const MvCalendarEventList &list, const MvEntryReading &reading,
                                          Report *report)
{
    MvCalendarEventList result = list;
    *report = {};
    report->skipped = reading.skipped;
    report->notes = reading.notes;
    const MvCalendarEventList read = inGroups(list.groups(), reading.events);
    result.setGroups(read.groups());
    QMultiHash<size_t, qsizetype> byContent;
    QHash<QUuid, qsizetype> byUuid;
    const QSet<QUuid> shared = sharedUuids(result) + sharedUuids(read);
    for (qsizetype i = 0; i < result.size(); ++i) {
        byContent.insert(keyOf(result.at(i)), i);
        byUuid.insert(result.at(i).uuid(), i);
    }
    for (MvCalendarEvent event : read) {
        const QList<qsizetype> alike = byContent.values(keyOf(event));
        const auto isEqual = [&](qsizetype i) { return isSame(result.at(i), event); };
        const qsizetype known = shared.contains(event.uuid()) ? -1 : byUuid.value(event.uuid(), -1);
        if (std::any_of(alike.cbegin(), alike.cend(), isEqual)) {
            ++report->equal;
        } else if (known >= 0 && !event.uuid().isNull()) {
            const MvFoto foto = result.at(known).foto();
            if (!event.foto().isValid() && foto.isValid())
                event.setFoto(foto);
            result[known] = event;
            byContent.insert(keyOf(event), known);
            ++report->changed;
        } else {
            byContent.insert(keyOf(event), result.size());
            byUuid.insert(event.uuid(), result.size());
            result.append(event);
            ++report->added;
        }
    }
    return result;
}
