// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QColor>
#include <QFont>
#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QRectF>
#include <QSharedDataPointer>
#include <QString>

class MvPaintRecorder;
struct MvPaintRecordingData;
class QPainter;

/// A finished sequence of paint operations, as an MvPaintRecorder took it down. A shared value: copies are cheap.
///
/// Laying out a page takes far longer than drawing it, and only the GUI thread may do it, while the same page is drawn
/// at several zooms, as a small picture and into a file. So pages are laid out once, into a recording; everything else
/// replays it, in whatever thread. Recordings also answer what was painted, shape by shape, which is how pages are
/// tested.
///
/// Images are shared too; one that was made over a foreign buffer needs that buffer for as long as the recording.
class MVPAINT_EXPORT MvPaintRecording
{
public:
    /// One recorded shape in page coordinates: those of the recorder, with every recorded transform applied.
    struct Item
    {
        enum Kind { Line, Rect, Ellipse, Point, Polygon, Path, Image, Text };

        Kind kind = Path;
        QRectF bounds;            ///< of the shape itself, without the width of its pen
        QColor fill;              ///< invalid when not filled with one colour; a text has its colour here
        QColor stroke;            ///< invalid when no pen is drawn
        double strokeWidth = 0.0; ///< in page units; 0 is one pixel whatever the scale
        Qt::PenStyle strokeStyle = Qt::NoPen;
        QLineF line;        ///< of a line
        QString text;       ///< of a text
        QFont font;         ///< of a text
        QPointF baseline;   ///< of a text: where its baseline starts
        double angle = 0.0; ///< of a text: degrees by which its baseline is turned, clockwise
        QPainterPath shape; ///< the outline of everything but images
        QRectF clip;        ///< bounding rectangle of the clip in force; null without one
        double opacity = 1.0;
    };

    MvPaintRecording();
    MvPaintRecording(const MvPaintRecording &);
    MvPaintRecording &operator=(const MvPaintRecording &);
    MvPaintRecording(MvPaintRecording &&) noexcept;
    MvPaintRecording &operator=(MvPaintRecording &&) noexcept;
    ~MvPaintRecording();

    bool isEmpty() const;

    /// Number of recorded operations; one operation may hold several items.
    int operationCount() const;

    /// Paints everything again, with the pixels that painting straight to the target would have given.
    ///
    /// Transforms and opacity are recorded relative to those of the target; every clip, also a replaced one, is
    /// intersected with the clip the target has. Render hints and composition modes are those of the recording. The
    /// painter's state is as before afterwards.
    ///
    /// QPainter reports some different calls to a paint device in the same form; the more common call is then replayed.
    /// A clip to one rectangle becomes QPainter::setClipRect(QRectF), a rectangle without a pen becomes
    /// QPainter::fillRect(). So pixels at the edges can differ for rectangular clip paths, for drawRect() without pen
    /// and antialiasing off the pixel grid, where the dashes of a rounded rectangle begin, and in opaque background
    /// mode.
    void replay(QPainter &painter) const;

    /// The same picture without clips, for targets that do not know any: what they and the rectangle, in page
    /// coordinates, cut off is gone from the shapes.
    MvPaintRecording clipped(const QRectF &rect) const;

    /// So many operations from the first one on, counted from 0, as a recording of their own.
    MvPaintRecording part(int first, int count) const;

    /// What it is made of, for whoever writes it in a form of its own. Valid as long as the recording.
    const MvPaintRecordingData &data() const;

    /// The shapes in the order they were painted.
    QList<Item> items() const;

    /// The items of one kind.
    QList<Item> items(Item::Kind kind) const;

    /// One line per item, coordinates rounded to hundredths; after a path of several rectangles one line for each of
    /// them. For example
    ///
    ///     rect 10,20 30x40 fill #ff0000 pen #000000 2
    ///     path 0,0 20x10 fill #eeeeee
    ///         0,0 5x10
    ///         15,0 5x10
    ///     line 10,20 40,20 pen #000000 0.5 clip 0,0 100x100
    ///     text "Januar" 10,52.5 fill #202020 font Lato 40
    ///     image 10,20 30x40 opacity 0.5
    QString describe() const;

private:
    friend class MvPaintRecorder;
    explicit MvPaintRecording(const MvPaintRecordingData *data);

    QExplicitlySharedDataPointer<const MvPaintRecordingData> d;
};
