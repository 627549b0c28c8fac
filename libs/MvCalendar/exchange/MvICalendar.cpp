// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendar.h"

#include "MvProductBase/MvVCardLines.h"

#include <QBuffer>
#include <QHash>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QUuid entriesNamespace(u"{6f2a4b0e-6d1c-4a53-9a55-3c1f0b8f7a10}"_s);
// of an entry of 29 February in other years: the last of February, or the 60th day
const QString lastOfFebruary = u"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=-1"_s;
const QString sixtiethDay = u"FREQ=YEARLY;BYYEARDAY=60"_s;

/// A date or a time of the file, as this computer shows it.
struct When
{
    QDate date;
    QTime time; // invalid: a whole day
    QString error;
};

QTimeZone zoneOf(const QString &name)
{
    const QTimeZone zone(name.toLatin1());
    if (zone.isValid())
        return zone;
    // "Europe/Berlin" within longer names, as some programs write them
    const qsizetype city = name.lastIndexOf(u'/');
    const qsizetype area = city < 0 ? -1 : name.lastIndexOf(u'/', city - 1);
    return area < 0 ? QTimeZone() : QTimeZone(name.mid(area + 1).toLatin1());
}

When readWhen(const QString &text, const QString &zoneName)
{
    const QString form = text.trimmed();
    When when;
    when.date = QDate::fromString(form.left(8), u"yyyyMMdd"_s);
    if (form.size() == 8 && when.date.isValid())
        return when;
    const QString time = form.mid(8);
    when.time = QTime::fromString(time.mid(1, 6), u"HHmmss"_s);
    const bool isUtc = time.endsWith(u'Z');
    if (!when.date.isValid() || !time.startsWith(u'T') || !when.time.isValid() || time.size() != (isUtc ? 8 : 7)) {
        when.error = MvICalendar::tr("das Datum „%1“ ist nicht zu lesen").arg(form.left(40));
        return when;
    }
    const QTimeZone zone = zoneName.isEmpty() ? QTimeZone() : zoneOf(zoneName);
    if (isUtc || zone.isValid()) {
        const QDateTime local =
            (isUtc ? QDateTime(when.date, when.time, Qt::UTC) : QDateTime(when.date, when.time, zone)).toLocalTime();
        when.date = local.date();
        when.time = local.time();
    }
    return when;
}

/// One event of the file, as it stands there.
struct Component
{
    int line = 0;
    QMultiHash<QByteArray, MvVCardProperty> properties;

    QString text(const char *name) const
    {
        const auto found = properties.constFind(name);
        return found == properties.cend() ? QString() : MvVCardProperty::unescaped(found->text());
    }
    QString raw(const char *name) const
    {
        const auto found = properties.constFind(name);
        return found == properties.cend() ? QString() : found->text().trimmed();
    }
    bool has(const char *name) const { return properties.contains(name); }
    When when(const char *name) const
    {
        const auto found = properties.constFind(name);
        return found == properties.cend() ? When() : readWhen(found->text(), zone(*found));
    }
    static QString zone(const MvVCardProperty &property)
    {
        return QString::fromUtf8(property.parameters.value("TZID"));
    }
    /// All dates of a property that may be there several times, with several dates each; of periods, where they begin.
    QList<QDate> dates(const char *name, QString *error) const
    {
        QList<QDate> dates;
        const QList<MvVCardProperty> all = properties.values(name);
        for (const MvVCardProperty &property : all) {
            const QStringList texts = property.text().split(u',', Qt::SkipEmptyParts);
            for (const QString &text : texts) {
                const When when = readWhen(text.section(u'/', 0, 0), zone(property));
                if (!when.error.isEmpty() && error->isEmpty())
                    *error = when.error;
                dates.append(when.date);
            }
        }
        return dates;
    }
};

/// "P1DT2H" in whole days and seconds; false when it is not one.
bool readDuration(const QString &text, qint64 *seconds)
{
    static const QRegularExpression form(
        u"^\\+?P(?:(\\d{1,4})W)?(?:(\\d{1,5})D)?(?:T(?:(\\d{1,5})H)?(?:(\\d{1,6})M)?(?:(\\d{1,8})S)?)?$"_s);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return false;
    constexpr qint64 factors[] = {7 * 86400, 86400, 3600, 60, 1};
    *seconds = 0;
    for (int i = 0; i < 5; ++i)
        *seconds += match.captured(i + 1).toLongLong() * factors[i];
    return true;
}

class Reading
{
public:
    MvEntryReading of(const QByteArray &bytes)
    {
        QBuffer buffer;
        buffer.setData(bytes);
        buffer.open(QIODevice::ReadOnly);
        MvVCardLines lines(&buffer);
        for (MvVCardProperty property; lines.next(&property);)
            take(property, lines.line());
        if (!m_open.isEmpty())
            skip(m_openLines.last(), m_event.text("SUMMARY"), MvICalendar::tr("die Datei endet mittendrin"));
        if (!m_hasCalendar)
            m_result.error = MvICalendar::tr("Das ist kein Kalender (iCalendar).");
        applyOverrides();
        return m_result;
    }

private:
    void skip(int line, const QString &name, const QString &reason)
    {
        m_result.skipped.append({line, name.simplified().left(60), reason});
    }

    void take(const MvVCardProperty &property, int line)
    {
        const QByteArray word = property.value.trimmed().toUpper();
        if (property.name == "BEGIN") {
            m_hasCalendar = m_hasCalendar || word == "VCALENDAR";
            m_open.append(word);
            m_openLines.append(line);
            if (word == "VEVENT")
                m_event = {line, {}};
        } else if (property.name == "END") {
            close(word);
        } else if (!m_open.isEmpty() && m_open.last() == "VEVENT") {
            m_event.properties.insert(property.name, property);
        } else if (!m_open.isEmpty() && property.name == "SUMMARY" &&
                   (m_open.last() == "VTODO" || m_open.last() == "VJOURNAL")) {
            skip(m_openLines.last(), property.text(), MvICalendar::tr("Aufgaben und Notizen sind keine Einträge"));
        }
    }

    void close(const QByteArray &word)
    {
        const qsizetype begin = m_open.lastIndexOf(word);
        if (begin < 0)
            return;
        if (word == "VEVENT")
            addEvent();
        m_open.resize(begin);
        m_openLines.resize(begin);
    }

    void addEvent()
    {
        QString reason;
        MvCalendarEvent event = makeEvent(&reason);
        if (!reason.isEmpty()) {
            skip(m_event.line, m_event.text("SUMMARY"), reason);
            return;
        }
        const QString uid = m_event.raw("UID");
        if (!m_event.has("RECURRENCE-ID")) {
            m_masters.insert(uid, m_result.events.size());
        } else {
            m_overrides.append({uid, m_event.when("RECURRENCE-ID").date});
            if (m_event.raw("STATUS").compare(u"CANCELLED", Qt::CaseInsensitive) == 0)
                return;
        }
        m_result.events.append(event);
    }

    MvCalendarEvent makeEvent(QString *reason)
    {
        const QString name = m_event.text("SUMMARY").simplified();
        const bool isOverride = m_event.has("RECURRENCE-ID");
        const bool isCancelled = m_event.raw("STATUS").compare(u"CANCELLED", Qt::CaseInsensitive) == 0;
        const When start = m_event.when("DTSTART");
        if (isCancelled && !isOverride)
            *reason = MvICalendar::tr("der Termin ist abgesagt");
        else if (name.isEmpty() && !isCancelled)
            *reason = MvICalendar::tr("der Name fehlt");
        else if (!m_event.has("DTSTART"))
            *reason = MvICalendar::tr("das Datum fehlt");
        else
            *reason = start.error;
        if (!reason->isEmpty())
            return {};
        const QString uid = m_event.raw("UID");
        const QString identity = isOverride ? uid + u'/' + m_event.raw("RECURRENCE-ID") : uid;
        const QUuid own = isOverride ? QUuid() : QUuid::fromString(uid);
        const QUuid uuid = uid.isEmpty()
                               ? QUuid::createUuidV5(entriesNamespace, name + start.date.toString(Qt::ISODate))
                           : own.isNull() ? QUuid::createUuidV5(entriesNamespace, identity)
                                          : own;
        MvCalendarEvent event(name.isEmpty() ? MvICalendar::tr("abgesagt") : name, MvCalendarEvent::startOf(start.date),
                              false, {}, uuid, {});
        event.setTime(start.time);
        takeEnd(event, start, reason);
        if (!isOverride)
            takeRepetition(event, reason);
        takeGroups(event);
        return event;
    }

    /// The end of whole days is the day after the last one; so is midnight.
    void takeEnd(MvCalendarEvent &event, const When &start, QString *reason)
    {
        QDate last = start.date;
        if (m_event.has("DTEND")) {
            const When end = m_event.when("DTEND");
            *reason = end.error;
            const bool isBefore = !end.time.isValid() || end.time == QTime(0, 0);
            last = isBefore ? end.date.addDays(-1) : end.date;
        } else if (m_event.has("DURATION")) {
            qint64 seconds = 0;
            if (!readDuration(m_event.raw("DURATION"), &seconds))
                *reason = MvICalendar::tr("die Dauer „%1“ ist nicht zu lesen").arg(m_event.raw("DURATION").left(40));
            const qint64 begin = start.time.isValid() ? start.time.msecsSinceStartOfDay() / 1000 : 0;
            last = start.date.addDays(std::max<qint64>(0, (begin + seconds - 1) / 86400));
        }
        if (start.date.daysTo(last) >= MvCalendarEvent::longestSpan)
            *reason = MvICalendar::tr("er dauert länger als ein Jahr");
        event.setEndDate(last);
    }

    void takeRepetition(MvCalendarEvent &event, QString *reason)
    {
        MvEventRepetition repetition;
        if (m_event.properties.count("RRULE") > 1)
            *reason = MvICalendar::tr("mehrere Regeln der Wiederholung sind nicht auszuwerten");
        if (m_event.has("RRULE")) {
            const MvRecurrenceRuleReading reading = MvRecurrenceRule::parse(untilHere(m_event.raw("RRULE")));
            if (!reading.isOk())
                *reason = MvICalendar::tr("die Wiederholung ist nicht auszuwerten: %1").arg(reading.error);
            repetition.rule = reading.rule;
        }
        repetition.exceptions = m_event.dates("EXDATE", reason);
        repetition.extraDates = m_event.dates("RDATE", reason);
        const QDate date = event.dateTime().date();
        const bool isLeapDay = date.month() == 2 && date.day() == 29;
        const QString rule = repetition.rule.text();
        if (rule == u"FREQ=YEARLY"_s || (isLeapDay && (rule == lastOfFebruary || rule == sixtiethDay))) {
            event.setRecurrent(true);
            repetition.rule = {};
            if (rule == lastOfFebruary)
                repetition.leapDay = MvEventRepetition::LeapDay::February28;
            if (rule == sixtiethDay)
                repetition.leapDay = MvEventRepetition::LeapDay::March1;
        } else if (!repetition.rule.isNone()) {
            event.setRepetition(repetition);
            if (!event.isAtDay(date) && !repetition.exceptions.contains(date))
                repetition.extraDates.append(date); // the first one is there, whatever the rule says
        }
        event.setRepetition(repetition);
    }

    /// With the last day as this computer counts it.
    QString untilHere(const QString &rule) const
    {
        static const QRegularExpression until(u"UNTIL=(\\d{8}T\\d{6}Z)"_s, QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = until.match(rule);
        const When when = match.hasMatch() ? readWhen(match.captured(1), {}) : When();
        if (!match.hasMatch() || !when.error.isEmpty() || !m_event.when("DTSTART").time.isValid())
            return rule;
        return QString(rule).replace(match.captured(1), when.date.toString(u"yyyyMMdd"_s));
    }

    void takeGroups(MvCalendarEvent &event)
    {
        QStringList groups;
        const QList<MvVCardProperty> all = m_event.properties.values("CATEGORIES");
        for (const MvVCardProperty &property : all) {
            QString text = property.text();
            const QStringList names = text.replace(u"\\,"_s, QString(QChar(1))).split(u',', Qt::SkipEmptyParts);
            for (QString name : names)
                groups.append(
                    m_result.events.groups().idOfName(MvVCardProperty::unescaped(name.replace(QChar(1), u','))));
        }
        event.setGroups(groups);
    }

    /// What was moved or called off is no longer where the series has it.
    void applyOverrides()
    {
        for (const auto &[uid, date] : std::as_const(m_overrides)) {
            const auto master = m_masters.constFind(uid);
            if (master == m_masters.cend() || !date.isValid())
                continue;
            MvEventRepetition repetition = m_result.events.at(*master).repetition();
            repetition.exceptions.append(date);
            m_result.events[*master].setRepetition(repetition);
        }
    }

    MvEntryReading m_result;
    Component m_event;
    QList<QByteArray> m_open;
    QList<int> m_openLines;
    bool m_hasCalendar = false;
    QHash<QString, qsizetype> m_masters; // by UID
    QList<std::pair<QString, QDate>> m_overrides;
};

// ---- writing

QString escaped(QString text)
{
    return text.replace(u'\\', u"\\\\"_s).replace(u';', u"\\;"_s).replace(u',', u"\\,"_s).replace(u'\n', u"\\n"_s);
}

/// Lines of 75 bytes at most, divided between characters.
void addLine(QByteArray &bytes, const QString &line)
{
    constexpr qsizetype longest = 74;
    QByteArray rest = line.toUtf8();
    qsizetype most = longest + 1;
    while (rest.size() > most) {
        qsizetype end = most;
        while ((uchar(rest.at(end)) & 0xC0) == 0x80)
            --end;
        bytes += rest.first(end) + "\r\n ";
        rest.remove(0, end);
        most = longest;
    }
    bytes += rest + "\r\n";
}

QString dayText(const QDate &date)
{
    return date.toString(u"yyyyMMdd"_s);
}

QString ruleOf(const MvCalendarEvent &event)
{
    const MvEventRepetition &repetition = event.repetition();
    const QDate date = event.dateTime().date();
    if (!repetition.rule.isNone())
        return repetition.rule.text();
    if (!event.storedRecurrent())
        return {};
    using LeapDay = MvEventRepetition::LeapDay;
    if (date.month() != 2 || date.day() != 29 || repetition.leapDay == LeapDay::LeapYearsOnly)
        return u"FREQ=YEARLY"_s;
    return repetition.leapDay == LeapDay::February28 ? lastOfFebruary : sixtiethDay;
}

/// "DTSTART;VALUE=DATE:20270301", or with the entry's time in no time zone.
void addDate(QByteArray &bytes, const QString &name, const MvCalendarEvent &event, const QList<QDate> &dates)
{
    if (dates.isEmpty())
        return;
    QStringList texts;
    for (const QDate &date : dates)
        texts.append(event.time().isValid() ? dayText(date) + event.time().toString(u"'T'HHmmss"_s) : dayText(date));
    addLine(bytes, name + (event.time().isValid() ? u":"_s : u";VALUE=DATE:"_s) + texts.join(u','));
}

void addEvent(QByteArray &bytes, const MvCalendarEvent &event, const MvEventGroupList &groups)
{
    const QDate date = event.dateTime().date();
    addLine(bytes, u"BEGIN:VEVENT"_s);
    addLine(bytes, u"UID:"_s + event.uuid().toString(QUuid::WithoutBraces));
    addLine(bytes, u"DTSTAMP:"_s + event.lastChanged().toUTC().toString(u"yyyyMMdd'T'HHmmss'Z'"_s));
    addDate(bytes, u"DTSTART"_s, event, {date});
    if (!event.time().isValid())
        addDate(bytes, u"DTEND"_s, event, {date.addDays(event.dayCount())});
    else if (event.dayCount() > 1)
        addLine(bytes, u"DTEND:"_s + dayText(date.addDays(event.dayCount() - 1)) + u"T235900"_s);
    addLine(bytes, u"SUMMARY:"_s + escaped(event.description()));
    if (const QString rule = ruleOf(event); !rule.isEmpty())
        addLine(bytes, u"RRULE:"_s + rule);
    addDate(bytes, u"EXDATE"_s, event, event.repetition().exceptions);
    addDate(bytes, u"RDATE"_s, event, event.repetition().extraDates);
    QStringList names;
    for (const QString &id : event.groups()) {
        if (const MvEventGroup *group = groups.find(id))
            names.append(escaped(group->name));
    }
    if (!names.isEmpty())
        addLine(bytes, u"CATEGORIES:"_s + names.join(u','));
    addLine(bytes, u"END:VEVENT"_s);
}

} // namespace

MvEntryReading MvICalendar::read(const QByteArray &bytes)
{
    return Reading().of(bytes);
}

QByteArray MvICalendar::toBytes(const MvCalendarEventList &events)
{
    QByteArray bytes;
    for (const QString &line : {u"BEGIN:VCALENDAR"_s, u"VERSION:2.0"_s, u"PRODID:-//MvCalendar//DE"_s})
        addLine(bytes, line);
    for (const MvCalendarEvent &event : events) {
        if (event.isValid())
            addEvent(bytes, event, events.groups());
    }
    addLine(bytes, u"END:VCALENDAR"_s);
    return bytes;
}
