// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecordingData.h"
#include "MvProject/MvPdfContent.h"

#include <QHash>
#include <QRectF>

#include <optional>
#include <vector>

class MvPaintRecording;
class MvPdfFile;
class MvPdfFonts;
class MvPdfImages;
class MvPdfPageParts;
class MvPressColors;

/// Writes a recording as the content of a page: lines, areas, clips, opacity, gradients, texts and pictures as what
/// they are.
///
/// What a PDF has no words for becomes a picture with as many pixels as the recording has dots: shapes with patterns,
/// textures and other gradients, bitmaps and tiles; the whole page where shapes are combined with what lies beneath
/// them in other ways than by laying them over it or blending.
class MvPdfPagePainter
{
public:
    /// What everything in a document shares; outlives the painter.
    struct Shared
    {
        MvPdfFile &file;
        MvPdfFonts &fonts;
        MvPdfImages &images;
        const MvPressColors *press = nullptr; // for colours as inks
    };

    /// The recording's coordinates become units by the transform; the page is given in those of the recording.
    /// What is painted for parts of the page is marked as theirs, all else as decoration.
    MvPdfPagePainter(const Shared &shared, const QTransform &toUnits, const QRectF &page, MvPdfPageParts &parts);

    /// To be written into instead of an empty content; before anything is painted.
    void setContent(const MvPdfContent &content) { m_content = content; }
    /// For what is not to be read: leaves texts out, and marks all else as decoration.
    void setDecoration() { m_isDecoration = true; }
    void paint(const MvPaintRecording &recording);

    const MvPdfContent &content() const { return m_content; }

    /// Where most ink was laid on at once; in units.
    struct Ink
    {
        double percent = 0.0;
        QPointF place;
    };
    Ink mostInk() const { return m_mostInk; }

private:
    /// A clip in units.
    struct Clip
    {
        QPainterPath path;
        std::optional<QRectF> rect; // when it is one: nearly always
    };

    void enter(const MvPaintState &state);
    void paintShape(const MvPaintOperation::Shape &shape);
    void paintPaths(const QList<QPainterPath> &paths, bool isFilled);
    void fill(const QPainterPath &path);
    void fillWithGradient(const QPainterPath &path);
    /// The entry of a state that makes opacity what the shading says.
    QByteArray maskOf(const QByteArray &shading, const QTransform &transform);
    void stroke(const QPainterPath &path);
    void paintOutlines(const MvPaintShape::Outlines &shape);
    void paintLines(const QList<MvPlacedOutline> &lines);
    void paintImage(const QImage &image, const QRectF &target, const QRectF &source);
    void placeImage(const QImage &image, const QRect &part, const QRectF &target, const QTransform &transform);
    void paintAsPicture(const MvPaintRecording &recording, const QRectF &bounds, const QColor &ground, int part);

    const Clip &clipOf(const MvPaintClip &clip);
    void enterClips(const MvPaintClip *clip);
    void leaveClips(size_t keep);
    void useOpacity(double fill, double stroke, const QByteArray &mask = {}, bool isOverprinted = false);
    void noteInk(double percent, const QPointF &place);
    void noteInk(QRgb color);

    /// What follows belongs to the part.
    void enterPart(int part);
    void leavePart();

    Shared m_shared;
    const QTransform m_toUnits;
    const QRectF m_page;
    MvPdfPageParts &m_parts;
    std::optional<int> m_part; // marked at present
    size_t m_operation = 0;
    MvPdfContent m_content;
    const MvPaintState *m_state = nullptr;
    QTransform m_transform; // from the coordinates of the shape to units
    QRectF m_bounds;        // of the shape with its pen, in units
    bool m_isDecoration = false;
    Ink m_mostInk;
    QHash<const MvPaintClip *, Clip> m_knownClips;
    std::vector<const MvPaintClip *> m_clips; // in force, each after a save()
};
