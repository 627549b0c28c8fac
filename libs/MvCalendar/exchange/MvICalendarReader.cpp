// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendarReader.h"

#include "MvCalendar/MvICalendar.h"
#include "MvCalendar/MvICalendarEntryMaker.h"

#include "MvProductBase/MvVCardLines.h"

#include <QBuffer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype deepest = 16; // components within each other: a calendar has three
constexpr qsizetype mostAlike = 20;

bool isEvent(const QByteArray &component)
{
    return component == "VEVENT";
}

/// What people may miss on the page, by what it is called in files. The rest is between programs.
QString labelOf(const QByteArray &property)
{
    static const QHash<QByteArray, const char *> labels{
        {"DESCRIPTION", QT_TRANSLATE_NOOP("MvICalendar", "Beschreibung")},
        {"LOCATION", QT_TRANSLATE_NOOP("MvICalendar", "Ort")},
        {"ATTACH", QT_TRANSLATE_NOOP("MvICalendar", "Anhang")},
        {"ATTENDEE", QT_TRANSLATE_NOOP("MvICalendar", "Teilnehmer")},
        {"VALARM", QT_TRANSLATE_NOOP("MvICalendar", "Erinnerung")},
    };
    const char *label = labels.value(property);
    return label ? MvICalendar::tr(label) : QString();
}

} // namespace

MvEntryReading MvICalendarReader::read(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    MvVCardLines lines(&buffer);
    for (MvVCardProperty property; lines.next(&property);)
        take(property, lines.line());
    endFile(lines.leftOutCount(), lines.firstLeftOut());
    return m_result;
}

void MvICalendarReader::skip(int line, const QString &name, const QString &reason)
{
    m_result.skipped.append({line, name.simplified().left(60), reason});
}

void MvICalendarReader::take(const MvVCardProperty &property, int line)
{
    const QByteArray word = property.value.trimmed().toUpper();
    if (property.name == "BEGIN")
        begin(word, line);
    else if (property.name == "END")
        end(word);
    else if (!m_open.isEmpty())
        takeWithin(m_open.last().name, property);
}

bool MvICalendarReader::isInEvent() const
{
    return std::any_of(m_open.cbegin(), m_open.cend(), [](const Open &open) { return isEvent(open.name); });
}

/// What has no end of its own ends where the next of its kind begins.
void MvICalendarReader::begin(const QByteArray &name, int line)
{
    if (name == "VCALENDAR") {
        end(name);
        m_hasCalendar = true;
    } else if (isEvent(name)) {
        end(name);
        m_event = MvICalendarEvent(line);
    } else if (name == "VTIMEZONE") {
        m_zones.begin();
    } else if ((name == "STANDARD" || name == "DAYLIGHT") && !m_open.isEmpty() && m_open.last().name == "VTIMEZONE") {
        m_zones.beginPart();
    } else if (const QString label = labelOf(name); !label.isEmpty() && isInEvent()) {
        ++m_leftOut[label];
    }
    if (m_open.size() < deepest)
        m_open.append({name, line, {}});
}

void MvICalendarReader::end(const QByteArray &name)
{
    const auto isNamed = [&name](const Open &open) { return open.name == name; };
    const auto found = std::find_if(m_open.crbegin(), m_open.crend(), isNamed);
    if (found == m_open.crend())
        return;
    while (!m_open.isEmpty()) {
        const Open open = m_open.takeLast();
        if (isEvent(open.name))
            endEvent();
        if (open.name == "VTODO" || open.name == "VJOURNAL")
            skip(open.line, open.summary, MvICalendar::tr("Aufgaben und Notizen sind keine Einträge"));
        if (open.name == name)
            break;
    }
    if (name == "VCALENDAR")
        endCalendar();
}

void MvICalendarReader::takeWithin(const QByteArray &component, const MvVCardProperty &property)
{
    if (isEvent(component))
        takeOfEvent(property);
    else if (component == "VTIMEZONE" || component == "STANDARD" || component == "DAYLIGHT")
        m_zones.take(property);
    else if (component == "VCALENDAR" && (property.name == "X-WR-CALNAME" || property.name == "NAME"))
        m_calendarName = MvVCardProperty::unescaped(property.text()).simplified();
    else if (property.name == "SUMMARY")
        m_open.last().summary = MvVCardProperty::unescaped(property.text());
}

void MvICalendarReader::takeOfEvent(const MvVCardProperty &property)
{
    if (m_event.take(property)) {
        if (property.isCut)
            skip(m_event.line(), m_event.name(),
                 MvICalendar::tr("die Angabe %1 ist zu lang, ihr Ende fehlt").arg(QString::fromLatin1(property.name)));
    } else if (const QString label = labelOf(property.name); !label.isEmpty() && !property.value.trimmed().isEmpty()) {
        ++m_leftOut[label];
    }
}

void MvICalendarReader::endEvent()
{
    if (++m_eventCount <= mostEvents)
        m_events.append(m_event);
    else if (m_eventCount == mostEvents + 1)
        skip(m_event.line(), m_event.name(), MvICalendar::tr("die Datei hat mehr als %1 Termine").arg(mostEvents));
}

/// An event whose end is missing may lack more than that.
void MvICalendarReader::endFile(int leftOutLines, int firstLeftOut)
{
    if (!m_open.isEmpty()) {
        const auto event = std::find_if(m_open.cbegin(), m_open.cend(), [](const Open &o) { return isEvent(o.name); });
        const bool isEventCut = event != m_open.cend();
        skip(isEventCut ? event->line : m_open.last().line, isEventCut ? m_event.name() : QString(),
             MvICalendar::tr("die Datei endet mittendrin"));
        m_open.clear();
    }
    endCalendar();
    if (!m_hasCalendar)
        m_result.error = MvICalendar::tr("Das ist kein Kalender (iCalendar).");
    if (leftOutLines > 0)
        skip(firstLeftOut, {},
             MvICalendar::tr("%n Zeilen sind nicht zu lesen, dies ist die erste", nullptr, leftOutLines));
    std::stable_sort(m_result.skipped.begin(), m_result.skipped.end(),
                     [](const auto &a, const auto &b) { return a.line < b.line; });
    groupByCalendars();
    addNotes();
    if (!m_result.isOk())
        m_result.events.clear(); // events outside of any calendar are not taken, however well they read
}

void MvICalendarReader::endCalendar()
{
    dropOldVersions();
    const qsizetype first = m_result.events.size();
    const MvICalendarEntryMaker maker(m_zones, m_result.events.groups());
    for (const MvICalendarEvent &event : std::as_const(m_events)) {
        if (!event.isOverride())
            addEntry(event, maker);
    }
    for (const MvICalendarEvent &event : std::as_const(m_events)) {
        if (event.isOverride())
            addEntry(event, maker);
    }
    m_calendars.append({m_calendarName, first, m_result.events.size()});
    m_unknownZones.unite(m_zones.unknown());
    m_calendarName.clear();
    m_zones = {};
    m_events.clear();
    m_series.clear();
}

/// Some programs write every state that an event has had.
void MvICalendarReader::dropOldVersions()
{
    const auto identity = [](const MvICalendarEvent &event) {
        return event.uid() + u'\n' + event.name() + u'\n' + event.raw("RECURRENCE-ID");
    };
    QHash<QString, int> newest;
    for (const MvICalendarEvent &event : std::as_const(m_events))
        newest[identity(event)] = std::max(newest.value(identity(event)), event.sequence());
    m_events.removeIf([&](const MvICalendarEvent &event) {
        const bool isOld = !event.uid().isEmpty() && event.sequence() < newest.value(identity(event));
        if (isOld)
            skip(event.line(), event.name(), MvICalendar::tr("die Datei hat eine neuere Fassung davon"));
        return isOld;
    });
}

void MvICalendarReader::addEntry(const MvICalendarEvent &event, const MvICalendarEntryMaker &maker)
{
    QString reason;
    const MvCalendarEvent entry = maker.make(event, &reason);
    if (!reason.isEmpty()) {
        skip(event.line(), event.name(), reason);
        return;
    }
    if (event.isOverride()) {
        applyOverride(event, maker.overriddenDate(event));
        if (event.isCancelled())
            return;
    } else {
        m_series.insert(event.uid(), m_result.events.size());
    }
    m_result.events.append(entry);
}

/// What was moved or called off is no longer where the series has it.
void MvICalendarReader::applyOverride(const MvICalendarEvent &event, const QDate &date)
{
    if (event.value("RECURRENCE-ID").has("RANGE", "THISANDFUTURE"))
        skip(event.line(), event.name(),
             MvICalendar::tr("die Änderung gilt auch für alle Termine danach; geändert ist nur dieser"));
    const QList<qsizetype> series = m_series.values(event.uid()).mid(0, mostAlike);
    for (const qsizetype each : series) {
        MvCalendarEvent &entry = m_result.events[each];
        if (!date.isValid() || (series.size() > 1 && !entry.isAtDay(date)))
            continue;
        MvEventRepetition repetition = entry.repetition();
        repetition.exceptions.append(date);
        entry.setRepetition(repetition);
        return;
    }
    if (event.isCancelled())
        skip(event.line(), event.name(), MvICalendar::tr("der Termin ist abgesagt"));
}

/// In a file of several calendars, what has no group belongs to that of its calendar's name.
void MvICalendarReader::groupByCalendars()
{
    const auto isFull = [](const Calendar &calendar) { return calendar.end > calendar.first; };
    if (std::count_if(m_calendars.cbegin(), m_calendars.cend(), isFull) < 2)
        return;
    for (const Calendar &calendar : std::as_const(m_calendars)) {
        for (qsizetype i = calendar.first; i < calendar.end && !calendar.name.isEmpty(); ++i) {
            if (m_result.events.at(i).groups().isEmpty())
                m_result.events[i].setGroups({m_result.events.groups().idOfName(calendar.name)});
        }
    }
}

void MvICalendarReader::addNotes()
{
    QStringList labels;
    for (auto it = m_leftOut.cbegin(); it != m_leftOut.cend(); ++it)
        labels.append(u"%1 (%2)"_s.arg(it.key()).arg(it.value()));
    if (!labels.isEmpty())
        m_result.notes.append(MvICalendar::tr("Ein Kalender druckt nicht: %1").arg(labels.join(u", "_s)));
    QStringList zones(m_unknownZones.cbegin(), m_unknownZones.cend());
    zones.sort();
    for (const QString &zone : std::as_const(zones))
        m_result.notes.append(
            MvICalendar::tr("Die Zeitzone „%1“ ist nicht bekannt; ihre Zeiten stehen da wie in der Datei.").arg(zone));
}
