// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvRepetitionWords.h"

#include "MvCore/MvTypedDate.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Rule = MvRecurrenceRule;

const QHash<QString, QString> &phrases()
{
    static const QString workdays = u"FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR"_s;
    static const QString everySecondWeek = u"FREQ=WEEKLY;INTERVAL=2"_s;
    static const QHash<QString, QString> phrases{
        {u"einmal"_s, {}},
        {u"einmalig"_s, {}},
        {u"nein"_s, {}},
        {u"nie"_s, {}},
        {u"once"_s, {}},
        {u"no"_s, {}},
        {u"never"_s, {}},
        {u"ja"_s, u"FREQ=YEARLY"_s},
        {u"yes"_s, u"FREQ=YEARLY"_s},
        {u"jährlich"_s, u"FREQ=YEARLY"_s},
        {u"yearly"_s, u"FREQ=YEARLY"_s},
        {u"annually"_s, u"FREQ=YEARLY"_s},
        {u"täglich"_s, u"FREQ=DAILY"_s},
        {u"daily"_s, u"FREQ=DAILY"_s},
        {u"wöchentlich"_s, u"FREQ=WEEKLY"_s},
        {u"weekly"_s, u"FREQ=WEEKLY"_s},
        {u"monatlich"_s, u"FREQ=MONTHLY"_s},
        {u"monthly"_s, u"FREQ=MONTHLY"_s},
        {u"14-tägig"_s, everySecondWeek},
        {u"14-täglich"_s, everySecondWeek},
        {u"zweiwöchentlich"_s, everySecondWeek},
        {u"fortnightly"_s, everySecondWeek},
        {u"vierteljährlich"_s, u"FREQ=MONTHLY;INTERVAL=3"_s},
        {u"quarterly"_s, u"FREQ=MONTHLY;INTERVAL=3"_s},
        {u"halbjährlich"_s, u"FREQ=MONTHLY;INTERVAL=6"_s},
        {u"werktags"_s, workdays},
        {u"montags bis freitags"_s, workdays},
        {u"weekdays"_s, workdays},
        {u"every weekday"_s, workdays},
    };
    return phrases;
}

const QHash<QString, Rule::Frequency> &units()
{
    static const QHash<QString, Rule::Frequency> units{
        {u"tag"_s, Rule::Daily},      {u"tage"_s, Rule::Daily},     {u"day"_s, Rule::Daily},
        {u"days"_s, Rule::Daily},     {u"woche"_s, Rule::Weekly},   {u"wochen"_s, Rule::Weekly},
        {u"week"_s, Rule::Weekly},    {u"weeks"_s, Rule::Weekly},   {u"monat"_s, Rule::Monthly},
        {u"monate"_s, Rule::Monthly}, {u"monats"_s, Rule::Monthly}, {u"month"_s, Rule::Monthly},
        {u"months"_s, Rule::Monthly}, {u"jahr"_s, Rule::Yearly},    {u"jahre"_s, Rule::Yearly},
        {u"year"_s, Rule::Yearly},    {u"years"_s, Rule::Yearly},
    };
    return units;
}

/// "donnerstag", "donnerstags", "do", "thursdays": 1 is Monday; 0: none.
int weekDayOf(const QString &word)
{
    static const QList<QStringList> names{{u"montag"_s, u"monday"_s, u"mo"_s, u"mon"_s},
                                          {u"dienstag"_s, u"tuesday"_s, u"di"_s, u"tue"_s},
                                          {u"mittwoch"_s, u"wednesday"_s, u"mi"_s, u"wed"_s},
                                          {u"donnerstag"_s, u"thursday"_s, u"do"_s, u"thu"_s},
                                          {u"freitag"_s, u"friday"_s, u"fr"_s, u"fri"_s},
                                          {u"samstag"_s, u"saturday"_s, u"sa"_s, u"sat"_s, u"sonnabend"_s},
                                          {u"sonntag"_s, u"sunday"_s, u"so"_s, u"sun"_s}};
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names.at(i).contains(word) || (word.endsWith(u's') && names.at(i).contains(word.chopped(1))))
            return int(i) + 1;
    }
    return 0;
}

/// "2", "2.", "zwei", "zweiten", "2nd", "other"; counted from the end: "letzten", "vorletzten", "2.-letzten".
std::optional<int> numberOf(const QString &word)
{
    static const QList<QStringList> words{
        {u"ein"_s, u"erste"_s, u"one"_s, u"first"_s},     {u"zwei"_s, u"zweite"_s, u"two"_s, u"second"_s, u"other"_s},
        {u"drei"_s, u"dritte"_s, u"three"_s, u"third"_s}, {u"vier"_s, u"vierte"_s, u"four"_s, u"fourth"_s},
        {u"fünf"_s, u"fünfte"_s, u"five"_s, u"fifth"_s},  {u"sechs"_s, u"sechste"_s, u"six"_s, u"sixth"_s}};
    static const QRegularExpression digits(u"^(\\d{1,4})(?:\\.|st|nd|rd|th|te[nr]?)?(-letzte[nr]?)?$"_s);
    const QRegularExpressionMatch match = digits.match(word);
    if (match.hasMatch())
        return match.captured(2).isEmpty() ? match.captured(1).toInt() : -match.captured(1).toInt();
    const QString stem = word.endsWith(u"en") || word.endsWith(u"er") ? word.chopped(1) : word;
    if (stem == u"letzte" || stem == u"last")
        return -1;
    if (stem == u"vorletzte")
        return -2;
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words.at(i).contains(word) || words.at(i).contains(stem))
            return int(i) + 1;
    }
    return {};
}

/// Takes the words one by one. A number belongs to what follows it: weeks, a weekday, a day of the month.
class Sentence
{
public:
    /// None, when the words say no repetition.
    Rule read(const QStringList &words)
    {
        const bool areUnderstood =
            std::all_of(words.cbegin(), words.cend(), [this](const QString &word) { return take(word); });
        if (!areUnderstood)
            return {};
        endNumber();
        return finished();
    }

private:
    bool take(const QString &word)
    {
        static const QSet<QString> between{u"jeden"_s, u"jede"_s, u"jedes"_s, u"jeder"_s, u"alle"_s, u"every"_s,
                                           u"each"_s,  u"des"_s,  u"im"_s,    u"in"_s,    u"of"_s,   u"am"_s,
                                           u"on"_s,    u"und"_s,  u"and"_s,   u"an"_s};
        if (between.contains(word)) {
            endNumber();
            return true;
        }
        if (word == u"the" || word == u"dem")
            return true;
        if (const int day = weekDayOf(word); day > 0) {
            m_rule.weekDays.append({std::exchange(m_number, {}).value_or(0), day});
            return true;
        }
        if (units().contains(word)) {
            takeUnit(units().value(word));
            return true;
        }
        const std::optional<int> number = numberOf(word);
        const bool countsFromEnd = m_number && word == u"last"; // "2nd last"
        if (!number || *number == 0 || (m_number && !countsFromEnd))
            return false;
        m_number = countsFromEnd ? -*m_number : *number;
        return true;
    }

    void takeUnit(Rule::Frequency unit)
    {
        if (unit == Rule::Daily && m_rule.frequency == Rule::Monthly && m_number) {
            endNumber();
            return;
        }
        m_isTwofold = m_isTwofold || m_rule.frequency != Rule::None;
        m_rule.frequency = unit;
        m_rule.interval = std::exchange(m_number, {}).value_or(1);
    }

    void endNumber()
    {
        if (m_number)
            m_rule.monthDays.append(*std::exchange(m_number, {}));
    }

    Rule finished()
    {
        const bool hasNth = std::any_of(m_rule.weekDays.cbegin(), m_rule.weekDays.cend(),
                                        [](const Rule::WeekDay &day) { return day.nth != 0; });
        if (m_rule.frequency == Rule::None && !m_rule.weekDays.isEmpty() && !takeWeekDaysAlone(hasNth))
            return {};
        const bool isOfMonth = m_rule.frequency == Rule::Monthly;
        const bool areDaysClear = m_rule.weekDays.isEmpty() || (isOfMonth ? hasNth : m_rule.frequency == Rule::Weekly);
        const bool isClear = !m_isTwofold && areDaysClear && (m_rule.monthDays.isEmpty() || isOfMonth);
        return isClear && m_rule.interval > 0 ? m_rule : Rule();
    }

    /// "jeden Donnerstag", "jeden zweiten Donnerstag", "jeden letzten Freitag": false where weeks may be meant or
    /// months.
    bool takeWeekDaysAlone(bool hasNth)
    {
        const int nth = m_rule.weekDays.first().nth;
        m_rule.frequency = nth == 1 || nth < 0 ? Rule::Monthly : Rule::Weekly;
        if (!hasNth || m_rule.frequency == Rule::Monthly)
            return true;
        m_rule.interval = nth;
        m_rule.weekDays.first().nth = 0;
        return nth == 2 && m_rule.weekDays.size() == 1;
    }

    Rule m_rule;
    std::optional<int> m_number;
    bool m_isTwofold = false;
};

/// Takes what the expression finds off the text.
QRegularExpressionMatch cutOff(QString &text, const QRegularExpression &what)
{
    const QRegularExpressionMatch match = what.match(text);
    if (match.hasMatch())
        text = (text.left(match.capturedStart()) + u' ' + text.mid(match.capturedEnd())).simplified();
    return match;
}

} // namespace

MvRepetitionWords::MvRepetitionWords(const QString &text)
    : m_text(text.simplified())
{
    constexpr qsizetype longest = 500; // of a rule, too
    QString rest = m_text.left(longest).toLower();
    if (rest.contains(u"freq=")) {
        const MvRecurrenceRuleReading reading = Rule::parse(m_text);
        m_error = reading.error;
        take(reading.rule);
        return;
    }
    static const QRegularExpression untilForm(u",? (?:bis|until|till) (?:zum )?(?=.*\\d)(.+)$"_s);
    static const QRegularExpression countForm(u",? (\\d{1,5}) ?-?(?:mal|times|x)(?= |$|,)"_s);
    const QRegularExpressionMatch until = cutOff(rest, untilForm);
    const QRegularExpressionMatch count = cutOff(rest, countForm);
    const auto phrase = phrases().constFind(rest);
    static const QRegularExpression blanks(u"[ ,]+"_s);
    Rule rule = phrase != phrases().cend() ? (phrase->isEmpty() ? Rule() : Rule::parse(*phrase).rule)
                                           : Sentence().read(rest.split(blanks, Qt::SkipEmptyParts));
    if (rule.isNone() && (phrase == phrases().cend() || until.hasMatch() || count.hasMatch())) {
        refuse();
        return;
    }
    rule.count = count.captured(1).toInt();
    if (until.hasMatch()) {
        const QDate today = QDate::currentDate();
        rule.until = MvTypedDate(until.captured(1), QLocale(), today, today.year()).date();
        if (!rule.until.isValid()) {
            refuse();
            return;
        }
    }
    take(rule);
    if (!rule.isNone() && !Rule::parse(rule.text()).isOk())
        refuse();
}

void MvRepetitionWords::take(const Rule &rule)
{
    m_isYearly = rule.text() == u"FREQ=YEARLY"_s;
    m_rule = m_isYearly ? Rule() : rule;
}

void MvRepetitionWords::refuse()
{
    m_rule = {};
    m_isYearly = false;
    m_error = tr("„%1“ ist keine Wiederholung, die eindeutig ist; so geht es: einmal, jedes Jahr, alle 2 Wochen am "
                 "Donnerstag, jeden Monat am letzten Freitag, bis 31.12.2027")
                  .arg(m_text.left(60));
}
