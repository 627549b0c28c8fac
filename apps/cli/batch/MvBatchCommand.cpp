// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchCommand.h"

#include "MvBatchInputs.h"
#include "MvBatchPool.h"
#include "MvBatchProgress.h"
#include "MvBatchReport.h"
#include "plain/MvCliValues.h"

#include <QSet>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostWorkers = 256;
constexpr int mostSeconds = 7 * 24 * 3600;
constexpr int leastMegabytes = 64;
constexpr int mostMegabytes = 1 << 20;

} // namespace

QString MvBatchCommand::summary() const
{
    return tr("druckt viele Kalender, je Zeile einer Auftragsliste einen");
}

QList<MvCliOption> MvBatchCommand::options() const
{
    return {
        {u"list"_s, tr("DATEI"),
         tr("die Aufträge, je Zeile ein JSON-Objekt mit Optionen von render: {\"id\": \"4711\", \"year\": 2027, "
            "\"region\": \"BY\", \"output\": \"4711.pdf\"}; - ist die Standardeingabe; --list kann wegbleiben"),
         false, true},
        {u"jobs"_s, tr("ZAHL"), tr("so viele Kalender zugleich (je Kern einen)")},
        {u"report"_s, tr("DATEI"),
         tr("Bericht, je Kalender eine Zeile JSON (Standardausgabe); ein zweiter Lauf mit derselben Datei lässt aus, "
            "was "
            "fertig und unverändert ist")},
        {u"time-limit"_s, tr("SEKUNDEN"), tr("wer länger braucht, wird abgebrochen (%1)").arg(MvBatchLimits().seconds)},
        {u"memory-limit"_s, u"MB"_s,
         tr("wer mehr Speicher braucht, wird abgebrochen (%1)").arg(MvBatchLimits().megabytes)},
        {u"shard"_s, u"K/N"_s, tr("nur den K-ten von N Teilen der Liste, für mehrere Rechner")}};
}

QStringList MvBatchCommand::examples() const
{
    return {u"batch auftraege.jsonl --report bericht.jsonl"_s,
            u"batch auftraege.jsonl --jobs 8 --time-limit 120 --report bericht.jsonl"_s,
            u"batch auftraege.jsonl --shard 3/50 --report bericht-3.jsonl"_s};
}

MvCliCommand::Result MvBatchCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const int workers = values.number(u"jobs"_s, 1, mostWorkers, qBound(1, QThread::idealThreadCount(), mostWorkers));
    const MvBatchLimits limits{
        values.number(u"time-limit"_s, 1, mostSeconds, MvBatchLimits().seconds),
        values.number(u"memory-limit"_s, leastMegabytes, mostMegabytes, MvBatchLimits().megabytes)};
    const auto shard =
        values.has(u"shard"_s) ? MvBatchList::Shard::fromText(values.text(u"shard"_s)) : MvBatchList::Shard{};
    if (!shard.isValid())
        values.setError(tr("--shard „%1“: erlaubt sind Teile wie 1/8 bis 8/8").arg(values.text(u"shard"_s)));
    if (!values.has(u"list"_s))
        values.setError(tr("es fehlt die Liste der Aufträge: mvcalendar batch auftraege.jsonl"));
    if (!values.isOk())
        return misused(values.error());
    const MvBatchList list = MvBatchList::read(values.text(u"list"_s));
    if (!list.isOk())
        return failed(list.error);
    MvBatchReport report;
    if (const MvOutcome opened = report.open(values.text(u"report"_s)); !opened.isOk())
        return failed(opened.error);

    Plan todo = plan(list, shard, report);
    using Detail = MvBatchProgress::Detail;
    const Detail usual = streams.progress ? Detail::EveryCalendar : Detail::Usual;
    QTextStream &progressStream = streams.err ? *streams.err : streams.hints;
    MvBatchProgress progress(progressStream, todo.tasks.size() + todo.refused.size(),
                             streams.isQuiet ? Detail::FailuresAlone : usual);
    QSet<int> done; // lines
    QString broken; // why the report cannot be written
    const auto add = [&](const MvBatchResult &result) {
        done.insert(result.line);
        progress.add(result, todo.places.value(result.line));
        if (broken.isEmpty())
            broken = report.add(result).error;
        return broken.isEmpty();
    };
    for (const MvBatchResult &result : todo.refused)
        add(result);
    MvBatchPool pool(limits, workers, add);
    if (broken.isEmpty())
        pool.run(todo.tasks);
    progress.finish();
    for (const MvBatchWorker::Task &task : std::as_const(todo.tasks)) {
        if (!done.contains(task.job.line))
            todo.others.insert(task.fingerprint, task.job.line);
    }
    if (broken.isEmpty())
        broken = report.finish(todo.others).error;
    return broken.isEmpty() ? judge(progress, todo, pool.isInterrupted()) : failed(broken);
}

MvBatchCommand::Plan MvBatchCommand::plan(const MvBatchList &list, const MvBatchList::Shard &shard,
                                          const MvBatchReport &report)
{
    Plan plan;
    for (qsizetype i = 0; i < list.jobs.size(); ++i) {
        const MvBatchJob &job = list.jobs[i];
        const QString fingerprint = job.error.isEmpty() ? MvBatchInputs::fingerprint(job.options) : QString();
        if (!shard.has(i)) {
            plan.others.insert(fingerprint, job.line);
            continue;
        }
        plan.places.insert(job.line, list.placeOf(job));
        if (job.error.isEmpty())
            plan.tasks.append({job, fingerprint, report.known(fingerprint)});
        else
            plan.refused.append({job.line, job.id, MvBatchResult::State::Refused, job.error.simplified(), {}});
    }
    return plan;
}

MvCliCommand::Result MvBatchCommand::judge(const MvBatchProgress &progress, const Plan &plan, bool isInterrupted)
{
    const qsizetype all = plan.tasks.size() + plan.refused.size();
    if (isInterrupted)
        return {
            Interrupted,
            tr("unterbrochen nach %1 von %2 Kalendern; derselbe Aufruf macht weiter").arg(progress.done()).arg(all)};
    if (progress.failed() > 0)
        return failed(tr("%1 von %2 Kalendern sind nicht gemacht").arg(progress.failed()).arg(all));
    return {};
}
