#include "MvCalendar/MvCalendarEventFotoFolder.h"

#include "MvCore/MvDiskAccessRequest.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Tells photos that are to be copied from those of the photo folder. Asks for the folder, which is made when missing,
/// only when there is a photo, and then once.
class Elsewhere
{
public:
    bool holds(const MvFoto &foto)
    {
        if (!foto.mayBeOpened())
            return false;
        if (m_folder.isEmpty())
            m_folder = MvCalendarEvent::imageDirectory().absolutePath() + u'/';
        const QString path = foto.localFilePath();
        const bool isInFolder = path.startsWith(m_folder) && path.indexOf(u'/', m_folder.size()) < 0;
        return !isInFolder && QFileInfo(path).isFile();
    }

private:
    QString m_folder;
};

} // namespace

MvCalendarEventFotoFolder::Source MvCalendarEventFotoFolder::sourceOf(const MvFoto &foto)
{
    const QFileInfo file = foto.localFileInfo();
    return {foto.localFilePath(), file.lastModified().toMSecsSinceEpoch(), file.size()};
}

MvCalendarEventFotoFolder::Outcome MvCalendarEventFotoFolder::copied(const MvFoto &foto)
{
    MvCalendarEvent event;
    Outcome outcome;
    if (event.takeFoto(foto, &outcome.error))
        outcome.copy = event.foto();
    return outcome;
}

/// Copies come and go with the folder; what could not be copied may well be when there is room again.
bool MvCalendarEventFotoFolder::isKnown(const Source &source) const
{
    const auto known = m_outcomes.constFind(source);
    return known != m_outcomes.cend() && known->copy.isValid() && known->copy.localFileInfo().isFile();
}

MvCalendarEventList MvCalendarEventFotoFolder::withOwnCopies(const MvCalendarEventList &events)
{
    Elsewhere elsewhere;
    MvCalendarEventList own = events;
    QStringList errors;
    bool hasFailed = false;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const MvFoto foto = events.at(i).foto();
        if (!elsewhere.holds(foto))
            continue;
        const Source source = sourceOf(foto);
        const bool isTriedInVain = m_outcomes.contains(source) && hasFailed; // a full disk is full for all of them
        if (!isKnown(source) && !isTriedInVain)
            m_outcomes.insert(source, copied(foto));
        const Outcome outcome = m_outcomes.value(source);
        hasFailed = hasFailed || !outcome.copy.isValid();
        if (outcome.copy.isValid()) {
            own[i].setFoto(outcome.copy);
        } else if (!m_told.contains(source)) {
            m_told.insert(source);
            errors.append(outcome.error);
        }
    }
    MvDiskAccessRequest::instance().takeFotosFailed(errors);
    return own;
}

void MvCalendarEventFotoFolder::prepare(const MvCalendarEventList &events, QObject *receiver,
                                        const std::function<void()> &use)
{
    Elsewhere elsewhere;
    QHash<Source, MvFoto> fotos;
    for (const MvCalendarEvent &event : events) {
        if (!elsewhere.holds(event.foto()))
            continue;
        const Source source = sourceOf(event.foto());
        if (!isKnown(source))
            fotos.insert(source, event.foto());
    }
    if (fotos.isEmpty()) {
        use();
        return;
    }
    auto *watcher = new QFutureWatcher<Outcomes>(receiver);
    QObject::connect(watcher, &QFutureWatcherBase::finished, receiver, [this, watcher, use] {
        watcher->deleteLater();
        m_outcomes.insert(watcher->result());
        use();
    });
    const auto promise = std::make_shared<QPromise<Outcomes>>();
    promise->start();
    watcher->setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, fotos] {
        Outcomes outcomes;
        for (auto it = fotos.begin(); it != fotos.end(); ++it)
            outcomes.insert(it.key(), copied(it.value()));
        promise->addResult(outcomes);
        promise->finish();
    });
}

void MvCalendarEventFotoFolder::removeAllBut(const MvCalendarEventList &events)
{
    QSet<QString> used; // under every name: the user's folder may be reached through links
    for (const MvCalendarEvent &event : events) {
        if (!event.foto().isValid())
            continue;
        used.insert(event.imagePath().absoluteFilePath());
        used.insert(event.imagePath().canonicalFilePath());
    }
    const QFileInfoList files = MvCalendarEvent::imageDirectory().entryInfoList(QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        if (!used.contains(file.absoluteFilePath()) && !used.contains(file.canonicalFilePath()))
            QFile::remove(file.absoluteFilePath());
    }
}
