#include "MvCalendar/MvLineBreaker.h"

#include "MvCore/MvStringHelper.h"
#include "MvModelBase/MvPrintableText.h"
#include "MvModelBase/MvTextOutlineCache.h"

#include <algorithm>
#include <cmath>

namespace {

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
    return line.isEmpty() ? word : line + u' ' + word;
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
    m_hasTooWideWord = false;
    for (const QString &text : texts) {
        Words words(text);
        while (!words.isAtEnd() && !isFull())
            addWord(words.next());
        endLine();
    }
    return m_lines;
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
