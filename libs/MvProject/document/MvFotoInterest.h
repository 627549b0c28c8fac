// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QString>

/// What of a photo is worth seeing. A value.
///
/// Some parts are to be seen whole: faces with the head around them, or the one thing that stands before a quiet
/// ground. Beyond these a grid of cells says how much there is to see where. Rectangles are parts of the photo's width
/// and height.
class MVPROJECT_EXPORT MvFotoInterest
{
public:
    struct Part
    {
        QRectF rect;
        double weight = 1.0;

        bool operator==(const Part &) const = default;
    };

    static constexpr int mostWholes = 24;
    static constexpr int mostCells = 32; // along a side

    /// Nothing is known.
    MvFotoInterest() = default;
    /// Kept as a text has them, in thousandths; what is empty, outside the photo or too much is left out.
    explicit MvFotoInterest(const QList<Part> &wholes, const QSize &grid = {}, const QList<double> &amounts = {});
    /// A single point, all that is known of some photos.
    static MvFotoInterest at(const QPointF &point);

    bool isEmpty() const { return m_wholes.isEmpty() && m_amounts.isEmpty(); }
    /// To be seen whole.
    const QList<Part> &wholes() const { return m_wholes; }
    /// The cells in which there is something; their weights are 1 together.
    QList<Part> cells() const;
    /// The middle of the parts that are to be seen whole, else of what there is; (0.5, 0.5) when nothing is known.
    QPointF middle() const;

    /// As files have it.
    QString toText() const;
    /// Nothing is known by a text that is none.
    static MvFotoInterest fromText(const QString &text);

    bool operator==(const MvFotoInterest &) const = default;

private:
    QList<Part> m_wholes;
    QSize m_grid;
    QByteArray m_amounts; // row by row, 0 to 15; empty where nothing is known
};
