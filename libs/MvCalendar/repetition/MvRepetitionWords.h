// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRecurrenceRule.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QCoreApplication>
#include <QString>

/// How often something is, as a person says it: "einmal", "jedes Jahr", "alle 2 Wochen am Donnerstag", "every last
/// Friday of the month", "jeden Dienstag, bis 31.12.2027", "monthly, 10 times"; or as a rule of RFC 5545.
///
/// German and English are understood, and everything that MvRecurrenceRule::describe() says. What may mean two things
/// is refused.
class MVCALENDAR_EXPORT MvRepetitionWords
{
    Q_DECLARE_TR_FUNCTIONS(MvRepetitionWords)

public:
    explicit MvRepetitionWords(const QString &text);

    bool isOk() const { return m_error.isEmpty(); }
    /// What is wrong, in a sentence without a full stop that quotes the text.
    QString error() const { return m_error; }
    /// Every year on its day, for ever: what an entry's own flag says. Neither this nor a rule: once.
    bool isYearly() const { return m_isYearly; }
    const MvRecurrenceRule &rule() const { return m_rule; }

private:
    void take(const MvRecurrenceRule &rule);
    void refuse();

    QString m_text;
    QString m_error;
    bool m_isYearly = false;
    MvRecurrenceRule m_rule;
};
