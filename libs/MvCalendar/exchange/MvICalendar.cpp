// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvICalendar.h"

#include "MvCalendar/MvICalendarEntryMaker.h"
#include "MvCalendar/MvICalendarReader.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QUuid repeatedNamespace(u"{0d0b5a0e-54a5-4a4f-8f0f-6f0f3e1a9c55}"_s);

QString escaped(QString text)
{
    text.removeIf([](QChar c) { return c.unicode() < 0x20 && c != u'\n' && c != u'\t'; });
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
    if (!repetition.rule.isNone()) {
        const QString until =
            repetition.rule.until.isValid() ? u"UNTIL="_s + dayText(repetition.rule.until) : QString();
        const bool endsWithTime = event.time().isValid() && !until.isEmpty(); // as the event begins with one
        QString text = repetition.rule.text();
        return endsWithTime ? text.replace(until, until + u"T235959"_s) : text;
    }
    if (!event.storedRecurrent())
        return {};
    using LeapDay = MvEventRepetition::LeapDay;
    if (date.month() != 2 || date.day() != 29 || repetition.leapDay == LeapDay::LeapYearsOnly)
        return u"FREQ=YEARLY"_s;
    return repetition.leapDay == LeapDay::February28 ? MvICalendarEntryMaker::lastOfFebruary
                                                     : MvICalendarEntryMaker::sixtiethDay;
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

/// Entries of one series share their uuid; for other programs an UID is one event.
QUuid uidOf(const MvCalendarEvent &event, QSet<QUuid> &known)
{
    QUuid uid = event.uuid();
    if (known.contains(uid))
        uid = QUuid::createUuidV5(repeatedNamespace,
                                  uid.toString() + event.description() + event.dateTime().date().toString(Qt::ISODate));
    known.insert(uid);
    return uid;
}

/// When it was changed, but not after the moment that a reproducible build names.
QDateTime stampOf(const MvCalendarEvent &event)
{
    bool isGiven = false;
    const qint64 latest = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    const qint64 changed = event.lastChanged().isValid() ? event.lastChanged().toSecsSinceEpoch() : 0;
    return QDateTime::fromSecsSinceEpoch(isGiven ? qMin(changed, latest) : changed, Qt::UTC);
}

void addEvent(QByteArray &bytes, const MvCalendarEvent &event, const QUuid &uid, const MvEventGroupList &groups)
{
    const QDate date = event.dateTime().date();
    addLine(bytes, u"BEGIN:VEVENT"_s);
    addLine(bytes, u"UID:"_s + uid.toString(QUuid::WithoutBraces));
    addLine(bytes, u"DTSTAMP:"_s + stampOf(event).toString(u"yyyyMMdd'T'HHmmss'Z'"_s));
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
    if (!event.time().isValid())
        addLine(bytes, u"TRANSP:TRANSPARENT"_s); // nobody is busy on a birthday
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
    return MvICalendarReader().read(bytes);
}

QByteArray MvICalendar::toBytes(const MvCalendarEventList &events)
{
    QByteArray bytes;
    for (const QString &line : {u"BEGIN:VCALENDAR"_s, u"VERSION:2.0"_s, u"PRODID:-//MvCalendar//DE"_s})
        addLine(bytes, line);
    QSet<QUuid> known;
    for (const MvCalendarEvent &event : events) {
        if (event.isValid())
            addEvent(bytes, event, uidOf(event, known), events.groups());
    }
    addLine(bytes, u"END:VCALENDAR"_s);
    return bytes;
}
