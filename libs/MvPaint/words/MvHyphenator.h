// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvLocale.h"
#include "MvPaint/mvpaint_export.h"

#include <QList>
#include <QString>

#include <memory>

struct MvHyphenatorImpl;

/// A place at which a word may be divided between two lines, in UTF-16 units of the word.
struct MvWordBreak
{
    qsizetype end = 0;  ///< the first line keeps what stands before this,
    QString ending;     ///< followed by this: a hyphen, or nothing where the word has its own
    QString beginning;  ///< the next line begins with this, nearly always nothing,
    qsizetype next = 0; ///< followed by what stands from here on

    bool operator==(const MvWordBreak &) const = default;
};

/// Divides the words of a language between lines: by its hyphenation patterns, at soft hyphens and after hyphens and
/// dashes that the word has. A word with soft hyphens is divided at these alone.
///
/// Patterns are files named "hyph_de_CH.dic" as office programs use them. They are looked for among the shipped and the
/// user's data (folder "hyphenation", see MvDirectoryConfig) and then in /usr/share/hyphen, first for language and
/// country, then for the language in its own country, then for the language anywhere. Those of Finnish, which no
/// package has, are shipped. A language without patterns is divided at hyphens alone.
///
/// A handle over patterns that are read once per process; divided words are kept, too. Safe to use from several
/// threads.
class MVPAINT_EXPORT MvHyphenator
{
public:
    /// The parts of a word that patterns divide: never shorter than these, in letters.
    static constexpr int fewestBefore = 2;
    static constexpr int fewestAfter = 3;

    /// Knows no patterns.
    MvHyphenator();
    /// The patterns of a language; without any for an invalid one.
    explicit MvHyphenator(const MvLocale &language);
    /// The patterns of a file. One that cannot be read, or in an unknown encoding, is one without patterns.
    static MvHyphenator fromFile(const QString &path);

    /// The patterns that serve a language; empty when there are none.
    static QString fileFor(const MvLocale &language);

    bool hasPatterns() const;

    /// Where the word may be divided, from its start. Capitals, punctuation and digits around and between letters do
    /// not matter. A soft hyphen belongs to neither part. Words of more than a few hundred letters have no patterns.
    QList<MvWordBreak> breaks(const QString &word) const;

    /// The text without the soft hyphens in it, which are seen only where a word is divided.
    static QString withoutSoftHyphens(const QString &text);

private:
    explicit MvHyphenator(std::shared_ptr<MvHyphenatorImpl> impl);

    std::shared_ptr<MvHyphenatorImpl> d;
};
