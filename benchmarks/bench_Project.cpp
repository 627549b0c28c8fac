// SPDX-License-Identifier: LGPL-2.1-or-later
// What keeps the GUI thread of a program that exports and saves by itself: recording a page of each shipped layout, for
// the first time and again, and writing projects of a year and of ten years into memory. And what the writer of PDF
// gains over the paint system's own, which writes every outline out.

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvProjectFile.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

MvCalendarDocument makeDocument(const MvCalendariumLayoutSchemaID &layout, int months)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(layout);
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    document.setAppearance(appearance);
    document.setHolidayConfig({MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 4 | 8)});
    for (int page = 0; page < document.pages().size(); ++page) {
        MvCalendarPage changed = document.pages()[page];
        changed.setFotoFrame(MvFotoFrame(u"/fotos/%1.jpg"_s.arg(page)));
        document.setPage(page, changed);
    }
    return document;
}

void recordPage(benchmark::State &state, const MvCalendariumLayoutSchemaID &layout, bool isFirst)
{
    const MvCalendarDocument document = makeDocument(layout, 12);
    for (auto _ : state) {
        if (isFirst) {
            state.PauseTiming();
            MvTextOutlineCache::instance().clear();
            state.ResumeTiming();
        }
        benchmark::DoNotOptimize(document.pages()[0].record(document.format(), document.range(), {},
                                                            MvRenderingRule(MvRenderingRule::Print), 300.0 / 254.0));
    }
}

void writeProject(benchmark::State &state)
{
    const MvCalendarDocument document =
        makeDocument(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s), int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(MvProjectFile::toBytes(document, QDir(u"/"_s)));
}
BENCHMARK(writeProject)->Arg(12)->Arg(120)->Unit(benchmark::kMillisecond);

void writePdf(benchmark::State &state)
{
    const MvCalendarDocument document = makeDocument(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s), 12);
    const QTemporaryDir folder;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            MvPdfExporter::write(document.pageSource(), QFileInfo(folder.filePath(u"k.pdf"_s))).isOk());
}
BENCHMARK(writePdf)->Unit(benchmark::kMillisecond);

void writePdfInFull(benchmark::State &state)
{
    constexpr int unitsPerInch = 7200;
    const MvCalendarDocument document = makeDocument(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s), 12);
    const QTemporaryDir folder;
    for (auto _ : state) {
        QPdfWriter writer(folder.filePath(u"k.pdf"_s));
        writer.setResolution(unitsPerInch);
        writer.setPageSize(QPageSize(document.format().trimSize() / 10.0, QPageSize::Millimeter));
        QPainter painter(&writer);
        painter.scale(unitsPerInch / 254.0, unitsPerInch / 254.0);
        for (qsizetype page = 0; page < document.pages().size(); ++page) {
            if (page > 0)
                writer.newPage();
            document.pages()[page]
                .record(document.format(), document.range(), {}, MvRenderingRule(MvRenderingRule::Print), 300.0 / 254.0)
                .replay(painter);
        }
    }
}
BENCHMARK(writePdfInFull)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const MvCalendariumLayoutSchemaID id = schema.ID();
        for (const bool isFirst : {true, false}) {
            const QString name = u"record/%1/%2"_s.arg(id.toString(), isFirst ? u"first"_s : u"again"_s);
            benchmark::RegisterBenchmark(qPrintable(name), recordPage, id, isFirst)->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
