// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringView>

/// When in a year a holiday is: an anchor ("12-25", "easter", "sun#2 in 05") and steps from there ("prev sun", "-21").
/// docs/holidays.md describes the grammar.
class MVPRODUCTBASE_EXPORT MvHolidayRule
{
public:
    struct Parsed;
    /// The rule in a form that is quick to ask; for a malformed text, what is wrong with which word.
    static Parsed parse(const QString &text);

    /// The date by the rule of the year, which steps may have moved across New Year; invalid when there is none.
    QDate dateByYear(int year) const;

private:
    friend class MvHolidayRuleParser;

    enum class AnchorKind { Fixed, SingleDate, Easter, Orthodox, WeekdayOfMonth };
    struct Anchor
    {
        AnchorKind kind = AnchorKind::Fixed;
        int year = 0; // of a single date
        int month = 0;
        int day = 0;     // of the month
        int weekday = 0; // 1 = Monday to 7 = Sunday
        int number = 0;  // n-th weekday of the month, negative from its end; days after Easter

        QDate dateIn(int year) const;
    };

    enum class StepKind { Shift, Next, Previous, From, UpTo, Only, Not };
    struct Step
    {
        StepKind kind = StepKind::Shift;
        int days = 0;        // of a shift
        quint8 weekdays = 0; // bit n: weekday n
        bool isConditional = false;
        quint8 ifWeekdays = 0;   // the condition: one of these weekdays...
        QList<Anchor> ifAnchors; // ...or one of these dates

        bool appliesTo(const QDate &date, int year) const;
        QDate apply(const QDate &date) const;
    };

    Anchor m_anchor;
    QList<Step> m_steps;
};

/// What a text says, or why it says nothing.
struct MvHolidayRule::Parsed : MvOutcome
{
    MvHolidayRule rule;
};
