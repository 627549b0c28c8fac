// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvRecurrenceRule.h"

#include <QHash>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

using Rule = MvRecurrenceRule;

const QStringList frequencies = {QString(), u"DAILY"_s, u"WEEKLY"_s, u"MONTHLY"_s, u"YEARLY"_s};
const QStringList weekDays = {QString(), u"MO"_s, u"TU"_s, u"WE"_s, u"TH"_s, u"FR"_s, u"SA"_s, u"SU"_s};

/// Takes the parts of a rule one by one; the first thing that is wrong is kept.
class Reading
{
public:
    explicit Reading(const QString &text)
    {
        QString rest = text.simplified().remove(u' ').toUpper();
        if (rest.startsWith(u"RRULE:"))
            rest.remove(0, 6);
        const QStringList parts = rest.split(u';', Qt::SkipEmptyParts);
        for (const QString &part : parts) {
            const qsizetype equals = part.indexOf(u'=');
            const QString key = part.left(equals);
            if (equals < 1 || m_parts.contains(key)) {
                refuse(
                    MvRecurrenceRule::tr("„%1“ ist keine Angabe einer Wiederholung oder steht zweimal da").arg(part));
                return;
            }
            m_parts.insert(key, part.mid(equals + 1));
        }
    }

    MvRecurrenceRuleReading result()
    {
        takeFrequency();
        m_rule.interval = number(u"INTERVAL"_s, 1, Rule::mostInterval, 1);
        m_rule.count = number(u"COUNT"_s, 1, 100000, 0);
        takeUntil();
        m_rule.months = numbers(u"BYMONTH"_s, 12, false);
        m_rule.weeks = numbers(u"BYWEEKNO"_s, 53, true);
        m_rule.yearDays = numbers(u"BYYEARDAY"_s, 366, true);
        m_rule.monthDays = numbers(u"BYMONTHDAY"_s, 31, true);
        takeWeekDays();
        m_rule.positions = numbers(u"BYSETPOS"_s, 366, true);
        takeWeekStart();
        dropTimes();
        if (m_error.isEmpty() && !m_parts.isEmpty())
            refuse(MvRecurrenceRule::tr("„%1“ ist bei Wiederholungen nicht bekannt").arg(m_parts.cbegin().key()));
        checkTogether();
        MvRecurrenceRuleReading reading;
        reading.error = m_error;
        if (m_error.isEmpty())
            reading.rule = m_rule;
        return reading;
    }

private:
    void refuse(const QString &reason)
    {
        if (m_error.isEmpty())
            m_error = reason;
    }
    void refuse(const QString &key, const QString &value)
    {
        refuse(MvRecurrenceRule::tr("„%1=%2“ ist nicht zu lesen").arg(key, value));
    }

    void takeFrequency()
    {
        const QString value = m_parts.take(u"FREQ"_s);
        const qsizetype index = value.isEmpty() ? -1 : frequencies.indexOf(value);
        if (index > 0)
            m_rule.frequency = Rule::Frequency(index);
        else if (value == u"HOURLY" || value == u"MINUTELY" || value == u"SECONDLY")
            refuse(MvRecurrenceRule::tr("sie wiederholt sich öfter als einmal am Tag"));
        else
            refuse(MvRecurrenceRule::tr("es steht nicht da, wie oft sie sich wiederholt (FREQ)"));
    }

    int number(const QString &key, int least, int most, int otherwise)
    {
        if (!m_parts.contains(key))
            return otherwise;
        const QString value = m_parts.take(key);
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (!isNumber || number < least || number > most)
            refuse(key, value);
        return number;
    }

    QList<int> numbers(const QString &key, int most, bool isSigned)
    {
        QSet<int> found;
        const QString value = m_parts.take(key);
        const QStringList texts = value.isEmpty() ? QStringList() : value.split(u',');
        for (const QString &text : texts) {
            bool isNumber = false;
            const int number = text.toInt(&isNumber);
            if (!isNumber || number == 0 || std::abs(number) > most || (number < 0 && !isSigned))
                refuse(key, text);
            found.insert(number);
        }
        QList<int> sorted(found.cbegin(), found.cend());
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

    void takeUntil()
    {
        if (!m_parts.contains(u"UNTIL"_s))
            return;
        const QString value = m_parts.take(u"UNTIL"_s);
        m_rule.until = QDate::fromString(value.left(8), u"yyyyMMdd"_s); // a day that no calendar has is none
        const QString time = value.mid(8);
        static const QRegularExpression timeForm(u"^(T([01]\\d|2[0-3])[0-5]\\d([0-5]\\d|60)Z?)?$"_s);
        if (!m_rule.until.isValid() || !timeForm.match(time).hasMatch())
            refuse(u"UNTIL"_s, value);
    }

    void takeWeekDays()
    {
        const QString value = m_parts.take(u"BYDAY"_s);
        const QStringList texts = value.isEmpty() ? QStringList() : value.split(u',');
        for (const QString &text : texts) {
            const qsizetype day = weekDays.indexOf(text.right(2));
            const QString nth = text.chopped(std::min<qsizetype>(2, text.size()));
            bool isNumber = nth.isEmpty();
            const int number = isNumber ? 0 : nth.toInt(&isNumber);
            if (day < 1 || !isNumber || std::abs(number) > 53 || (!nth.isEmpty() && number == 0))
                refuse(u"BYDAY"_s, text);
            const Rule::WeekDay weekDay{number, int(day)};
            if (!m_rule.weekDays.contains(weekDay))
                m_rule.weekDays.append(weekDay);
        }
    }

    void takeWeekStart()
    {
        if (!m_parts.contains(u"WKST"_s))
            return;
        const QString value = m_parts.take(u"WKST"_s);
        const qsizetype day = weekDays.indexOf(value);
        if (day < 1)
            refuse(u"WKST"_s, value);
        m_rule.weekStart = int(std::max<qsizetype>(1, day));
    }

    /// Days repeat, not hours: one hour a day makes no difference, and several do only where days are counted.
    void dropTimes()
    {
        for (const QString &key : {u"BYHOUR"_s, u"BYMINUTE"_s, u"BYSECOND"_s}) {
            const QString value = m_parts.take(key);
            if (value.contains(u',') && (m_rule.count > 0 || !m_rule.positions.isEmpty()))
                refuse(MvRecurrenceRule::tr("sie wiederholt sich öfter als einmal am Tag"));
        }
        if (m_parts.value(u"RSCALE"_s) == u"GREGORIAN")
            m_parts.remove(u"RSCALE"_s);
        if (m_parts.value(u"SKIP"_s) == u"OMIT")
            m_parts.remove(u"SKIP"_s);
    }

    void checkTogether()
    {
        const auto frequency = m_rule.frequency;
        const bool hasNth = std::any_of(m_rule.weekDays.cbegin(), m_rule.weekDays.cend(),
                                        [](const Rule::WeekDay &day) { return day.nth != 0; });
        const bool hasDays = !m_rule.months.isEmpty() || !m_rule.weeks.isEmpty() || !m_rule.yearDays.isEmpty() ||
                             !m_rule.monthDays.isEmpty() || !m_rule.weekDays.isEmpty();
        if (m_rule.count > 0 && m_rule.until.isValid())
            refuse(MvRecurrenceRule::tr("COUNT und UNTIL stehen zugleich da"));
        if (hasNth && (frequency == Rule::Daily || frequency == Rule::Weekly || !m_rule.weeks.isEmpty()))
            refuse(MvRecurrenceRule::tr("den wievielten Wochentag gibt es nur in Monaten und Jahren"));
        if (!m_rule.weeks.isEmpty() && frequency != Rule::Yearly)
            refuse(MvRecurrenceRule::tr("Wochen des Jahres gibt es nur bei jährlicher Wiederholung"));
        if (!m_rule.yearDays.isEmpty() && frequency != Rule::Yearly)
            refuse(MvRecurrenceRule::tr("Tage des Jahres gibt es nur bei jährlicher Wiederholung"));
        if (!m_rule.monthDays.isEmpty() && frequency == Rule::Weekly)
            refuse(MvRecurrenceRule::tr("Tage des Monats gibt es nicht bei wöchentlicher Wiederholung"));
        if (!m_rule.positions.isEmpty() && !hasDays)
            refuse(MvRecurrenceRule::tr("BYSETPOS steht allein da"));
    }

    QHash<QString, QString> m_parts;
    Rule m_rule;
    QString m_error;
};

QString joined(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return texts.join(u',');
}

QString dayName(int day)
{
    return QLocale().standaloneDayName(day);
}

QString dayNames(const QList<Rule::WeekDay> &days)
{
    QStringList names;
    for (const Rule::WeekDay &day : days)
        names.append(dayName(day.day));
    return names.join(u", "_s);
}

QString ordinal(int nth)
{
    if (nth == -1)
        return MvRecurrenceRule::tr("letzten");
    return nth < 0 ? MvRecurrenceRule::tr("%1.-letzten").arg(-nth) : u"%1."_s.arg(nth);
}

/// "jede Woche", "alle 2 Wochen"
QString period(const Rule &rule)
{
    const int n = rule.interval;
    switch (rule.frequency) {
    case Rule::Daily:
        return n == 1 ? MvRecurrenceRule::tr("jeden Tag") : MvRecurrenceRule::tr("alle %1 Tage").arg(n);
    case Rule::Weekly:
        return n == 1 ? MvRecurrenceRule::tr("jede Woche") : MvRecurrenceRule::tr("alle %1 Wochen").arg(n);
    case Rule::Monthly:
        return n == 1 ? MvRecurrenceRule::tr("jeden Monat") : MvRecurrenceRule::tr("alle %1 Monate").arg(n);
    case Rule::Yearly:
        return n == 1 ? MvRecurrenceRule::tr("jedes Jahr") : MvRecurrenceRule::tr("alle %1 Jahre").arg(n);
    case Rule::None:
        break;
    }
    return {};
}

/// The days of the period in words; null when they are not the usual ones.
QString daysInWords(const Rule &rule)
{
    if (rule.isPlain())
        return u""_s;
    Rule rest = rule;
    rest.weekDays.clear();
    if (rule.frequency == Rule::Weekly && rest.isPlain())
        return MvRecurrenceRule::tr(" am %1").arg(dayNames(rule.weekDays));
    if (rule.frequency == Rule::Monthly && rest.isPlain() && rule.weekDays.size() == 1 && rule.weekDays.first().nth)
        return MvRecurrenceRule::tr(" am %1 %2")
            .arg(ordinal(rule.weekDays.first().nth), dayName(rule.weekDays.first().day));
    rest = rule;
    rest.monthDays.clear();
    if (rule.frequency == Rule::Monthly && rest.isPlain() && rule.monthDays.size() == 1)
        return rule.monthDays.first() == -1 ? MvRecurrenceRule::tr(" am letzten Tag")
                                            : MvRecurrenceRule::tr(" am %1.").arg(rule.monthDays.first());
    return {};
}

} // namespace

bool MvRecurrenceRule::isPlain() const
{
    return !isNone() && months.isEmpty() && weeks.isEmpty() && yearDays.isEmpty() && monthDays.isEmpty() &&
           weekDays.isEmpty() && positions.isEmpty();
}

MvRecurrenceRuleReading MvRecurrenceRule::parse(const QString &text)
{
    return Reading(text).result();
}

QString MvRecurrenceRule::text() const
{
    if (isNone())
        return {};
    QStringList parts = {u"FREQ="_s + frequencies.at(frequency)};
    const auto add = [&parts](const QString &key, const QString &value) {
        if (!value.isEmpty())
            parts.append(key + u'=' + value);
    };
    add(u"INTERVAL"_s, interval == 1 ? QString() : QString::number(interval));
    add(u"COUNT"_s, count > 0 ? QString::number(count) : QString());
    add(u"UNTIL"_s, until.toString(u"yyyyMMdd"_s));
    add(u"BYMONTH"_s, joined(months));
    add(u"BYWEEKNO"_s, joined(weeks));
    add(u"BYYEARDAY"_s, joined(yearDays));
    add(u"BYMONTHDAY"_s, joined(monthDays));
    QStringList days;
    for (const WeekDay &day : weekDays)
        days.append((day.nth ? QString::number(day.nth) : QString()) + ::weekDays.at(day.day));
    add(u"BYDAY"_s, days.join(u','));
    add(u"BYSETPOS"_s, joined(positions));
    add(u"WKST"_s, weekStart == 1 ? QString() : ::weekDays.at(weekStart));
    return parts.join(u';');
}

QString MvRecurrenceRule::describe() const
{
    if (isNone())
        return {};
    const QString days = daysInWords(*this);
    if (days.isNull())
        return text();
    QString words = period(*this) + days;
    if (count > 0)
        words += MvRecurrenceRule::tr(", %1-mal").arg(count);
    if (until.isValid())
        words += MvRecurrenceRule::tr(", bis %1").arg(until.toString(u"dd.MM.yyyy"_s));
    return words;
}

size_t qHash(const MvRecurrenceRule &rule, size_t seed)
{
    return qHash(rule.text(), seed);
}
