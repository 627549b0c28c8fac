// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfExporter.h"

#include "MvCore/MvLocale.h"
#include "MvCore/MvMath.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPageTask.h"
#include "MvProject/MvPdfDocument.h"
#include "MvProject/MvPdfSheets.h"
#include "MvProject/MvPressSheet.h"
#include "MvProject/MvSheetPlan.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTemporaryFile>

#include <cmath>
#include <future>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isCancelled(const MvExportObserver *observer)
{
    return observer && observer->isCancelled();
}

/// The page in dots from the corner of its bleed, as it is painted for a target with so many.
MvPaintRecording recordPage(const MvPageSource &source, int page)
{
    constexpr double dotsPerUnit = MvPdfExporter::resolution / MvMath::tenthMillimetresPerInch; // of the page
    QImage dots(1, 1, QImage::Format_Mono);
    dots.setDotsPerMeterX(int(std::lround(MvPdfExporter::resolution / 0.0254)));
    dots.setDotsPerMeterY(dots.dotsPerMeterX());
    MvPaintRecorder recorder(&dots);
    QPainter painter(&recorder);
    source.paintPage(painter, page, QPointF(source.format.bleed(), source.format.bleed()) * dotsPerUnit, dotsPerUnit);
    painter.end();
    return recorder.recording();
}

/// Puts a page into the document in a thread of its own, while the next one is painted: one packs pictures while the
/// other decodes them. One page at a time, so that no more than two are in memory.
class PageWriter
{
public:
    PageWriter(MvPdfDocument &document, bool hasThread)
        : m_document(document)
        , m_hasThread(hasThread)
    {}

    void add(const MvPdfDocument::Page &page, const MvPaintRecording &recording)
    {
        finish();
        const auto put = [this, page, recording] { m_document.addPage(page, recording, MvPdfExporter::resolution); };
        if (m_hasThread)
            m_underWay = MvPageTask::begin(put);
        else
            put();
    }
    void finish()
    {
        if (m_underWay.valid())
            m_underWay.get();
    }

private:
    MvPdfDocument &m_document;
    bool m_hasThread;
    std::future<void> m_underWay;
};

/// What a page is, for those who handle the sheets: in figures, which need no translation.
QString pageInWords(const MvPageSource &source, int page, const MvPressSettings &press)
{
    const QLocale locale(source.language); // of the file, whoever makes it
    const auto millimetres = [&locale](double length) { return locale.toString(length / 10.0, 'g', 6); };
    const QSizeF size = source.format.trimSize();
    const double bleed = source.format.bleed() > 0.0 ? source.format.bleed() : press.bleed;
    QStringList words{source.title};
    if (const QString name = source.names.value(page); !name.isEmpty())
        words.append(name);
    words += {u"%1 / %2"_s.arg(source.number(page) + 1).arg(source.documentPageCount()),
              u"%1 × %2 mm (+ %3 mm)"_s.arg(millimetres(size.width()), millimetres(size.height()), millimetres(bleed)),
              press.profile.description(), MvPdfDocument::dateOfFile().toString(u"yyyy-MM-dd HH:mm 'UTC'"_s)};
    return MvPrintableText::onOneLine(words.join(u"  ·  "_s));
}

struct Painted : MvOutcome
{
    QList<MvInkUse> inks;
};

Painted paintPages(const MvPageSource &source, QFile &file, MvExportObserver *observer, int jobs,
                   const MvPressSettings &press)
{
    MvPdfDocument document({source.title, source.author, source.language}, press);
    PageWriter writer(document, jobs != 1);
    const int total = int(source.pages.size());
    const auto tell = [&](int done) {
        if (observer && done > 0)
            observer->pagesDone(done, total);
    };
    for (int page = 0; page < total && !isCancelled(observer); ++page) {
        const MvPaintRecording recording = recordPage(source, page);
        MvPdfDocument::Page described{source.names.value(page), source.format.mediaRect(), source.format.trimRect(),
                                      source.bindings.value(page)};
        if (press.isForPress())
            described.slug =
                MvPressSheet(press, described.trim, described.media).slug(pageInWords(source, page, press));
        writer.add(described, recording);
        tell(page); // the one before
    }
    writer.finish();
    if (isCancelled(observer))
        return {};
    tell(total);
    Painted painted{document.write(file), document.inks()};
    for (MvInkUse &ink : painted.inks)
        ink.page = source.number(ink.page);
    return painted;
}

MvOutcome copyToTarget(QFile &file, const QFileInfo &target)
{
    const uchar *content = file.map(0, file.size());
    if (!content)
        return {file.errorString(), {}};
    return MvSafeFileWriter::write(
        target, QByteArray::fromRawData(reinterpret_cast<const char *>(content), qsizetype(file.size())),
        MvSafeFileWriter::Backups::None);
}

} // namespace

MvExportResult MvPdfExporter::write(const MvPageSource &source, const QFileInfo &target, MvExportObserver *observer,
                                    int jobs, const MvPressSettings &press, const MvSheetSettings &sheets)
{
    MvOutcome outcome = source.check();
    const MvSheetPlan plan(sheets, source.format.trimSize(), int(source.pages.size()));
    if (outcome.isOk())
        outcome.error = plan.error();
    Painted painted;
    // without names: they go with the program
    QTemporaryFile file(QDir::tempPath() + u"/mvcalendar-XXXXXX"_s);
    QTemporaryFile onSheets(file.fileTemplate());
    if (outcome.isOk() && !(file.open() && onSheets.open()))
        outcome.error = file.isOpen() ? onSheets.errorString() : file.errorString();
    if (outcome.isOk()) {
        painted = paintPages(source, file, observer, jobs, press);
        outcome = painted;
        if (outcome.isOk() && sheets.areSheets() && !isCancelled(observer))
            outcome = MvPdfSheets::write(file, onSheets, plan, source.names, MvLocale(source.language));
        if (!outcome.isOk()) // the target's disk may have room enough
            outcome.error = u"%1 (%2)"_s.arg(outcome.error, QDir::toNativeSeparators(QDir::tempPath()));
    }
    const bool isDone = outcome.isOk() && !isCancelled(observer); // finishing the file can take long
    if (isDone)
        outcome = copyToTarget(sheets.areSheets() ? onSheets : file, target);
    if (!outcome.isOk())
        return MvExportResult::failed(u"%1: %2"_s.arg(target.filePath(), outcome.error));
    return isDone ? MvExportResult{outcome, {target}, false, {}, painted.inks} : MvExportResult::cancelled();
}
