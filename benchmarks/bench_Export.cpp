// SPDX-License-Identifier: LGPL-2.1-or-later
// What files of pages cost: the PDF of a year beside the same outlines, ready made, written by the paint system, and
// beside its size with texts in embedded fonts; a page with a photo beside one without as PNG, with the photo at hand
// and with reading it.

#include "MvBenchFotos.h"
#include "MvBenchMain.h"
#include "MvBenchPages.h"
#include "MvBenchTurns.h"

#include "MvFoto/MvDirectFotoSource.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvPictureExporter.h"

#include <QFileInfo>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int dpi = MvPdfExporter::resolution;
constexpr double scale = dpi / 254.0;

MvCalendarDocument makeYear()
{
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    document.setAppearance(MvBenchPages::appearance(u"MONTH_GRID_CLASSIC"_s));
    document.setHolidayConfig(MvBenchPages::holidays());
    return document;
}

using Items = QList<MvPaintRecording::Item>;
using Painting = void (*)(QPainter &, const Items &);

QList<Items> itemsOf(const MvPageSource &source)
{
    QList<Items> pages;
    for (int page = 0; page < source.pages.size(); ++page) {
        MvPaintRecorder recorder(nullptr);
        QPainter painter(&recorder);
        source.paintPage(painter, page, {}, 1.0);
        painter.end();
        pages.append(recorder.recording().items());
    }
    return pages;
}

/// As the paint system does by itself.
void writePages(const QString &path, const QSizeF &size, const QList<Items> &pages, Painting paint)
{
    QPdfWriter writer(path);
    writer.setResolution(dpi);
    writer.setPageSize(QPageSize(size / 10.0, QPageSize::Millimeter));
    writer.setPageMargins({});
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    for (const Items &items : pages) {
        if (&items != &pages.constFirst())
            writer.newPage();
        paint(painter, items);
    }
}

double bytes(const QString &path)
{
    return double(QFileInfo(path).size());
}

void yearAsPdf(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString ours = folder.filePath(u"ours.pdf"_s);
    const QString outlines = folder.filePath(u"outlines.pdf"_s);
    const QString fonts = folder.filePath(u"fonts.pdf"_s);
    const MvPageSource source = makeYear().pageSource();
    const QSizeF size = source.format.trimSize();
    const QList<Items> pages = itemsOf(source);
    writePages(fonts, size, pages, MvBenchPages::paintWithFonts);
    const auto exported = [&] {
        if (!MvPdfExporter::write(source, QFileInfo(ours)).isOk())
            state.SkipWithError("no PDF");
    };
    for (auto _ : state) {
        const std::vector<double> times =
            MvBenchTurns().measure({[&] { writePages(outlines, size, pages, MvBenchPages::paintStraight); }, exported});
        state.counters["ms"] = times.at(1);
        state.counters["ratio"] = times.at(1) / times.at(0);
    }
    state.counters["bytes"] = bytes(ours);
    state.counters["bytes_of_fonts"] = bytes(fonts);
    state.counters["bytes_ratio"] = bytes(ours) / bytes(fonts);
}
BENCHMARK(yearAsPdf)->Unit(benchmark::kMillisecond)->Iterations(1);

/// One month of the year, with a photo of 24 megapixels above it or without.
MvPageSource monthPage(const QString &foto, const MvRenderingSources &sources = {})
{
    MvCalendarDocument document = makeYear();
    MvCalendarPage page = document.pages().constFirst();
    page.setFotoFrame(MvFotoFrame(foto));
    document.setPage(0, page);
    return document.pageSource(sources).part({0});
}

void pageAsPng(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString foto = folder.filePath(u"foto.jpg"_s);
    MvBenchFotos::painted(MvBenchFotos::largeSize).save(foto, "jpeg", 90);
    const auto write = [&folder, &state](const MvPageSource &source, const QString &name) {
        if (!MvPictureExporter::write(source, folder.filePath(name), dpi, nullptr, 1).isOk())
            state.SkipWithError("no picture");
    };
    MvRenderingSources sources;
    sources.fotos = &MvDirectFotoSource::instance(); // reads it once
    const auto without = [&] { write(monthPage({}), u"without.png"_s); };
    const auto with = [&] { write(monthPage(foto, sources), u"with.png"_s); };
    const auto read = [&] { write(monthPage(foto), u"read.png"_s); };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({without, with, read});
        state.counters["without_ms"] = times.at(0);
        state.counters["ratio"] = times.at(1) / times.at(0);
        state.counters["ratio_with_reading"] = times.at(2) / times.at(0);
    }
    state.counters["bytes_ratio"] = bytes(folder.filePath(u"with.png"_s)) / bytes(foto);
}
BENCHMARK(pageAsPng)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    return MvBenchMain::run(argc, argv);
}
