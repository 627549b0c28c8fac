// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageFiles.h"

#include "MvCore/MvSafeFileWriter.h"
#include "MvProject/MvExportObserver.h"
#include "MvProject/MvPageTask.h"

#include <QThread>

#include <algorithm>
#include <deque>
#include <future>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostJobs = 4; // each holds a page in pixels: 35 MB of A4 at 300 dpi

/// The pages between recording and writing, first in, first out.
class Encoders
{
public:
    Encoders(int jobs, const MvPageFiles::Encode &encode)
        : m_jobs(jobs)
        , m_encode(encode)
    {}

    bool isFull() const { return int(m_waiting.size()) >= m_jobs; }
    bool isEmpty() const { return m_waiting.empty(); }

    void put(const MvPaintRecording &recording)
    {
        const auto task = [encode = m_encode, recording] { return encode(recording); };
        m_waiting.push_back(m_jobs == 1 ? std::async(std::launch::deferred, task) : MvPageTask::begin(task));
    }
    /// Waits for the first.
    MvPageFiles::Content take()
    {
        const MvPageFiles::Content content = m_waiting.front().get();
        m_waiting.pop_front();
        return content;
    }

private:
    int m_jobs;
    MvPageFiles::Encode m_encode;
    std::deque<std::future<MvPageFiles::Content>> m_waiting;
};

/// The next file of the result, unless the observer has had enough.
void writeNext(const QStringList &paths, const MvPageFiles::Content &content, MvExportObserver *observer,
               MvExportResult &result)
{
    result.isCancelled = observer && observer->isCancelled();
    if (result.isCancelled)
        return;
    const QFileInfo file(paths[result.files.size()]);
    QString error = content.error;
    if (error.isEmpty())
        error = MvSafeFileWriter::write(file, content.bytes, MvSafeFileWriter::Backups::None).error;
    if (!error.isEmpty()) {
        result.error = u"%1: %2"_s.arg(file.filePath(), error);
        return;
    }
    result.files.append(file);
    if (observer)
        observer->pagesDone(int(result.files.size()), int(paths.size()));
}

} // namespace

int MvPageFiles::defaultJobs()
{
    return std::clamp(QThread::idealThreadCount(), 1, mostJobs);
}

MvExportResult MvPageFiles::write(const QStringList &paths, int jobs, const Record &record, const Encode &encode,
                                  MvExportObserver *observer)
{
    MvExportResult result;
    Encoders encoders(jobs > 0 ? jobs : defaultJobs(), encode);
    for (int page = 0; page < paths.size() && result.isOk(); ++page) {
        encoders.put(record(page));
        if (encoders.isFull())
            writeNext(paths, encoders.take(), observer, result);
    }
    while (!encoders.isEmpty() && result.isOk())
        writeNext(paths, encoders.take(), observer, result);
    return result;
}
