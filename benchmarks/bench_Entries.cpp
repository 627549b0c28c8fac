// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBenchTurns.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventIndex.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryList.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvProcessTimeZone.h"
#include "MvCore/MvUndoController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTreeView>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <benchmark/benchmark.h>

// 10,000 entries: what an association keeps, far above any family.

static MvCalendarEventList manyEntries()
{
    MvCalendarEventList events;
    for (int i = 0; i < 10000; ++i) {
        events.append(MvCalendarEvent(QStringLiteral("Person Nummer %1").arg(i),
                                      QDate(1950, 1, 1).addDays(i).startOfDay(), true, MvFoto(), QUuid::createUuid(),
                                      QDateTime()));
    }
    return events;
}

static void writeEntries(benchmark::State &state)
{
    const MvCalendarEventList events = manyEntries();
    for (auto _ : state)
        benchmark::DoNotOptimize(MvCalendarEventFile::toBytes(events));
}
BENCHMARK(writeEntries)->Unit(benchmark::kMillisecond);

static void readEntries(benchmark::State &state)
{
    const QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("entries.xml")));
    if (!file.open(QIODevice::WriteOnly))
        return state.SkipWithError("no temporary file");
    file.write(MvCalendarEventFile::toBytes(manyEntries()));
    file.close();
    for (auto _ : state)
        benchmark::DoNotOptimize(MvCalendarEventFile::read(QFileInfo(file.fileName())).events.size());
}
BENCHMARK(readEntries)->Unit(benchmark::kMillisecond);

/// The same, as groups of several days that come back every other year.
static MvCalendarEventList manySpans()
{
    MvCalendarEventList events = manyEntries();
    MvEventRepetition repetition;
    repetition.rule = MvRecurrenceRule::parse(QStringLiteral("FREQ=YEARLY;INTERVAL=2")).rule;
    for (MvCalendarEvent &event : events) {
        event.setEndDate(event.dateTime().date().addDays(3));
        event.setGroups({events.groups().idOfName(QStringLiteral("Familie"))});
        event.setRepetition(repetition);
    }
    return events;
}

/// Beside reading each text of such a file as a stream, and keeping none.
static void load(benchmark::State &state, const MvCalendarEventList &events)
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("entries.xml"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return state.SkipWithError("no temporary file");
    file.write(MvCalendarEventFile::toBytes(events));
    file.close();
    const auto readAlone = [&path] {
        QFile plain(path);
        if (!plain.open(QIODevice::ReadOnly))
            return;
        QXmlStreamReader reader(&plain);
        while (!reader.atEnd()) {
            reader.readNext();
            benchmark::DoNotOptimize(reader.text().toString());
        }
    };
    const auto read = [&path] { benchmark::DoNotOptimize(MvCalendarEventFile::read(QFileInfo(path)).events.size()); };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({readAlone, read});
        state.counters["ms"] = times.at(1);
        state.counters["ratio"] = times.at(1) / times.at(0);
    }
}

static void loadList(benchmark::State &state)
{
    load(state, manyEntries());
}
BENCHMARK(loadList)->Unit(benchmark::kMillisecond)->Iterations(1);

static void loadSpans(benchmark::State &state)
{
    load(state, manySpans());
}
BENCHMARK(loadSpans)->Unit(benchmark::kMillisecond)->Iterations(1);

/// An undo step with one change among 10,000 entries, beside writing them all into a file as a stream.
static void changeOne(benchmark::State &state)
{
    const QTemporaryDir dir;
    MvDirectoryConfig::instance().setProgramDataDir(dir.path());
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setEvents(manyEntries());
    const MvCalendarEventList events = registry.activeEventList();
    const QString path = dir.filePath(QStringLiteral("plain.xml"));
    const auto writeAll = [&events, &path] {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            return;
        QXmlStreamWriter writer(&file);
        writer.setAutoFormatting(true);
        writer.writeStartDocument();
        writer.writeStartElement(QStringLiteral("CalendarEvents"));
        for (const MvCalendarEvent &event : events) {
            writer.writeStartElement(QStringLiteral("CalendarEvent"));
            for (const auto &[name, text] : event.fileTexts())
                writer.writeTextElement(name, text);
            writer.writeEndElement();
        }
        writer.writeEndDocument();
        file.commit();
    };
    int number = 0;
    const auto change = [&registry, &number] {
        const MvCalendarEvent before = registry.activeEventList().at(number);
        MvCalendarEvent after = before;
        after.setEventName(QStringLiteral("Anders %1").arg(number++));
        MvUndoController::instance().push(new MvUndoCommandCalendarEvent(before, after, nullptr));
    };
    for (auto _ : state) {
        const std::vector<double> times = MvBenchTurns().measure({writeAll, change});
        state.counters["ms"] = times.at(1);
        state.counters["ratio"] = times.at(1) / times.at(0);
    }
    MvUndoController::instance().clear();
}
BENCHMARK(changeOne)->Unit(benchmark::kMillisecond)->Iterations(1);

static void lookUpPage(benchmark::State &state)
{
    const MvCalendarEventIndex index(manyEntries());
    for (auto _ : state) {
        qsizetype letters = 0;
        for (int day = 0; day < 42; ++day) {
            index.visit(QDate(2026, 3, 1).addDays(day), [&letters](const MvCalendarEvent &event) {
                letters += event.description().size();
                return false;
            });
        }
        benchmark::DoNotOptimize(letters);
    }
}
BENCHMARK(lookUpPage)->Unit(benchmark::kMicrosecond);

/// As many entries, a tenth of them by rules; what falls into March is the same, however many there are.
static MvCalendarEventList entriesByRules(qsizetype count)
{
    MvCalendarEventList events;
    const auto add = [&events](const QDate &date, const QString &rule) {
        MvCalendarEvent event(QStringLiteral("Eintrag %1").arg(events.size()), date.startOfDay(), true, MvFoto(),
                              QUuid::createUuid(), QDateTime());
        MvEventRepetition repetition;
        if (!rule.isEmpty())
            repetition.rule = MvRecurrenceRule::parse(rule).rule;
        event.setRepetition(repetition);
        events.append(event);
    };
    for (int i = 0; i < 100; ++i)
        add(QDate(2020, 3, 1).addDays(i % 31), i % 10 ? QString() : QStringLiteral("FREQ=WEEKLY"));
    while (events.size() < count)
        add(QDate(2020, 4, 1).addDays(events.size() % 300),
            events.size() % 10 ? QString() : QStringLiteral("FREQ=DAILY;INTERVAL=9;BYMONTH=4,7,11"));
    return events;
}

static void lookUpMonth(benchmark::State &state)
{
    const MvCalendarEventIndex index(entriesByRules(state.range(0)));
    const auto lookUp = [&index] {
        qsizetype letters = 0;
        for (int day = 0; day < 31; ++day) {
            index.visit(QDate(2027, 3, 1).addDays(day), [&letters](const MvCalendarEvent &event) {
                letters += event.description().size();
                return false;
            });
        }
        return letters;
    };
    lookUp(); // evaluates the year, once
    for (auto _ : state)
        benchmark::DoNotOptimize(lookUp());
}
BENCHMARK(lookUpMonth)->Arg(100)->Arg(100000)->Unit(benchmark::kMicrosecond);

/// One step that removes or adds all entries by a command each, as the list of entries does it.
static void changeAll(const MvCalendarEventList &removed, const MvCalendarEventList &added)
{
    QList<MvEntryChange> changes;
    for (const MvCalendarEvent &event : removed)
        changes.append({event, {}});
    for (const MvCalendarEvent &event : added)
        changes.append({{}, event});
    MvEntryEdits().change(QStringLiteral("all"), QStringLiteral("all"), changes);
}

/// Counters: how many times as long as one setEvents() that nobody looks at each takes; the first is another such with
/// the list looking on, if it does, half of its rows chosen.
static void changeLists(benchmark::State &state)
{
    const bool isShown = state.range(1) != 0;
    const QTemporaryDir dir;
    MvDirectoryConfig::instance().setProgramDataDir(dir.path());
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    MvCalendarEventList events;
    events.append(manyEntries().mid(0, state.range(0)));
    std::unique_ptr<MvEntryList> list;
    QTreeView *table = nullptr;
    if (isShown) {
        list = std::make_unique<MvEntryList>();
        table = list->findChild<QTreeView *>();
        list->show();
    }
    const auto choose = [table] {
        if (!table)
            return;
        const QAbstractItemModel *model = table->model();
        const QModelIndex last = model->index(model->rowCount() / 2, model->columnCount() - 1);
        table->selectionModel()->select({model->index(0, 0), last}, QItemSelectionModel::ClearAndSelect);
    };
    qint64 once = 0;
    qint64 replacing = 0;
    qint64 loading = 0;
    qint64 clearing = 0;
    qint64 undoing = 0;
    const auto measured = [](const auto &work) {
        QElapsedTimer timer;
        timer.start();
        work();
        return timer.nsecsElapsed();
    };
    for (auto _ : state) {
        if (list)
            list->hide();
        registry.setEvents({});
        once += measured([&] { registry.setEvents(events); });
        registry.setEvents({});
        if (list)
            list->show();
        replacing += measured([&] { registry.setEvents(events); });
        choose();
        clearing += measured([&] { changeAll(events, {}); });
        undoing += measured([] { MvUndoController::instance().undo(); });
        choose();
        loading += measured([&] {
            changeAll(registry.activeEventList(), events);
            registry.save();
        });
        MvUndoController::instance().clear();
        QCoreApplication::processEvents();
    }
    state.counters["once_ms"] = double(once) / 1e6 / double(state.iterations());
    state.counters["replace"] = double(replacing) / double(once);
    state.counters["clear"] = double(clearing) / double(once);
    state.counters["undo"] = double(undoing) / double(once);
    state.counters["load"] = double(loading) / double(once);
}
BENCHMARK(changeLists)->ArgsProduct({{1000, 5000}, {0, 1}})->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    MvProcessTimeZone::askOnce();
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
