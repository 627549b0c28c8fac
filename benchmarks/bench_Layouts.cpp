// SPDX-License-Identifier: LGPL-2.1-or-later
// What a page costs, for each shipped layout: a pass of the renderer beside the page's primitives painted straight, and
// beside recording the pass alone. A4 at 300 dpi.

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPaintRecording.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double dpi = 300.0;
constexpr double scale = dpi / 254.0;
const QRectF calendarium(120, 200, 2730, 1780);
const QDate month(2027, 5, 1); // six rows, holidays and a vacation

QImage page()
{
    QImage image(int(2970 * scale), int(2100 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

void prepare(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
}

std::unique_ptr<MvCalendariumRenderer> makeRenderer(const MvCalendariumLayoutSchemaID &layout)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(layout);
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    appearance.adaptGridToLayout();
    std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(appearance));
    const MvCalendariumHolidayConfig holidays(MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 4 | 8));
    renderer->setCalendarInformation(MvCalendariumContentConfig(month, holidays),
                                     MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    return renderer;
}

QList<MvPaintRecording::Item> primitives(const MvCalendariumLayoutSchemaID &layout)
{
    const auto renderer = makeRenderer(layout);
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer->render(painter, calendarium);
    painter.end();
    return recorder.recording().items();
}

// the page's fills, lines and text outlines, ready made, painted as a program without a recording would
void paintStraight(QPainter &painter, const QList<MvPaintRecording::Item> &items)
{
    for (const MvPaintRecording::Item &item : items) {
        if (item.kind == MvPaintRecording::Item::Line) {
            painter.setPen(QPen(QBrush(item.stroke), item.strokeWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawLine(item.line);
        } else {
            painter.fillPath(item.shape, item.fill);
        }
    }
}

void primitivesStraight(benchmark::State &state, const MvCalendariumLayoutSchemaID &layout)
{
    const QList<MvPaintRecording::Item> items = primitives(layout);
    QImage image = page();
    for (auto _ : state) {
        QPainter painter(&image);
        prepare(painter);
        paintStraight(painter, items);
    }
    state.counters["items"] = double(items.size());
}

void pass(benchmark::State &state, const MvCalendariumLayoutSchemaID &layout)
{
    const auto renderer = makeRenderer(layout);
    QImage image = page();
    for (auto _ : state) {
        QPainter painter(&image);
        prepare(painter);
        renderer->render(painter, calendarium);
    }
}

void recordingAlone(benchmark::State &state, const MvCalendariumLayoutSchemaID &layout)
{
    const auto renderer = makeRenderer(layout);
    MvPaintRecorder recorder(nullptr);
    for (auto _ : state) {
        QPainter painter(&recorder);
        renderer->render(painter, calendarium);
    }
}

void registerBenchmarks()
{
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const MvCalendariumLayoutSchemaID id = schema.ID();
        const std::string name = id.toString().toStdString();
        benchmark::RegisterBenchmark((name + "/straight").c_str(), primitivesStraight, id)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((name + "/pass").c_str(), pass, id)->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((name + "/recording").c_str(), recordingAlone, id)->Unit(benchmark::kMillisecond);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    registerBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
