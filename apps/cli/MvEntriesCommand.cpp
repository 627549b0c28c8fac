// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesCommand.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvHolidayEntries.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvEntriesEdit.h"
#include "MvEntriesInput.h"
#include "MvEntriesPlace.h"
#include "MvEntriesPrinter.h"
#include "plain/MvCliValues.h"
#include "plain/MvHolidaysCommand.h"
#include "plain/MvNearMiss.h"
#include "plain/MvVacationHint.h"

#include <QDir>

using namespace Qt::StringLiterals;

QString MvEntriesCommand::summary() const
{
    return tr("zeigt und ändert persönliche Einträge, übernimmt sie aus anderen Programmen, gibt sie weiter");
}

QStringList MvEntriesCommand::actions()
{
    return {u"list"_s, u"add"_s, u"remove"_s, u"import"_s, u"export"_s, u"check"_s};
}

QList<MvCliOption> MvEntriesCommand::options() const
{
    return QList<MvCliOption>{
               {u"action"_s, actions().join(u'|'), tr("was mit den Einträgen geschieht"), false, true},
               {u"file"_s, tr("DATEI"),
                tr("list, import, export, check: Liste (XML), Kalender (iCalendar), Tabelle (CSV, TSV), Visitenkarten "
                   "(vCard) oder ein Projekt, am Inhalt erkannt; - ist die Standardeingabe. Ohne: die eigenen "
                   "Einträge"),
                false, true},
               {u"into"_s, tr("DATEI"),
                tr("add, remove, import: in dieser Liste (XML) oder diesem Projekt statt in den eigenen Einträgen")}} +
           MvEntriesEdit::options() +
           QList<MvCliOption>{{u"holidays"_s, {}, tr("list, export: Feiertage dazu")},
                              {u"vacations"_s, {}, tr("list, export: Schulferien dazu")},
                              countryOption(),
                              languageOption(),
                              regionOption(),
                              {u"year"_s, tr("JAHR"), tr("deren Jahr (das kommende)")},
                              {u"to"_s, tr("JAHR"), tr("deren letztes Jahr, wenn es mehrere sind")},
                              {u"output"_s, tr("DATEI"), tr("list, export: wohin (Standardausgabe)")},
                              formatOption(MvEntriesPrinter::formats()),
                              jsonOption()};
}

QStringList MvEntriesCommand::examples() const
{
    return {u"entries list --json"_s,
            u"entries add \"Oma Erna\" 17.05.1941 --group Familie"_s,
            u"entries add Chor 07.01.2027 --repeat \"alle 2 Wochen am Donnerstag\" --into familie.mvcalendar"_s,
            u"entries remove \"Oma Erna\" 17.05."_s,
            u"entries import verein.ics"_s,
            u"entries import termine.csv --into verein.xml"_s,
            u"entries export verein.xml --format ics -o verein.ics"_s,
            u"entries export --vacations --region BY --year 2027 --format ics -o ferien.ics"_s,
            u"entries check termine.csv"_s};
}

MvCliCommand::Result MvEntriesCommand::misuse(const MvCliArguments &arguments)
{
    const QString action = arguments.value(u"action"_s);
    const QString known = actions().join(u", "_s);
    if (action.isEmpty())
        return misused(tr("es fehlt, was zu tun ist: %1").arg(known));
    if (!actions().contains(action))
        return misused(tr("„%1“ gibt es nicht; möglich sind %2").arg(action, known) +
                       MvNearMiss::describe(action, actions()));
    if (!arguments.has(u"file"_s) && (action == u"import" || action == u"check"))
        return misused(tr("nach %1 fehlt die Datei").arg(action));
    const bool isEdit = action == u"add" || action == u"remove";
    for (const MvCliOption &option : MvEntriesEdit::options()) {
        if (!isEdit && arguments.has(option.name))
            return misused(tr("--%1 gilt nicht für %2").arg(option.name, action));
    }
    if (arguments.has(u"into"_s) && !isEdit && action != u"import")
        return misused(tr("--%1 gilt nicht für %2").arg(u"into"_s, action));
    if (isEdit && arguments.has(u"text"_s) && arguments.has(u"file"_s) && arguments.has(u"date"_s))
        return misused(
            tr("der Text steht zweimal da: „%1“ und „%2“").arg(arguments.value(u"file"_s), arguments.value(u"text"_s)));
    return {};
}

MvCliCommand::Result MvEntriesCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    const QString action = arguments.value(u"action"_s);
    const QString file = arguments.value(u"file"_s);
    if (const Result wrong = misuse(arguments); wrong.code != Done)
        return wrong;
    if (action == u"add")
        return MvEntriesEdit::add(arguments, streams);
    if (action == u"remove")
        return MvEntriesEdit::remove(arguments, streams);
    if (action == u"import")
        return import(arguments, streams);
    MvEntryReading reading;
    if (file.isEmpty())
        reading.events = MvCalendarEventRegistry::instance().ownEvents();
    else
        reading = MvEntriesInput::read(file);
    if (!reading.isOk())
        return failed(reading.error);
    if (action == u"check")
        return check(reading, file, streams);
    MvEntriesInput::printSkipped(reading, file, streams.hints);
    return exportTo(reading.events, arguments, streams);
}

MvCliCommand::Result MvEntriesCommand::import(const MvCliArguments &arguments, const Streams &streams)
{
    const QString file = arguments.value(u"file"_s);
    const MvEntryReading reading = MvEntriesInput::read(file);
    if (!reading.isOk())
        return failed(reading.error);
    MvEntriesPlace place(arguments.value(u"into"_s));
    const MvEntryReading present = place.read();
    if (!present.isOk())
        return failed(present.error);
    MvEntryIntake::Report report;
    const MvCalendarEventList all = MvEntryIntake::joined(present.events, reading, &report);
    QList<QUuid> added;
    for (const MvCalendarEvent &event : reading.events)
        added.append(event.uuid());
    const MvOutcome stored = place.store(all, reading.fotos ? added : QList<QUuid>());
    MvEntriesInput::printSkipped(reading, file, streams.hints);
    for (const QString &note : present.notes + stored.notes)
        streams.hints << note << '\n';
    if (!stored.isOk())
        return failed(stored.error);
    streams.out << report.describe() << '\n';
    return {};
}

MvCliCommand::Result MvEntriesCommand::check(const MvEntryReading &reading, const QString &file, const Streams &streams)
{
    MvEntriesInput::printSkipped(reading, file, streams.hints);
    streams.out << tr("%1: %2 Einträge, %3 ausgelassen")
                       .arg(MvEntriesInput::nameOf(file), QString::number(reading.events.size()),
                            QString::number(reading.skipped.size()))
                << '\n';
    return {reading.skipped.isEmpty() ? Done : PrintsBadly, {}};
}

MvCalendarEventList MvEntriesCommand::holidays(const MvCliArguments &arguments, QString *error, QTextStream &hints)
{
    MvCliValues values(arguments);
    MvHolidayEntries::Kinds kinds;
    kinds.setFlag(MvHolidayEntries::Holidays, values.has(u"holidays"_s));
    kinds.setFlag(MvHolidayEntries::Vacations, values.has(u"vacations"_s));
    const MvLocale locale = values.country();
    const QString region = values.region(locale);
    const MvHolidaysCommand::Years years = MvHolidaysCommand::years(values);
    *error = values.error();
    if (!kinds || !values.isOk())
        return {};
    const MvCalendariumHolidayConfig config(
        locale, region, MvCalendariumFeatures(FEATURE_SCHOOL_VACATIONS | FEATURE_VACATION_NAMES_DAILY));
    if (kinds.testFlag(MvHolidayEntries::Vacations))
        MvVacationHint::printAsked(config, QDate(years.last, 12, 31), hints);
    return MvHolidayEntries::of(config, years.first, years.last, kinds);
}

MvCliCommand::Result MvEntriesCommand::exportTo(MvCalendarEventList events, const MvCliArguments &arguments,
                                                const Streams &streams)
{
    MvCliValues values(arguments);
    const QString format = values.format(MvEntriesPrinter::formats());
    if (!values.isOk())
        return misused(values.error());
    QString error;
    MvEntryReading days;
    days.events = holidays(arguments, &error, streams.hints);
    if (!error.isEmpty())
        return misused(error);
    MvEntryIntake::Report report;
    if (!days.events.isEmpty())
        events = MvEntryIntake::joined(events, days, &report);
    const QByteArray bytes = MvEntriesPrinter::toBytes(events, format);
    const QString output = arguments.value(u"output"_s);
    if (output.isEmpty() || MvEntriesInput::isStandardStream(output)) {
        streams.out << QString::fromUtf8(bytes);
        return {};
    }
    const MvOutcome written = MvSafeFileWriter::write(QFileInfo(output), bytes);
    return written.isOk() ? Result{} : failed(written.error);
}
