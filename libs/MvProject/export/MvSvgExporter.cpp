// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvSvgExporter.h"

#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvFileNamePattern.h"
#include "MvProject/MvPageSource.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr int resolution = 300;

QByteArray paintSvg(const MvPageSource &source, int page)
{
    constexpr double scale = resolution / MvMath::tenthMillimetresPerInch;
    const QSizeF size = source.format.trimSize() * scale;
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(resolution);
    generator.setSize(size.toSize()); // written in millimetres, rounded to the dot
    generator.setViewBox(QRectF(QPointF(), size));
    generator.setTitle(
        MvPrintableText::onOneLine(source.title).toHtmlEscaped()); // the generator writes it without escaping
    MvPaintRecorder recorder(&generator);
    QPainter recordingPainter(&recorder);
    source.paintPage(recordingPainter, page, {}, scale);
    recordingPainter.end();
    QPainter painter(&generator);
    recorder.recording().clipped({QPointF(), size}).replay(painter); // the generator knows no clips
    painter.end();
    return buffer.data();
}

} // namespace

MvExportResult MvSvgExporter::write(const MvPageSource &source, const QString &pattern, MvExportObserver *observer)
{
    const MvFileNamePattern::Paths names = MvFileNamePattern(pattern).paths(source);
    for (const MvOutcome &checked : {source.check(), MvOutcome(names)}) {
        if (!checked.isOk())
            return MvExportResult::failed(checked.error);
    }
    const QStringList &paths = names.paths;
    MvExportResult result;
    for (int page = 0; page < paths.size(); ++page) {
        const QByteArray bytes = paintSvg(source, page);
        result.isCancelled = observer && observer->isCancelled();
        if (result.isCancelled)
            break;
        const QString error =
            MvSafeFileWriter::write(QFileInfo(paths[page]), bytes, MvSafeFileWriter::Backups::None).error;
        if (!error.isEmpty()) {
            result.error = u"%1: %2"_s.arg(paths[page], error);
            break;
        }
        result.files.append(QFileInfo(paths[page]));
        if (observer)
            observer->pagesDone(page + 1, int(paths.size()));
    }
    return result;
}
