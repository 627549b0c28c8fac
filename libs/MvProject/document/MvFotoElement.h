// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QTransform>

/// A photo in a frame: which file, and how it lies in the frame. A value; where the frame stands says the page.
///
/// The photo is first turned in quarters, then straightened, then zoomed and cropped about its focus. Focus and sizes
/// of photos are those of the photo as it is seen without the turns given here (its own orientation is applied).
class MVPROJECT_EXPORT MvFotoElement
{
public:
    /// The photo fills the frame and is cropped, or it is seen whole and leaves room at two sides.
    enum class Fit { Fill, Whole };

    static constexpr double largestZoom = 8.0;
    static constexpr double largestStraightening = 15.0; // degrees
    static constexpr double widestBorder = 200.0;
    static constexpr int strongestCorrection = 50; // of brightness and contrast

    /// A line around the photo, inside the frame.
    struct Border
    {
        double width = 0.0; // tenths of a millimetre; 0 for none
        QColor color = Qt::white;

        bool operator==(const Border &) const = default;
    };

    /// An empty frame.
    MvFotoElement() = default;
    explicit MvFotoElement(const QString &path);

    /// No photo: an invitation on the screen, nothing in print.
    bool isEmpty() const { return m_path.isEmpty(); }
    /// A photo is named, but its file is not there or holds no photo. Looks into the file; any thread.
    bool isMissing() const;

    /// The absolute path; empty for no photo.
    QString path() const { return m_path; }
    /// A relative path counts from the current folder.
    void setPath(const QString &path);

    Fit fit() const { return m_fit; }
    void setFit(Fit fit) { m_fit = fit; }

    /// How much larger than its fit the photo is; 1 to 8, clamped.
    double zoom() const { return m_zoom; }
    void setZoom(double zoom);

    /// The point of the photo that stays in sight when it is cropped, from (0, 0) at its top left corner to (1, 1).
    /// Clamped.
    QPointF focus() const { return m_focus; }
    void setFocus(const QPointF &focus);

    /// Clockwise, 0 to 3; other numbers are taken modulo 4.
    int quarterTurns() const { return m_quarterTurns; }
    void setQuarterTurns(int turns);
    /// Clockwise in degrees, -15 to 15, clamped. The photo is enlarged so that no corner of it is seen.
    double straightening() const { return m_straightening; }
    void setStraightening(double degrees);

    /// -50 to 50, 0 for the photo as it is; clamped. Middle tones become lighter or darker, black and white stay.
    int brightness() const { return m_brightness; }
    void setBrightness(int brightness);
    /// -50 to 50, 0 for the photo as it is; clamped. What is lighter and what is darker than the middle move apart, or
    /// towards each other.
    int contrast() const { return m_contrast; }
    void setContrast(int contrast);

    const Border &border() const { return m_border; }
    /// The width is clamped to 0 to 200, the colour kept with 8 bits a channel; an invalid one becomes white.
    void setBorder(const Border &border);

    /// What texts of the page may print of it.
    QString caption() const { return m_caption; }
    void setCaption(const QString &caption) { m_caption = caption; }

    /// This frame with the picture of the other: its file, crop, turns, corrections and caption. Fit and border stay.
    MvFotoElement withPictureOf(const MvFotoElement &other) const;

    /// The part of a frame of the size, its corner at (0, 0), that a photo of the other size covers; the frame itself
    /// when the photo fills it. Empty for empty sizes.
    QRectF covered(const QSizeF &foto, const QSizeF &frame) const;
    /// From points of the photo to points of the frame. Identity for empty sizes.
    QTransform transform(const QSizeF &foto, const QSizeF &frame) const;
    /// The corners of the part of the photo that is seen in the frame, beginning with what stands at its top left; they
    /// never lie outside the photo. Empty for empty sizes.
    QPolygonF seen(const QSizeF &foto, const QSizeF &frame) const;
    /// The same in the photo after its quarter turns, before it is straightened: about the middle of this rectangle it
    /// is rotated. Empty for empty sizes.
    QRectF crop(const QSizeF &foto, const QSizeF &frame) const;
    /// The pixels of the photo that are seen, along the frame's sides: what its resolution in print follows from.
    QSizeF seenSize(const QSizeF &foto, const QSizeF &frame) const;
    /// The focus with which the photo has moved in its frame by the distance, as far as its edges allow: for dragging.
    QPointF movedFocus(const QSizeF &foto, const QSizeF &frame, const QPointF &distance) const;

    bool operator==(const MvFotoElement &) const = default;

private:
    struct Lie;
    Lie lie(const QSizeF &foto, const QSizeF &frame) const;

    QString m_path;
    Fit m_fit = Fit::Fill;
    double m_zoom = 1.0;
    QPointF m_focus{0.5, 0.5};
    int m_quarterTurns = 0;
    double m_straightening = 0.0;
    int m_brightness = 0;
    int m_contrast = 0;
    Border m_border;
    QString m_caption;
};
