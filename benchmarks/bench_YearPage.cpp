// SPDX-License-Identifier: LGPL-2.1-or-later
// What a page of a year costs beside a page of a month: layout and painting on A4 at 300 dpi with 500 entries in the
// year. Month, year grid and planner are painted in turns; the ratios are those to the month page. What the grounds of
// the year's cells cost beside one rectangle for each. And what a name costs that nobody could print, and more entries
// than a block of holidays has room for.

#include "MvBenchPages.h"
#include "MvBenchTurns.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double scale = 300.0 / 254.0;
constexpr int fewEntries = 500;
const QRectF calendarium(100, 100, 2770, 1900);

MvCalendarEvent entry(const QString &name, const QDate &date)
{
    return {name, date.startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime()};
}

void fillRegistry(int entryCount = fewEntries)
{
    const QStringList names{u"Geburtstag Oma Gerda"_s, u"Max"_s, u"Zahnarzt"_s, u"Hochzeitstag"_s,
                            u"Großtante Wilhelmine"_s};
    MvCalendarEventList entries;
    for (int i = 0; i < entryCount; ++i)
        entries.append(
            entry(u"%1 %2"_s.arg(names.at(i % names.size())).arg(i), QDate(1990, 1, 1).addDays(i * 73 % 365)));
    MvCalendarEventRegistry::instance().setEvents(entries);
}

std::unique_ptr<MvCalendariumRenderer> makeRenderer(const QString &layout, int month = 5)
{
    std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(MvBenchPages::appearance(layout)));
    MvCalendariumHolidayConfig holidays = MvBenchPages::holidays();
    holidays.setFeature(FEATURE_CALENDAR_WEEKS, true);
    renderer->setCalendarInformation(MvCalendariumContentConfig(QDate(2027, month, 1), holidays),
                                     MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    renderer->setProductSize(MAGNITUDE_A4);
    renderer->setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    return renderer;
}

MvPaintRecording recorded(MvCalendariumRenderer &renderer)
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(painter, calendarium);
    painter.end();
    return recorder.recording();
}

/// An A4 page at 300 dpi, to be painted on again and again.
class Sheet
{
public:
    Sheet() { m_image.fill(Qt::white); }

    void paint(const std::function<void(QPainter &)> &work)
    {
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        work(painter);
    }

private:
    QImage m_image{int(2970 * scale), int(2100 * scale), QImage::Format_ARGB32_Premultiplied};
};

void compare(benchmark::State &state, const std::function<void(MvCalendariumRenderer &)> &pass)
{
    const auto month = makeRenderer(u"MONTH_GRID_CLASSIC"_s);
    const auto grid = makeRenderer(u"YEAR_GRID"_s);
    const auto planner = makeRenderer(u"YEAR_PLANNER"_s);
    for (auto _ : state) {
        const std::vector<double> times =
            MvBenchTurns().measure({[&] { pass(*month); }, [&] { pass(*grid); }, [&] { pass(*planner); }});
        state.counters["month_ms"] = times.at(0);
        state.counters["grid_ratio"] = times.at(1) / times.at(0);
        state.counters["planner_ratio"] = times.at(2) / times.at(0);
    }
}

void YearPagePass(benchmark::State &state)
{
    Sheet sheet;
    compare(state, [&sheet](MvCalendariumRenderer &renderer) {
        sheet.paint([&renderer](QPainter &painter) { renderer.render(painter, calendarium); });
    });
}
BENCHMARK(YearPagePass)->Unit(benchmark::kMillisecond)->Iterations(1);

void YearPageLayoutAlone(benchmark::State &state)
{
    compare(state, [](MvCalendariumRenderer &renderer) { benchmark::DoNotOptimize(recorded(renderer)); });
}
BENCHMARK(YearPageLayoutAlone)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The rectangles that a path consists of.
QList<QRectF> rectsOf(const QPainterPath &path)
{
    constexpr int corners = 5; // with the first one again
    QList<QRectF> rects;
    for (int first = 0; first + corners <= path.elementCount(); first += corners)
        rects.append(QRectF(path.elementAt(first), path.elementAt(first + 2)));
    return rects;
}

/// The grounds of all cells, which a pass fills first, beside filling each cell's rectangle by itself.
void YearGridFills(benchmark::State &state)
{
    const MvPaintRecording page = recorded(*makeRenderer(u"YEAR_GRID"_s));
    QList<std::pair<QRectF, QColor>> cells;
    int grounds = 0;
    const QList<MvPaintRecording::Item> items = page.items();
    while (grounds < items.size() && items.at(grounds).kind == MvPaintRecording::Item::Path) {
        for (const QRectF &rect : rectsOf(items.at(grounds).shape))
            cells.append({rect, items.at(grounds).fill});
        ++grounds;
    }
    const MvPaintRecording fills = page.part(0, grounds);
    Sheet sheet;
    const auto each = [&] {
        sheet.paint([&cells](QPainter &painter) {
            for (const auto &[rect, color] : std::as_const(cells))
                painter.fillRect(rect, color);
        });
    };
    const auto together = [&] { sheet.paint([&fills](QPainter &painter) { fills.replay(painter); }); };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({each, together});
        state.counters["cells"] = double(cells.size());
        state.counters["colours"] = grounds;
        state.counters["ms"] = times.at(1);
        state.counters["ratio"] = times.at(1) / times.at(0);
    }
}
BENCHMARK(YearGridFills)->Unit(benchmark::kMillisecond)->Iterations(1);

/// One day has a name of 100,000 letters without a blank: what its page costs beside the same one with a short name,
/// both with nothing shaped before.
void LongName(benchmark::State &state, const QString &layout)
{
    const auto renderer = makeRenderer(layout);
    const auto render = [&renderer] { benchmark::DoNotOptimize(recorded(*renderer)); };
    const auto enter = [](const QString &name) {
        return [name] {
            MvCalendarEventRegistry::instance().setEvents({entry(name, QDate(1990, 5, 5))});
            MvTextOutlineCache::instance().clear();
        };
    };
    const MvBenchTurns::Work withShortName(render, enter(u"Großtante Wilhelmine"_s));
    const MvBenchTurns::Work withLongName(render, enter(QString(100'000, u'x')));
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({withShortName, withLongName});
        state.counters["short_ms"] = times.at(0);
        state.counters["long_ratio"] = times.at(1) / times.at(0);
    }
    fillRegistry();
}
BENCHMARK_CAPTURE(LongName, month, u"MONTH_GRID_CLASSIC"_s)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(LongName, planner, u"YEAR_PLANNER"_s)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The year's twelve blocks of holidays beside its twelve month grids, with nothing shaped before.
void HolidayBlocks(benchmark::State &state)
{
    fillRegistry(int(state.range(0)));
    const auto renderYear = [](const QString &layout) {
        MvTextOutlineCache::instance().clear();
        for (int month = 1; month <= 12; ++month)
            benchmark::DoNotOptimize(recorded(*makeRenderer(layout, month)));
    };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure(
            {[&] { renderYear(u"MONTH_GRID_CLASSIC"_s); }, [&] { renderYear(u"HOLIDAY_BLOCK"_s); }});
        state.counters["grids_ms"] = times.at(0);
        state.counters["blocks_ratio"] = times.at(1) / times.at(0);
    }
    fillRegistry();
}
BENCHMARK(HolidayBlocks)->Arg(500)->Arg(2000)->Arg(8000)->Unit(benchmark::kMillisecond)->Iterations(1);

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
