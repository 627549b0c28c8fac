// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvDistance.h"
#include "MvModelBase/MvBorderPosition.h"
#include "MvModelBase/mvmodelbase_export.h"

#include <QColor>

class QDomElement;
class QPen;

/// A line around or between things: whether it is drawn, its colour, its width and where it runs.
///
/// The default is a disabled black line of 0.2 mm, centred.
class MVMODELBASE_EXPORT MvBorderConfig
{
public:
    MvBorderConfig() = default;
    MvBorderConfig(const QColor &color, MvDistance width, MvBorderPosition position, bool enabled);

    static constexpr double mostWidth = 200.0; // tenths of a millimetre

    bool isEnabled() const { return m_enabled; }
    void setIsEnabled(bool enabled) { m_enabled = enabled; }
    QColor color() const { return m_color; }
    /// Kept as files write it, in 8 bits per part, whatever its model. An invalid one is black.
    void setColor(const QColor &color);
    MvDistance width() const { return m_width; }
    /// Brought into 0 to `mostWidth`.
    void setWidth(MvDistance width);
    MvBorderPosition position() const { return m_position; }
    void setPosition(const MvBorderPosition &position) { m_position = position; }

    /// Reads attributes "enabled", "color", "width" (tenths of a millimetre, 0 to 200) and "position" of the element;
    /// a missing one takes the value of a default border, "enabled" true.
    static MvBorderConfig createFromXML(const QDomElement &element);
    /// Appends the element "border" that createFromXML() reads to an equal value.
    void buildXML(QDomElement &parent) const;

    /// A solid pen of the border's colour and width, in tenths of a millimetre, with square caps so that lines meet in
    /// the corners.
    QPen createPen() const;

    bool operator==(const MvBorderConfig &) const = default;

private:
    QColor m_color = Qt::black;
    MvDistance m_width = MvDistance(2.0);
    MvBorderPosition m_position = BORDER_POSITION_CENTRED;
    bool m_enabled = false;
};
