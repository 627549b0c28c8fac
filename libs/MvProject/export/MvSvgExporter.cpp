// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvSvgExporter.h"

#include "MvCore/MvMath.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageFiles.h"
#include "MvProject/MvPageSource.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr int resolution = 300;

constexpr double scale = resolution / MvMath::tenthMillimetresPerInch;

MvPaintRecording recordPage(const MvPageSource &source, int page)
{
    QSvgGenerator metrics; // measures as the one that writes
    metrics.setResolution(resolution);
    metrics.setSize((source.format.trimSize() * scale).toSize());
    MvPaintRecorder recorder(&metrics);
    QPainter painter(&recorder);
    source.paintPage(painter, page, {}, scale);
    painter.end();
    return recorder.recording();
}

MvPageFiles::Content encode(const MvPaintRecording &recording, const QSizeF &size, const QString &title)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(resolution);
    generator.setSize(size.toSize()); // written in millimetres, rounded to the dot
    generator.setViewBox(QRectF(QPointF(), size));
    generator.setTitle(MvPrintableText::onOneLine(title).toHtmlEscaped()); // it is written without escaping
    QPainter painter(&generator);
    recording.clipped({QPointF(), size}).replay(painter); // the generator knows no clips
    painter.end();
    return {buffer.data(), {}};
}

} // namespace

MvExportResult MvSvgExporter::write(const MvPageSource &source, const QString &pattern, MvExportObserver *observer,
                                    int jobs)
{
    const MvFileNamePattern::Paths names = MvFileNamePattern(pattern).paths(source);
    for (const MvOutcome &checked : {source.check(), MvOutcome(names)}) {
        if (!checked.isOk())
            return MvExportResult::failed(checked.error);
    }
    const auto record = [&](int page) { return recordPage(source, page); };
    const auto made = [size = source.format.trimSize() * scale, title = source.title](
                          const MvPaintRecording &recording) { return encode(recording, size, title); };
    return MvPageFiles::write(names.paths, jobs, record, made, observer);
}
