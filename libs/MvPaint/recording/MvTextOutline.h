// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QFont>
#include <QImage>
#include <QList>
#include <QPainterPath>
#include <QSharedDataPointer>

struct MvTextOutlineImpl;

/// The outline of one line of text with its baseline starting at (0, 0), in the pixels of its font; glyphs that have no
/// outline but colours are pictures beside it.
///
/// An immutable, shared value: a copy costs a reference count, and it can be painted by several threads at once.
/// Fill rule is winding. Underlines and other decorations are not part of an outline.
class MVPAINT_EXPORT MvTextOutline
{
public:
    /// Sub-paths of the outline that overlap in x, usually one glyph. Two groups share no x.
    struct Group
    {
        QPainterPath path;
        double left = 0.0;
        double right = 0.0;
        double top = 0.0;
        double bottom = 0.0;
    };

    /// A glyph that is no outline but a coloured picture, as emoji are.
    struct Picture
    {
        QImage image; // fine enough for print; shared by all texts with the glyph
        QRectF rect;  // from the start of the baseline
    };

    /// One glyph of the text. Glyphs with the same face and index have the same shape, whatever their sizes.
    struct Glyph
    {
        int face = 0; ///< a number that stands for a font in any size while the program runs
        quint32 index = 0;
        int unitsPerEm = 1000; ///< the grid that the font was drawn on
        int firstCharacter = 0;
        int characters = 0; ///< code units of the text that it stands for; 0 when a glyph before stands for them, too
        double em = 0.0;    ///< in pixels
        double advance = 0.0;
        QPointF origin;    ///< from the start of the baseline
        QPainterPath path; ///< from the glyph's origin; shared by all texts with the glyph
    };

    /// An outline of nothing.
    MvTextOutline();

    /// Shapes the text (some 50 microseconds; MvTextOutlineCache keeps what was shaped before). A font in points is
    /// taken at the resolution it was resolved for, as QPainter::font() is for its device.
    MvTextOutline(const QFont &font, const QString &text);

    /// An outline that was shaped elsewhere; the advance is the width the text takes in its line.
    MvTextOutline(const QFont &font, const QString &text, const QPainterPath &path, double advance);

    MvTextOutline(const MvTextOutline &);
    MvTextOutline &operator=(const MvTextOutline &);
    MvTextOutline(MvTextOutline &&) noexcept;
    MvTextOutline &operator=(MvTextOutline &&) noexcept;
    ~MvTextOutline();

    /// True when nothing would be seen: no text, or blanks only.
    bool isEmpty() const;

    QFont font() const;
    QString text() const;
    /// To be filled by one thread at a time: Qt keeps in a path what it makes of it for raster targets.
    const QPainterPath &path() const;
    /// The same for several threads.
    const QPainterPath &pathForRaster() const;

    /// The glyphs that make up the path, blanks too, from left to right; empty when that is not known: for an outline
    /// that was shaped elsewhere, and under decorations.
    const QList<Glyph> &glyphs() const;

    const QList<Picture> &pictures() const;

    /// Bounding rectangle of the path's control points and the pictures; null when empty.
    QRectF bounds() const;

    double advance() const;
    int elementCount() const;

    /// From left to right. For raster targets, which most outlines never meet: made when they are first asked for. Safe
    /// to be asked for, and filled, by several threads.
    const QList<Group> &groups() const;

private:
    QExplicitlySharedDataPointer<MvTextOutlineImpl> d;
};

/// A line of text with the place of its baseline's start.
struct MvPlacedOutline
{
    QPointF baseline;
    MvTextOutline outline;

    QRectF bounds() const { return outline.bounds().translated(baseline); }
};
