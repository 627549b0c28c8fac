// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/MvPaintRecording.h"

#include <QPaintDevice>

#include <memory>

class MvPaintRecorderEngine;
struct MvPaintMark;
struct MvPlacedOutline;

/// A paint device that takes down what is painted on it, to be played once or often on a target.
///
/// It reports the size and the resolution of its target, so that fonts in points come out right and nothing needs to
/// be scaled; its device pixel ratio is 1, since coordinates are relative to the target's transform. Texts arrive as
/// outlines, pixmaps as images; all else is kept as it was asked for.
class MVPAINT_EXPORT MvPaintRecorder : public QPaintDevice
{
public:
    /// Records for the device that the painter paints on. Hand its hints over with QPainter::setRenderHints().
    explicit MvPaintRecorder(const QPainter &target);

    /// Records for the device, which is asked now and not kept. Without one: 1 x 1 pixels at 96 dots per inch.
    explicit MvPaintRecorder(const QPaintDevice *target);

    ~MvPaintRecorder() override;

    /// What was painted since a painter last began; complete once it has ended.
    MvPaintRecording recording() const;

    /// Takes down lines of text with the painter's present transform, clip, opacity and hints. The painter must be
    /// the one that is active on this device. Use MvOutlinePainter, which works on every target.
    void recordOutlines(const QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color);

    /// What is painted from now on is part of; none at first. See MvPaintMarking.
    void setMark(const std::shared_ptr<const MvPaintMark> &mark);
    std::shared_ptr<const MvPaintMark> mark() const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    struct Metrics
    {
        int width = 1;
        int height = 1;
        int widthMM = 1;
        int heightMM = 1;
        int colorCount = 0;
        int depth = 32;
        int dpiX = 96;
        int dpiY = 96;
        int physicalDpiX = 96;
        int physicalDpiY = 96;
    };
    static Metrics metricsOf(const QPaintDevice *target);

    Metrics m_metrics;
    std::unique_ptr<MvPaintRecorderEngine> m_engine;
};
