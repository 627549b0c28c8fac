// SPDX-License-Identifier: LGPL-2.1-or-later
// A batch of a thousand calendars in one worker: the processors' time of each, with reading the list, hashing and
// reporting, beside the same calendar printed in a process that does nothing else and is warm; and the memory of the
// worker after all of them beside that after a hundred.

#include "MvCore/MvInitializer.h"
#include "MvCore/MvProcessMemory.h"
#include "MvRenderCommand.h"
#include "batch/MvBatchJob.h"

#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int calendars = 1000;
constexpr int early = 100;

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s cannot be written", qPrintable(path));
}

QByteArray order(const QString &folder, int number)
{
    return QJsonDocument(QJsonObject{{u"id"_s, number},
                                     {u"year"_s, 2027},
                                     {u"region"_s, u"BY"_s},
                                     {u"entries"_s, u"%1/%2.csv"_s.arg(folder).arg(number)},
                                     {u"output"_s, u"%1/%2.pdf"_s.arg(folder).arg(number)}})
        .toJson(QJsonDocument::Compact);
}

/// Calendars with entries of their own, as those of different people.
void writeOrders(const QString &folder)
{
    QByteArray list;
    for (int number = 0; number < calendars; ++number) {
        list += order(folder, number) + '\n';
        QString entries = u"Name;Datum\n"_s;
        for (int i = 0; i < 30; ++i)
            entries += u"Person %1-%2;%3.%4.%5\n"_s.arg(number).arg(i).arg(i % 28 + 1).arg(i % 12 + 1).arg(1950 + i);
        write(u"%1/%2.csv"_s.arg(folder).arg(number), entries.toUtf8());
    }
    write(folder + u"/orders.jsonl"_s, list);
}

double seconds(int whose)
{
    rusage usage = {};
    ::getrusage(whose, &usage);
    const auto inSeconds = [](const timeval &time) { return double(time.tv_sec) + 1e-6 * double(time.tv_usec); };
    return inSeconds(usage.ru_utime) + inSeconds(usage.ru_stime);
}

/// The processors' time of one calendar here.
double renderOne(const QString &folder, int number)
{
    MvCliArguments call = MvBatchJob::fromLine(order(folder, number), 1).call().arguments;
    call.set(u"jobs"_s, u"1"_s, 0);
    QString said;
    QTextStream stream(&said);
    MvRenderOutcome outcome;
    const double before = seconds(RUSAGE_SELF);
    if (MvRenderCommand::render(call, {stream, stream, nullptr, true}, outcome).code != MvCliCommand::Done)
        qFatal("%s", qPrintable(said));
    return seconds(RUSAGE_SELF) - before;
}

/// A hundred, whose texts nobody has seen before, as in the batch.
void renderSome(const QString &folder, int first, std::vector<double> &times)
{
    for (int number = first; number < first + early; ++number)
        times.push_back(renderOne(folder, number));
}

double memoryAfter(const QString &report, int count)
{
    QFile file(report);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no report");
    const QByteArray line = file.readAll().split('\n').value(count - 1);
    return QJsonDocument::fromJson(line).object().value(u"memory"_s).toDouble();
}

void thousandCalendars(benchmark::State &state)
{
    const QTemporaryDir folder;
    writeOrders(folder.path());
    for (auto _ : state) {
        std::vector<double> alone;
        renderSome(folder.path(), 0, alone);
        alone.clear(); // only now it is warm
        renderSome(folder.path(), early, alone);
        const double before = seconds(RUSAGE_CHILDREN);
        QProcess batch;
        batch.start(QStringLiteral(MV_PROGRAM), {u"batch"_s, u"-j1"_s, u"-q"_s, folder.filePath(u"orders.jsonl"_s),
                                                 u"--report"_s, folder.filePath(u"report.jsonl"_s)});
        if (!batch.waitForFinished(-1) || batch.exitCode() != 0)
            qFatal("%s", batch.readAllStandardError().constData());
        const double each = (seconds(RUSAGE_CHILDREN) - before) / calendars;
        renderSome(folder.path(), 2 * early, alone);
        std::nth_element(alone.begin(), alone.begin() + early, alone.end());
        state.counters["each_ms"] = 1000.0 * each;
        state.counters["ratio"] = each / alone[early];
        const QString report = folder.filePath(u"report.jsonl"_s);
        state.counters["memory_ratio"] = memoryAfter(report, calendars) / memoryAfter(report, early);
        QFile::remove(report);
    }
}
BENCHMARK(thousandCalendars)->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    MvProcessMemory::giveBackAtOnce(); // as the program
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
