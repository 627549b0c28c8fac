// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPairwisePlan.h"

#include <QRandomGenerator>

#include <algorithm>
#include <numeric>

namespace {
constexpr int attempts = 4;
constexpr int unset = -1;
} // namespace

MvPairwisePlan::MvPairwisePlan(const QList<int> &sizes, quint32 seed)
    : m_sizes(sizes)
{
    for (const int size : sizes) {
        m_offsets.append(int(m_valueCount));
        m_valueCount += size;
    }
    QList<qsizetype> todo;
    m_isMissing.resize(m_valueCount * m_valueCount, false);
    for (int a = 0; a < sizes.size(); ++a) {
        for (int b = a + 1; b < sizes.size(); ++b) {
            for (int valueA = 0; valueA < sizes.at(a); ++valueA) {
                for (int valueB = 0; valueB < sizes.at(b); ++valueB)
                    todo.append(pair(a, valueA, b, valueB));
            }
        }
    }
    for (const qsizetype pair : todo)
        m_isMissing[pair] = true;

    QRandomGenerator random(seed);
    std::shuffle(todo.begin(), todo.end(), random);
    QList<int> order(sizes.size());
    std::iota(order.begin(), order.end(), 0);
    for (const qsizetype start : todo) {
        if (!m_isMissing.at(start))
            continue;
        Case best;
        QList<qsizetype> found;
        for (int i = 0; i < attempts; ++i) {
            std::shuffle(order.begin(), order.end(), random);
            const Case values = attempt(start, order);
            const QList<qsizetype> pairs = missingPairs(values);
            if (pairs.size() > found.size()) {
                best = values;
                found = pairs;
            }
        }
        m_cases.append(best);
        for (const qsizetype pair : found)
            m_isMissing[pair] = false;
    }
}

qsizetype MvPairwisePlan::pair(int factorA, int valueA, int factorB, int valueB) const
{
    const qsizetype a = m_offsets.at(factorA) + valueA;
    const qsizetype b = m_offsets.at(factorB) + valueB;
    return std::min(a, b) * m_valueCount + std::max(a, b);
}

MvPairwisePlan::Case MvPairwisePlan::attempt(qsizetype start, const QList<int> &order) const
{
    Case values(m_sizes.size(), unset);
    for (const qsizetype value : {start / m_valueCount, start % m_valueCount}) {
        const auto factor = std::upper_bound(m_offsets.begin(), m_offsets.end(), value) - m_offsets.begin() - 1;
        values[factor] = int(value - m_offsets.at(factor));
    }
    for (const int factor : order) {
        if (values.at(factor) != unset)
            continue;
        int most = -1;
        for (int i = 0; i < m_sizes.at(factor); ++i) {
            const int value = int((i + m_cases.size()) % m_sizes.at(factor)); // what brings nothing new takes turns
            int gain = 0;
            for (int other = 0; other < values.size(); ++other) {
                if (values.at(other) != unset && other != factor)
                    gain += m_isMissing.at(pair(factor, value, other, values.at(other)));
            }
            if (gain > most) {
                most = gain;
                values[factor] = value;
            }
        }
    }
    return values;
}

QList<qsizetype> MvPairwisePlan::missingPairs(const Case &values) const
{
    QList<qsizetype> missing;
    for (int a = 0; a < values.size(); ++a) {
        for (int b = a + 1; b < values.size(); ++b) {
            if (const qsizetype found = pair(a, values.at(a), b, values.at(b)); m_isMissing.at(found))
                missing.append(found);
        }
    }
    return missing;
}
