// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvLineBreaker.h"

#include "MvCore/MvStringHelper.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar ellipsis(u'…');

constexpr qsizetype firstLook = 128;    // code units of a text that are measured before the rest is looked at
constexpr qsizetype lookAhead = 2000;   // code units behind a place where a word is divided that may still decide there
constexpr qsizetype longestRest = 2000; // of texts that run on: more than a line of the largest sheet has room for

// A line that is so many times as wide as its type is high has many words. It is shaped as a whole only where the sum
// of its words comes so near to its width that the kerning at the blanks may decide.
constexpr int manyWords = 20;
constexpr double nearness = 0.1;

/// The words of a text, taken one by one from its start.
class Words
{
public:
    explicit Words(const QString &text)
        : m_text(MvPrintableText::shapeable(text))
    {
        skipBlanks();
    }

    bool isAtEnd() const { return m_position >= m_text.size(); }
    QString rest() const { return m_text.mid(m_position); }

    QString next()
    {
        const qsizetype end = m_text.indexOf(u' ', m_position);
        const QString word = m_text.mid(m_position, end < 0 ? -1 : end - m_position);
        m_position = end < 0 ? m_text.size() : end;
        skipBlanks();
        return word;
    }

private:
    void skipBlanks()
    {
        while (!isAtEnd() && m_text.at(m_position) == u' ')
            ++m_position;
    }

    QString m_text;
    qsizetype m_position = 0;
};

QString joined(const QString &line, const QString &word)
{
    return line.isEmpty() || word.isEmpty() ? line + word : line + u' ' + word;
}

/// The ends of the graphemes of a text, from its start.
QList<qsizetype> graphemeEnds(const QString &text)
{
    QList<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (finder.toNextBoundary() > 0)
        ends.append(finder.position());
    return ends;
}

/// Replaces the separator at the end of the text by an ellipsis.
QString shortened(const QString &kept)
{
    qsizetype end = kept.size();
    while (end > 0 && u" ,;:-\u2013(„“\"\u00ad"_s.contains(kept.at(end - 1)))
        --end;
    return kept.first(end) + ellipsis;
}

} // namespace

MvLineBreaker::MvLineBreaker(int maxWidth, const QFont &font)
    : m_maxWidth(maxWidth)
    , m_font(font)
    , m_widestWord(maxWidth)
{}

void MvLineBreaker::setDivision(Division division, const MvHyphenator &hyphenator)
{
    m_division = division;
    m_hyphenator = hyphenator;
}

void MvLineBreaker::setWidestWord(int width)
{
    m_widestWord = std::max(m_maxWidth, width);
}

QStringList MvLineBreaker::lines(const QStringList &texts)
{
    m_lines.clear();
    m_line.clear();
    m_sumOfWords = 0.0;
    m_cut.clear();
    m_rest = Rest();
    for (m_index = 0; m_index < texts.size(); ++m_index) {
        Words words(withSeparator(texts, m_index));
        if (words.isAtEnd())
            continue;
        if (isFull() && !m_rest.ends.isEmpty() && (m_separator.isEmpty() || m_rest.text.size() > longestRest)) {
            m_rest.isAll = false;
            break;
        }
        m_restOfWord.clear();
        m_isEnded = false;
        while (!words.isAtEnd() && !isFull() && !m_isEnded)
            addWord(words.next());
        if (m_isEnded && m_separator.isEmpty())
            continue;
        if (m_isEnded) {
            m_rest.isAll = false;
            break;
        }
        const bool isLast = m_index + 1 == texts.size();
        if (m_separator.isEmpty() || isLast)
            endLine();
        if (isFull())
            addToRest(joined(m_restOfWord, words.rest()), isLast ? 0 : m_separator.trimmed().size());
    }
    return m_lines;
}

QString MvLineBreaker::withSeparator(const QStringList &texts, qsizetype index) const
{
    return index + 1 == texts.size() ? texts.at(index) : texts.at(index) + m_separator;
}

void MvLineBreaker::addToRest(const QString &part, qsizetype separatorLength)
{
    QString visible = MvHyphenator::withoutSoftHyphens(part);
    while (visible.endsWith(u' '))
        visible.chop(1);
    if (visible.isEmpty()) // the text stands whole in its lines
        return;
    m_rest.text = joined(m_rest.text, visible);
    m_rest.ends.append({m_index, m_rest.text.size() - separatorLength});
}

QStringList MvLineBreaker::cutLines(const QStringList &texts)
{
    const qsizetype most = m_mostLines;
    m_mostLines = std::max<qsizetype>(0, most - 1);
    m_endsAtWide = true;
    QStringList cut = lines(texts);
    m_endsAtWide = false;
    m_mostLines = most;
    const QString last = most > 0 ? lastLine() : QString();
    const qsizetype shown = last.size() - (last.endsWith(ellipsis) ? 1 : 0);
    for (const Rest::End &text : std::as_const(m_rest.ends)) {
        if (text.end > shown)
            noteCut(text.index);
    }
    for (qsizetype index = m_rest.isAll ? texts.size() : m_index; index < texts.size(); ++index)
        noteCut(index);
    for (QString &line : cut)
        line = elided(m_widestWord, m_font, line);
    if (!last.isEmpty())
        cut.append(last);
    cut.removeIf([this](const QString &line) { return isTooWide(m_widestWord, m_font, line); });
    return cut;
}

/// As much of the rest as fits. A blank before the ellipsis means that whole texts are left out.
QString MvLineBreaker::lastLine()
{
    if (m_rest.text.isEmpty())
        return {};
    if (m_rest.isAll && !isTooWide(m_maxWidth, m_font, m_rest.text))
        return m_rest.text;
    const QString cut = elided(m_maxWidth, m_font, m_rest.text + ellipsis);
    const qsizetype end = cut.size() - 1;
    const bool isBetweenTexts =
        std::any_of(m_rest.ends.cbegin(), m_rest.ends.cend(), [end](const Rest::End &text) { return text.end == end; });
    if (!isBetweenTexts)
        return cut;
    const QString parted = cut.chopped(1) + u' ' + ellipsis;
    if (!isTooWide(m_maxWidth, m_font, parted))
        return parted;
    return end > 0 ? elided(m_maxWidth, m_font, m_rest.text.first(end - 1) + ellipsis) : cut;
}

void MvLineBreaker::noteCut(qsizetype index)
{
    if (m_cut.isEmpty() || m_cut.constLast() != index) // they come in their order
        m_cut.append(index);
}

void MvLineBreaker::endLine()
{
    if (!m_line.isEmpty() && !isFull())
        m_lines.append(MvHyphenator::withoutSoftHyphens(m_line));
    m_line.clear();
    m_sumOfWords = 0.0;
}

/// Whether the line with this word, which is the candidate, is narrow enough.
bool MvLineBreaker::hasRoomInLine(const QString &candidate, const QString &word)
{
    if (m_maxWidth > manyWords * m_font.pixelSize() && word.size() <= firstLook) {
        m_sumOfWords += advance(m_font, u' ' + word);
        if (m_sumOfWords < m_maxWidth * (1.0 - nearness))
            return true;
        if (m_sumOfWords > m_maxWidth * (1.0 + nearness))
            return false;
    }
    return !isTooWide(m_maxWidth, m_font, candidate);
}

void MvLineBreaker::addWord(QString word)
{
    while (!isFull()) {
        const QString candidate = joined(m_line, word);
        if (hasRoomInLine(candidate, word)) {
            m_line = candidate;
            return;
        }
        const bool mayDivide = m_division == AllWords || (m_division == LongWords && m_line.isEmpty());
        const bool standsAlone = m_line.isEmpty() && !isTooWide(m_widestWord, m_font, word);
        if (mayDivide && !standsAlone && divide(&word))
            continue;
        if (m_line.isEmpty()) { // stands alone, whether it has room or not
            if (!standsAlone) {
                noteCut(m_index);
                m_isEnded = m_endsAtWide;
            }
            m_line = word;
            endLine();
            return;
        }
        endLine();
    }
    m_restOfWord = word;
}

/// What of the word decides where it is divided in a line of that width: all of it, or a start that is far too wide.
QString MvLineBreaker::decisive(const QString &word, int width) const
{
    for (qsizetype length = firstLook; length + lookAhead < word.size(); length *= 2) {
        if (isTooWide(width, m_font, MvStringHelper::beginning(word, length)))
            return MvStringHelper::beginning(word, length + lookAhead);
    }
    return word;
}

/// Ends the line with as much of the word as it has room for, leaving the rest in the word.
bool MvLineBreaker::divide(QString *word)
{
    const int width = m_line.isEmpty() ? m_widestWord : m_maxWidth;
    const QList<MvWordBreak> breaks = m_hyphenator.breaks(decisive(*word, width));
    const auto lineWith = [&](const MvWordBreak &at) { return joined(m_line, word->first(at.end) + at.ending); };
    const auto tooLong = std::partition_point(
        breaks.cbegin(), breaks.cend(), [&](const MvWordBreak &at) { return !isTooWide(width, m_font, lineWith(at)); });
    if (tooLong == breaks.cbegin())
        return false;
    const MvWordBreak &best = *std::prev(tooLong);
    m_line = lineWith(best);
    endLine();
    *word = best.beginning + word->mid(best.next);
    return true;
}

double MvLineBreaker::advance(const QFont &font, const QString &text)
{
    return MvTextOutlineCache::instance().advance(font,
                                                  MvHyphenator::withoutSoftHyphens(MvPrintableText::shapeable(text)));
}

bool MvLineBreaker::isTooWide(int maxWidth, const QFont &font, const QString &text)
{
    const auto exceeds = [&](const QString &part) { return std::lround(advance(font, part)) > maxWidth; };
    // a start that is too wide decides, however long the rest is
    for (qsizetype length = firstLook; length < text.size(); length *= 4) {
        if (exceeds(MvStringHelper::beginning(text, length)))
            return true;
    }
    return exceeds(text);
}

QString MvLineBreaker::elided(int maxWidth, const QFont &font, const QString &text)
{
    if (!isTooWide(maxWidth, font, text))
        return text;
    QString kept = text.endsWith(ellipsis) ? text.chopped(1) : text;
    for (qsizetype length = firstLook; length < kept.size(); length *= 2) {
        const QString start = MvStringHelper::beginning(kept, length);
        if (isTooWide(maxWidth, font, shortened(start)))
            kept = start;
    }
    const QList<qsizetype> ends = graphemeEnds(kept);
    const auto tooLong = std::partition_point(ends.cbegin(), ends.cend(), [&](qsizetype end) {
        return !isTooWide(maxWidth, font, shortened(kept.first(end)));
    });
    return shortened(kept.first(tooLong == ends.cbegin() ? 0 : *std::prev(tooLong)));
}
