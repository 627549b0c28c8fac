// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchWorker.h"

#include "MvBatchInputs.h"
#include "MvBatchUsage.h"
#include "MvInterruption.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvRenderCommand.h"
#include "plain/MvProgram.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMutex>
#include <QTextStream>

#include <cerrno>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// So many are made before what they have left is forgotten: shaping what all have in common anew takes as long as a
/// page, and what each has of its own adds up.
constexpr int calendarsOfAGeneration = 200;

/// What the libraries say while a calendar is made, from any thread.
class Messages
{
public:
    static void begin()
    {
        const QMutexLocker locker(&mutex);
        lines.clear();
        usual = usual ? usual : qInstallMessageHandler(take);
    }
    static QStringList all()
    {
        const QMutexLocker locker(&mutex);
        return lines;
    }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const bool isOfOurs = !context.category || qstrcmp(context.category, "default") == 0;
        if (type != QtWarningMsg || !isOfOurs) {
            usual(type, context, text);
            return;
        }
        if (MvProgram::isNoise(text))
            return;
        const QMutexLocker locker(&mutex);
        if (!lines.contains(text.simplified()))
            lines.append(text.simplified());
    }

    static inline QMutex mutex;
    static inline QStringList lines;
    static inline QtMessageHandler usual = nullptr;
};

/// Lines from a descriptor; a signal ends the waiting.
class Lines
{
public:
    bool next(QByteArray *line)
    {
        while (!m_rest.contains('\n')) {
            char piece[65536];
            const ssize_t count = MvInterruption::isAsked() ? 0 : ::read(STDIN_FILENO, piece, sizeof piece);
            if (count < 0 && errno == EINTR)
                continue;
            if (count <= 0)
                return false;
            m_rest.append(piece, count);
        }
        const qsizetype end = m_rest.indexOf('\n');
        *line = m_rest.left(end);
        m_rest.remove(0, end + 1);
        return true;
    }

private:
    QByteArray m_rest;
};

bool writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t count = ::write(descriptor, bytes.constData() + done, size_t(bytes.size() - done));
        if (count < 0 && errno != EINTR)
            return false;
        done += qMax<ssize_t>(count, 0);
    }
    return true;
}

/// Of the photos only those that somebody should look at.
QJsonArray coarse(const QJsonArray &fotos)
{
    QJsonArray found;
    for (const auto &foto : fotos) {
        if (foto.toObject().value(u"quality"_s).toString() != u"good"_s)
            found.append(foto);
    }
    return found;
}

QStringList paths(const QJsonArray &files)
{
    QStringList paths;
    for (const auto &file : files)
        paths.append(file.toString());
    return paths;
}

} // namespace

QByteArray MvBatchWorker::Task::toLine() const
{
    QJsonObject task{
        {u"line"_s, job.line}, {u"id"_s, job.id}, {u"options"_s, job.options}, {u"fingerprint"_s, fingerprint}};
    if (known)
        task.insert(u"known"_s, known->toJson());
    return QJsonDocument(task).toJson(QJsonDocument::Compact) + '\n';
}

MvBatchWorker::Task MvBatchWorker::Task::fromLine(const QByteArray &line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    Task task;
    task.job.line = object.value(u"line"_s).toInt();
    task.job.id = object.value(u"id"_s).toString();
    task.job.options = object.value(u"options"_s).toObject();
    task.fingerprint = object.value(u"fingerprint"_s).toString();
    if (object.contains(u"known"_s))
        task.known = MvBatchResult::fromJson(object.value(u"known"_s).toObject());
    return task;
}

MvCliCommand::ExitCode MvBatchWorker::run()
{
    MvInterruption::watch(MvInterruption::Again::ChangesNothing);
    const int answers = ::dup(STDOUT_FILENO);
    if (answers < 0 || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0) // whatever prints something cannot spoil an answer
        return MvCliCommand::Failed;
    Lines lines;
    QByteArray line;
    for (int done = 1; lines.next(&line); ++done) {
        if (!writeAll(answers, perform(Task::fromLine(line)).toLine()))
            return MvCliCommand::Failed;
        if (done % calendarsOfAGeneration == 0) // what names of other people measured is of no use any more
            MvTextOutlineCache::instance().clear();
    }
    ::close(answers);
    return MvCliCommand::Done;
}

MvBatchResult MvBatchWorker::perform(const Task &task)
{
    if (task.known && isThere(*task.known)) {
        MvBatchResult result = *task.known;
        result.line = task.job.line;
        result.id = task.job.id;
        result.state = MvBatchResult::State::Skipped;
        return result;
    }
    return render(task);
}

bool MvBatchWorker::isThere(const MvBatchResult &known)
{
    const QJsonArray files = known.facts.value(u"files"_s).toArray();
    QStringList results;
    for (const auto &file : files)
        results.append(file[u"path"_s].toString());
    return known.isComplete() && known.facts.contains(u"inputs"_s) && !files.isEmpty() &&
           MvBatchInputs::areUnchanged(files) &&
           MvBatchInputs::areUnchanged(known.facts.value(u"inputs"_s).toArray(), results);
}

MvBatchResult MvBatchWorker::render(const Task &task)
{
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    const MvBatchUsage usage;
    MvBatchResult result{task.job.line, task.job.id, MvBatchResult::State::Failed, {}, {}};
    Messages::begin();
    MvBatchJob::Call call = task.job.call();
    if (!call.arguments.has(u"jobs"_s))
        call.arguments.set(u"jobs"_s, u"1"_s, 0); // each worker has a core
    QString hintText;
    QString unsaid;
    QTextStream hints(&hintText);
    QTextStream out(&unsaid);
    MvRenderOutcome outcome;
    MvCliCommand::Result rendered{MvCliCommand::Misused, call.error};
    if (call.isOk())
        rendered = MvRenderCommand::render(call.arguments, {out, hints, nullptr, true}, outcome);
    hints.flush();

    result.reason = rendered.error.simplified();
    if (rendered.code == MvCliCommand::Done)
        result.state = MvBatchResult::State::Done;
    else if (rendered.code == MvCliCommand::Misused)
        result.state = MvBatchResult::State::Refused;
    else if (outcome.isInterrupted)
        result.state = MvBatchResult::State::Interrupted;
    result.facts = outcome.report;
    result.facts.insert(u"photos"_s, coarse(outcome.report.value(u"photos"_s).toArray()));
    result.facts.insert(u"pages"_s, outcome.pages);
    const QStringList results = paths(outcome.report.value(u"files"_s).toArray());
    result.facts.insert(u"files"_s, MvBatchInputs::digests(results));
    result.facts.insert(u"hints"_s,
                        QJsonArray::fromStringList(hintText.split(u'\n', Qt::SkipEmptyParts) + Messages::all()));
    if (result.isComplete()) {
        result.facts.insert(u"fingerprint"_s, task.fingerprint);
        const QStringList inputs = MvBatchInputs::of(call.arguments, outcome);
        if (!MvBatchInputs::anyWrittenSince(inputs, begin, results))
            result.facts.insert(u"inputs"_s, MvBatchInputs::digests(inputs, results));
    }
    const QJsonObject used = usage.toJson();
    for (auto value = used.constBegin(); value != used.constEnd(); ++value)
        result.facts.insert(value.key(), value.value());
    return result;
}
