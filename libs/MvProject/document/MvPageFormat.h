// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSpaceMagnitude.h"
#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// The paper of a page: trimmed size, bleed, binding and margins. All lengths are tenths of a millimetre; the origin is
/// the top left corner of the trimmed page, so that the bleed lies at negative coordinates.
///
/// Templates lay their slots on the field: what binding zone and outer margin leave, in 12 columns and 24 rows with
/// gutters between them.
///
/// A default-constructed format, and one from an unknown name, is invalid and has empty rectangles.
class MVPROJECT_EXPORT MvPageFormat
{
    Q_DECLARE_TR_FUNCTIONS(MvPageFormat)

public:
    enum class Orientation {
        Portrait,
        Landscape,
    };

    /// The proportions that a template may divide in different ways: square up to 7:6, panorama and narrow from 2:1.
    enum class Shape {
        Landscape,
        Portrait,
        Square,
        Panorama,
        Narrow,
    };

    /// The edge with spiral, hanger or holes. `None`: nothing is kept free but the usual margins.
    enum class Binding {
        None,
        Top,
        Left,
        Right,
    };

    static constexpr double defaultBindingZone = 110.0;
    static constexpr double defaultSafeMargin = 30.0;
    static constexpr double printShopBleed = 30.0;
    static constexpr int fieldColumns = 12;
    static constexpr int fieldRows = 24;

    MvPageFormat() = default;
    /// A size in tenths of a millimetre, 200 to 30000 per side; anything else is invalid.
    explicit MvPageFormat(const QSizeF &trimSize);

    /// One of names() (upright, whatever the case), or width and height in millimetres or centimetres: "300x200",
    /// "148,5x210", "15x15 cm".
    static MvPageFormat fromName(const QString &name);
    /// The names of the paper sizes that fromName() knows: "A0" to "A6", of print shops, "Letter", "Legal", "Tabloid".
    static QStringList names();
    /// Whether it is one of names(), whatever the case.
    static bool isName(const QString &name);
    /// What people see for one of names(), in their language; another text stays as it is.
    static QString label(const QString &name);

    bool isValid() const { return m_trimSize.isValid() && !m_trimSize.isEmpty(); }

    /// A square counts as upright.
    Orientation orientation() const;
    /// Turns the page, if need be, by exchanging width and height.
    void setOrientation(Orientation orientation);

    Shape shape() const;
    /// The words of files: "landscape", "portrait", "square", "panorama", "narrow".
    static QString shapeName(Shape shape);
    static QList<Shape> shapes();

    Binding binding() const { return m_binding; }
    void setBinding(Binding binding) { m_binding = binding; }
    /// The words of files: "none", "top", "left", "right"; an unknown one is none.
    static QString bindingName(Binding binding);
    static Binding bindingFromName(const QString &name);
    /// How much of the page the binding takes; 0 to 400, other values are clamped. Counts only with a binding.
    double bindingZone() const { return m_bindingZone; }
    void setBindingZone(double zone);
    /// The part of the page that the binding takes; empty without one.
    QRectF bindingRect() const;

    /// What a print shop may cut off by mistake; 0 to 200, other values are clamped.
    double safeMargin() const { return m_safeMargin; }
    void setSafeMargin(double margin);
    /// Where texts and calendaria may stand: the page without binding zone and safe margin.
    QRectF safeRect() const;

    /// What is printed beyond each edge and cut off; 0 to 200, other values are clamped.
    double bleed() const { return m_bleed; }
    void setBleed(double bleed);

    QSizeF trimSize() const { return m_trimSize; }
    QRectF trimRect() const { return {QPointF(), m_trimSize}; }
    /// The trimmed page with its bleed.
    QRectF mediaRect() const { return trimRect().adjusted(-m_bleed, -m_bleed, m_bleed, m_bleed); }
    /// Where the calendarium of a page without a template may stand: 12 mm below the upper edge, elsewhere 11 mm inside
    /// the edge, less on pages smaller than A5, but never under 5 mm, and always outside the binding zone.
    QRectF contentRect() const;

    /// From the field to the edge or the binding zone: a twenty-fourth of the short edge, at least 2 mm more than the
    /// safe margin.
    double fieldMargin() const;
    /// Between two columns, or two rows: half the margin, less on fields that it would take up.
    double gutter() const;
    /// The page without binding zone and margin.
    QRectF fieldRect() const;
    /// The columns and rows of the field from one to the other, counted from 1, without the gutters around them.
    QRectF fieldArea(int firstColumn, int lastColumn, int firstRow, int lastRow) const;

    /// The paper class that fonts are adapted to.
    MvSpaceMagnitude magnitude() const;

    bool operator==(const MvPageFormat &) const = default;

private:
    QRectF withoutBinding() const;

    QSizeF m_trimSize;
    double m_bleed = 0.0;
    Binding m_binding = Binding::None;
    double m_bindingZone = defaultBindingZone;
    double m_safeMargin = defaultSafeMargin;
};
