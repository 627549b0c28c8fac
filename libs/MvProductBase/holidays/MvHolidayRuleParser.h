// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvHolidayRule.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>

/// Reads the text of one holiday rule, word by word.
class MvHolidayRuleParser
{
    Q_DECLARE_TR_FUNCTIONS(MvHolidayRuleParser)

public:
    explicit MvHolidayRuleParser(const QString &text);

    std::optional<MvHolidayRule> parse();
    /// What went wrong, with the word that did; empty after success.
    QString error() const { return m_error; }

private:
    bool readAnchor(MvHolidayRule::Anchor &anchor);
    bool readNumberedWeekday(const QString &word, MvHolidayRule::Anchor &anchor);
    bool readStep(MvHolidayRule::Step &step);
    bool readCondition(MvHolidayRule::Step &step);
    bool readAction(MvHolidayRule::Step &step);
    bool readWeekdays(quint8 &weekdays, bool several);

    static bool readDate(const QString &word, MvHolidayRule::Anchor &anchor);
    static bool readEaster(const QString &word, MvHolidayRule::Anchor &anchor);
    static int weekday(const QString &word);

    QString nextWord();
    bool fail(const QString &message);

    QStringList m_words;
    int m_next = 0;
    QString m_error;
};
