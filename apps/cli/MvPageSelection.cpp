// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPageSelection.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array words{std::pair{"cover"_L1, MvPageKind::Cover}, std::pair{"months"_L1, MvPageKind::Month},
                           std::pair{"free"_L1, MvPageKind::Free}, std::pair{"back"_L1, MvPageKind::Back}};

/// The pages of one word between commas; none for a word that makes no sense.
QList<int> pagesOf(const QString &word, const MvCalendarDocument &document)
{
    QList<int> numbers;
    for (const auto &[name, kind] : words) {
        if (word.compare(name, Qt::CaseInsensitive) != 0)
            continue;
        for (int number = 0; number < document.pages().size(); ++number) {
            if (document.pages()[number].kind() == kind)
                numbers.append(number);
        }
        return numbers;
    }
    static const QRegularExpression range(u"^([0-9]{1,5})(?:-([0-9]{1,5}))?$"_s);
    const QRegularExpressionMatch match = range.match(word);
    const int first = match.captured(1).toInt();
    const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
    if (first < 1 || last > document.pages().size())
        return {};
    for (int number = first; number <= last; ++number)
        numbers.append(number - 1);
    return numbers;
}

} // namespace

MvPageSelection::Pages MvPageSelection::parse(const QString &text, const MvCalendarDocument &document)
{
    QSet<int> chosen;
    for (const QString &word : text.split(u',')) {
        const QList<int> numbers = pagesOf(word.trimmed(), document);
        if (numbers.isEmpty()) {
            return {
                {tr("--pages „%1“: erlaubt sind Seiten von 1 bis %2, Bereiche wie 2-4 und cover, months, free, back, "
                    "soweit es sie gibt")
                     .arg(word.trimmed(), QString::number(document.pages().size())),
                 {}},
                {}};
        }
        chosen.unite(QSet<int>(numbers.cbegin(), numbers.cend()));
    }
    Pages pages;
    pages.numbers = chosen.values();
    std::sort(pages.numbers.begin(), pages.numbers.end());
    return pages;
}
