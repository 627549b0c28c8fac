// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecordingData.h"

#include <map>

class MvPaintRecorder;

/// Plays a recording on one painter: what MvPaintRecording::replay() does.
class MvPaintPlayer
{
public:
    /// The painter is active and outlives the player.
    MvPaintPlayer(QPainter &painter, const MvPaintRecordingData &recording);

    void play();

private:
    void enter(const MvPaintState &state);
    void enterClip(const MvPaintClip *clip);
    void addClip(const MvPaintClip &clip);
    void setTransform(const QTransform &transform);
    void setHints(QPainter::RenderHints hints);
    std::shared_ptr<const MvPaintMark> carried(const std::shared_ptr<const MvPaintMark> &mark);

    template <class Line>
    void paint(const MvPaintShape::Lines<Line> &shape);
    template <class Rect>
    void paint(const MvPaintShape::Rects<Rect> &shape);
    template <class Rect>
    void paint(const MvPaintShape::Ellipse<Rect> &shape);
    template <class Point>
    void paint(const MvPaintShape::Points<Point> &shape);
    template <class Polygon>
    void paint(const MvPaintShape::Poly<Polygon> &shape);
    void paint(const MvPaintShape::Path &shape);
    void paint(const MvPaintShape::Image &shape);
    void paint(const MvPaintShape::Bitmap &shape);
    void paint(const MvPaintShape::Tiles &shape);
    void paint(const MvPaintShape::Outlines &shape);

    QPainter &m_painter;
    MvPaintRecorder *const m_recorder; // the target, if it is one
    const std::shared_ptr<const MvPaintMark> m_around;
    std::map<const MvPaintMark *, std::shared_ptr<const MvPaintMark>> m_carried;
    const MvPaintRecordingData &m_recording;
    const QTransform m_base;
    const double m_baseOpacity;
    const MvPaintState *m_state = nullptr;    // the one the painter has; null when that is not known
    std::vector<const MvPaintClip *> m_clips; // in force besides the target's own, each after a save()
};
