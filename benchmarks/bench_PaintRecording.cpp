// SPDX-License-Identifier: LGPL-2.1-or-later
// What a recorded page costs against painting it straight, and what filling texts in parts saves: an A4 page at
// 300 dpi with 56 cell fills, 53 texts and 150 lines. Each benchmark times two ways in turns within one run and
// reports them in milliseconds, and the second as a ratio of the first.

#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPicture>

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
constexpr int columns = 7;
constexpr int rows = 8;
constexpr QSizeF cellSize(320, 400);
constexpr QPointF origin(120, 150);

QImage emptyPage()
{
    QImage page(2480, 3508, QImage::Format_ARGB32_Premultiplied);
    page.setDotsPerMeterX(11811);
    page.setDotsPerMeterY(11811);
    page.fill(Qt::white);
    return page;
}

QRectF cell(int index)
{
    return {origin + QPointF(index % columns * cellSize.width(), index / columns * cellSize.height()), cellSize};
}

QFont pageFont()
{
    QFont font(u"Lato"_s);
    font.setPixelSize(46);
    return font;
}

QString cellText(int index)
{
    static const QStringList texts{u"Donnerstag"_s,    u"Christi Himmelfahrt"_s, u"17"_s,         u"Geburtstag Oma"_s,
                                   u"Pfingstmontag"_s, u"Samstag, 23. Mai"_s,    u"Müllabfuhr"_s, u"KW 21"_s};
    return texts.at(index % texts.size());
}

void paintFills(QPainter &painter)
{
    QPainterPath even;
    QPainterPath odd;
    for (int i = 0; i < columns * rows; ++i)
        (i / columns % 2 ? odd : even).addRect(cell(i));
    painter.fillPath(even, QColor(240, 240, 230));
    painter.fillPath(odd, QColor(225, 235, 245));
}

void paintLines(QPainter &painter)
{
    painter.setPen(QPen(QColor(90, 90, 90), 3));
    for (int i = 0; i < 150; ++i) {
        const QRectF edge = cell(i / 3);
        if (i % 3 == 0)
            painter.drawLine(edge.topLeft(), edge.bottomLeft());
        else if (i % 3 == 1)
            painter.drawLine(edge.topLeft(), edge.topRight());
        else
            painter.drawLine(edge.bottomLeft(), edge.bottomRight());
    }
}

template <class Fill>
void forEachText(Fill &&fill)
{
    static const QFont font = pageFont();
    for (int i = 0; i < 53; ++i)
        fill(cell(i).topLeft() + QPointF(11.3, 70.6), MvTextOutlineCache::instance().outline(font, cellText(i)));
}

void paintTexts(QPainter &painter)
{
    forEachText([&painter](const QPointF &baseline, const MvTextOutline &outline) {
        MvOutlinePainter::fillOutline(painter, baseline, outline, QColor(20, 30, 40));
    });
}

void paintWholeTexts(QPainter &painter)
{
    forEachText([&painter](const QPointF &baseline, const MvTextOutline &outline) {
        const QTransform before = painter.worldTransform();
        painter.translate(baseline);
        painter.fillPath(outline.path(), QColor(20, 30, 40));
        painter.setWorldTransform(before);
    });
}

void paintPage(QPainter &painter)
{
    paintFills(painter);
    paintTexts(painter);
    paintLines(painter);
}

MvPaintRecording recordPage(const QPainter &target)
{
    MvPaintRecorder recorder(target);
    QPainter painter(&recorder);
    painter.setRenderHints(target.renderHints());
    paintPage(painter);
    painter.end();
    return recorder.recording();
}

void recordAndReplayPage(QPainter &painter)
{
    recordPage(painter).replay(painter);
}

void pictureAndReplayPage(QPainter &painter)
{
    QPicture picture;
    QPainter recorder(&picture);
    recorder.setRenderHints(painter.renderHints());
    const double scale = double(picture.logicalDpiX()) / painter.device()->logicalDpiX();
    recorder.scale(scale, scale);
    paintFills(recorder);
    paintWholeTexts(recorder);
    paintLines(recorder);
    recorder.end();
    painter.drawPicture(0, 0, picture);
}

using Painting = std::function<void(QPainter &)>;

void compare(benchmark::State &state, const Painting &first, const Painting &second)
{
    using Clock = std::chrono::steady_clock;
    QImage page = emptyPage();
    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    first(painter); // fills the caches
    second(painter);
    std::chrono::duration<double, std::milli> firstTime{};
    std::chrono::duration<double, std::milli> secondTime{};
    for (auto _ : state) {
        const auto start = Clock::now();
        first(painter);
        const auto middle = Clock::now();
        second(painter);
        firstTime += middle - start;
        secondTime += Clock::now() - middle;
    }
    const auto rounds = double(state.iterations());
    state.counters["first_ms"] = firstTime.count() / rounds;
    state.counters["second_ms"] = secondTime.count() / rounds;
    state.counters["ratio"] = secondTime / firstTime;
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto add = [](const char *name, const Painting &first, const Painting &second) {
        benchmark::RegisterBenchmark(name, [first, second](benchmark::State &state) {
            compare(state, first, second);
        })->Unit(benchmark::kMillisecond);
    };
    add("page/straight_then_recorded", paintPage, recordAndReplayPage);
    add("page/picture_then_recorded", pictureAndReplayPage, recordAndReplayPage);
    add("page/straight_then_recording_only", paintPage, [](QPainter &painter) { recordPage(painter); });
    add("texts/whole_then_parts", paintWholeTexts, paintTexts);
    add(
        "texts/cached_then_fresh_outlines",
        [](QPainter &) { forEachText([](const QPointF &, const MvTextOutline &) {}); },
        [](QPainter &) {
            for (int i = 0; i < 53; ++i)
                benchmark::DoNotOptimize(MvTextOutline(pageFont(), cellText(i)));
        });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
