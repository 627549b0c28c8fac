// SPDX-License-Identifier: LGPL-2.1-or-later
// What a line of text costs that is far too long for its room beside one a tenth of its length: shortened, fitted into
// a cell, and as the heading of a page, each with nothing shaped before.

#include "MvBenchPages.h"
#include "MvBenchTurns.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int shortLine = 1000;
constexpr int longLine = 10'000;
constexpr int repeated = 20; // so that the clock has something to measure

QFont textFont()
{
    QFont font(u"Lato"_s);
    font.setPixelSize(46);
    return font;
}

QString words(int letters)
{
    QString text;
    while (text.size() < letters)
        text += u"Wort %1 "_s.arg(text.size());
    return text.left(letters);
}

void compare(benchmark::State &state, const std::function<void(const QString &)> &work)
{
    const auto timesOf = [&work](const QString &text) {
        for (int i = 0; i < repeated; ++i) {
            MvTextOutlineCache::instance().clear();
            work(text);
        }
    };
    for (auto _ : state) {
        const std::vector<double> times =
            MvBenchTurns().measure({[&] { timesOf(words(shortLine)); }, [&] { timesOf(words(longLine)); }});
        state.counters["short_ms"] = times.at(0) / repeated;
        state.counters["ratio"] = times.at(1) / times.at(0);
    }
}

void elided(benchmark::State &state)
{
    compare(state,
            [](const QString &text) { benchmark::DoNotOptimize(MvTextPainter::elided(2000, textFont(), text)); });
}
BENCHMARK(elided)->Unit(benchmark::kMillisecond)->Iterations(1);

void fitted(benchmark::State &state)
{
    const MvTextFitter fitter(textFont(), 20.0, MvHyphenator());
    compare(state, [&fitter](const QString &text) { benchmark::DoNotOptimize(fitter.fit({300, 400}, {text})); });
}
BENCHMARK(fitted)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The heading of the day list's columns, on a whole page.
void heading(benchmark::State &state)
{
    compare(state, [](const QString &text) {
        MvCalendariumAppearance appearance = MvBenchPages::appearance(u"FAMILY_PLANNER"_s);
        appearance.setColumnHeaders(text);
        const std::unique_ptr<MvCalendariumRenderer> renderer(
            MvCalendariumRendererFactory::instance().createRenderer(appearance));
        renderer->setCalendarInformation(MvCalendariumContentConfig(QDate(2027, 5, 1), MvBenchPages::holidays()),
                                         MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        renderer->render(painter, {0, 0, 2770, 1900});
    });
}
BENCHMARK(heading)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
