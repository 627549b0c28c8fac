#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventIndex.h"

#include <QTemporaryDir>

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

BENCHMARK_MAIN();
