// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvHyphenator.h"

#include <QFont>
#include <QStringList>

#include <limits>

/// Breaks texts into lines, filled greedily. Blanks part words, which line breaks and controls are here. Takes time by
/// what it gives, however long the texts are.
class MvLineBreaker
{
public:
    /// Which words may be divided between lines.
    enum Division {
        NoWords,   ///< a word that is too wide has a line of its own
        LongWords, ///< those that are too wide for any line
        AllWords   ///< every word that does not fit the rest of its line
    };

    /// `maxWidth`: of a line in pixels of the font.
    MvLineBreaker(int maxWidth, const QFont &font);

    void setDivision(Division division, const MvHyphenator &hyphenator);
    /// A line of one word, or of a part of one, may be as wide as this; by default as any line.
    void setWidestWord(int width);
    /// What comes after so many lines is not looked at.
    void setMostLines(qsizetype count) { m_mostLines = count; }
    /// What stands between two texts that run on. Without one, as by default, every text starts on a new line.
    void setSeparator(const QString &separator) { m_separator = separator; }

    QStringList lines(const QStringList &texts);
    /// As many lines as there may be, the last one filled with what fits of the rest and ended by an ellipsis; a word
    /// that is wider than it may be ends in one, too, and with it its text, or all texts that run on. For texts that
    /// need more room than there is.
    QStringList cutLines(const QStringList &texts);

    /// Of the last texts: a word that could not be divided is wider than it may be.
    bool hasTooWideWord() const { return !m_cut.isEmpty(); }
    /// Those of the texts that do not stand whole in the last cutLines(), by their index.
    QList<qsizetype> cutTexts() const { return m_cut; }

    /// The advance of a text in pixels of its font. Soft hyphens take none.
    static double advance(const QFont &font, const QString &text);
    /// The advance in whole pixels exceeds the width.
    static bool isTooWide(int maxWidth, const QFont &font, const QString &text);
    /// The text, ended by an ellipsis after a whole character if it is wider than the width. One that ends in an
    /// ellipsis keeps it.
    static QString elided(int maxWidth, const QFont &font, const QString &text);

private:
    struct Rest
    {
        QString text; // what stands after the last line
        struct End
        {
            qsizetype index;
            qsizetype end; // of the text of this index
        };
        QList<End> ends;
        bool isAll = true; // otherwise there is more
    };

    void addWord(QString word);
    bool hasRoomInLine(const QString &candidate, const QString &word);
    bool divide(QString *word);
    QString decisive(const QString &word, int width) const;
    void endLine();
    bool isFull() const { return m_lines.size() >= m_mostLines; }
    QString withSeparator(const QStringList &texts, qsizetype index) const;
    void addToRest(const QString &part, qsizetype textLength);
    QString lastLine();
    void noteCut(qsizetype index);

    int m_maxWidth;
    QFont m_font;
    int m_widestWord;
    Division m_division = NoWords;
    MvHyphenator m_hyphenator;
    qsizetype m_mostLines = std::numeric_limits<qsizetype>::max();
    QString m_separator;

    QStringList m_lines;
    QString m_line;
    double m_sumOfWords = 0.0; // of the line, in lines of many words
    QString m_restOfWord;      // that had no line
    bool m_endsAtWide = false; // a text ends where a word is wider than it may be
    bool m_isEnded = false;    // it did
    qsizetype m_index = 0;     // of the text that is being broken
    Rest m_rest;
    QList<qsizetype> m_cut;
};
