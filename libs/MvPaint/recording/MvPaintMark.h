// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QStringList>

#include <memory>

class MvPaintRecorder;
class QPainter;

/// What a part of a picture is to somebody who hears it instead of seeing it. Painting carries its mark into a
/// recording, and on into recordings that it is replayed into; other targets know none.
///
/// What is painted without a mark is a text of its own if it is a text, and decoration if it is not. Marks lie in each
/// other: a cell in its table, a table among what belongs together. Within the mark around them, marks of the same kind
/// with the same row and column are one part, in however many pieces it is painted.
struct MvPaintMark
{
    enum class Kind {
        Group,      ///< things that belong together; the row is a number of its own, as for all that is not in a table
        Figure,     ///< a picture, with all that is painted for it
        Title,      ///< of the table that it lies in, or of the page
        Paragraph,  ///< a text
        Table,      ///< its parts say their rows and columns, in any numbers that rise
        ColumnHead, ///< above a column
        RowHead,    ///< before the cells of a row
        Cell,
        Row,       ///< a row that is one thing: the first text is its head, the others stand in the column
        Decoration ///< says nothing
    };

    Kind kind = Kind::Decoration;
    int row = 0;
    int column = 0;
    /// What is written within, whole, where lines may be divided, shortened or abbreviated; the description of a
    /// figure. Of a cell the first one is its label. Empty: as it is painted.
    QStringList texts;
    std::shared_ptr<const MvPaintMark> around;
};

/// Marks what the painter paints while it lives.
class MVPAINT_EXPORT MvPaintMarking
{
public:
    using Kind = MvPaintMark::Kind;

    MvPaintMarking(QPainter &painter, Kind kind, int row = 0, int column = 0, const QStringList &texts = {});
    ~MvPaintMarking();
    MvPaintMarking(const MvPaintMarking &) = delete;
    MvPaintMarking &operator=(const MvPaintMarking &) = delete;

    /// Whether the painter's target takes marks down: what they say need not be found out for others.
    static bool isAsked(const QPainter &painter);

private:
    MvPaintRecorder *m_recorder; // null: the target knows no marks
    std::shared_ptr<const MvPaintMark> m_around;
};
