// What a month page costs: a pass of the renderer beside the page's primitives painted straight, on A4 at 300 dpi.

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvModelBase/MvPaintRecorder.h"
#include "MvModelBase/MvPaintRecording.h"

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

std::unique_ptr<MvCalendariumRenderer> makeRenderer()
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    appearance.adaptGridToLayout();
    std::unique_ptr<MvCalendariumRenderer> renderer(
        MvCalendariumRendererFactory::instance().createRenderer(appearance));
    const MvCalendariumHolidayConfig holidays(MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 4 | 8));
    renderer->setCalendarInformation(MvCalendariumContentConfig(month, holidays),
                                     MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    return renderer;
}

QList<MvPaintRecording::Item> primitives()
{
    const auto renderer = makeRenderer();
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

void MonthPagePrimitivesStraight(benchmark::State &state)
{
    const QList<MvPaintRecording::Item> items = primitives();
    QImage image = page();
    for (auto _ : state) {
        QPainter painter(&image);
        prepare(painter);
        paintStraight(painter, items);
    }
    state.counters["items"] = double(items.size());
}

void MonthPagePass(benchmark::State &state)
{
    const auto renderer = makeRenderer();
    QImage image = page();
    for (auto _ : state) {
        QPainter painter(&image);
        prepare(painter);
        renderer->render(painter, calendarium);
    }
}

void MonthPageLayoutAlone(benchmark::State &state)
{
    const auto renderer = makeRenderer();
    MvPaintRecorder recorder(nullptr);
    for (auto _ : state) {
        QPainter painter(&recorder);
        renderer->render(painter, calendarium);
    }
}

BENCHMARK(MonthPagePrimitivesStraight)->Unit(benchmark::kMillisecond);
BENCHMARK(MonthPagePass)->Unit(benchmark::kMillisecond);
BENCHMARK(MonthPageLayoutAlone)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
