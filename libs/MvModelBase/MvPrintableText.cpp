#include "MvModelBase/MvPrintableText.h"

#include <QTextBoundaryFinder>

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

bool isInvisible(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Separator_Space:
        return true;
    default:
        break;
    }
    const bool isVariationSelector = (c >= 0xfe00 && c <= 0xfe0f) || (c >= 0xe0100 && c <= 0xe01ef);
    const bool isFiller = c == 0x034f || c == 0x115f || c == 0x1160 || c == 0x2800 || c == 0x3164 || c == 0xffa0;
    return isVariationSelector || isFiller;
}

} // namespace

bool MvPrintableText::isVisible(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text.at(i).unicode();
        if (isWholePair(text, i)) {
            c = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            ++i;
        }
        if (!isInvisible(c))
            return true;
    }
    return false;
}

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
    return isVisible(line) ? line : QString();
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

QString MvPrintableText::start(const QString &text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    length = std::max<qsizetype>(0, length);
    const QString near = text.first(std::min(text.size(), length + 1)); // tells whether a grapheme ends at the length
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, near);
    finder.setPosition(length);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    qsizetype end = std::max<qsizetype>(0, finder.position());
    if (end == 0 && length > 0) // one grapheme of any number of marks
        end = isWholePair(text, length - 1) ? length - 1 : length;
    return text.first(end);
}
