// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QFont>
#include <QRectF>
#include <QStringList>

class QPainter;

/// Measuring, breaking and drawing the texts of a calendarium. Texts are drawn as outlines, placed with fractional
/// precision; each (font, text) is shaped once per process.
class MVPAINT_EXPORT MvTextPainter
{
public:
    /// The advance of a text in whole pixels of its font, rounded.
    static int advance(const QFont &font, const QString &text);

    /// The advance exceeds the width; equal is not too wide.
    static bool isTextToWide(int maxWidth, const QFont &font, const QString &text);
    static bool isAnyTextToWide(int maxWidth, const QFont &font, const QStringList &texts);

    /// Breaks each text at its white space into lines that are at most maxWidth wide, filled greedily. No word is ever
    /// cut: one that is wider has a line of its own. Every text starts on a new line.
    static QStringList breakLines(int maxWidth, const QFont &font, const QStringList &texts);

    /// Breaks the texts like breakLines() into as many lines as there is room for. Where more are needed, the last line
    /// is shortened to end in an ellipsis and `isCut` says so. No room for a line: an empty list, cut.
    static QStringList fitLines(int maxWidth, int maxLines, const QFont &font, const QStringList &texts, bool *isCut);
    /// The text, shortened to end in an ellipsis if it is wider than the width.
    static QString elided(int maxWidth, const QFont &font, const QString &text);

    /// Where one line of text lies in the rectangle: its advance and line height, aligned by the flags. It may be
    /// larger than the rectangle.
    static QRectF boundingRect(const QFont &font, const QRectF &rect, int flags, const QString &text);

    /// Where lines are seen that drawText() (one line) or drawTexts() (several) draw; null when nothing is.
    static QRectF inkRect(const QFont &font, const QRectF &rect, int flags, const QStringList &lines);

    /// Draws one line in the painter's font and pen colour, aligned in the rectangle by the flags.
    static void drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text);
    /// Draws several lines, each centred on the widest one; the flags align the block. With Qt::AlignBottom the last
    /// line stands at the bottom, otherwise the first at the top.
    static void drawTexts(QPainter &painter, const QRectF &rect, int flags, const QStringList &lines);
};
