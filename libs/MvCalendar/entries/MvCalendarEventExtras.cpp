// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventExtras.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvCalendarEventTexts.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString ruleKey = u"Repetition"_s;
const QString exceptionsKey = u"Exceptions"_s;
const QString extraDatesKey = u"ExtraDates"_s;
const QString leapDayKey = u"LeapDay"_s;
const QString endKey = u"EndDate"_s;
const QString timeKey = u"Time"_s;
const QString groupsKey = u"Groups"_s;

const QStringList leapDays = {QString(), u"february28"_s, u"march1"_s};

/// Entries of a list often have the same rule: the last one that could be read is kept.
MvRecurrenceRuleReading ruleOf(const QString &text)
{
    thread_local std::pair<QString, MvRecurrenceRuleReading> last;
    if (last.first.isEmpty() || last.first != text) {
        MvRecurrenceRuleReading reading = MvRecurrenceRule::parse(text);
        if (!reading.isOk())
            return reading;
        last = {text, std::move(reading)};
    }
    return last.second;
}

QStringList items(const MvCalendarEventTexts &texts, const QString &key)
{
    QStringList items;
    const QStringList parts = texts.text(key).split(u',', Qt::SkipEmptyParts);
    for (const QString &part : parts)
        items.append(part.trimmed());
    return items;
}

QList<QDate> dates(const MvCalendarEventTexts &texts, const QString &key)
{
    QList<QDate> dates;
    for (const QString &text : items(texts, key))
        dates.append(QDate::fromString(text, Qt::ISODate));
    return dates;
}

QString textOf(const QList<QDate> &dates)
{
    QStringList texts;
    for (const QDate &date : dates)
        texts.append(date.toString(Qt::ISODate));
    return texts.join(u',');
}

QTime timeOf(const QString &text)
{
    return text.isEmpty() ? QTime() : QTime::fromString(text.trimmed(), u"HH:mm"_s);
}

} // namespace

MvCalendarEventExtras::MvCalendarEventExtras(const MvCalendarEventTexts &texts)
{
    if (texts.contains(ruleKey))
        repetition.rule = ruleOf(texts.text(ruleKey)).rule;
    repetition.exceptions = dates(texts, exceptionsKey);
    repetition.extraDates = dates(texts, extraDatesKey);
    repetition.normalize();
    const qsizetype day = leapDays.indexOf(texts.text(leapDayKey).trimmed());
    repetition.leapDay = MvEventRepetition::LeapDay(std::max<qsizetype>(0, day));
    endDate = QDate::fromString(texts.text(endKey).trimmed(), Qt::ISODate);
    time = timeOf(texts.text(timeKey));
    groups = items(texts, groupsKey);
}

QString MvCalendarEventExtras::whyUnreadable(const MvCalendarEventTexts &texts)
{
    const auto unreadable = [&texts](const QString &key) {
        return MvCalendarEvent::tr("„%1“ als %2 ist nicht zu lesen").arg(texts.text(key).simplified().left(60), key);
    };
    if (texts.contains(ruleKey)) {
        const MvRecurrenceRuleReading reading = ruleOf(texts.text(ruleKey));
        if (!reading.isOk())
            return MvCalendarEvent::tr("die Wiederholung ist nicht zu verstehen: %1").arg(reading.error);
    }
    for (const QString &key : {exceptionsKey, extraDatesKey, endKey}) {
        if (dates(texts, key).contains(QDate()))
            return unreadable(key);
    }
    if (!texts.text(leapDayKey).trimmed().isEmpty() && !leapDays.contains(texts.text(leapDayKey).trimmed()))
        return unreadable(leapDayKey);
    if (!texts.text(timeKey).trimmed().isEmpty() && !timeOf(texts.text(timeKey)).isValid())
        return unreadable(timeKey);
    return {};
}

QList<std::pair<QString, QString>> MvCalendarEventExtras::fileTexts() const
{
    const QList<std::pair<QString, QString>> all = {
        {ruleKey, repetition.rule.text()},
        {exceptionsKey, textOf(repetition.exceptions)},
        {extraDatesKey, textOf(repetition.extraDates)},
        {leapDayKey, leapDays.at(int(repetition.leapDay))},
        {endKey, endDate.toString(Qt::ISODate)},
        {timeKey, time.toString(u"HH:mm"_s)},
        {groupsKey, groups.join(u',')},
    };
    QList<std::pair<QString, QString>> present;
    for (const auto &text : all) {
        if (!text.second.isEmpty())
            present.append(text);
    }
    return present;
}
