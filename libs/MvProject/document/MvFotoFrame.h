// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoElement.h"
#include "MvProject/MvPageFormat.h"
#include "MvProject/mvproject_export.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// The photo of a page without a template: which file, where it stands, what of it is seen. A value.
///
/// A photo bleeds: it reaches over the trimmed page's edges on three sides and leaves the rest to the calendarium.
class MVPROJECT_EXPORT MvFotoFrame
{
public:
    enum class Placement {
        Top,
        Left,
        Right,
    };

    static constexpr double minimumShare = 0.3;
    static constexpr double maximumShare = 0.75;
    static constexpr double defaultShare = 0.55;

    /// No photo.
    MvFotoFrame() = default;
    explicit MvFotoFrame(const QString &path, Placement placement = Placement::Top);

    /// The photo itself; path() and focus() are its.
    const MvFotoElement &foto() const { return m_foto; }
    void setFoto(const MvFotoElement &foto) { m_foto = foto; }

    /// True when a photo is named, whether or not its file exists.
    bool isValid() const { return !m_foto.isEmpty(); }
    /// The photo is named, but its file is not there or holds no photo. Looks into the file; any thread.
    bool isMissing() const { return m_foto.isMissing(); }

    /// The absolute path; empty for no photo.
    QString path() const { return m_foto.path(); }
    /// A relative path counts from the current folder.
    void setPath(const QString &path) { m_foto.setPath(path); }

    Placement placement() const { return m_placement; }
    void setPlacement(Placement placement) { m_placement = placement; }

    /// The photo's part of the trimmed page's height (at the top) or width (beside it). Clamped to the limits.
    double share() const { return m_share; }
    void setShare(double share);

    /// The point of the photo that stays in sight when it is cropped, from (0, 0) at its top left corner to (1, 1).
    /// Clamped.
    QPointF focus() const { return m_foto.focus(); }
    void setFocus(const QPointF &focus) { m_foto.setFocus(focus); }

    /// Where the photo stands, with the bleed, in tenths of a millimetre from the trimmed page's corner; empty without
    /// a photo or with an invalid format.
    QRectF rect(const MvPageFormat &format) const { return isValid() ? place(format) : QRectF(); }
    /// Where a photo would stand.
    QRectF place(const MvPageFormat &format) const;
    /// MvFotoElement::crop() of the photo.
    QRectF crop(const QSizeF &foto, const QSizeF &frame) const { return m_foto.crop(foto, frame); }

    bool operator==(const MvFotoFrame &) const = default;

private:
    MvFotoElement m_foto;
    Placement m_placement = Placement::Top;
    double m_share = defaultShare;
};
