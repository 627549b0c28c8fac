// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <string_view>
#include <vector>

/// The hyphenation patterns of a file, sorted by the letters they are for.
///
/// The library that applies patterns takes seconds to read all of those of a language with long compounds, and a tenth
/// of a millisecond to read those that a single word can meet: excerpt() is a whole pattern file for that word.
class MvHyphenationPatterns
{
public:
    /// A file that cannot be read, is no pattern file or is beyond all measure gives no patterns.
    explicit MvHyphenationPatterns(const QString &path);
    MvHyphenationPatterns(const MvHyphenationPatterns &) = delete;
    MvHyphenationPatterns &operator=(const MvHyphenationPatterns &) = delete;

    bool isEmpty() const { return m_levels.isEmpty(); }
    /// The name of the encoding of the file, "UTF-8" or one with a byte per character.
    const QByteArray &encoding() const { return m_encoding; }
    /// The fewest letters that the file wants before and after a hyphen.
    int fewestBefore() const { return m_fewestBefore; }
    int fewestAfter() const { return m_fewestAfter; }

    /// The patterns that may matter to a word in small letters of the encoding, in the order and form of the file:
    /// those that match in it, and one for each beginning of a pattern that stands in it, since the library goes from
    /// the beginning of one pattern to that of another and what it passes on its way counts.
    QByteArray excerpt(const QByteArray &word) const;

private:
    struct Pattern
    {
        std::string_view letters; // with the dots that stand for a word's ends
        qsizetype line = 0;       // its start in the file
    };
    struct Level
    {
        QByteArray settings;
        std::vector<Pattern> patterns; // by their letters, each once
    };

    void read(qsizetype start);
    void addLine(Level &level, qsizetype start, std::string_view line);
    static void sortOnce(std::vector<Pattern> &patterns);
    static void addMatches(const Level &level, std::string_view beginning, QList<qsizetype> &lines);

    QByteArray m_file;
    QByteArray m_letters; // of all patterns
    QByteArray m_encoding;
    QList<Level> m_levels; // compounds first, where the file has a level for them
    int m_fewestBefore = 0;
    int m_fewestAfter = 0;
};
