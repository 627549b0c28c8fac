// SPDX-License-Identifier: LGPL-2.1-or-later
// What photos cost beside the least that they could: opening a calendar of twelve large ones until its first page is
// sharp, exporting it, and gathering five hundred for the pool beside a window.

#include "MvFoto/MvGuardedImageReader.h"
#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvProjectFile.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize largePhoto(6000, 4000); // 24 megapixels
constexpr int pages = 12;
constexpr int manyPhotos = 500;
constexpr int screenWidth = 1600;
constexpr int dpi = 300;

QImage painted(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int grain = int((quint32(x) * 2654435761u ^ quint32(y) * 40503u) >> 27);
            line[x] = qRgb(x * 200 / size.width() + grain, y * 200 / size.height() + grain, 90 + grain);
        }
    }
    return image;
}

/// A calendar with a large photo on each page, in a folder of its own.
class Calendar
{
public:
    Calendar()
    {
        MvCalendariumAppearance appearance;
        appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s));
        appearance.adoptLayoutSuggestions();
        appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
        document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
        document.setAppearance(appearance);
        const QString first = path(0);
        painted(largePhoto).save(first, "jpeg", 90);
        for (int page = 0; page < pages; ++page) {
            if (page > 0)
                QFile::copy(first, path(page));
            MvCalendarPage changed = document.pages()[page];
            changed.setFotoFrame(MvFotoFrame(path(page)));
            document.setPage(page, changed);
        }
        MvProjectFile::write(document, QFileInfo(file()));
    }
    QString path(int page) const { return m_folder.filePath(u"%1.jpg"_s.arg(page)); }
    QString file() const { return m_folder.filePath(u"kalender.mvcalendar"_s); }
    QString folder() const { return m_folder.path(); }

    MvCalendarDocument document;

private:
    QTemporaryDir m_folder;
};

const Calendar &calendar()
{
    static const Calendar calendar;
    return calendar;
}

double seconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) * 1e-9;
}

/// In megabytes; of this process since the last call of forgetPeak().
double peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    const QByteArray text = status.readAll();
    const qsizetype start = text.indexOf("VmHWM:") + 6;
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
    const MvPageFormat format = calendar().document.format();
    const double scale = screenWidth / format.trimSize().width();
    double opening = 0.0;
    double decoding = 0.0;
    for (auto _ : state) {
        MvImageLoader::instance().clear();
        QElapsedTimer timer;
        timer.start();
        const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(calendar().file()));
        QImage image((format.trimSize() * scale).toSize(), QImage::Format_RGB32);
        QPainter painter(&image);
        painter.scale(scale, scale);
        content.document.paint(painter, 0);
        painter.end();
        opening += seconds(timer);
        timer.start();
        MvImageLoader::instance().loadUncached(QFileInfo(calendar().path(0)), {screenWidth, screenWidth});
        decoding += seconds(timer);
    }
    state.counters["ratio"] = opening / decoding;
}
BENCHMARK(openProject)->Unit(benchmark::kMillisecond)->Iterations(3);

/// The same pictures decoded, scaled and written as JPEG, as they would be for a print of that size.
double straightExport()
{
    QElapsedTimer timer;
    timer.start();
    for (int page = 0; page < pages; ++page) {
        const MvFotoFrame frame = calendar().document.pages()[page].fotoFrame();
        const QSizeF paper = frame.rect(calendar().document.format()).size() * (dpi / 254.0);
        const QSizeF needed = QSizeF(largePhoto).scaled(paper, Qt::KeepAspectRatioByExpanding);
        const QImage image = MvImageLoader::instance().loadUncached(QFileInfo(calendar().path(page)), needed.toSize());
        QBuffer buffer;
        image.save(&buffer, "jpeg", 90);
    }
    return seconds(timer);
}

void exportPdf(benchmark::State &state)
{
    const QString target = calendar().folder() + u"/kalender.pdf"_s;
    double exporting = 0.0;
    double straight = 0.0;
    double peak = 0.0;
    for (auto _ : state) {
        MvImageLoader::instance().clear();
        forgetPeak();
        QElapsedTimer timer;
        timer.start();
        const MvExportResult result = MvPdfExporter::write(calendar().document.pageSource(), QFileInfo(target));
        exporting += seconds(timer);
        if (!result.isOk())
            state.SkipWithError(qPrintable(result.error));
        peak = std::max(peak, peakMemory());
        MvImageLoader::instance().clear();
        straight += straightExport();
    }
    state.counters["ratio"] = exporting / straight;
    state.counters["peak_mb"] = peak;
}
BENCHMARK(exportPdf)->Unit(benchmark::kMillisecond)->Iterations(1);

/// The longest turn of the event loop while photos are gathered, beside the time that one of them takes to decode.
void gatherForPool(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString first = folder.filePath(u"0.jpg"_s);
    painted({1500, 1000}).save(first, "jpeg", 90);
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    MvImageLoader::raiseProcessLimit();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
