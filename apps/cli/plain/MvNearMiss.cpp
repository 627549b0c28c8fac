// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvNearMiss.h"

#include <QList>

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestName = 64; // nobody mistypes longer ones; bounds the work on hostile input
constexpr qsizetype shortestBeginning = 3;

/// Letters to insert, to drop, to exchange, or neighbours to swap, that make one word the other.
qsizetype editDistance(const QString &a, const QString &b)
{
    QList<qsizetype> beforeLast(b.size() + 1);
    QList<qsizetype> last(b.size() + 1);
    QList<qsizetype> row(b.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        beforeLast = std::exchange(last, row);
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const qsizetype replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({replaced, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
    }
    return row.last();
}

} // namespace

QString MvNearMiss::find(const QString &typed, const QStringList &known)
{
    const QString word = typed.toLower();
    QString nearest;
    qsizetype best = std::numeric_limits<qsizetype>::max();
    if (word.isEmpty() || word.size() > longestName)
        return nearest;
    for (const QString &candidate : known) {
        const QString lower = candidate.toLower();
        const qsizetype distance = editDistance(word, lower);
        const bool isNear = distance * 3 <= std::max(word.size(), lower.size());
        const bool isBeginning = word.size() >= shortestBeginning && lower.startsWith(word);
        if ((isNear || isBeginning) && distance < best) {
            best = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

QString MvNearMiss::describe(const QString &typed, const QStringList &known)
{
    const QString nearest = find(typed, known);
    return nearest.isEmpty() ? QString() : tr(" – meinten Sie „%1“?").replace(u"%1"_s, nearest);
}
