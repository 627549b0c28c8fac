// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesCommand.h"

#include "MvCliValues.h"
#include "MvTextTable.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"
#include "MvCore/MvSafeFileWriter.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostHints = 20;
const QString standardStream = u"-"_s;

QString repetitionOf(const MvCalendarEvent &event)
{
    if (!event.repetition().rule.isNone())
        return event.repetition().rule.describe();
    return event.storedRecurrent() ? MvEntriesCommand::tr("jedes Jahr") : MvEntriesCommand::tr("einmal");
}

QStringList groupsOf(const MvCalendarEvent &event, const MvEventGroupList &groups)
{
    QStringList names;
    for (const QString &id : event.groups()) {
        if (const MvEventGroup *group = groups.find(id))
            names.append(group->name);
    }
    return names;
}

QJsonArray arrayOf(const QList<QDate> &dates)
{
    QJsonArray array;
    for (const QDate &date : dates)
        array.append(date.toString(Qt::ISODate));
    return array;
}

MvEntryReading readFile(const QString &file)
{
    if (file != standardStream)
        return MvEntryIntake::read(QFileInfo(file));
    QFile input;
    const bool isOpen = input.open(stdin, QIODevice::ReadOnly);
    return MvEntryIntake::read(isOpen ? input.read(MvEntryIntake::largestFile) : QByteArray(), file);
}

} // namespace

QString MvEntriesCommand::summary() const
{
    return tr("zeigt persönliche Einträge, übernimmt sie aus anderen Programmen, gibt sie weiter");
}

QList<MvCliOption> MvEntriesCommand::options() const
{
    return {
        {u"action"_s, tr("WAS"), tr("list, import, export oder check"), false, true},
        {u"file"_s, tr("DATEI"),
         tr("Liste (XML), Kalender (iCalendar) oder Tabelle (CSV, TSV), am Inhalt erkannt; - ist die Standardeingabe. "
            "Ohne: die eigenen Einträge"),
         false, true},
        {u"into"_s, tr("DATEI"), tr("import: in diese Liste (XML) statt in die eigenen Einträge")},
        {u"output"_s, tr("DATEI"), tr("export: wohin (Standardausgabe)")},
        formatOption({u"text"_s, u"json"_s, u"xml"_s, u"ics"_s, u"csv"_s, u"tsv"_s}),
        jsonOption()};
}

QStringList MvEntriesCommand::examples() const
{
    return {u"entries list --json"_s, u"entries import verein.ics"_s, u"entries import termine.csv --into verein.xml"_s,
            u"entries export verein.xml --format ics -o verein.ics"_s, u"entries check termine.csv"_s};
}

MvCliCommand::Result MvEntriesCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    const QString action = arguments.value(u"action"_s);
    const QString file = arguments.value(u"file"_s);
    if (!QStringList{u"list"_s, u"import"_s, u"export"_s, u"check"_s}.contains(action))
        return misused(action.isEmpty()
                           ? tr("es fehlt, was zu tun ist: list, import, export oder check")
                           : tr("„%1“ gibt es nicht; möglich sind list, import, export, check").arg(action));
    if (file.isEmpty() && (action == u"import" || action == u"check"))
        return misused(tr("nach %1 fehlt die Datei").arg(action));
    if (action == u"import")
        return import(arguments, streams);
    MvEntryReading reading;
    if (file.isEmpty())
        reading.events = MvCalendarEventRegistry::instance().activeEventList();
    else
        reading = readFile(file);
    if (!reading.isOk())
        return failed(reading.error);
    if (action == u"check")
        return check(reading, file, streams);
    printSkipped(reading, file, streams.hints);
    return exportTo(reading.events, arguments, streams);
}

MvCliCommand::Result MvEntriesCommand::import(const MvCliArguments &arguments, const Streams &streams)
{
    const QString file = arguments.value(u"file"_s);
    const QString target = arguments.value(u"into"_s);
    const MvEntryReading reading = readFile(file);
    if (!reading.isOk())
        return failed(reading.error);
    MvEntryReading present;
    if (target.isEmpty())
        present.events = MvCalendarEventRegistry::instance().activeEventList();
    else if (QFileInfo::exists(target))
        present = MvEntryIntake::read(QFileInfo(target));
    if (!present.isOk())
        return failed(present.error);
    if (!present.skipped.isEmpty()) // they would be gone when the list is written
        return failed(tr("%1 ist nicht vollständig lesbar und bleibt, wie es ist: %2")
                          .arg(QDir::toNativeSeparators(target), present.skipped.first().describe()));
    MvEntryIntake::Report report;
    const MvCalendarEventList all = MvEntryIntake::joined(present.events, reading, &report);
    if (const MvOutcome stored = store(all, target); !stored.isOk())
        return failed(stored.error);
    printSkipped(reading, file, streams.hints);
    streams.out << report.describe() << '\n';
    return {};
}

MvOutcome MvEntriesCommand::store(const MvCalendarEventList &events, const QString &target)
{
    if (!target.isEmpty())
        return MvSafeFileWriter::write(QFileInfo(target), MvCalendarEventFile::toBytes(events));
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setEvents(events);
    registry.userFile().saveNow();
    return {registry.lastSaveError(), {}};
}

MvCliCommand::Result MvEntriesCommand::check(const MvEntryReading &reading, const QString &file, const Streams &streams)
{
    printSkipped(reading, file, streams.hints);
    streams.out << tr("%1: %2 Einträge, %3 ausgelassen")
                       .arg(QDir::toNativeSeparators(file))
                       .arg(reading.events.size())
                       .arg(reading.skipped.size())
                << '\n';
    return {reading.skipped.isEmpty() ? Done : PrintsBadly, {}};
}

void MvEntriesCommand::printSkipped(const MvEntryReading &reading, const QString &file, QTextStream &hints)
{
    for (const MvCalendarEventFile::Skipped &skipped : reading.skipped.mid(0, mostHints))
        hints << tr("%1: ausgelassen: %2").arg(QDir::toNativeSeparators(file), skipped.describe()) << '\n';
    if (reading.skipped.size() > mostHints)
        hints << tr("%1: %n weitere ausgelassen", nullptr, int(reading.skipped.size()) - mostHints)
                     .arg(QDir::toNativeSeparators(file))
              << '\n';
}

MvCliCommand::Result MvEntriesCommand::exportTo(const MvCalendarEventList &events, const MvCliArguments &arguments,
                                                const Streams &streams)
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s, u"xml"_s, u"ics"_s, u"csv"_s, u"tsv"_s});
    if (!values.isOk())
        return misused(values.error());
    QByteArray bytes;
    QTextStream text(&bytes);
    if (format == u"xml"_s)
        bytes = MvCalendarEventFile::toBytes(events);
    else if (format == u"ics"_s)
        bytes = MvICalendar::toBytes(events);
    else if (format == u"csv"_s || format == u"tsv"_s)
        bytes = MvEntryTable::toBytes(events, format == u"csv"_s ? u';' : u'\t');
    else if (format == u"json"_s)
        printJson(events, text);
    else
        printText(events, text);
    text.flush();
    const QString output = arguments.value(u"output"_s);
    if (output.isEmpty() || output == standardStream) {
        streams.out << QString::fromUtf8(bytes);
        return {};
    }
    const MvOutcome written = MvSafeFileWriter::write(QFileInfo(output), bytes);
    return written.isOk() ? Result{} : failed(written.error);
}

void MvEntriesCommand::printText(const MvCalendarEventList &events, QTextStream &out)
{
    MvTextTable table;
    for (const MvCalendarEvent &event : events) {
        QString date = MvCalendarEvent::dateText(event.dateTime().date());
        if (event.endDate().isValid())
            date += u'–' + MvCalendarEvent::dateText(event.endDate());
        table.addRow({date, event.time().toString(u"HH:mm"_s), event.description(), repetitionOf(event),
                      groupsOf(event, events.groups()).join(u", "_s)});
    }
    table.print(out);
}

void MvEntriesCommand::printJson(const MvCalendarEventList &events, QTextStream &out)
{
    QJsonArray array;
    for (const MvCalendarEvent &event : events) {
        const MvEventRepetition &repetition = event.repetition();
        QJsonObject object{{u"name"_s, event.description()},
                           {u"date"_s, event.dateTime().date().toString(Qt::ISODate)},
                           {u"hasYear"_s, event.hasYear()},
                           {u"end"_s, event.endDate().isValid() ? event.endDate().toString(Qt::ISODate) : QJsonValue()},
                           {u"time"_s, event.time().isValid() ? event.time().toString(u"HH:mm"_s) : QJsonValue()},
                           {u"yearly"_s, repetition.rule.isNone() && event.storedRecurrent()},
                           {u"rule"_s, repetition.rule.text()},
                           {u"exceptions"_s, arrayOf(repetition.exceptions)},
                           {u"extraDates"_s, arrayOf(repetition.extraDates)},
                           {u"groups"_s, QJsonArray::fromStringList(groupsOf(event, events.groups()))},
                           {u"uuid"_s, event.uuid().toString(QUuid::WithoutBraces)}};
        array.append(object);
    }
    out << QString::fromUtf8(QJsonDocument(array).toJson());
}
