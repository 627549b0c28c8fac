// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayRule.h"

#include "MvProductBase/MvEaster.h"
#include "MvProductBase/MvHolidayRuleParser.h"

namespace {

QDate numberedWeekday(int year, int month, int weekday, int number)
{
    const QDate first(year, month, 1);
    if (number > 0) {
        const QDate day = first.addDays((weekday - first.dayOfWeek() + 7) % 7 + 7 * (number - 1));
        return day.month() == month ? day : QDate();
    }
    const QDate last(year, month, first.daysInMonth());
    const QDate day = last.addDays(-((last.dayOfWeek() - weekday + 7) % 7) + 7 * (number + 1));
    return day.month() == month ? day : QDate();
}

bool contains(quint8 weekdays, const QDate &date)
{
    return (weekdays >> date.dayOfWeek() & 1) != 0;
}

// the first day with one of the weekdays, from the date on in the given direction
QDate nearest(QDate date, quint8 weekdays, int direction)
{
    while (!contains(weekdays, date))
        date = date.addDays(direction);
    return date;
}

} // namespace

MvHolidayRule::Parsed MvHolidayRule::parse(const QString &text)
{
    MvHolidayRuleParser parser(text);
    const std::optional<MvHolidayRule> rule = parser.parse();
    return {{parser.error(), {}}, rule.value_or(MvHolidayRule())};
}

QDate MvHolidayRule::Anchor::dateIn(int ofYear) const
{
    switch (kind) {
    case AnchorKind::Fixed:
        return QDate(ofYear, month, day); // 29 February is invalid in most years
    case AnchorKind::SingleDate:
        return ofYear == year ? QDate(year, month, day) : QDate();
    case AnchorKind::Easter:
        return MvEaster::gregorian(ofYear).addDays(number);
    case AnchorKind::Orthodox:
        return MvEaster::orthodox(ofYear).addDays(number);
    case AnchorKind::WeekdayOfMonth:
        return numberedWeekday(ofYear, month, weekday, number);
    }
    return {};
}

bool MvHolidayRule::Step::appliesTo(const QDate &date, int year) const
{
    if (!isConditional || contains(ifWeekdays, date))
        return true;
    for (const Anchor &anchor : ifAnchors) {
        if (anchor.dateIn(year) == date)
            return true;
    }
    return false;
}

QDate MvHolidayRule::Step::apply(const QDate &date) const
{
    switch (kind) {
    case StepKind::Shift:
        return date.addDays(days);
    case StepKind::Next:
        return nearest(date.addDays(1), weekdays, 1);
    case StepKind::Previous:
        return nearest(date.addDays(-1), weekdays, -1);
    case StepKind::From:
        return nearest(date, weekdays, 1);
    case StepKind::UpTo:
        return nearest(date, weekdays, -1);
    case StepKind::Only:
        return contains(weekdays, date) ? date : QDate();
    case StepKind::Not:
        return contains(weekdays, date) ? QDate() : date;
    }
    return {};
}

QDate MvHolidayRule::dateByYear(int year) const
{
    QDate date = m_anchor.dateIn(year);
    for (const Step &step : m_steps) {
        if (!date.isValid())
            return {};
        if (step.appliesTo(date, year))
            date = step.apply(date);
    }
    return date;
}
