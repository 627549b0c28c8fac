// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvPrintableText.h"

#include "MvCore/MvStringHelper.h"

#include <algorithm>

namespace {

bool isWholePair(QStringView text, qsizetype at)
{
    return text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
}

bool isNonBreaking(char16_t c)
{
    return c == 0x00a0 || c == 0x2007 || c == 0x202f;
}

/// What ends a line or means nothing on paper.
bool isControl(QChar c)
{
    const QChar::Category category = c.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

bool isNoCharacter(QChar c)
{
    return c.unicode() >= 0xfffe || (c.unicode() >= 0xfdd0 && c.unicode() <= 0xfdef);
}

constexpr int mostMarks = 30; // what normal forms of streams allow, and more than any script puts on a letter

bool isMark(QChar c)
{
    return c.isMark() || c.category() == QChar::Other_Format;
}

} // namespace

QString MvPrintableText::onOneLine(const QString &text)
{
    const QString clean = shapeable(text);
    QString line;
    line.reserve(clean.size());
    int marks = 0; // in a row
    for (const QChar c : clean) {
        const bool isBlank = c.isSpace() && !isNonBreaking(c.unicode());
        marks = isMark(c) ? marks + 1 : 0;
        if (isBlank && !line.isEmpty() && !line.endsWith(u' '))
            line.append(u' ');
        else if (!isBlank && marks <= mostMarks)
            line.append(c);
    }
    if (line.endsWith(u' '))
        line.chop(1);
    return MvStringHelper::isVisible(line) ? line : QString();
}

QString MvPrintableText::inShort(const QString &text, qsizetype length)
{
    const QString line = onOneLine(text);
    return line.size() <= length ? line : MvStringHelper::beginning(line, length - 1) + u'…';
}

QStringList MvPrintableText::onOneLineEach(const QStringList &texts)
{
    QStringList lines;
    for (const QString &text : texts) {
        if (const QString line = onOneLine(text); !line.isEmpty())
            lines.append(line);
    }
    return lines;
}

QString MvPrintableText::shapeable(const QString &text)
{
    QString clean = text; // shared as long as there is nothing to replace
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (isWholePair(text, i))
            ++i;
        else if (c.isSurrogate() || isNoCharacter(c))
            clean[i] = QChar::ReplacementCharacter;
        else if (isControl(c))
            clean[i] = u' ';
    }
    return clean;
}

bool MvPrintableText::isTurned(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.direction() == QChar::DirR || c.direction() == QChar::DirAL; });
}
