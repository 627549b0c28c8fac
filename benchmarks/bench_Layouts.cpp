// SPDX-License-Identifier: LGPL-2.1-or-later
// What a page costs, for each shipped layout, beside its ready primitives painted straight: a pass of the renderer with
// the outlines of all texts at hand (warm), one with none of them (cold), and recording the pass alone. A4 at 300 dpi.

#include "MvBenchPages.h"
#include "MvBenchTurns.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

constexpr double scale = 300.0 / 254.0;
const QRectF calendarium(120, 200, 2730, 1780);
const QDate month(2027, 5, 1); // six rows, holidays and a vacation

std::unique_ptr<MvCalendariumRenderer> makeRenderer(const QString &layout)
{
    std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(MvBenchPages::appearance(layout)));
    renderer->setCalendarInformation(MvCalendariumContentConfig(month, MvBenchPages::holidays()),
                                     MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    return renderer;
}

void record(MvCalendariumRenderer &renderer, MvPaintRecorder &recorder)
{
    QPainter painter(&recorder);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(painter, calendarium);
}

void page(benchmark::State &state, const QString &layout)
{
    const auto renderer = makeRenderer(layout);
    MvPaintRecorder recorder(nullptr);
    record(*renderer, recorder);
    const QList<MvPaintRecording::Item> items = recorder.recording().items();
    QImage image(int(2970 * scale), int(2100 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const auto painted = [&image](const auto &paint) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        paint(painter);
    };
    const auto straight = [&] { painted([&](QPainter &painter) { MvBenchPages::paintStraight(painter, items); }); };
    const auto warm = [&] { painted([&](QPainter &painter) { renderer->render(painter, calendarium); }); };
    const MvBenchTurns::Work cold(warm, [] { MvTextOutlineCache::instance().clear(); });
    const auto recording = [&] { record(*renderer, recorder); };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({straight, cold, warm, recording});
        state.counters["straight_ms"] = times.at(0);
        state.counters["cold"] = times.at(1) / times.at(0);
        state.counters["warm"] = times.at(2) / times.at(0);
        state.counters["recording"] = times.at(3) / times.at(0);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString layout = schema.ID().toString();
        benchmark::RegisterBenchmark(qPrintable(layout), page, layout)->Unit(benchmark::kMillisecond)->Iterations(1);
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
