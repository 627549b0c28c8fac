// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvHyphenator.h"
#include "MvPaint/mvpaint_export.h"

#include <QFont>
#include <QList>
#include <QSizeF>
#include <QStringList>

/// A text as it is to be drawn.
struct MvFittedText
{
    QFont font;
    QStringList lines;
    bool isCut = false;   ///< something had no room: a line ends in an ellipsis, or there are none
    QStringList cutTexts; ///< those of the texts that do not stand whole in the lines

    bool operator==(const MvFittedText &) const = default;
};

/// Fits texts into their room: wrapped at blanks, then with words divided by the hyphenator, then in smaller type down
/// to the floor, at last with an ellipsis. What fits as it is stays as it is.
///
/// Widths and heights are pixels of the font, which are page units. Takes time by the room, however long the texts are.
class MVPAINT_EXPORT MvTextFitter
{
public:
    /// `font`: in pixels, the largest that is used. `floor`: the pixel size below which nothing is made smaller; one
    /// above the font's leaves the font alone.
    MvTextFitter(const QFont &font, double floor, const MvHyphenator &hyphenator);

    const QFont &font() const { return m_font; }
    double floor() const { return m_floor; }
    const MvHyphenator &hyphenator() const { return m_hyphenator; }
    /// The font in all its sizes, from the largest to the smallest.
    QList<QFont> sizes() const;

    /// Every text starts on a new line. The widest line is as wide as the room, and as many lines are set as it is high
    /// by line height (a line that lacks a hundredth of it has room). A word that stands alone in its line may be as
    /// wide as `widestWord`, where that is more than the room: paddings give before a word is divided or made smaller.
    MvFittedText fit(const QSizeF &room, const QStringList &texts, double widestWord = 0.0) const;

    /// The texts one after the other, parted by the separator.
    MvFittedText fitRunning(const QSizeF &room, const QStringList &texts, const QString &separator) const;

    /// On one line, never divided.
    MvFittedText fitLine(double width, const QString &text) const;

private:
    MvFittedText fit(const QSizeF &room, const QStringList &texts, const QString &separator, int widestWord) const;
    MvFittedText cut(const QSizeF &room, const QStringList &texts, const QString &separator, int widestWord) const;

    QFont m_font;
    double m_floor;
    MvHyphenator m_hyphenator;
};
