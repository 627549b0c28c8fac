// SPDX-License-Identifier: LGPL-2.1-or-later
// What keeps the GUI thread of a program that exports and saves by itself: recording a page of each shipped layout, for
// the first time and again, and writing projects of a year and of ten years into memory. And what a step costs that
// can be undone: its time, and the memory that is kept for it.

#include "MvBenchPages.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvUndoController.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

MvCalendarDocument makeDocument(const QString &layout, int months)
{
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    document.setAppearance(MvBenchPages::appearance(layout));
    document.setHolidayConfig(MvBenchPages::holidays());
    for (int page = 0; page < document.pages().size(); ++page) {
        MvCalendarPage changed = document.pages()[page];
        changed.setFotoFrame(MvFotoFrame(u"/fotos/%1.jpg"_s.arg(page)));
        document.setPage(page, changed);
    }
    return document;
}

void recordPage(benchmark::State &state, const QString &layout, bool isFirst)
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
    const MvCalendarDocument document = makeDocument(u"MONTH_GRID_CLASSIC"_s, int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(MvProjectFile::toBytes(document, QDir(u"/"_s)));
}
BENCHMARK(writeProject)->Arg(12)->Arg(120)->Unit(benchmark::kMillisecond);

/// A calendar of so many months whose frames all have photos.
MvCalendarDocument makeFotoCalendar(int months)
{
    MvNewCalendar wanted;
    wanted.range = {QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)};
    wanted.themeId = u"ALBUM"_s;
    MvCalendarDocument document = wanted.make();
    MvFotoPool pool;
    int number = 0;
    for (const MvCalendarDocument::FrameId &frame : document.frames()) {
        const QString path = u"/fotos/%1.jpg"_s.arg(++number);
        pool.add({path, {}, {}, {0.5, 0.5}});
        document.setFoto(frame, document.foto(frame).withPictureOf(MvFotoElement(path)));
    }
    document.setFotoPool(pool);
    return document;
}

/// A photo is zoomed, page after page; every step is kept, and taken back at the end.
void undoStep(benchmark::State &state)
{
    MvProject project;
    project.newProject(makeFotoCalendar(int(state.range(0))));
    const QList<MvCalendarDocument::FrameId> frames = project.document().frames();
    const size_t before = mallinfo2().uordblks;
    int step = 0;
    for (auto _ : state) {
        const MvCalendarDocument::FrameId &frame = frames.at(step++ % frames.size());
        MvCalendarPage page = project.document().pages().at(frame.page);
        MvFotoElement foto = project.document().foto(frame);
        foto.setZoom(foto.zoom() > 2.0 ? 1.0 : foto.zoom() + 0.1);
        page.setFoto(frame.element, foto);
        project.changePage(frame.page, page, u"Zoom"_s);
    }
    state.counters["photos"] = double(frames.size());
    state.counters["kb_per_step"] = double(mallinfo2().uordblks - before) / double(state.iterations()) / 1024.0;
    while (project.session().undo().stack()->canUndo())
        project.session().undo().undo();
}
BENCHMARK(undoStep)->Arg(12)->Arg(60)->Iterations(300)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString layout = schema.ID().toString();
        for (const bool isFirst : {true, false}) {
            const QString name = u"record/%1/%2"_s.arg(layout, isFirst ? u"first"_s : u"again"_s);
            benchmark::RegisterBenchmark(qPrintable(name), recordPage, layout, isFirst)->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
