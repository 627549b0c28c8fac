// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

/// A short list of cases in which every pair of values of two factors occurs.
///
/// Most faults need one or two circumstances to meet, hardly ever four: pairs find nearly what the full product finds,
/// with a number of cases near the product of the two largest factors. The list is built greedily: a case begins with a
/// pair that is still missing, and every further factor takes the value that brings most missing pairs; of several
/// attempts the best is kept. The same seed gives the same list.
class MvPairwisePlan
{
public:
    using Case = QList<int>; ///< the number of a value, from 0, for each factor

    /// `sizes`: how many values each factor has; two factors at least, none of them empty.
    MvPairwisePlan(const QList<int> &sizes, quint32 seed);

    const QList<Case> &cases() const { return m_cases; }

private:
    qsizetype pair(int factorA, int valueA, int factorB, int valueB) const;
    Case attempt(qsizetype start, const QList<int> &order) const;
    QList<qsizetype> missingPairs(const Case &values) const;

    QList<int> m_sizes;
    QList<int> m_offsets; // of a factor's values among all values
    qsizetype m_valueCount = 0;
    QList<bool> m_isMissing; // by pair
    QList<Case> m_cases;
};
