// SPDX-License-Identifier: LGPL-2.1-or-later
// What photos cost beside the least that they could: opening a calendar of twelve large ones until its first page is
// sharp, exporting it, and gathering five hundred for the pool beside a window.

#include "MvBenchFotos.h"
#include "MvBenchMain.h"

#include "MvFoto/MvFotoSource.h"
#include "MvFoto/MvGuardedImageReader.h"
#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvExportJob.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvProjectFile.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int photos = 12;
constexpr int manyPhotos = 500;
constexpr int screenWidth = 1600;
constexpr int dpi = 300;
constexpr int jpegQuality = 92; // that of the PDF

/// A calendar of large photos on A4, in a folder of its own.
class Calendar
{
public:
    explicit Calendar(const QString &theme)
    {
        for (int number = 0; number < photos; ++number) {
            const QString path = m_folder.filePath(u"%1.jpg"_s.arg(number));
            if (number == 0)
                MvBenchFotos::painted(MvBenchFotos::largeSize).save(path, "jpeg", 90);
            else
                QFile::copy(m_folder.filePath(u"0.jpg"_s), path);
        }
        MvNewCalendar made;
        made.range = {QDate(2027, 1, 1), QDate(2027, 12, 31)};
        made.themeId = theme;
        document = made.make();
        MvFotoPool pool;
        pool.add(MvFotoPoolIntake::gather({m_folder.path()}).items);
        document.setFotoPool(pool);
        document = MvFotoDistribution::distribute(document).document;
        MvProjectFile::write(document, QFileInfo(path(u"kalender.mvcalendar"_s)));
    }
    QString path(const QString &name) const { return m_folder.filePath(name); }

    MvCalendarDocument document;

private:
    QTemporaryDir m_folder;
};

/// One whose photos stand beside the months, and one whose months stand on them.
const Calendar &calendar(bool isOnPhotos = false)
{
    static const Calendar beside(u"PAPER"_s);
    static const Calendar on(u"TRAVEL"_s);
    return isOnPhotos ? on : beside;
}

double seconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) * 1e-9;
}

/// Of all threads.
double computingTime()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// A value of this process in megabytes: "VmHWM" is the most that it had since the last call of forgetPeak().
double memory(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    const QByteArray text = status.readAll();
    const qsizetype start = text.indexOf(name + ':') + name.size() + 1;
    return text.mid(start, text.indexOf("kB", start) - start).trimmed().toDouble() / 1024.0;
}

void forgetPeak()
{
    QFile clear(u"/proc/self/clear_refs"_s);
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

void openProject(benchmark::State &state)
{
    const QString path = calendar().path(u"kalender.mvcalendar"_s);
    const MvPageFormat format = calendar().document.format();
    const double scale = screenWidth / format.trimSize().width();
    double opening = 0.0;
    double decoding = 0.0;
    for (auto _ : state) {
        MvImageLoader::instance().clear();
        QElapsedTimer timer;
        timer.start();
        const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(path));
        QImage image((format.trimSize() * scale).toSize(), QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(scale, scale);
        content.document.paint(painter, 1);
        painter.end();
        opening += seconds(timer);
        timer.start();
        MvImageLoader::instance().loadUncached(QFileInfo(calendar().path(u"0.jpg"_s)), {screenWidth, screenWidth});
        decoding += seconds(timer);
    }
    state.counters["ratio"] = opening / decoding;
}
BENCHMARK(openProject)->Unit(benchmark::kMillisecond)->Iterations(3);

/// Notes the largest size in which each photo is asked for, and has none.
class Orders : public MvFotoSource
{
public:
    QImage scaled(const QFileInfo &file, const QSize &bounds) override
    {
        QSize &largest = sizes[file.filePath()];
        largest = largest.expandedTo(bounds);
        return {};
    }

    QHash<QString, QSize> sizes;
};

/// The photos that the calendar asks for in print, with nothing around them: decoded, scaled and written as JPEG.
void convertStraight(const MvCalendarDocument &document)
{
    Orders orders;
    MvRenderingSources sources;
    sources.fotos = &orders;
    const MvPageSource source = document.pageSource(sources);
    QImage paper(1, 1, QImage::Format_RGB32);
    for (int page = 0; page < source.pages.size(); ++page) {
        QPainter painter(&paper);
        source.paintPage(painter, page, {}, dpi / 254.0);
    }
    for (auto order = orders.sizes.cbegin(); order != orders.sizes.cend(); ++order) {
        const QImage image = QImageReader(order.key()).read();
        QBuffer buffer;
        image.scaled(order.value(), Qt::KeepAspectRatio, Qt::SmoothTransformation).save(&buffer, "jpeg", jpegQuality);
    }
}

/// Time and computing time beside those of the straight way; what memory it takes, above what the program had before
/// and in all, and what of it stays.
void exportPdf(benchmark::State &state)
{
    const Calendar &printed = calendar(state.range(0) == 1);
    const QFileInfo target(printed.path(u"kalender.pdf"_s));
    convertStraight(printed.document); // libraries loaded, files at hand
    MvImageLoader::instance().clear();
    forgetPeak();
    const double before = memory("VmRSS");
    QElapsedTimer timer;
    for (auto _ : state) {
        timer.start();
        double computing = computingTime();
        const MvExportResult result = MvPdfExporter::write(printed.document.pageSource(), target);
        const double exporting = seconds(timer);
        const double computed = computingTime() - computing;
        if (!result.isOk())
            state.SkipWithError(qPrintable(result.error));
        state.counters["peak_mb"] = memory("VmHWM");
        state.counters["above_mb"] = memory("VmHWM") - before;
        state.counters["kept_mb"] = memory("VmRSS") - before;
        timer.start();
        computing = computingTime();
        convertStraight(printed.document);
        state.counters["ratio"] = exporting / seconds(timer);
        state.counters["computing"] = computed / (computingTime() - computing);
    }
}
BENCHMARK(exportPdf)->ArgName("on")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The same beside a window.
void exportBesideWindow(benchmark::State &state)
{
    const Calendar &printed = calendar(true);
    MvImageLoader::instance().clear();
    forgetPeak();
    const double before = memory("VmRSS");
    for (auto _ : state) {
        MvExportJob job(printed.document, MvExportTarget(printed.path(u"kalender.pdf"_s)));
        bool isDone = false;
        QObject::connect(&job, &MvExportJob::finished, [&isDone] { isDone = true; });
        job.start();
        while (!isDone)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    state.counters["above_mb"] = memory("VmHWM") - before;
    state.counters["kept_mb"] = memory("VmRSS") - before;
}
BENCHMARK(exportBesideWindow)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The longest turn of the event loop while photos are gathered, beside the time that one of them takes to decode.
void gatherForPool(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString first = folder.filePath(u"0.jpg"_s);
    MvBenchFotos::painted({1500, 1000}).save(first, "jpeg", 90);
    for (int number = 1; number < manyPhotos; ++number)
        QFile::copy(first, folder.filePath(u"%1.jpg"_s.arg(number)));
    double longest = 0.0;
    double decoding = 0.0;
    for (auto _ : state) {
        MvFotoPoolIntake intake;
        bool isDone = false;
        QObject::connect(&intake, &MvFotoPoolIntake::finished, [&isDone] { isDone = true; });
        intake.start({folder.path()}, {});
        while (!isDone) {
            QElapsedTimer turn;
            turn.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, seconds(turn));
        }
        QElapsedTimer timer;
        timer.start();
        MvGuardedImageReader(QFileInfo(first)).read({});
        decoding += seconds(timer);
    }
    state.counters["ratio"] = longest / (decoding / double(state.iterations()));
}
BENCHMARK(gatherForPool)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    return MvBenchMain::run(argc, argv);
}
