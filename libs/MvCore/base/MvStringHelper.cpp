// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvStringHelper.h"

#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Without halves of a surrogate pair and code points that are no characters, which no file could hold; blanks for
/// control characters.
QString wellFormed(const QString &text)
{
    QString result;
    result.reserve(text.size());
    const QList<uint> characters = text.toUcs4(); // a half of a pair becomes U+FFFD
    qsizetype unit = 0;
    for (const uint character : characters) {
        const bool isHalf = text.at(unit).isSurrogate() && !QChar::requiresSurrogates(character);
        unit += QChar::requiresSurrogates(character) ? 2 : 1;
        if (isHalf || QChar::isNonCharacter(character))
            continue;
        if (QChar::category(character) == QChar::Other_Control)
            result.append(u' ');
        else
            result.append(QChar::fromUcs4(character));
    }
    return result;
}

/// Joiners, marks of direction, fillers and the like, which show nothing by themselves.
bool isInvisible(uint character)
{
    static constexpr std::pair<uint, uint> ranges[] = {
        {0x034f, 0x034f}, {0x115f, 0x1160}, {0x17b4, 0x17b5}, {0x180b, 0x180f},   {0x2800, 0x2800},
        {0x3164, 0x3164}, {0xfe00, 0xfe0f}, {0xffa0, 0xffa0}, {0xe0000, 0xe0fff},
    };
    const auto holds = [character](const auto &range) { return character >= range.first && character <= range.second; };
    const QChar::Category category = QChar::category(character);
    return QChar::isSpace(character) || category == QChar::Other_Format || category == QChar::Other_Control ||
           std::any_of(std::begin(ranges), std::end(ranges), holds);
}

} // namespace

QString MvStringHelper::boolToString(bool value)
{
    return value ? u"true"_s : u"false"_s;
}

bool MvStringHelper::stringToBool(const QString &text, bool defaultValue)
{
    static const QStringList yes = {u"true"_s, u"1"_s, u"yes"_s, u"on"_s};
    static const QStringList no = {u"false"_s, u"0"_s, u"no"_s, u"off"_s};
    const QString word = text.trimmed().toLower();
    if (yes.contains(word))
        return true;
    return no.contains(word) ? false : defaultValue;
}

QString MvStringHelper::simplifiedName(const QString &name)
{
    const QString text = wellFormed(name).simplified();
    return isVisible(text) ? beginning(text, longestName).trimmed() : QString();
}

bool MvStringHelper::isVisible(const QString &text)
{
    const QList<uint> characters = text.toUcs4();
    return !std::all_of(characters.cbegin(), characters.cend(), isInvisible);
}

bool MvStringHelper::isVisible(char32_t character)
{
    return !isInvisible(character);
}

QString MvStringHelper::beginning(const QString &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.left(length + 1)); // what follows decides nothing
    finder.setPosition(length);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    if (finder.position() > 0)
        return text.left(finder.position());
    return text.left(text.at(length).isLowSurrogate() ? length - 1 : length); // nothing but marks on one letter
}
