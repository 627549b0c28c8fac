// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoPoolIntake.h"

#include "MvCore/MvBackground.h"
#include "MvFoto/MvFotoFacts.h"
#include "MvFoto/MvImageLoader.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvFotoFiles.h"
#include "MvProject/MvFotoFocus.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QThread>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Reason = MvFotoPoolIntake::Reason;
using Skipped = MvFotoPoolIntake::Skipped;

constexpr int longestName = 60;
constexpr int mostThreads = 3; // more would only compete for memory

/// What came of one file: an item or a reason.
struct Taken
{
    std::optional<MvFotoPoolItem> item;
    Skipped skipped;
};

Taken take(const QFileInfo &file)
{
    const QString path = file.absoluteFilePath();
    const MvFotoFacts facts = MvFotoFacts::of(file);
    if (facts.format.isEmpty()) {
        const bool isReadable = QFileInfo(path).isFile() && QFileInfo(path).isReadable();
        return {{}, {path, isReadable ? Reason::NoFoto : Reason::Closed, facts.error}};
    }
    if (!facts.isValid())
        return {{}, {path, Reason::Broken, facts.error}};
    const QSize small = facts.size.boundedTo({MvFotoFocus::side, MvFotoFocus::side});
    const QImage image = MvImageLoader::instance().loadUncached(file, small);
    if (image.isNull())
        return {{}, {path, Reason::Broken, MvImageLoader::instance().error(file)}};
    const MvFotoFocus::Found found = MvFotoFocus::in(image);
    return {MvFotoPoolItem{path, facts.size, facts.captured, found.point, found.interest}, {}};
}

/// Has several threads take the files, and this one wait for them. Files that were not reached have neither item nor
/// path.
std::vector<Taken> takeAll(const QList<QFileInfo> &files, const MvFotoPoolIntake::GoOn &goOn,
                           std::atomic_bool &isGivenUp)
{
    std::vector<Taken> taken(size_t(files.size()));
    std::atomic_int next = 0;
    QMutex mutex; // for what follows
    int done = 0;
    const auto work = [&] {
        for (int number = next++; number < files.size() && !isGivenUp; number = next++) {
            taken[size_t(number)] = take(files[number]);
            const QMutexLocker lock(&mutex);
            ++done;
            if (goOn && !isGivenUp && !goOn(done, int(files.size())))
                isGivenUp = true;
        }
    };
    QThreadPool threads;
    threads.setMaxThreadCount(std::clamp(QThread::idealThreadCount() - 1, 1, mostThreads));
    for (int thread = 0; thread < threads.maxThreadCount(); ++thread)
        MvBackground::start(threads, work);
    threads.waitForDone();
    return taken;
}

} // namespace

QString MvFotoPoolIntake::Skipped::toString() const
{
    return MvFotoPoolIntake::tr("%1: %2").arg(MvPrintableText::inShort(QFileInfo(path).fileName(), longestName), why);
}

QStringList MvFotoPoolIntake::Result::toStrings(int mostLines) const
{
    QStringList lines;
    int others = 0;
    for (const Skipped &file : skipped) {
        if (file.reason == Reason::NoFoto)
            ++others;
        else if (lines.size() < mostLines)
            lines.append(file.toString());
    }
    const qsizetype unnamed = skipped.size() - others - lines.size();
    if (unnamed > 0)
        lines.append(MvFotoPoolIntake::tr("… und %n weitere", nullptr, int(unnamed)));
    if (others > 0)
        lines.append(MvFotoPoolIntake::tr("%n Dateien sind keine Fotos.", nullptr, others));
    if (known > 0)
        lines.append(tr("%n Fotos waren schon da.", nullptr, known));
    if (isCutShort)
        lines.append(tr("Mehr als %1 Dateien auf einmal werden nicht genommen. Wählen Sie kleinere Ordner.")
                         .arg(MvFotoPoolIntake::mostFiles));
    return lines;
}

MvFotoPoolIntake::Result MvFotoPoolIntake::gather(const QStringList &paths, const QStringList &known, const GoOn &goOn)
{
    std::atomic_bool isGivenUp = false;
    MvFotoFiles found(known, [&] {
        isGivenUp = isGivenUp || (goOn && !goOn(0, 0));
        return !isGivenUp;
    });
    for (const QString &path : paths)
        found.add(path);
    Result result;
    MvFotoPool pool;
    for (const Taken &taken : takeAll(found.files, goOn, isGivenUp)) {
        if (taken.item)
            pool.add(*taken.item);
        else if (!taken.skipped.path.isEmpty())
            result.skipped.append(taken.skipped);
    }
    result.skipped += found.skipped;
    std::stable_sort(result.skipped.begin(), result.skipped.end(),
                     [](const Skipped &a, const Skipped &b) { return a.path < b.path; });
    pool.sort(MvFotoPool::Order::Time);
    result.items = pool.items();
    result.known = found.known;
    result.isCancelled = isGivenUp;
    result.isCutShort = found.isCutShort;
    return result;
}

MvFotoPoolIntake::MvFotoPoolIntake(QObject *parent)
    : QObject(parent)
    , m_isGivenUp(std::make_shared<std::atomic_bool>(false))
{
    m_pool.setMaxThreadCount(1);
}

MvFotoPoolIntake::~MvFotoPoolIntake()
{
    cancel();
    m_pool.waitForDone();
}

void MvFotoPoolIntake::start(const QStringList &paths, const MvFotoPool &pool)
{
    ++m_running;
    MvBackground::start(m_pool, [this, paths, known = pool.paths(), isGivenUp = m_isGivenUp] {
        const Result result = gather(paths, known, [this, isGivenUp](int done, int all) {
            if (*isGivenUp)
                return false; // the object may be waiting for this to end
            if (all > 0)
                QMetaObject::invokeMethod(this, [this, done, all] { Q_EMIT progressed(done, all); });
            return true;
        });
        QMetaObject::invokeMethod(this, [this, result] {
            --m_running;
            Q_EMIT finished(result);
        });
    });
}

void MvFotoPoolIntake::cancel()
{
    *m_isGivenUp = true;
    m_isGivenUp = std::make_shared<std::atomic_bool>(false); // for what is begun from now on
}
