// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesEdit.h"

#include "MvCalendar/MvRepetitionWords.h"
#include "MvCore/MvTypedDate.h"
#include "MvEntriesInput.h"
#include "MvEntriesPlace.h"
#include "MvEntriesPrinter.h"
#include "plain/MvCliValues.h"
#include "plain/MvNearMiss.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Result = MvCliCommand::Result;

constexpr int mostCandidates = 20;

MvTypedDate typed(const QString &text)
{
    return {text, QLocale(), QDate::currentDate(), MvCalendarEvent::unknownYear};
}

/// A date with its year; an error in the values without.
QDate dateOf(MvCliValues &values, const QString &name)
{
    if (!values.has(name))
        return {};
    const MvTypedDate date = typed(values.text(name));
    if (!date.isValid() || !date.hasYear())
        values.setError(
            MvEntriesEdit::tr("--%1 „%2“ ist kein Datum mit Jahr, wie 24.12.2027").arg(name, values.text(name)));
    return date.date();
}

QString textOf(const MvCliArguments &arguments)
{
    return arguments.value(arguments.has(u"text"_s) ? u"text"_s : u"file"_s).simplified();
}

/// After "--text", the next word without a name is the date.
QString dateTextOf(const MvCliArguments &arguments)
{
    const bool isNext = arguments.has(u"text"_s) && !arguments.has(u"date"_s);
    return arguments.value(isNext ? u"file"_s : u"date"_s);
}

Result failed(const QString &error)
{
    return {MvCliCommand::Failed, error};
}

Result misused(const QString &error)
{
    return {MvCliCommand::Misused, error};
}

} // namespace

QList<MvCliOption> MvEntriesEdit::options()
{
    return {{u"text"_s, u"TEXT"_s, tr("add, remove: der Text des Eintrags; --text kann wegbleiben")},
            {u"date"_s, tr("DATUM"), tr("add, remove: sein Tag, 24.12.2027 oder 24.12.; --date kann wegbleiben"), false,
             true},
            {u"end"_s, tr("DATUM"), tr("add: sein letzter Tag, wenn er mehrere dauert")},
            {u"time"_s, tr("UHRZEIT"), tr("add: wann er beginnt, 19:30")},
            {u"repeat"_s, tr("WIE"),
             tr("add: einmal, jedes Jahr, alle 2 Wochen am Donnerstag, jeden Monat am letzten Freitag … oder eine "
                "Regel, FREQ=… (jedes Jahr)")},
            {u"until"_s, tr("DATUM"), tr("add: bis wann er sich wiederholt")},
            {u"leap-day"_s, u"february28|march1|none"_s,
             tr("add: wo ein 29. Februar in anderen Jahren steht (february28)")},
            {u"group"_s, tr("NAME"), tr("add: eine Gruppe, zu der er gehört; mehrfach erlaubt"), true},
            {u"photo"_s, tr("DATEI"), tr("add: sein Foto")},
            {u"all"_s, {}, tr("remove: alle, auf die es passt")}};
}

MvCalendarEvent MvEntriesEdit::entryOf(MvCliValues &values, const QString &text, const QString &date)
{
    const MvTypedDate day = typed(date);
    if (text.isEmpty())
        values.setError(tr("nach add fehlt der Text des Eintrags"));
    else if (date.isEmpty())
        values.setError(tr("nach dem Text fehlt das Datum"));
    else if (!day.isValid())
        values.setError(day.error());
    if (!values.isOk())
        return {};
    MvCalendarEvent entry(text, MvCalendarEvent::startOf(day.date()), true, {}, QUuid::createUuid(),
                          QDateTime::currentDateTime());
    takeTimes(entry, values);
    takeRepetition(entry, values);
    const bool isPlain = entry.storedRecurrent() && entry.repetition().rule.isNone() && !entry.endDate().isValid();
    if (!entry.hasYear() && !isPlain)
        values.setError(tr("„%1“: das Jahr fehlt; ohne Jahr geht nur, was jedes Jahr ist").arg(date));
    return entry;
}

void MvEntriesEdit::takeTimes(MvCalendarEvent &entry, MvCliValues &values)
{
    const QDate first = entry.dateTime().date();
    if (const QDate end = dateOf(values, u"end"_s); end.isValid()) {
        if (end < first || first.daysTo(end) >= MvCalendarEvent::longestSpan)
            values.setError(
                tr("--end „%1“: erlaubt ist bis zu ein Jahr nach dem ersten Tag").arg(values.text(u"end"_s)));
        entry.setEndDate(end);
    }
    if (values.has(u"time"_s)) {
        entry.setTime(QTime::fromString(values.text(u"time"_s), u"H:mm"_s));
        if (!entry.time().isValid())
            values.setError(tr("--time „%1“ ist keine Uhrzeit wie 19:30").arg(values.text(u"time"_s)));
    }
}

void MvEntriesEdit::takeRepetition(MvCalendarEvent &entry, MvCliValues &values)
{
    const MvRepetitionWords words(values.text(u"repeat"_s, u"jedes Jahr"_s));
    if (!words.isOk())
        values.setError(words.error());
    MvEventRepetition repetition;
    repetition.rule = words.rule();
    if (const QDate until = dateOf(values, u"until"_s); until.isValid()) {
        if (words.isYearly())
            repetition.rule.frequency = MvRecurrenceRule::Yearly;
        if (repetition.rule.isNone())
            values.setError(tr("--until gilt nur für das, was sich wiederholt"));
        else if (repetition.rule.count > 0 || repetition.rule.until.isValid())
            values.setError(tr("in --repeat steht schon, wie lange"));
        else if (until < entry.dateTime().date())
            values.setError(tr("--until „%1“ liegt vor dem ersten Tag").arg(values.text(u"until"_s)));
        repetition.rule.until = until;
    }
    entry.setRecurrent(words.isYearly() && repetition.rule.isNone());
    const QDate date = entry.dateTime().date();
    if (date.month() == 2 && date.day() == 29) {
        using LeapDay = MvEventRepetition::LeapDay;
        const QString choice = values.choice(u"leap-day"_s, {u"february28"_s, u"march1"_s, u"none"_s});
        repetition.leapDay = choice == u"none"_s     ? LeapDay::LeapYearsOnly
                             : choice == u"march1"_s ? LeapDay::March1
                                                     : LeapDay::February28;
    }
    entry.setRepetition(repetition);
}

Result MvEntriesEdit::add(const MvCliArguments &arguments, const MvCliCommand::Streams &streams)
{
    MvCliValues values(arguments);
    MvCalendarEvent entry = entryOf(values, textOf(arguments), dateTextOf(arguments));
    if (!values.isOk())
        return misused(values.error());
    MvEntriesPlace place(arguments.value(u"into"_s));
    MvEntryReading reading = place.read();
    if (!reading.isOk())
        return failed(reading.error);
    QStringList groups;
    for (const QString &name : arguments.values(u"group"_s))
        groups.append(reading.events.groups().idOfName(name));
    entry.setGroups(groups);
    if (values.has(u"photo"_s)) {
        if (const MvOutcome taken = place.takeFoto(entry, QFileInfo(values.text(u"photo"_s))); !taken.isOk())
            return failed(taken.error);
    }
    const auto isEqual = [&entry](const MvCalendarEvent &known) {
        return known.description() == entry.description() && known.dateTime().date() == entry.dateTime().date() &&
               known.storedRecurrent() == entry.storedRecurrent() && known.hasSameExtras(entry) &&
               !entry.foto().isValid();
    };
    const auto known = std::find_if(reading.events.cbegin(), reading.events.cend(), isEqual);
    MvOutcome stored;
    if (known != reading.events.cend()) {
        stored.notes.append(tr("„%1“ steht schon da").arg(entry.description()));
        entry = *known;
    } else {
        reading.events.append(entry);
        stored = place.store(reading.events, {entry.uuid()});
    }
    for (const QString &note : reading.notes + stored.notes)
        streams.hints << note << '\n';
    if (!stored.isOk())
        return failed(stored.error);
    streams.out << entry.uuid().toString(QUuid::WithoutBraces) << '\n';
    return {};
}

QList<qsizetype> MvEntriesEdit::found(const MvCalendarEventList &events, const QString &text, const QDate &date,
                                      bool hasYear)
{
    const QUuid uuid = QUuid::fromString(text);
    QList<qsizetype> positions;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const MvCalendarEvent &event = events.at(i);
        const QDate day = event.dateTime().date();
        const bool isDay =
            !date.isValid() || day == date || (!hasYear && day.month() == date.month() && day.day() == date.day());
        const bool isNamed = uuid.isNull() ? event.description().simplified().compare(text, Qt::CaseInsensitive) == 0
                                           : event.uuid() == uuid;
        if (isDay && isNamed)
            positions.append(i);
    }
    return positions;
}

Result MvEntriesEdit::remove(const MvCliArguments &arguments, const MvCliCommand::Streams &streams)
{
    const QString text = textOf(arguments);
    const QString dateText = dateTextOf(arguments);
    const MvTypedDate date = typed(dateText);
    if (text.isEmpty())
        return misused(tr("nach remove fehlt der Text des Eintrags oder seine Kennung"));
    if (!dateText.isEmpty() && !date.isValid())
        return misused(date.error());
    MvEntriesPlace place(arguments.value(u"into"_s));
    const MvEntryReading reading = place.read();
    if (!reading.isOk())
        return failed(reading.error);
    MvCalendarEventList events = reading.events;
    QList<qsizetype> positions = found(events, text, date.date(), date.hasYear());
    if (positions.isEmpty()) {
        QStringList names;
        for (const MvCalendarEvent &event : std::as_const(events))
            names.append(event.description());
        return failed(tr("einen Eintrag „%1“ gibt es dort nicht").arg(text) + MvNearMiss::describe(text, names));
    }
    if (positions.size() > 1 && !arguments.has(u"all"_s)) {
        for (const qsizetype i : positions.mid(0, mostCandidates))
            streams.hints << events.at(i).uuid().toString(QUuid::WithoutBraces) << u"  "_s
                          << MvEntriesPrinter::datesOf(events.at(i)) << u"  "_s << events.at(i).description() << '\n';
        return misused(tr("„%1“ passt auf %2 Einträge: Datum oder Kennung sagt, welcher gemeint ist, --all alle")
                           .arg(text, QString::number(positions.size())));
    }
    MvCalendarEventList removed;
    removed.setGroups(events.groups());
    for (auto i = positions.crbegin(); i != positions.crend(); ++i)
        removed.prepend(events.takeAt(*i));
    const MvOutcome stored = place.store(events);
    for (const QString &note : reading.notes + stored.notes)
        streams.hints << note << '\n';
    if (!stored.isOk())
        return failed(stored.error);
    streams.out << QString::fromUtf8(MvEntriesPrinter::toBytes(removed, u"text"_s));
    return {};
}
