// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvOutlinePainter.h"

#include "MvPaint/MvJoinedPath.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {
/// Rasterising works in 1/64 of a pixel; a pixel nearer than this to a shape may be touched by it.
constexpr double rasterGuard = 1.0 / 32.0;

/// Moves the painter to a baseline and back.
class MvBaselineShift
{
public:
    MvBaselineShift(QPainter &painter, const QPointF &baseline)
        : m_painter(painter)
        , m_world(painter.worldTransform())
        , m_enabled(painter.worldMatrixEnabled())
    {
        painter.translate(baseline);
    }
    ~MvBaselineShift()
    {
        m_painter.setWorldTransform(m_world);
        m_painter.setWorldMatrixEnabled(m_enabled);
    }
    MvBaselineShift(const MvBaselineShift &) = delete;
    MvBaselineShift &operator=(const MvBaselineShift &) = delete;

private:
    QPainter &m_painter;
    QTransform m_world;
    bool m_enabled;
};

bool isRaster(const QPainter &painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster;
}

/// Whether parts without a common pixel column add up to the pixels of the whole.
bool canSplit(const QPainter &painter)
{
    const QTransform device = painter.deviceTransform();
    return painter.testRenderHint(QPainter::Antialiasing) && device.type() <= QTransform::TxScale &&
           device.m11() > 0.0 && painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

void fillInParts(QPainter &painter, const MvTextOutline &outline, const QBrush &brush)
{
    const QTransform device = painter.deviceTransform();
    const QList<MvTextOutline::Group> &groups = outline.groups();
    const auto firstColumn = [&device](const MvTextOutline::Group &group) {
        return std::floor(device.m11() * group.left + device.dx() - rasterGuard);
    };
    const auto lastColumn = [&device](const MvTextOutline::Group &group) {
        return std::floor(device.m11() * group.right + device.dx() + rasterGuard);
    };

    for (qsizetype first = 0; first < groups.size();) {
        qsizetype end = first + 1;
        while (end < groups.size() && firstColumn(groups[end]) <= lastColumn(groups[end - 1]))
            ++end;
        if (end - first == groups.size()) {
            painter.fillPath(outline.pathForRaster(), brush);
        } else if (end - first == 1) {
            painter.fillPath(groups[first].path, brush);
        } else {
            QPainterPath part = groups[first].path;
            for (qsizetype i = first + 1; i < end; ++i)
                part.addPath(groups[i].path);
            painter.fillPath(part, brush);
        }
        first = end;
    }
}

void fillOnRaster(QPainter &painter, const MvPlacedOutline &line, const QBrush &brush)
{
    const MvBaselineShift shift(painter, line.baseline);
    if (canSplit(painter))
        fillInParts(painter, line.outline, brush);
    else
        painter.fillPath(line.outline.pathForRaster(), brush);
}

QPainterPath joined(const QList<MvPlacedOutline> &lines)
{
    MvJoinedPath joined(std::accumulate(lines.cbegin(), lines.cend(), 0, [](int count, const MvPlacedOutline &line) {
        return count + line.outline.elementCount();
    }));
    for (const MvPlacedOutline &line : lines)
        joined.add(line.outline.path(), line.baseline);
    return joined.path();
}

/// Whether the target writes coordinates as text, in units so small that fractions of them do not matter: whole ones
/// take half the space, and half the time to pack.
bool isWrittenInSmallUnits(const QPainter &painter)
{
    constexpr int smallUnits = 7200; // per inch: rounding moves a point by 0.002 mm at most
    return painter.paintEngine()->type() == QPaintEngine::Pdf && painter.device()->logicalDpiX() >= smallUnits;
}

void fillInWholeUnits(QPainter &painter, const QPainterPath &path, const QColor &color)
{
    const QTransform world = painter.worldTransform();
    QPainterPath rounded = painter.deviceTransform().map(path);
    for (int i = 0; i < rounded.elementCount(); ++i) {
        const QPainterPath::Element element = rounded.elementAt(i);
        rounded.setElementPositionAt(i, std::round(element.x), std::round(element.y));
    }
    painter.setWorldTransform({});
    painter.fillPath(rounded, color);
    painter.setWorldTransform(world);
}

/// Scales pictures to the device's own pixels on raster targets; that looks better than letting the painter scale them.
QImage fittedToDevice(const QPainter &painter, const MvTextOutline::Picture &picture)
{
    if (!isRaster(painter))
        return picture.image;
    const QSize pixels = painter.deviceTransform().mapRect(picture.rect).size().toSize().expandedTo({1, 1});
    const bool isSmaller = pixels.width() < picture.image.width() && pixels.height() < picture.image.height();
    return isSmaller ? picture.image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : picture.image;
}

void drawPictures(QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color)
{
    const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    const double opacity = painter.opacity();
    for (const MvPlacedOutline &line : lines) {
        const QList<MvTextOutline::Picture> &pictures = line.outline.pictures();
        if (pictures.isEmpty())
            continue;
        painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter.setOpacity(opacity * double(color.alphaF()));
        for (const MvTextOutline::Picture &picture : pictures)
            painter.drawImage(picture.rect.translated(line.baseline), fittedToDevice(painter, picture));
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
    painter.setOpacity(opacity);
}

/// Whether no pixel row is touched by two of the lines.
bool shareNoRow(const QPainter &painter, const QList<MvPlacedOutline> &lines)
{
    const QTransform device = painter.deviceTransform();
    if (device.type() > QTransform::TxScale)
        return false;
    QList<std::pair<double, double>> rows;
    for (const MvPlacedOutline &line : lines) {
        if (line.outline.isEmpty())
            continue;
        const QRectF box = device.mapRect(line.bounds());
        rows.append({std::floor(box.top() - rasterGuard), std::floor(box.bottom() + rasterGuard)});
    }
    std::sort(rows.begin(), rows.end());
    return std::adjacent_find(rows.cbegin(), rows.cend(),
                              [](const auto &a, const auto &b) { return b.first <= a.second; }) == rows.cend();
}
} // namespace

void MvOutlinePainter::fillOutline(QPainter &painter, const QPointF &baseline, const MvTextOutline &outline,
                                   const QColor &color)
{
    fillOutlines(painter, {{baseline, outline}}, color);
}

void MvOutlinePainter::fillOutlines(QPainter &painter, const QList<MvPlacedOutline> &lines, const QColor &color)
{
    if (!painter.isActive() ||
        std::all_of(lines.cbegin(), lines.cend(), [](const auto &line) { return line.outline.isEmpty(); }))
        return;
    if (auto *recorder = dynamic_cast<MvPaintRecorder *>(painter.device())) {
        recorder->recordOutlines(painter, lines, color);
        return;
    }
    if (isRaster(painter) && (lines.size() == 1 || shareNoRow(painter, lines))) {
        const QBrush brush(color);
        for (const MvPlacedOutline &line : lines)
            fillOnRaster(painter, line, brush);
    } else if (isWrittenInSmallUnits(painter)) {
        fillInWholeUnits(painter, joined(lines), color);
    } else {
        painter.fillPath(joined(lines), color);
    }
    drawPictures(painter, lines, color);
}
