// SPDX-License-Identifier: LGPL-2.1-or-later
// How long the studio's window keeps somebody waiting at most while photos come in: the longest single event that is
// handled between asking for something and seeing it, beside what decoding one such photo takes. Two and five years
// with a photo of 12 megapixels on each page in the print preview, and a month with entries whose photos have 24. And
// step by step in a large calendar, of two years with 500 entries: all layouts and countries, entries and undo, zoom,
// a photo, another length, saved and opened again. And scrolling through a calendar of 60 pages with 200 photos, in the
// strip and page by page on the canvas, while thumbnails and pages are still being made. And how long a calendar of
// large photos takes to open, from its file to a sharp first page, beside decoding one photo at that size.

#include "common/MvStudioSettings.h"
#include "flows/MvPrintFlow.h"
#include "flows/MvProjectFlow.h"
#include "flows/MvUndoCommandEventList.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageStrip.h"
#include "window/MvStudioWindow.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoService.h"
#include "MvFoto/MvImageLoader.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvFotoPoolIntake.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"

#include <QApplication>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QPrintPreviewDialog>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QUndoStack>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(1280, 800);
constexpr QSize pageFoto(4000, 3000);
constexpr QSize entryFoto(6000, 4000);
constexpr int entryFotoCount = 8;
constexpr qint64 calm = 700; // milliseconds without a noticeable event: all has come in

/// Of this thread, in milliseconds.
double computingTime()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

/// Notes the longest event, nested ones within theirs.
class Application : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_depth > 0)
            return QApplication::notify(receiver, event);
        QElapsedTimer clock;
        clock.start();
        const double before = computingTime();
        ++m_depth;
        const bool isDone = QApplication::notify(receiver, event);
        --m_depth;
        const double milliseconds = double(clock.nsecsElapsed()) / 1e6;
        longest = std::max(longest, milliseconds);
        longestComputing = std::max(longestComputing, computingTime() - before);
        if (milliseconds > 5.0)
            sinceNoticeable.start();
        return isDone;
    }

    void settle()
    {
        sinceNoticeable.start();
        while (sinceNoticeable.elapsed() < calm)
            processEvents(QEventLoop::AllEvents, 20);
    }

    double longest = 0.0;
    double longestComputing = 0.0; // of this thread: what it would be on a computer with nothing else to do
    QElapsedTimer sinceNoticeable;

private:
    int m_depth = 0;
};

Application *application = nullptr;

QString foto(const QTemporaryDir &folder, const QString &name, const QSize &size)
{
    const QString path = folder.filePath(name);
    QImage noise(size / 8, QImage::Format_RGB32); // as hard to decode as a photo is
    QRandomGenerator random(1);
    for (int y = 0; y < noise.height(); ++y)
        random.fillRange(reinterpret_cast<quint32 *>(noise.scanLine(y)), noise.width());
    noise.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(path, "JPEG", 90);
    return path;
}

MvCalendarDocument calendar(int months)
{
    MvCalendariumAppearance look;
    look.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"MONTH_GRID_CLASSIC"_s));
    look.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    look.adoptLayoutSuggestions();
    MvCalendarDocument document;
    document.setAppearance(look);
    document.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    return document;
}

void copyFoto(const QString &first, const QString &path)
{
    QFile::remove(path);
    QFile::copy(first, path);
}

double decodingTime(const QString &path, const QSize &size)
{
    QElapsedTimer clock;
    clock.start();
    const QImage image = MvImageLoader::instance().loadUncached(QFileInfo(path), size);
    return image.isNull() ? 0.0 : double(clock.nsecsElapsed()) / 1e6;
}

void report(benchmark::State &state, const QString &path, const QSize &size)
{
    const double decoding = decodingTime(path, size);
    state.counters["longest_ms"] = application->longest;
    state.counters["decoding_ms"] = decoding;
    state.counters["ratio"] = application->longest / decoding;
}

void printPreview(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString first = foto(folder, u"0.jpg"_s, pageFoto);
    MvCalendarDocument document = calendar(int(state.range(0)));
    for (int number = 0; number < document.pages().size(); ++number) {
        const QString path = folder.filePath(u"%1.jpg"_s.arg(number));
        if (number > 0)
            copyFoto(first, path);
        MvCalendarPage page = document.pages().at(number);
        page.setFotoFrame(MvFotoFrame(path));
        document.setPage(number, page);
    }
    for (auto _ : state) {
        MvProject project;
        project.newProject(document);
        MvStudioWindow window(&project);
        window.resize(windowSize);
        window.show();
        state.PauseTiming();
        application->settle();
        application->longest = 0.0;
        state.ResumeTiming();
        QMetaObject::invokeMethod(window.findChild<MvPrintFlow *>(), &MvPrintFlow::showPreview, Qt::QueuedConnection);
        while (!window.findChild<QPrintPreviewDialog *>())
            QApplication::processEvents();
        application->settle();
    }
    report(state, first, pageFoto);
}
BENCHMARK(printPreview)->Arg(24)->Arg(60)->Unit(benchmark::kMillisecond)->Iterations(1);

void entryFotos(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString first = foto(folder, u"0.jpg"_s, entryFoto);
    QByteArray entries = "<CalendarEvents>";
    for (int number = 0; number < entryFotoCount; ++number) {
        if (number > 0)
            copyFoto(first, folder.filePath(u"%1.jpg"_s.arg(number)));
        entries += u"<CalendarEvent><Name>A%1</Name><DateTime>1990-01-%2T00:00:00</DateTime><Image>%1.jpg</Image>"
                   "</CalendarEvent>"_s.arg(number)
                       .arg(10 + number)
                       .toUtf8();
    }
    QFile file(folder.filePath(u"entries.xml"_s));
    if (file.open(QIODevice::WriteOnly))
        file.write(entries + "</CalendarEvents>");
    file.close();
    for (auto _ : state) {
        MvProject project;
        project.newProject(calendar(12));
        MvStudioWindow window(&project);
        window.resize(windowSize);
        window.show();
        state.PauseTiming();
        application->settle();
        application->longest = 0.0;
        state.ResumeTiming();
        const auto load = [&file, &window] {
            const MvCalendarEventList events = MvCalendarEventFile::read(QFileInfo(file)).events;
            MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
            registry.prepareFotos(events, &window, [&registry, events] { registry.setEvents(events); });
        };
        QMetaObject::invokeMethod(&window, load, Qt::QueuedConnection);
        while (MvCalendarEventRegistry::instance().activeEventList().isEmpty())
            QApplication::processEvents();
        application->settle();
    }
    report(state, first, entryFoto);
}
BENCHMARK(entryFotos)->Unit(benchmark::kMillisecond)->Iterations(1);

// ---- opening

void opening(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString first = foto(folder, u"0.jpg"_s, entryFoto);
    MvCalendarDocument document = calendar(12);
    for (int number = 0; number < document.pages().size(); ++number) {
        const QString path = folder.filePath(u"%1.jpg"_s.arg(number));
        if (number > 0)
            copyFoto(first, path);
        MvCalendarPage page = document.pages().at(number);
        page.setFotoFrame(MvFotoFrame(path));
        document.setPage(number, page);
    }
    const QFileInfo file(folder.filePath(u"kalender.mvcalendar"_s));
    MvProjectFile::write(document, file);
    double opened = 0.0;
    QSize size; // in which the photo is shown
    for (auto _ : state) {
        MvProject project;
        MvStudioWindow window(&project);
        window.resize(windowSize);
        window.show();
        state.PauseTiming();
        application->settle();
        state.ResumeTiming();
        const MvFotoService &service = MvFotoService::instance();
        const auto watch = QObject::connect(&service, &MvFotoService::arrived, [&](const MvFotoOrder &order) {
            if (order.path == first && order.size.width() >= windowSize.width() / 2)
                size = entryFoto.scaled(order.size, Qt::KeepAspectRatio);
        });
        QElapsedTimer clock;
        clock.start();
        QMetaObject::invokeMethod(
            &window, [&] { window.projectFlow()->open(file.filePath()); }, Qt::QueuedConnection);
        while (size.isEmpty())
            application->processEvents(QEventLoop::WaitForMoreEvents, 5);
        window.findChild<MvPageCanvas *>()->viewport()->repaint();
        opened = double(clock.nsecsElapsed()) / 1e6;
        QObject::disconnect(watch);
    }
    const double decoding = decodingTime(first, size);
    state.counters["opened_ms"] = opened;
    state.counters["decoding_ms"] = decoding;
    state.counters["ratio"] = opened / decoding;
}
BENCHMARK(opening)->Unit(benchmark::kMillisecond)->Iterations(1);

// ---- scrolling

constexpr int manyMonths = 58; // and a cover and a back
constexpr int manyFotos = 200;
constexpr int notch = 60; // pixels of the strip

/// Four photos on nearly every page.
MvCalendarDocument album(const QTemporaryDir &folder)
{
    const QString first = foto(folder, u"0.jpg"_s, pageFoto);
    for (int number = 1; number < manyFotos; ++number)
        copyFoto(first, folder.filePath(u"%1.jpg"_s.arg(number)));
    MvNewCalendar made;
    made.range = {QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(manyMonths).addDays(-1)};
    MvCalendarDocument document = made.make();
    for (int number = 1; number <= manyMonths; ++number) {
        MvCalendarPage page = document.pages().at(number);
        page.setTemplate(MvPageTemplateRegistry::instance().findTemplate(u"MONTH_FOUR"_s), document.format());
        document.setPage(number, page);
    }
    MvFotoPool pool;
    pool.add(MvFotoPoolIntake::gather({folder.path()}).items);
    document.setFotoPool(pool);
    return MvFotoDistribution::distribute(document).document;
}

/// The longest event in milliseconds while somebody does this again and again, as fast as a wheel is turned.
double longestWhileRepeating(int times, const std::function<void(int)> &step)
{
    application->longest = 0.0;
    for (int number = 0; number < times; ++number) {
        QMetaObject::invokeMethod(
            application, [&step, number] { step(number); }, Qt::QueuedConnection);
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < 30)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return application->longest;
}

void scrolling(benchmark::State &state)
{
    const QTemporaryDir folder;
    const MvCalendarDocument document = album(folder);
    for (auto _ : state) {
        MvProject project;
        application->longest = 0.0;
        MvStudioWindow window(&project);
        window.resize(windowSize);
        window.show();
        application->settle();
        application->longest = 0.0;
        QMetaObject::invokeMethod(
            &window, [&] { project.newProject(document); }, Qt::QueuedConnection);
        application->settle();
        state.counters["opening_ms"] = application->longest;
        auto *strip = window.findChild<MvPageStrip *>();
        QScrollBar *bar = strip->verticalScrollBar();
        const int pages = int(document.pages().size());
        application->longestComputing = 0.0;
        state.counters["pages"] = pages;
        state.counters["photos"] = double(document.fotoUses().size());
        state.counters["strip_ms"] =
            longestWhileRepeating(bar->maximum() / notch, [bar](int number) { bar->setValue(number * notch); });
        auto *canvas = window.findChild<MvPageCanvas *>();
        state.counters["canvas_ms"] =
            longestWhileRepeating(pages, [canvas](int number) { canvas->setCurrentPage(number); });
        application->longest = 0.0;
        application->settle();
        state.counters["rest_ms"] = application->longest;
        state.counters["computing_ms"] = application->longestComputing;
    }
    application->longest = 0.0;
    for (const char *name : {"strip_ms", "canvas_ms", "rest_ms"})
        application->longest = std::max(application->longest, double(state.counters[name]));
    report(state, folder.filePath(u"0.jpg"_s), pageFoto);
}
BENCHMARK(scrolling)->Unit(benchmark::kMillisecond)->Iterations(1);

// ---- step by step

constexpr int manyEntries = 500;

/// A calendar of two years in its window, and what somebody does there.
struct Sitting
{
    Sitting()
    {
        project.newProject(calendar(24));
        window = std::make_unique<MvStudioWindow>(&project);
        window->resize(windowSize);
        window->show();
        canvas = window->findChild<MvPageCanvas *>();
        const auto docks = window->findChildren<QDockWidget *>();
        for (QDockWidget *dock : docks)
            dock->raise(); // the entries come last, and stay
        application->settle();
    }

    /// The longest event in milliseconds, until all has come in.
    double longestWhile(const std::function<void()> &step)
    {
        application->longest = 0.0;
        QMetaObject::invokeMethod(window.get(), step, Qt::QueuedConnection);
        application->settle();
        return application->longest;
    }
    void change(const std::function<void(MvCalendarDocument &)> &edit)
    {
        MvCalendarDocument changed = project.document();
        edit(changed);
        project.change(changed, u"Schritt"_s);
    }

    MvProject project;
    std::unique_ptr<MvStudioWindow> window;
    MvPageCanvas *canvas = nullptr;
};

MvCalendarEventList entries(int count)
{
    MvCalendarEventList all;
    for (int number = 0; number < count; ++number)
        all.append(MvCalendarEvent(u"Geburtstag %1"_s.arg(number),
                                   QDate(1990, 1, 1).addDays(number * 73 % 365).startOfDay(), true, MvFoto(),
                                   QUuid::createUuid(), {}));
    return all;
}

/// Each counter is the longest event in milliseconds.
void sitting(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString picture = foto(folder, u"0.jpg"_s, entryFoto);
    const QFileInfo file(folder.filePath(u"kalender.mvcalendar"_s));
    for (auto _ : state) {
        Sitting studio;
        const auto step = [&state, &studio](const char *name, const std::function<void()> &action) {
            state.counters[name] = std::max(double(state.counters[name]), studio.longestWhile(action));
        };
        step("add500", [] { MvUndoController::instance().push(new MvUndoCommandEventList({}, entries(manyEntries))); });
        step("undo500", [] { MvUndoController::instance().undo(); });
        step("redo500", [] { MvUndoController::instance().redo(); });
        for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata())
            step("layouts", [&studio, &layout] {
                studio.change([&layout](MvCalendarDocument &calendar) {
                    MvCalendariumAppearance look = calendar.appearance();
                    look.setLayoutSchemaByID(layout.ID());
                    look.adoptLayoutSuggestions();
                    calendar.setAppearance(look);
                });
            });
        step("undoLayouts", [] {
            while (MvUndoController::instance().stack()->index() > 1)
                MvUndoController::instance().undo();
        });
        for (const MvLocale &locale : MvCalendariumHolidayCache::instance().availableLanguages())
            step("countries", [&studio, &locale] {
                studio.change([&locale](MvCalendarDocument &calendar) {
                    MvCalendariumHolidayConfig config = calendar.holidayConfig();
                    config.setLanguage(locale);
                    calendar.setHolidayConfig(config);
                });
            });
        step("fiveYears", [&studio] {
            studio.change([](MvCalendarDocument &calendar) {
                calendar.setRange({QDate(2027, 1, 1), QDate(2031, 12, 31)});
            });
        });
        step("photo", [&studio, &picture] { studio.canvas->setFoto(picture); });
        for (int times = 0; times < 8; ++times)
            step("zoom", [&studio] { studio.canvas->zoomIn(); });
        step("fit", [&studio] { studio.canvas->zoomToFit(); });
        step("save", [&studio, &file] { studio.project.saveAs(file); });
        step("new", [&studio] { studio.project.newProject(calendar(12)); });
        step("open", [&studio, &file] { studio.project.open(file); });
        MvCalendarEventRegistry::instance().setEvents({});
        MvUndoController::instance().clear();
    }
}
BENCHMARK(sitting)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application studio(argc, argv);
    application = &studio;
    QApplication::setStyle(u"Fusion"_s);
    MvStudioSettings::setWelcomeShown(false); // the pages are what is measured
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
