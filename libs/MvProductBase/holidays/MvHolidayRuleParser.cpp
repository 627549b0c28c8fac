// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayRuleParser.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestShift = 366; // a rule is asked for its year and both neighbours, so no date is moved out of reach

/// The number that so many digits make; none for all else.
std::optional<int> numberOf(QStringView digits, qsizetype fewest, qsizetype most)
{
    const bool areDigits = std::all_of(digits.cbegin(), digits.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!areDigits || digits.size() < fewest || digits.size() > most)
        return {};
    return digits.toInt();
}

/// "+3", "-10": one to three digits with a sign.
std::optional<int> shiftOf(QStringView word)
{
    if (!word.startsWith(u'+') && !word.startsWith(u'-'))
        return {};
    const std::optional<int> days = numberOf(word.sliced(1), 1, 3);
    return days && word.startsWith(u'-') ? -*days : days;
}

} // namespace

MvHolidayRuleParser::MvHolidayRuleParser(const QString &text)
    : m_words(text.simplified().split(u' ', Qt::SkipEmptyParts))
{}

std::optional<MvHolidayRule> MvHolidayRuleParser::parse()
{
    MvHolidayRule rule;
    if (!readAnchor(rule.m_anchor))
        return {};
    while (m_next < m_words.size()) {
        MvHolidayRule::Step step;
        if (!readStep(step))
            return {};
        rule.m_steps.append(step);
    }
    return rule;
}

QString MvHolidayRuleParser::nextWord()
{
    return m_next < m_words.size() ? m_words.at(m_next++) : QString();
}

bool MvHolidayRuleParser::fail(const QString &message)
{
    m_error = message;
    return false;
}

bool MvHolidayRuleParser::readAnchor(MvHolidayRule::Anchor &anchor)
{
    const QString word = nextWord();
    if (word.isEmpty())
        return fail(tr("leere Regel"));
    if (readDate(word, anchor) || readEaster(word, anchor))
        return true;
    if (word.contains(u'#'))
        return readNumberedWeekday(word, anchor);
    return fail(tr("\"%1\" ist kein Anfang einer Regel").arg(word));
}

bool MvHolidayRuleParser::readDate(const QString &word, MvHolidayRule::Anchor &anchor)
{
    const QList<QStringView> parts = QStringView(word).split(u'-'); // the year may be missing
    const bool isSingle = parts.size() == 3;
    if (!isSingle && parts.size() != 2)
        return false;
    const std::optional<int> year = isSingle ? numberOf(parts.first(), 4, 4) : 0;
    const std::optional<int> month = numberOf(parts.at(parts.size() - 2), 2, 2);
    const std::optional<int> day = numberOf(parts.last(), 2, 2);
    if (!year || !month || !day)
        return false;
    anchor.kind = isSingle ? MvHolidayRule::AnchorKind::SingleDate : MvHolidayRule::AnchorKind::Fixed;
    anchor.year = *year;
    anchor.month = *month;
    anchor.day = *day;
    constexpr int leapYear = 2000;
    return QDate::isValid(isSingle ? anchor.year : leapYear, anchor.month, anchor.day);
}

bool MvHolidayRuleParser::readEaster(const QString &word, MvHolidayRule::Anchor &anchor)
{
    const bool isOrthodox = word.startsWith("orthodox"_L1);
    if (!isOrthodox && !word.startsWith("easter"_L1))
        return false;
    const QStringView rest = QStringView(word).sliced(isOrthodox ? "orthodox"_L1.size() : "easter"_L1.size());
    const std::optional<int> days = rest.isEmpty() ? 0 : shiftOf(rest);
    if (!days)
        return false;
    anchor.kind = isOrthodox ? MvHolidayRule::AnchorKind::Orthodox : MvHolidayRule::AnchorKind::Easter;
    anchor.number = *days;
    return std::abs(anchor.number) <= longestShift;
}

bool MvHolidayRuleParser::readNumberedWeekday(const QString &word, MvHolidayRule::Anchor &anchor)
{
    const QStringList parts = word.split(u'#');
    anchor.kind = MvHolidayRule::AnchorKind::WeekdayOfMonth;
    anchor.weekday = weekday(parts.value(0));
    anchor.number = parts.value(1).toInt();
    if (parts.size() != 2 || anchor.weekday == 0 || anchor.number == 0 || std::abs(anchor.number) > 5)
        return fail(tr("\"%1\" ist kein gezählter Wochentag").arg(word));
    if (const QString in = nextWord(); in != "in"_L1)
        return fail(tr("nach \"%1\" wird \"in\" erwartet, nicht \"%2\"").arg(word, in));
    const QString month = nextWord();
    anchor.month = month.toInt();
    if (anchor.month < 1 || anchor.month > 12)
        return fail(tr("\"%1\" ist kein Monat").arg(month));
    return true;
}

bool MvHolidayRuleParser::readStep(MvHolidayRule::Step &step)
{
    if (m_words.at(m_next) == "if"_L1) {
        ++m_next;
        if (!readCondition(step))
            return false;
    }
    return readAction(step);
}

bool MvHolidayRuleParser::readCondition(MvHolidayRule::Step &step)
{
    step.isConditional = true;
    const QString condition = nextWord();
    const QStringList items = condition.split(u',');
    for (const QString &item : items) {
        MvHolidayRule::Anchor anchor;
        if (const int day = weekday(item))
            step.ifWeekdays |= static_cast<quint8>(1 << day);
        else if (readEaster(item, anchor))
            step.ifAnchors.append(anchor);
        else
            return fail(tr("\"%1\" ist keine Bedingung").arg(item.isEmpty() ? condition : item));
    }
    if (const QString then = nextWord(); then != "then"_L1)
        return fail(tr("nach \"if %1\" wird \"then\" erwartet, nicht \"%2\"").arg(condition, then));
    return true;
}

bool MvHolidayRuleParser::readAction(MvHolidayRule::Step &step)
{
    const QString word = nextWord();
    if (const std::optional<int> shift = shiftOf(word)) {
        step.kind = MvHolidayRule::StepKind::Shift;
        step.days = *shift;
        return std::abs(step.days) <= longestShift || fail(tr("\"%1\" ist zu weit").arg(word));
    }
    static const QHash<QString, MvHolidayRule::StepKind> kinds = {
        {u"next"_s, MvHolidayRule::StepKind::Next}, {u"prev"_s, MvHolidayRule::StepKind::Previous},
        {u"from"_s, MvHolidayRule::StepKind::From}, {u"upto"_s, MvHolidayRule::StepKind::UpTo},
        {u"only"_s, MvHolidayRule::StepKind::Only}, {u"not"_s, MvHolidayRule::StepKind::Not},
    };
    const auto kind = kinds.constFind(word);
    if (kind == kinds.constEnd())
        return fail(tr("\"%1\" ist kein Schritt einer Regel").arg(word));
    step.kind = *kind;
    return readWeekdays(step.weekdays, *kind == MvHolidayRule::StepKind::Only || *kind == MvHolidayRule::StepKind::Not);
}

bool MvHolidayRuleParser::readWeekdays(quint8 &weekdays, bool several)
{
    const QString word = nextWord();
    const QStringList names = several ? word.split(u',') : QStringList{word};
    for (const QString &name : names) {
        const int day = weekday(name);
        if (day == 0)
            return fail(tr("\"%1\" ist kein Wochentag").arg(name.isEmpty() ? word : name));
        weekdays |= static_cast<quint8>(1 << day);
    }
    return true;
}

int MvHolidayRuleParser::weekday(const QString &word)
{
    static const QStringList names = {u"mon"_s, u"tue"_s, u"wed"_s, u"thu"_s, u"fri"_s, u"sat"_s, u"sun"_s};
    return static_cast<int>(names.indexOf(word)) + 1;
}
