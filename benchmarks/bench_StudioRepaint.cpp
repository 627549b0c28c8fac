// SPDX-License-Identifier: LGPL-2.1-or-later
// What a user of the studio waits for, at 1280x800: the page after another layout, colour schema or font, beside a
// straight repaint of the recorded page, and beside a repaint that finds everything in the page's cache, as under the
// hovering mouse; the thumbnail that is made in one idle slice; and a project of 24 months until its window is painted.

#include "pages/MvPageCanvas.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageStrip.h"
#include "window/MvStudioWindow.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(1280, 800);
constexpr int entryCount = 120;

void fillRegistry()
{
    MvCalendarEventList entries;
    for (int i = 0; i < entryCount; ++i) {
        const QDate date = QDate(1990, 1, 1).addDays(i * 73 % 365);
        entries.append(MvCalendarEvent(u"Geburtstag %1"_s.arg(i), date.startOfDay(), true, MvFoto(),
                                       QUuid::createUuid(), QDateTime()));
    }
    MvCalendarEventRegistry::instance().setEvents(entries);
}

MvCalendariumAppearance appearance(const QString &layout, const QString &colors)
{
    MvCalendariumAppearance look;
    look.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    look.setColorSchemaById(MvCalendariumColorSchemaID(colors));
    look.adoptLayoutSuggestions();
    look.adaptGridToLayout();
    return look;
}

MvCalendarDocument document(int months)
{
    MvCalendarDocument calendar;
    calendar.setAppearance(appearance(u"MONTH_GRID_CLASSIC"_s, u"PAPER_WHITE"_s));
    calendar.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    return calendar;
}

/// The canvas alone, as large as the window: a page of a usual month with holidays and entries.
struct Canvas
{
    Canvas()
    {
        project.newProject(document(12));
        canvas = std::make_unique<MvPageCanvas>(&project);
        canvas->resize(windowSize);
        canvas->setCurrentPage(4);
        canvas->show();
        QApplication::processEvents();
        pixels = QPixmap(windowSize);
        repaint();
    }

    void repaint() { canvas->QWidget::render(&pixels); }
    /// From the user's choice to the pixels.
    void show(const MvCalendariumAppearance &look)
    {
        MvCalendarDocument changed = project.document();
        changed.setAppearance(look);
        project.change(changed, u"Aussehen"_s);
        canvas->pageItem()->refreshNow();
        repaint();
    }

    MvProject project;
    std::unique_ptr<MvPageCanvas> canvas;
    QPixmap pixels;
};

void straightRepaint(benchmark::State &state)
{
    Canvas open;
    const QTransform toPixels = open.canvas->viewportTransform();
    for (auto _ : state) {
        QPainter painter(&open.pixels);
        painter.fillRect(open.pixels.rect(), Qt::white);
        painter.setTransform(toPixels);
        open.canvas->pageItem()->recording().replay(painter);
    }
}
BENCHMARK(straightRepaint)->Unit(benchmark::kMillisecond);

void hoverRepaint(benchmark::State &state)
{
    Canvas open;
    for (auto _ : state)
        open.repaint();
}
BENCHMARK(hoverRepaint)->Unit(benchmark::kMillisecond);

template <class Next>
void alternate(benchmark::State &state, Next next)
{
    Canvas open;
    bool other = false;
    for (auto _ : state) {
        other = !other;
        open.show(next(open.project.document().appearance(), other));
        MvUndoController::instance().clear();
    }
}

void switchLayout(benchmark::State &state)
{
    alternate(state, [](const MvCalendariumAppearance & /*now*/, bool other) {
        return appearance(other ? u"FAMILY_PLANNER"_s : u"MONTH_GRID_LINES"_s, u"PAPER_WHITE"_s);
    });
}
BENCHMARK(switchLayout)->Unit(benchmark::kMillisecond);

void switchColors(benchmark::State &state)
{
    alternate(state, [](MvCalendariumAppearance now, bool other) {
        now.setColorSchemaById(MvCalendariumColorSchemaID(other ? u"NIGHT"_s : u"SPRING"_s));
        return now;
    });
}
BENCHMARK(switchColors)->Unit(benchmark::kMillisecond);

/// A size that no text had before, so that no outline is found ready.
void switchFont(benchmark::State &state)
{
    int size = 0;
    alternate(state, [&size](MvCalendariumAppearance now, bool other) {
        size = (size + 1) % 90;
        now.setFontSettings({other ? u"EB Garamond"_s : u"Lato"_s, size - 45, -50, QFont::Normal, QFont::MixedCase, 0});
        return now;
    });
}
BENCHMARK(switchFont)->Unit(benchmark::kMillisecond);

/// 24 months from the file to a painted window. Thumbnails arrive after; what one of them takes at most is reported as
/// "slice" in milliseconds.
void openTwoYears(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QFileInfo file(folder.filePath(u"kalender.xml"_s));
    {
        MvProject project;
        project.newProject(document(24));
        project.saveAs(file);
    }
    double slice = 0.0;
    double all = 0.0;
    for (auto _ : state) {
        MvProject project;
        project.open(file);
        MvStudioWindow window(&project);
        window.resize(windowSize);
        window.show();
        benchmark::DoNotOptimize(window.grab());
        state.PauseTiming();
        const auto *strip = window.findChild<MvPageStrip *>();
        QElapsedTimer clock;
        QElapsedTimer total;
        total.start();
        while (!strip->isComplete()) {
            clock.start();
            QApplication::processEvents();
            slice = std::max(slice, double(clock.nsecsElapsed()) / 1e6);
        }
        all = double(total.nsecsElapsed()) / 1e6;
        state.ResumeTiming();
    }
    state.counters["slice"] = slice;
    state.counters["thumbnails"] = all;
}
BENCHMARK(openTwoYears)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setStyle(u"Fusion"_s);
    fillRegistry();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
