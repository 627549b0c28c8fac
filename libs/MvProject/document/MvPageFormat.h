// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSpaceMagnitude.h"
#include "MvProject/mvproject_export.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// The paper of a page: trimmed size, bleed and margins. All lengths are tenths of a millimetre; the origin is the
/// top left corner of the trimmed page, so that the bleed lies at negative coordinates.
///
/// A default-constructed format, and one from an unknown name, is invalid and has empty rectangles.
class MVPROJECT_EXPORT MvPageFormat
{
public:
    enum class Orientation {
        Portrait,
        Landscape,
    };

    MvPageFormat() = default;
    /// A size in tenths of a millimetre, 200 to 30000 per side; anything else is invalid.
    explicit MvPageFormat(const QSizeF &trimSize);

    /// "A0" to "A6" (upright, whatever the case), or width and height in millimetres: "300x200", "148,5x210".
    static MvPageFormat fromName(const QString &name);
    /// The names of the paper sizes that fromName() knows.
    static QStringList names();

    bool isValid() const { return m_trimSize.isValid() && !m_trimSize.isEmpty(); }

    /// A square counts as upright.
    Orientation orientation() const;
    /// Turns the page, if need be, by exchanging width and height.
    void setOrientation(Orientation orientation);

    /// What is printed beyond each edge and cut off; 0 to 200, other values are clamped.
    double bleed() const { return m_bleed; }
    void setBleed(double bleed);

    QSizeF trimSize() const { return m_trimSize; }
    QRectF trimRect() const { return {QPointF(), m_trimSize}; }
    /// The trimmed page with its bleed.
    QRectF mediaRect() const { return trimRect().adjusted(-m_bleed, -m_bleed, m_bleed, m_bleed); }
    /// Where a calendarium may stand: 12 mm below the binding at the top, elsewhere 11 mm inside the edge, less on
    /// pages smaller than A5, but never under 5 mm.
    QRectF contentRect() const;

    /// The paper class that fonts are adapted to.
    MvSpaceMagnitude magnitude() const;

    bool operator==(const MvPageFormat &) const = default;

private:
    QSizeF m_trimSize;
    double m_bleed = 0.0;
};
