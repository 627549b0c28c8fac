// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvHolidayRuleParser.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr int longestShift = 366; // a rule is asked for its year and both neighbours, so no date is moved out of reach

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
    static const QRegularExpression pattern(u"^(?:(\\d{4})-)?(\\d{2})-(\\d{2})$"_s);
    const QRegularExpressionMatch match = pattern.match(word);
    if (!match.hasMatch())
        return false;
    const bool isSingle = match.hasCaptured(1) && !match.captured(1).isEmpty();
    anchor.kind = isSingle ? MvHolidayRule::AnchorKind::SingleDate : MvHolidayRule::AnchorKind::Fixed;
    anchor.year = match.captured(1).toInt();
    anchor.month = match.captured(2).toInt();
    anchor.day = match.captured(3).toInt();
    constexpr int leapYear = 2000;
    return QDate::isValid(isSingle ? anchor.year : leapYear, anchor.month, anchor.day);
}

bool MvHolidayRuleParser::readEaster(const QString &word, MvHolidayRule::Anchor &anchor)
{
    static const QRegularExpression pattern(u"^(easter|orthodox)([+-]\\d{1,3})?$"_s);
    const QRegularExpressionMatch match = pattern.match(word);
    if (!match.hasMatch())
        return false;
    anchor.kind =
        match.captured(1) == "easter"_L1 ? MvHolidayRule::AnchorKind::Easter : MvHolidayRule::AnchorKind::Orthodox;
    anchor.number = match.captured(2).toInt();
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
    static const QRegularExpression shift(u"^[+-]\\d{1,3}$"_s);
    const QString word = nextWord();
    if (shift.match(word).hasMatch()) {
        step.kind = MvHolidayRule::StepKind::Shift;
        step.days = word.toInt();
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
