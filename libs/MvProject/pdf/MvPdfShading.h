// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QColor>
#include <QGradient>
#include <QList>
#include <QRectF>
#include <QTransform>

class MvPressColors;
class QBrush;

/// A linear or radial gradient as a PDF describes it: its colours, and its opacity apart from them as shades of grey.
class MvPdfShading
{
public:
    /// Whether the brush is a gradient that can be described.
    static bool canDescribe(const QBrush &brush);

    /// The bounds are those of the shape that is filled, in the coordinates in which it was painted.
    /// The press, if any, outlives it.
    MvPdfShading(const QBrush &brush, const QRectF &bounds, const MvPressColors *press = nullptr);

    bool isTranslucent() const;
    /// Objects of a PDF.
    QByteArray colors() const { return describe(false); }
    QByteArray opacity() const { return describe(true); }
    /// From the gradient's coordinates to those of the shape.
    QTransform transform() const { return m_transform; }

private:
    /// A part in which colours and opacity may be mixed apart from each other.
    struct Part
    {
        double from;
        double to;
        QColor first;
        QColor last;
    };

    /// Finely divided where inks are mixed, which come out in other colours between than those of a screen.
    static QList<Part> partsOf(const QGradient &gradient, bool isMixedOfInks);
    QByteArray colorOf(const QColor &color, bool isOpacity) const;
    QByteArray describe(bool isOpacity) const;
    QByteArray function(bool isOpacity) const;

    const MvPressColors *m_press;
    const QGradient m_gradient;
    const QList<Part> m_parts; // from 0 to 1
    QTransform m_transform;
};
