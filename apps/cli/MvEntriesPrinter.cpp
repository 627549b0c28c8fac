// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntriesPrinter.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvEntryTable.h"
#include "MvCalendar/MvICalendar.h"
#include "plain/MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString repetitionOf(const MvCalendarEvent &event)
{
    if (!event.repetition().rule.isNone())
        return event.repetition().rule.describe();
    return event.storedRecurrent() ? MvEntriesPrinter::tr("jedes Jahr") : MvEntriesPrinter::tr("einmal");
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

QJsonValue orNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QString leapDayOf(const MvCalendarEvent &event)
{
    const QDate date = event.dateTime().date();
    if (date.month() != 2 || date.day() != 29)
        return {};
    using LeapDay = MvEventRepetition::LeapDay;
    const LeapDay leapDay = event.repetition().leapDay;
    return leapDay == LeapDay::February28 ? u"february28"_s : leapDay == LeapDay::March1 ? u"march1"_s : u"none"_s;
}

} // namespace

QStringList MvEntriesPrinter::formats()
{
    return {u"text"_s, u"json"_s, u"xml"_s, u"ics"_s, u"csv"_s, u"tsv"_s};
}

QByteArray MvEntriesPrinter::toBytes(const MvCalendarEventList &events, const QString &format)
{
    if (format == u"xml"_s)
        return MvCalendarEventFile::toBytes(events);
    if (format == u"ics"_s)
        return MvICalendar::toBytes(events);
    if (format == u"csv"_s || format == u"tsv"_s)
        return MvEntryTable::toBytes(events, format == u"csv"_s ? u';' : u'\t');
    return format == u"json"_s ? toJson(events) : toText(events);
}

QString MvEntriesPrinter::datesOf(const MvCalendarEvent &event)
{
    const QString first = MvCalendarEvent::dateText(event.dateTime().date());
    return event.endDate().isValid() ? first + u'–' + MvCalendarEvent::dateText(event.endDate()) : first;
}

QByteArray MvEntriesPrinter::toText(const MvCalendarEventList &events)
{
    QByteArray bytes;
    QTextStream out(&bytes);
    MvTextTable table;
    for (const MvCalendarEvent &event : events)
        table.addRow({datesOf(event), event.time().toString(u"HH:mm"_s), event.description(), repetitionOf(event),
                      groupsOf(event, events.groups()).join(u", "_s)});
    table.print(out);
    out.flush();
    return bytes;
}

QByteArray MvEntriesPrinter::toJson(const MvCalendarEventList &events)
{
    QJsonArray array;
    for (const MvCalendarEvent &event : events) {
        const MvEventRepetition &repetition = event.repetition();
        array.append(QJsonObject{{u"name"_s, event.description()},
                                 {u"date"_s, event.dateTime().date().toString(Qt::ISODate)},
                                 {u"hasYear"_s, event.hasYear()},
                                 {u"end"_s, orNull(event.endDate().toString(Qt::ISODate))},
                                 {u"days"_s, event.dayCount()},
                                 {u"time"_s, orNull(event.time().toString(u"HH:mm"_s))},
                                 {u"yearly"_s, repetition.rule.isNone() && event.storedRecurrent()},
                                 {u"rule"_s, repetition.rule.text()},
                                 {u"repetition"_s, repetitionOf(event)},
                                 {u"exceptions"_s, arrayOf(repetition.exceptions)},
                                 {u"extraDates"_s, arrayOf(repetition.extraDates)},
                                 {u"leapDay"_s, orNull(leapDayOf(event))},
                                 {u"groups"_s, QJsonArray::fromStringList(groupsOf(event, events.groups()))},
                                 {u"photo"_s, orNull(event.foto().localFilePath())},
                                 {u"uuid"_s, event.uuid().toString(QUuid::WithoutBraces)}});
    }
    return QJsonDocument(array).toJson();
}
