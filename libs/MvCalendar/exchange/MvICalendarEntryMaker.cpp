// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendarEntryMaker.h"

#include "MvCalendar/MvICalendar.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

const QString MvICalendarEntryMaker::lastOfFebruary = u"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=-1"_s;
const QString MvICalendarEntryMaker::sixtiethDay = u"FREQ=YEARLY;BYYEARDAY=60"_s;

namespace {

using Time = MvICalendarZones::Time;

const QUuid entriesNamespace(u"{6f2a4b0e-6d1c-4a53-9a55-3c1f0b8f7a10}"_s);

void refuse(QString *reason, const QString &text)
{
    if (reason->isEmpty())
        *reason = text;
}

/// "P1DT2H" in seconds; false when it is not one.
bool readDuration(const QString &text, qint64 *seconds)
{
    static const QRegularExpression form(
        u"^\\+?P(?:(\\d{1,4})W)?(?:(\\d{1,5})D)?(?:T(?:(\\d{1,5})H)?(?:(\\d{1,6})M)?(?:(\\d{1,8})S)?)?$"_s);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return false;
    constexpr qint64 factors[] = {7LL * 86400, 86400, 3600, 60, 1};
    *seconds = 0;
    for (int i = 0; i < 5; ++i)
        *seconds += match.captured(i + 1).toLongLong() * factors[i];
    return true;
}

/// The rule of an event that is some days earlier or later here than where it takes place; false when that cannot be
/// said in a rule.
bool moveDays(MvRecurrenceRule &rule, int days)
{
    constexpr int daysPerWeek = 7;
    MvRecurrenceRule rest = rule;
    rest.weekDays.clear();
    const auto isNth = [](const MvRecurrenceRule::WeekDay &day) { return day.nth != 0; };
    if (days == 0 || rule.isPlain())
        return true;
    if (!rest.isPlain() || std::any_of(rule.weekDays.cbegin(), rule.weekDays.cend(), isNth))
        return false;
    const auto moved = [days](int day) { return (day - 1 + days + daysPerWeek) % daysPerWeek + 1; };
    for (MvRecurrenceRule::WeekDay &day : rule.weekDays)
        day.day = moved(day.day);
    rule.weekStart = moved(rule.weekStart);
    return true;
}

/// What speaks against the event before its parts are looked at.
QString whyNone(const MvICalendarEvent &event, const Time &start)
{
    if (event.isCancelled() && !event.isOverride())
        return MvICalendar::tr("der Termin ist abgesagt");
    if (event.name().isEmpty() && !event.isCancelled())
        return MvICalendar::tr("der Name fehlt");
    if (!event.has("DTSTART"))
        return MvICalendar::tr("das Datum fehlt");
    if (event.has("EXRULE"))
        return MvICalendar::tr("Ausnahmen nach einer Regel sind nicht auszuwerten");
    if (event.count("RRULE") > 1)
        return MvICalendar::tr("mehrere Regeln der Wiederholung sind nicht auszuwerten");
    return start.error;
}

} // namespace

QUuid MvICalendarEntryMaker::uuidOf(const MvICalendarEvent &event, const QDate &start)
{
    const QString uid = event.uid();
    if (uid.isEmpty())
        return QUuid::createUuidV5(entriesNamespace, event.name() + start.toString(Qt::ISODate));
    if (event.isOverride())
        return QUuid::createUuidV5(entriesNamespace, uid + u'/' + event.raw("RECURRENCE-ID"));
    const QUuid own = QUuid::fromString(uid);
    return own.isNull() ? QUuid::createUuidV5(entriesNamespace, uid) : own;
}

MvCalendarEvent MvICalendarEntryMaker::make(const MvICalendarEvent &event, QString *reason) const
{
    const Time start = m_zones.read(event.value("DTSTART"));
    *reason = whyNone(event, start);
    if (!reason->isEmpty())
        return {};
    const QString name = event.name();
    MvCalendarEvent entry(name.isEmpty() ? MvICalendar::tr("abgesagt") : name, MvCalendarEvent::startOf(start.date),
                          false, {}, uuidOf(event, start.date), {});
    entry.setTime(start.time);
    takeEnd(entry, event, start, reason);
    if (!event.isOverride())
        takeRepetition(entry, event, reason);
    takeGroups(entry, event);
    return entry;
}

QDate MvICalendarEntryMaker::overriddenDate(const MvICalendarEvent &event) const
{
    const Time time = m_zones.read(event.value("RECURRENCE-ID"));
    return time.error.isEmpty() ? time.date : QDate();
}

/// The end of whole days is the day after the last one; so is midnight.
void MvICalendarEntryMaker::takeEnd(MvCalendarEvent &entry, const MvICalendarEvent &event, const Time &start,
                                    QString *reason) const
{
    QDate last = start.date;
    if (event.has("DTEND")) {
        const Time end = m_zones.read(event.value("DTEND"));
        if (!end.error.isEmpty())
            refuse(reason, end.error);
        const bool isBefore = !end.time.isValid() || end.time == QTime(0, 0);
        last = isBefore ? end.date.addDays(-1) : end.date;
    } else if (event.has("DURATION")) {
        qint64 seconds = 0;
        if (!readDuration(event.raw("DURATION"), &seconds))
            refuse(reason, MvICalendar::tr("die Dauer „%1“ ist nicht zu lesen").arg(event.raw("DURATION").left(40)));
        const qint64 begin = start.time.isValid() ? start.time.msecsSinceStartOfDay() / 1000 : 0;
        last = start.date.addDays(std::max<qint64>(0, (begin + seconds - 1) / 86400));
    }
    if (start.date.daysTo(last) >= MvCalendarEvent::longestSpan)
        refuse(reason, MvICalendar::tr("er dauert länger als ein Jahr"));
    entry.setEndDate(last);
}

void MvICalendarEntryMaker::takeRepetition(MvCalendarEvent &entry, const MvICalendarEvent &event, QString *reason) const
{
    MvEventRepetition repetition;
    if (event.has("RRULE")) {
        const MvRecurrenceRuleReading reading = MvRecurrenceRule::parse(ruleWithLocalEnd(event));
        if (!reading.isOk())
            refuse(reason, MvICalendar::tr("die Wiederholung ist nicht auszuwerten: %1").arg(reading.error));
        repetition.rule = reading.rule;
        const QDate there = QDate::fromString(event.raw("DTSTART").left(8), u"yyyyMMdd"_s);
        if (reading.isOk() && !moveDays(repetition.rule, int(there.daysTo(entry.dateTime().date()))))
            refuse(reason, MvICalendar::tr("die Wiederholung zählt die Tage einer anderen Zeitzone"));
    }
    repetition.exceptions = dates(event, "EXDATE", reason);
    repetition.extraDates = dates(event, "RDATE", reason);
    const QDate date = entry.dateTime().date();
    const bool isLeapDay = date.month() == 2 && date.day() == 29;
    const QString rule = repetition.rule.text();
    if (rule == u"FREQ=YEARLY"_s || (isLeapDay && (rule == lastOfFebruary || rule == sixtiethDay))) {
        entry.setRecurrent(true);
        repetition.rule = {};
        if (rule == lastOfFebruary)
            repetition.leapDay = MvEventRepetition::LeapDay::February28;
        if (rule == sixtiethDay)
            repetition.leapDay = MvEventRepetition::LeapDay::March1;
    } else if (!repetition.rule.isNone()) {
        entry.setRepetition(repetition);
        if (!entry.isAtDay(date) && !repetition.exceptions.contains(date))
            repetition.extraDates.append(date); // the first one is there, whatever the rule says
    }
    entry.setRepetition(repetition);
}

/// All dates of a property that may be there several times, with several dates each; of periods, where they begin.
QList<QDate> MvICalendarEntryMaker::dates(const MvICalendarEvent &event, const char *name, QString *reason) const
{
    QList<QDate> dates;
    const QList<MvVCardProperty> all = event.values(name);
    for (const MvVCardProperty &property : all) {
        const QStringList texts = property.text().split(u',', Qt::SkipEmptyParts);
        for (const QString &text : texts) {
            const Time when = m_zones.read(text.section(u'/', 0, 0), MvICalendarZones::zoneOf(property));
            if (!when.error.isEmpty())
                refuse(reason, when.error);
            dates.append(when.date);
        }
    }
    return dates;
}

/// The rule with its last day as this computer counts it.
QString MvICalendarEntryMaker::ruleWithLocalEnd(const MvICalendarEvent &event) const
{
    static const QRegularExpression until(u"UNTIL=(\\d{8}T\\d{6}Z)"_s, QRegularExpression::CaseInsensitiveOption);
    const QString rule = event.raw("RRULE");
    const QRegularExpressionMatch match = until.match(rule);
    const Time when = match.hasMatch() ? m_zones.read(match.captured(1), {}) : Time();
    if (!match.hasMatch() || !when.error.isEmpty() || !m_zones.read(event.value("DTSTART")).time.isValid())
        return rule;
    return QString(rule).replace(match.captured(1), when.date.toString(u"yyyyMMdd"_s));
}

void MvICalendarEntryMaker::takeGroups(MvCalendarEvent &entry, const MvICalendarEvent &event) const
{
    QStringList ids;
    const QList<MvVCardProperty> all = event.values("CATEGORIES");
    for (const MvVCardProperty &property : all) {
        const QString text = property.text().replace(u"\\,"_s, QString(QChar(1)));
        const QStringList names = text.split(u',', Qt::SkipEmptyParts);
        for (QString name : names)
            ids.append(m_groups.idOfName(MvVCardProperty::unescaped(name.replace(QChar(1), u','))));
    }
    entry.setGroups(ids);
}
