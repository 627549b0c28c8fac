// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendariumElement.h"
#include "MvProject/MvFotoElement.h"
#include "MvProject/MvTextElement.h"
#include "MvProject/mvproject_export.h"

#include <QPolygonF>
#include <QRectF>
#include <QString>

#include <variant>

/// Something that stands on a page: a photo, a text or a calendarium in its rectangle. A value.
///
/// An element that came with a template names the slot it stands in, and moves with the template and the paper; one
/// without a slot was placed by hand and keeps its place.
class MVPROJECT_EXPORT MvPageElement
{
public:
    using Content = std::variant<MvFotoElement, MvTextElement, MvCalendariumElement>;
    /// In the order of Content.
    enum class Kind { Foto, Text, Calendarium };

    static constexpr double largestRotation = 5.0; // degrees

    /// An empty frame without a size.
    MvPageElement() = default;
    MvPageElement(const QRectF &rect, const Content &content, const QString &slot = {});

    Kind kind() const { return Kind(m_content.index()); }
    const Content &content() const { return m_content; }
    void setContent(const Content &content) { m_content = content; }
    /// Null when it is something else; valid until the element changes.
    const MvFotoElement *foto() const { return std::get_if<MvFotoElement>(&m_content); }
    const MvTextElement *text() const { return std::get_if<MvTextElement>(&m_content); }
    const MvCalendariumElement *calendarium() const { return std::get_if<MvCalendariumElement>(&m_content); }

    /// Its name in the template; empty for an element that was placed by hand.
    QString slot() const { return m_slot; }
    void setSlot(const QString &slot) { m_slot = slot; }

    /// In tenths of a millimetre from the trimmed page's corner; the bleed lies outside the trimmed page.
    QRectF rect() const { return m_rect; }
    void setRect(const QRectF &rect) { m_rect = rect; }
    /// Of photos, about the rectangle's middle, clockwise in degrees; -5 to 5, clamped. 0 for everything else.
    double rotation() const { return kind() == Kind::Foto ? m_rotation : 0.0; }
    void setRotation(double degrees);
    /// The corners of the rectangle as it stands on the page.
    QPolygonF outline() const;
    bool contains(const QPointF &point) const;

    /// It stands on a photo and has a veil under it.
    bool isOnFoto() const;

    bool operator==(const MvPageElement &) const = default;

private:
    QString m_slot;
    QRectF m_rect;
    double m_rotation = 0.0;
    Content m_content;
};
