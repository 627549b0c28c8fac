// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvRecurrenceDates.h"

#include <QCache>
#include <QMap>
#include <QMutex>
#include <QMutexLocker>

#include <libical/ical.h>

#include <algorithm>
#include <memory>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

using Rule = MvRecurrenceRule;

constexpr int firstYear = 1583;
constexpr int lastYear = 2500; // the library stops at 2582
constexpr int daysPerWeek = 7;
constexpr qsizetype mostKeptDays = 1'000'000;

QDate weekBegin(const QDate &date, int weekStart)
{
    return date.addDays(-((date.dayOfWeek() - weekStart + daysPerWeek) % daysPerWeek));
}

/// The number of the date's week, from the first week that has four days of the year.
int weekNumber(const QDate &date, int weekStart, int *weeksOfYear)
{
    const auto firstWeek = [weekStart](int year) { return weekBegin(QDate(year, 1, 4), weekStart); };
    const QDate begin = weekBegin(date, weekStart);
    const int year = begin.addDays(3).year();
    *weeksOfYear = int(firstWeek(year).daysTo(firstWeek(year + 1)) / daysPerWeek);
    return int(firstWeek(year).daysTo(begin) / daysPerWeek) + 1;
}

/// A number counts from the beginning, or from the end where it is negative.
bool isAmong(const QList<int> &numbers, int number, int most)
{
    return numbers.isEmpty() || numbers.contains(number) || numbers.contains(number - most - 1);
}

/// The rule with what its start says and it does not, and without what is decided here.
Rule explicitRule(Rule rule, const QDate &start)
{
    const bool hasDays =
        !rule.weeks.isEmpty() || !rule.yearDays.isEmpty() || !rule.monthDays.isEmpty() || !rule.weekDays.isEmpty();
    if (rule.frequency == Rule::Weekly && rule.weekDays.isEmpty())
        rule.weekDays = {{0, start.dayOfWeek()}};
    if (!rule.weeks.isEmpty() && rule.weekDays.isEmpty() && rule.monthDays.isEmpty() && rule.yearDays.isEmpty())
        rule.weekDays = {{0, start.dayOfWeek()}};
    if (rule.frequency == Rule::Yearly && !hasDays && rule.months.isEmpty())
        rule.months = {start.month()};
    if ((rule.frequency == Rule::Yearly || rule.frequency == Rule::Monthly) && !hasDays)
        rule.monthDays = {start.day()};
    return rule;
}

/// The rule of all days among which those of the rule are, in a form about which the library does not err.
Rule wideRule(const Rule &rule)
{
    Rule wide;
    wide.frequency = rule.frequency;
    if (rule.frequency == Rule::Daily)
        return wide;
    if (!rule.weeks.isEmpty() || rule.frequency == Rule::Weekly) {
        wide.frequency = rule.weekDays.isEmpty() ? Rule::Daily : Rule::Weekly;
        wide.weekDays = rule.weekDays;
    } else if (!rule.yearDays.isEmpty()) {
        wide.yearDays = rule.yearDays;
    } else if (!rule.monthDays.isEmpty()) {
        wide.monthDays = rule.monthDays;
        if (rule.frequency == Rule::Yearly)
            wide.months = rule.months.isEmpty() ? QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12} : rule.months;
    } else {
        wide.weekDays = rule.weekDays;
        if (rule.frequency == Rule::Yearly)
            wide.months = rule.months;
    }
    return wide;
}

icaltimetype timeOf(const QDate &date)
{
    icaltimetype time = icaltime_null_time();
    time.is_date = 1;
    time.year = date.year();
    time.month = date.month();
    time.day = date.day();
    return time;
}

QList<QDate> walk(const Rule &rule, const QDate &from, const QDate &to)
{
    const icalrecurrencetype recurrence = icalrecurrencetype_from_string(rule.text().toLatin1().constData());
    const std::unique_ptr<icalrecur_iterator, decltype(&icalrecur_iterator_free)> iterator(
        icalrecur_iterator_new(recurrence, timeOf(from)), &icalrecur_iterator_free);
    QList<QDate> dates;
    if (!iterator)
        return dates;
    for (;;) {
        const icaltimetype time = icalrecur_iterator_next(iterator.get());
        const QDate date = icaltime_is_null_time(time) ? QDate() : QDate(time.year, time.month, time.day);
        if (!date.isValid() || date > to)
            return dates;
        dates.append(date);
    }
}

bool isAmongWeekDays(const Rule &rule, const QDate &date)
{
    const bool isOfMonth = rule.frequency == Rule::Monthly || !rule.months.isEmpty();
    const int day = isOfMonth ? date.day() : date.dayOfYear();
    const int days = isOfMonth ? date.daysInMonth() : date.daysInYear();
    const int nth = (day - 1) / daysPerWeek + 1;
    const int fromEnd = -((days - day) / daysPerWeek + 1);
    return rule.weekDays.isEmpty() || rule.weekDays.contains(Rule::WeekDay{0, date.dayOfWeek()}) ||
           rule.weekDays.contains(Rule::WeekDay{nth, date.dayOfWeek()}) ||
           rule.weekDays.contains(Rule::WeekDay{fromEnd, date.dayOfWeek()});
}

bool isAllowed(const Rule &rule, const QDate &date)
{
    int weeks = 0;
    const int week = rule.weeks.isEmpty() ? 0 : weekNumber(date, rule.weekStart, &weeks);
    return (rule.months.isEmpty() || rule.months.contains(date.month())) && isAmong(rule.weeks, week, weeks) &&
           isAmong(rule.yearDays, date.dayOfYear(), date.daysInYear()) &&
           isAmong(rule.monthDays, date.day(), date.daysInMonth()) && isAmongWeekDays(rule, date);
}

/// Counts the periods of the rule: days, weeks, months or years.
qint64 periodOf(const Rule &rule, const QDate &date)
{
    switch (rule.frequency) {
    case Rule::Weekly:
        return (weekBegin(date, rule.weekStart).toJulianDay() - rule.weekStart + 1) / daysPerWeek;
    case Rule::Monthly:
        return qint64(date.year()) * 12 + date.month();
    case Rule::Yearly:
        return date.year();
    default:
        return date.toJulianDay();
    }
}

/// Those of a period's days that stand at the positions.
QList<QDate> atPositions(const QList<QDate> &days, const QList<int> &positions)
{
    QList<QDate> chosen;
    for (qsizetype i = 0; i < days.size(); ++i) {
        if (isAmong(positions, int(i) + 1, int(days.size())))
            chosen.append(days.at(i));
    }
    return chosen;
}

/// Without regard to how often.
QList<QDate> uncounted(const Rule &asked, const QDate &start, int year)
{
    const Rule rule = explicitRule(asked, start);
    const bool isAcrossYears = rule.frequency == Rule::Weekly && !rule.positions.isEmpty();
    const int margin = isAcrossYears ? daysPerWeek : 0;
    QMap<qint64, QList<QDate>> periods;
    const qint64 first = periodOf(rule, start);
    const QList<QDate> wide =
        walk(wideRule(rule), QDate(year, 1, 1).addDays(-margin), QDate(year, 12, 31).addDays(margin));
    for (const QDate &date : wide) {
        const qint64 period = periodOf(rule, date);
        if (period >= first && (period - first) % rule.interval == 0 && isAllowed(rule, date))
            periods[period].append(date);
    }
    QList<QDate> dates;
    for (const QList<QDate> &days : std::as_const(periods)) {
        for (const QDate &date : atPositions(days, rule.positions)) {
            if (date.year() == year && date >= start && (!rule.until.isValid() || date <= rule.until))
                dates.append(date);
        }
    }
    return dates;
}

/// What was evaluated: lists are indexed anew after every change, and most of their rules are what they were.
class Kept
{
public:
    QList<QDate> dates(const Rule &rule, const QDate &start, int year)
    {
        const Key key{rule.text(), start.toJulianDay(), year};
        {
            const QMutexLocker lock(&m_mutex);
            if (const QList<QDate> *known = m_dates.object(key))
                return *known;
        }
        const QList<QDate> dates = uncounted(rule, start, year);
        const QMutexLocker lock(&m_mutex);
        m_dates.insert(key, new QList<QDate>(dates), dates.size() + 1);
        return dates;
    }

private:
    struct Key
    {
        QString rule;
        qint64 start;
        int year;
        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.rule, key.start, key.year); }
    };

    QMutex m_mutex;
    QCache<Key, QList<QDate>> m_dates{mostKeptDays};
};

Kept &kept()
{
    static Kept kept;
    return kept;
}

} // namespace

QList<QDate> MvRecurrenceDates::inYear(const MvRecurrenceRule &rule, const QDate &start, int year)
{
    if (rule.isNone() || !start.isValid() || year < std::max(start.year(), firstYear) || year > lastYear ||
        (rule.until.isValid() && year > rule.until.year()))
        return {};
    if (rule.count == 0)
        return kept().dates(rule, start, year);
    qsizetype left = rule.count;
    for (int before = start.year(); before < year && left > 0; ++before)
        left -= kept().dates(rule, start, before).size();
    return left > 0 ? kept().dates(rule, start, year).mid(0, left) : QList<QDate>();
}
