// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLineF>
#include <QList>
#include <QRectF>
#include <Qt>

class MvPageFormat;

/// Where a frame catches while it is moved or resized: at the edges and the middle of the page, at safe margin and
/// binding, at columns and rows of the field that templates are laid on, and at edges and middles of other frames. Its
/// edges catch at all of these, its middle at middles alone. What is nearest wins; of what is equally near, other
/// frames win over the field. Tenths of a millimetre.
class MvFrameSnapping
{
public:
    struct Result
    {
        QRectF rect;
        /// Along what the frame has caught at, to be shown.
        QList<QLineF> guides;
    };

    /// Without anything to catch at.
    MvFrameSnapping() = default;
    /// The others are the frames that do not move.
    MvFrameSnapping(const MvPageFormat &format, const QList<QRectF> &others);

    /// The frame moved on by no more than `reach` in each direction.
    Result moved(const QRectF &rect, double reach) const;
    /// The frame with only these edges moved on, never smaller than a frame may be.
    Result resized(const QRectF &rect, Qt::Edges edges, double reach) const;

private:
    struct Line
    {
        double at;
        double from; // along the other axis
        double to;
        bool isOfFrame;
        bool isMiddle;
    };
    /// Of the frame that catches.
    struct Place
    {
        double at = 0.0;
        bool isMiddle = false;
    };
    struct Catch
    {
        double by = 0.0;
        bool isCaught = false;
    };

    void addRect(const QRectF &rect, bool hasMiddle, bool isOfFrame);
    static bool canMeet(const Line &line, const Place &place) { return line.isMiddle || !place.isMiddle; }
    static Catch nearest(const QList<Line> &lines, const QList<Place> &places, double reach);
    static void addGuides(QList<QLineF> &guides, const QList<Line> &lines, const QList<Place> &places, double from,
                          double to, Qt::Orientation orientation);

    QList<Line> m_vertical;   // at x
    QList<Line> m_horizontal; // at y
};
