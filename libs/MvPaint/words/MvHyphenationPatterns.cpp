// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvHyphenationPatterns.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <string>
#include <tuple>

namespace {

constexpr qint64 largestFile = 16LL * 1024 * 1024;
constexpr qsizetype longestLine = 95; // the library reads lines into a hundred bytes
constexpr qsizetype longestEncoding = 18;

constexpr std::string_view nextLevel = "NEXTLEVEL";

bool isSetting(std::string_view line)
{
    return line.starts_with("LEFTHYPHENMIN") || line.starts_with("RIGHTHYPHENMIN") ||
           line.starts_with("COMPOUNDLEFTHYPHENMIN") || line.starts_with("COMPOUNDRIGHTHYPHENMIN") ||
           line.starts_with("NOHYPHEN");
}

int numberIn(std::string_view line)
{
    const std::string_view number = line.substr(std::min(line.size(), line.find(' ')));
    return std::clamp(QByteArray(number.data(), qsizetype(number.size())).trimmed().toInt(), 0, 100);
}

} // namespace

MvHyphenationPatterns::MvHyphenationPatterns(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !QFileInfo(path).isFile() || file.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return;
    m_file = file.readAll();
    const qsizetype start = m_file.indexOf('\n');
    m_encoding = m_file.left(std::max<qsizetype>(0, start)).trimmed();
    if (start < 0 || m_encoding.isEmpty() || m_encoding.size() > longestEncoding)
        return;
    m_letters.reserve(m_file.size()); // views of it stay valid
    read(start + 1);
}

void MvHyphenationPatterns::read(qsizetype start)
{
    m_levels.append(Level());
    while (start < m_file.size()) {
        const qsizetype end = m_file.indexOf('\n', start);
        const qsizetype next = end < 0 ? m_file.size() : end + 1;
        const std::string_view line(m_file.constData() + start, size_t(next - start));
        if (line.starts_with(nextLevel))
            m_levels.append(Level());
        else if (!line.starts_with('%') && line.size() <= longestLine)
            addLine(m_levels.last(), start, line);
        start = next;
    }
    for (Level &level : m_levels)
        sortOnce(level.patterns);
}

/// Of patterns with the same letters the last one counts: the library takes that one, and never frees the others.
void MvHyphenationPatterns::sortOnce(std::vector<Pattern> &patterns)
{
    std::sort(patterns.begin(), patterns.end(), [](const Pattern &a, const Pattern &b) {
        return std::tie(a.letters, b.line) < std::tie(b.letters, a.line); // later lines first
    });
    const auto isSame = [](const Pattern &a, const Pattern &b) { return a.letters == b.letters; };
    patterns.erase(std::unique(patterns.begin(), patterns.end(), isSame), patterns.end());
}

void MvHyphenationPatterns::addLine(Level &level, qsizetype start, std::string_view line)
{
    if (isSetting(line)) {
        level.settings.append(QByteArray(line.data(), qsizetype(line.size())).trimmed() + '\n');
        if (line.starts_with("LEFTHYPHENMIN"))
            m_fewestBefore = numberIn(line);
        else if (line.starts_with("RIGHTHYPHENMIN"))
            m_fewestAfter = numberIn(line);
        return;
    }
    const qsizetype first = m_letters.size();
    for (const char c : line) {
        if (c == '/' || (c >= 0 && c <= ' ')) // a replacement, or the end
            break;
        if (c < '0' || c > '9') // not a weight
            m_letters.append(c);
    }
    if (m_letters.size() > first)
        level.patterns.push_back({{m_letters.constData() + first, size_t(m_letters.size() - first)}, start});
}

/// Adds the patterns that match at the start of the text, if a part of a compound ends anywhere in it, and one that
/// shares the most letters with it.
void MvHyphenationPatterns::addMatches(const Level &level, std::string_view text, QList<qsizetype> &lines)
{
    const auto end = level.patterns.cend();
    const auto findFrom = [&](auto from, std::string_view letters) {
        return std::lower_bound(from, end, letters, [](const Pattern &pattern, std::string_view wanted) {
            return pattern.letters < wanted;
        });
    };
    auto first = level.patterns.cbegin();
    for (size_t length = 1; length <= text.size(); ++length) {
        const std::string_view beginning = text.substr(0, length);
        const auto found = findFrom(first, beginning);
        if (found == end || !found->letters.starts_with(beginning))
            break;
        first = found;
        lines.append(first->line); // the beginning itself, if that is a pattern
        const std::string ended = std::string(beginning) + '.';
        if (const auto last = findFrom(first, ended); last != end && last->letters == ended)
            lines.append(last->line);
    }
}

QByteArray MvHyphenationPatterns::excerpt(const QByteArray &word) const
{
    QByteArray text = m_encoding + '\n';
    for (const Level &level : m_levels) {
        if (&level != &m_levels.constFirst())
            text.append(nextLevel.data(), qsizetype(nextLevel.size())).append('\n');
        text += level.settings;
        QList<qsizetype> lines;
        for (qsizetype from = 0; from < word.size(); ++from) { // a part of a compound may begin and end anywhere
            const QByteArray rest = word.mid(from);
            for (const QByteArray &start : {rest, QByteArray('.' + rest)})
                addMatches(level, {start.constData(), size_t(start.size())}, lines);
        }
        std::sort(lines.begin(), lines.end());
        lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
        for (const qsizetype start : std::as_const(lines)) {
            const qsizetype end = m_file.indexOf('\n', start);
            text += m_file.mid(start, end < 0 ? -1 : end - start).trimmed() + '\n';
        }
    }
    return text;
}
