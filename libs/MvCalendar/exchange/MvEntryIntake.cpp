// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryIntake.h"

#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"

#include "MvCore/MvRegularFile.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QStringDecoder>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace {

/// Groups of the other list by those of this one.
QHash<QString, QString> groupIds(MvEventGroupList &groups, const MvEventGroupList &others)
{
    QHash<QString, QString> ids;
    for (const MvEventGroup &group : others) {
        const bool isKnown = groups.findName(group.name);
        ids.insert(group.id, groups.idOfName(group.name));
        if (!isKnown) { // with its colour and the rest
            MvEventGroup own = group;
            own.id = ids.value(group.id);
            groups.put(own);
        }
    }
    return ids;
}

bool isSame(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.description() == b.description() && a.dateTime().date() == b.dateTime().date() &&
           a.storedRecurrent() == b.storedRecurrent() && a.hasSameExtras(b);
}

size_t keyOf(const MvCalendarEvent &event)
{
    return qHashMulti(0, event.description(), event.dateTime().date());
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
    QStringDecoder decode(QStringConverter::encodingForData(begin).value_or(QStringConverter::Latin1));
    const QString text = QString(decode(begin.left(4096))).remove(QChar(0xFEFF)).trimmed();
    if (text.startsWith(u'<'))
        return Kind::List;
    if (text.startsWith(u"BEGIN:VCALENDAR", Qt::CaseInsensitive))
        return Kind::Calendar;
    if (text.startsWith(u"BEGIN:VCARD", Qt::CaseInsensitive) || text.contains(QChar(0)))
        return Kind::Unknown;
    return text.contains(u'\n') || text.contains(u';') || text.contains(u',') || text.contains(u'\t') ? Kind::Table
                                                                                                      : Kind::Unknown;
}

MvEntryReading MvEntryIntake::read(const QFileInfo &file)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    const QString name = QDir::toNativeSeparators(file.filePath());
    MvEntryReading reading;
    if (!opened.isOk())
        reading.error = tr("%1: %2").arg(name, opened.error);
    else if (opened.file->size() > largestFile)
        reading.error = tr("%1: Die Datei ist größer als %2 MB.").arg(name).arg(largestFile >> 20);
    else {
        const QByteArray bytes = opened.file->readAll();
        if (kindOf(bytes) != Kind::List)
            return read(bytes, name);
        const MvCalendarEventFile::Content content = MvCalendarEventFile::read(file); // whose photos lie beside it
        reading = {content.refusal(), content.events, content.skipped};
    }
    return reading;
}

MvEntryReading MvEntryIntake::read(const QByteArray &bytes, const QString &name)
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
            reading = {content.refusal(), content.events, content.skipped};
        }
        break;
    }
    case Kind::Unknown:
        reading.error = tr("Das ist weder eine Liste von Einträgen noch ein Kalender (iCalendar) noch eine Tabelle "
                           "(CSV).");
        break;
    }
    if (!reading.isOk())
        reading.error = tr("%1: %2").arg(name, reading.error);
    return reading;
}

MvCalendarEventFile::Content MvEntryIntake::readAsList(const QFileInfo &file)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(file);
    const Kind kind = opened.isOk() ? kindOf(opened.file->peek(4096)) : Kind::List;
    if (kind == Kind::Calendar || kind == Kind::Table) {
        const MvEntryReading reading = read(file);
        MvCalendarEventFile::Content content;
        content.events = reading.events;
        content.error = reading.error;
        content.skipped = reading.skipped;
        content.isComplete = reading.isOk() && reading.skipped.isEmpty();
        if (reading.isOk() || kind == Kind::Calendar)
            return content;
    }
    return MvCalendarEventFile::read(file); // which says what is wrong with it
}

MvCalendarEventList MvEntryIntake::joined(const MvCalendarEventList &list, const MvEntryReading &reading,
                                          Report *report)
{
    MvCalendarEventList result = list;
    *report = {};
    report->skipped = reading.skipped;
    const QHash<QString, QString> ids = groupIds(result.groups(), reading.events.groups());
    QMultiHash<size_t, qsizetype> byContent;
    QHash<QUuid, qsizetype> byUuid;
    QSet<QUuid> shared; // by a series: these name no single entry
    for (qsizetype i = 0; i < result.size(); ++i) {
        byContent.insert(keyOf(result.at(i)), i);
        if (byUuid.contains(result.at(i).uuid()))
            shared.insert(result.at(i).uuid());
        byUuid.insert(result.at(i).uuid(), i);
    }
    for (MvCalendarEvent event : reading.events) {
        QStringList groups;
        for (const QString &id : event.groups())
            groups.append(ids.value(id, id));
        if (groups != event.groups())
            event.setGroups(groups);
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
