// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvTextOutline.h"

class QGlyphRun;
class QRawFont;
class QTextLayout;

/// The glyphs of one line of text, chosen and placed by the text engine: as outlines, or as pictures where a font has
/// no outlines. The line starts at (0, 0) on its baseline.
///
/// A font of bitmaps is never asked for outlines or for other sizes than its own: that spoils its measures of all texts
/// that follow.
class MvGlyphLine
{
public:
    MvGlyphLine(const QFont &font, const QString &text);

    /// Empty when the font has decorations, which are no glyphs; the path has them.
    const QList<MvTextOutline::Glyph> &glyphs() const { return m_glyphs; }
    const QList<MvTextOutline::Picture> &pictures() const { return m_pictures; }
    const QPainterPath &path() const { return m_path; }

private:
    void add(const QGlyphRun &run, double baseline);
    void add(const QRawFont &font, const QList<quint32> &indexes, const QList<QPointF> &positions, double baseline);
    void addBoxes(const QGlyphRun &run, const QRawFont &font, double baseline);
    void join();
    void addPictures(const QGlyphRun &run, double baseline);
    /// Finds the characters that the glyphs from `first` on stand for. The text engine does not say it: glyphs that are
    /// those of single characters are recognised, and what lies between belongs together, as a ligature does.
    void assignCharacters(const QGlyphRun &run, qsizetype first);
    void shareCharacters(qsizetype first);
    /// The same for a line with letters that are written from right to left: asks where each character stands, which
    /// takes longer.
    void assignTurnedCharacters(const QTextLayout &layout, double baseline);
    /// Numbers of the glyphs that are those of the runs.
    QList<qsizetype> placesOf(const QList<QGlyphRun> &runs, double baseline) const;

    const QString m_seen; // in the letters that are shown
    const bool m_isTurned;
    qsizetype m_nextCharacter = 0;
    QList<MvTextOutline::Glyph> m_glyphs;
    QList<MvTextOutline::Picture> m_pictures;
    QPainterPath m_path;
};
