#include "MvCalendar/MvLineBreaker.h"

#include "MvCore/MvStringHelper.h"
#include "MvModelBase/MvPrintableText.h"
#include "MvModelBase/MvTextOutlineCache.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar ellipsis(u'…');

constexpr qsizetype firstLook = 128; // code units of a text that are measured before the rest is looked at

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

/// An ellipsis in place of what parted the text from its rest.
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
    m_rest.clear();
    m_isRestLast = true;
    m_hasTooWideWord = false;
    for (const QString &text : texts) {
        Words words(text);
        if (words.isAtEnd())
            continue;
        if (isFull() && !m_rest.isEmpty()) {
            m_isRestLast = false;
            break;
        }
        while (!words.isAtEnd() && !isFull())
            addWord(words.next());
        endLine();
        if (isFull())
            m_rest = joined(m_rest, words.rest());
    }
    return m_lines;
}

QStringList MvLineBreaker::cutLines(const QStringList &texts)
{
    const qsizetype most = m_mostLines;
    if (most <= 0)
        return {};
    m_mostLines = most - 1;
    QStringList cut = lines(texts);
    m_mostLines = most;
    if (!m_rest.isEmpty())
        cut.append(elided(m_maxWidth, m_font, m_isRestLast ? m_rest : m_rest + ellipsis));
    for (QString &line : cut)
        line = elided(m_widestWord, m_font, MvHyphenator::withoutSoftHyphens(line));
    return cut;
}

void MvLineBreaker::endLine()
{
    if (!m_line.isEmpty() && !isFull())
        m_lines.append(MvHyphenator::withoutSoftHyphens(m_line));
    m_line.clear();
}

void MvLineBreaker::addWord(QString word)
{
    while (!isFull()) {
        const QString candidate = joined(m_line, word);
        if (!isTooWide(m_maxWidth, m_font, candidate)) {
            m_line = candidate;
            return;
        }
        const bool mayDivide = m_division == AllWords || (m_division == LongWords && m_line.isEmpty());
        const bool standsAlone = m_line.isEmpty() && !isTooWide(m_widestWord, m_font, word);
        if (mayDivide && !standsAlone && divide(&word))
            continue;
        if (m_line.isEmpty()) { // stands alone, whether it has room or not
            m_hasTooWideWord = m_hasTooWideWord || !standsAlone;
            m_line = word;
            endLine();
            return;
        }
        endLine();
    }
    m_rest = word;
}

/// Ends the line with as much of the word as it has room for, leaving the rest in the word.
bool MvLineBreaker::divide(QString *word)
{
    const QList<MvWordBreak> breaks = m_hyphenator.breaks(*word);
    const auto lineWith = [&](const MvWordBreak &at) { return joined(m_line, word->first(at.end) + at.ending); };
    const int width = m_line.isEmpty() ? m_widestWord : m_maxWidth;
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
