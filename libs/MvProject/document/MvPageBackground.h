// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoElement.h"
#include "MvProject/mvproject_export.h"

#include <QColor>

/// What lies beneath everything on a page: a colour, or a photo that fills the sheet, with a veil over it. A value.
class MVPROJECT_EXPORT MvPageBackground
{
public:
    /// The ground of the colour schema.
    MvPageBackground() = default;
    explicit MvPageBackground(const QColor &color) { setColor(color); }

    /// Invalid for the ground of the colour schema. Of a photo it is the veil. Kept with
    /// 8 bits a channel, as files hold it.
    QColor color() const { return m_color; }
    void setColor(const QColor &color) { m_color = color.isValid() ? QColor::fromRgba(color.rgba()) : QColor(); }
    /// Fills the sheet with its bleed; empty for none.
    const MvFotoElement &foto() const { return m_foto; }
    void setFoto(const MvFotoElement &foto) { m_foto = foto; }
    /// How much of the photo the ground's colour covers: 0 nothing, 1 all; clamped.
    double veil() const { return m_veil; }
    void setVeil(double veil);

    bool operator==(const MvPageBackground &) const = default;

private:
    QColor m_color;
    MvFotoElement m_foto;
    double m_veil = 0.0;
};
