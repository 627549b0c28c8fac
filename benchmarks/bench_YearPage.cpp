// SPDX-License-Identifier: LGPL-2.1-or-later
// What a page of a year costs beside a page of a month: layout and painting on A4 at 300 dpi with 500 entries in the
// year. Month, year grid and planner are painted in turns within one run; the ratios are those to the month page. And
// what a name costs that nobody could print, and more entries than a block of holidays has room for.

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double scale = 300.0 / 254.0;
constexpr int fewEntries = 500;
const QRectF calendarium(100, 100, 2770, 1900);

void fillRegistry(int entryCount = fewEntries)
{
    const QStringList names{u"Geburtstag Oma Gerda"_s, u"Max"_s, u"Zahnarzt"_s, u"Hochzeitstag"_s,
                            u"Großtante Wilhelmine"_s};
    MvCalendarEventList entries;
    for (int i = 0; i < entryCount; ++i) {
        const QDate date = QDate(1990, 1, 1).addDays(i * 73 % 365);
        const QString name = u"%1 %2"_s.arg(names.at(i % names.size())).arg(i);
        entries.append(MvCalendarEvent(name, date.startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime()));
    }
    MvCalendarEventRegistry::instance().setEvents(entries);
}

std::unique_ptr<MvCalendariumRenderer> makeRenderer(const QString &layout, int month = 5)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    appearance.adaptGridToLayout();
    std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(appearance));
    const MvCalendariumHolidayConfig holidays(MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 4 | 8 | 64));
    renderer->setCalendarInformation(MvCalendariumContentConfig(QDate(2027, month, 1), holidays),
                                     MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    renderer->setProductSize(MAGNITUDE_A4);
    renderer->setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    return renderer;
}

using Pass = std::function<void(MvCalendariumRenderer &)>;

void compare(benchmark::State &state, const Pass &pass)
{
    using Clock = std::chrono::steady_clock;
    const std::array renderers{makeRenderer(u"MONTH_GRID_CLASSIC"_s), makeRenderer(u"YEAR_GRID"_s),
                               makeRenderer(u"YEAR_PLANNER"_s)};
    std::array<std::chrono::duration<double, std::milli>, 3> times{};
    for (const auto &renderer : renderers)
        pass(*renderer); // fills the caches
    for (auto _ : state) {
        for (size_t i = 0; i < renderers.size(); ++i) {
            const auto start = Clock::now();
            pass(*renderers[i]);
            times[i] += Clock::now() - start;
        }
    }
    state.counters["month_ms"] = times[0].count() / double(state.iterations());
    state.counters["grid_ratio"] = times[1] / times[0];
    state.counters["planner_ratio"] = times[2] / times[0];
}

void YearPagePass(benchmark::State &state)
{
    QImage image(int(2970 * scale), int(2100 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    compare(state, [&image](MvCalendariumRenderer &renderer) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        renderer.render(painter, calendarium);
    });
}

void YearPageLayoutAlone(benchmark::State &state)
{
    MvPaintRecorder recorder(nullptr);
    compare(state, [&recorder](MvCalendariumRenderer &renderer) {
        QPainter painter(&recorder);
        renderer.render(painter, calendarium);
    });
}

/// One day has a name of 100,000 letters without a blank: what its page costs beside the same one with a short name,
/// both with nothing shaped before.
void LongName(benchmark::State &state, const QString &layout)
{
    using Clock = std::chrono::steady_clock;
    const auto renderer = makeRenderer(layout);
    std::array<std::chrono::duration<double, std::milli>, 2> times{};
    MvPaintRecorder recorder(nullptr);
    for (auto _ : state) {
        for (size_t i = 0; i < times.size(); ++i) {
            const QString name = i == 0 ? u"Großtante Wilhelmine"_s : QString(100'000, u'x');
            MvCalendarEventRegistry::instance().setEvents({MvCalendarEvent(
                name, QDate(1990, 5, 5).startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime())});
            MvTextOutlineCache::instance().clear();
            const auto start = Clock::now();
            QPainter painter(&recorder);
            renderer->render(painter, calendarium);
            times[i] += Clock::now() - start;
        }
    }
    state.counters["short_ms"] = times[0].count() / double(state.iterations());
    state.counters["long_ratio"] = times[1] / times[0];
    fillRegistry();
}

/// The year's twelve blocks of holidays beside its twelve month grids, with nothing shaped before.
void HolidayBlocks(benchmark::State &state)
{
    using Clock = std::chrono::steady_clock;
    fillRegistry(int(state.range(0)));
    const std::array layouts{u"MONTH_GRID_CLASSIC"_s, u"HOLIDAY_BLOCK"_s};
    std::array<std::chrono::duration<double, std::milli>, 2> times{};
    MvPaintRecorder recorder(nullptr);
    for (auto _ : state) {
        for (size_t i = 0; i < layouts.size(); ++i) {
            MvTextOutlineCache::instance().clear();
            const auto start = Clock::now();
            for (int month = 1; month <= 12; ++month) {
                QPainter painter(&recorder);
                makeRenderer(layouts[i], month)->render(painter, calendarium);
            }
            times[i] += Clock::now() - start;
        }
    }
    state.counters["grids_ms"] = times[0].count() / double(state.iterations());
    state.counters["blocks_ratio"] = times[1] / times[0];
    fillRegistry();
}

BENCHMARK(HolidayBlocks)->Arg(500)->Arg(2000)->Arg(8000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LongName, month, u"MONTH_GRID_CLASSIC"_s)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(LongName, planner, u"YEAR_PLANNER"_s)->Unit(benchmark::kMillisecond);
BENCHMARK(YearPagePass)->Unit(benchmark::kMillisecond);
BENCHMARK(YearPageLayoutAlone)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir userFolder; // the entries are saved
    qputenv("XDG_CONFIG_HOME", userFolder.filePath(u"config"_s).toLocal8Bit());
    qputenv("XDG_DATA_HOME", userFolder.filePath(u"data"_s).toLocal8Bit());
    const QGuiApplication application(argc, argv);
    fillRegistry();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
