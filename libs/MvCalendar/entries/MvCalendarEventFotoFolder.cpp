// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFotoFolder.h"

#include "MvCalendar/MvCalendarEventFotoCopy.h"
#include "MvCalendar/MvCalendarEventFotoSweep.h"
#include "MvFoto/MvFotoBin.h"
#include "MvFoto/MvFotoService.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvLogger.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QDir presentFolder() // it may not exist
{
    return QDir(
        MvDirectoryConfig::instance().programDataDir().filePath(MvCalendarEvent::imageDirectoryName.toString()));
}

/// The photos of one list. Asks for the folder, which is made when missing, only when there is a photo, and then once.
class Fotos
{
public:
    explicit Fotos(const MvCalendarEventFotoFolder::StaysThere &staysThere)
        : m_staysThere(staysThere)
    {}

    /// Whether the photo is to be copied.
    bool isElsewhere(const MvFoto &foto)
    {
        if (!foto.mayBeOpened())
            return false;
        const QString path = foto.localFilePath();
        const bool isInFolder = path.startsWith(folder()) && path.indexOf(u'/', folder().size()) < 0;
        if (isInFolder && m_inBin.contains(path.mid(folder().size())))
            MvCalendarEventFotoFolder::fetchBack(foto);
        return !isInFolder && !(m_staysThere && m_staysThere(path)) && QFileInfo(path).isFile();
    }

private:
    QString folder()
    {
        if (m_folder.isEmpty()) {
            const QDir folder = MvCalendarEvent::imageDirectory();
            m_folder = folder.absolutePath() + u'/';
            const QStringList inBin = MvFotoBin(folder).names();
            m_inBin = QSet<QString>(inBin.cbegin(), inBin.cend());
        }
        return m_folder;
    }

    const MvCalendarEventFotoFolder::StaysThere &m_staysThere;
    QString m_folder;
    QSet<QString> m_inBin;
};

/// Everything that may be a list of entries of the user's: the file itself, backups, what was set aside, copies of a
/// writing that was not finished, calendars that were not saved.
QFileInfoList userFiles()
{
    const QDir folder = MvDirectoryConfig::instance().programDataDir();
    QFileInfoList files;
    QDirIterator unfinished(folder.filePath(u"unfinished"_s), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (unfinished.hasNext())
        files.append(unfinished.nextFileInfo());
    const QFileInfoList unsaved =
        QDir(folder.filePath(u"recovery"_s)).entryInfoList({u"*.mvcalendar"_s}, QDir::Files | QDir::Hidden);
    files += unsaved;
    const QString place = folder.filePath(u"calendarEvents.xml"_s);
    const QSet<QString> places{place, QFileInfo(place).canonicalFilePath()}; // a link has its backups at its target
    for (const QString &file : places) {
        const QString names = QFileInfo(file).completeBaseName() + u'*';
        if (!file.isEmpty())
            files += QFileInfo(file).dir().entryInfoList({names}, QDir::Files | QDir::Hidden);
    }
    return files;
}

} // namespace

MvCalendarEventFotoFolder::MvCalendarEventFotoFolder()
    : m_use(presentFolder())
    , m_outcomes(std::make_shared<Outcomes>())
{}

MvCalendarEventFotoFolder::Source MvCalendarEventFotoFolder::sourceOf(const MvFoto &foto)
{
    const QFileInfo file = foto.localFileInfo();
    return {foto.localFilePath(), file.lastModified().toMSecsSinceEpoch(), file.size()};
}

/// Copies come and go with the folder: one that went into the bin with an undone step comes back with the step. What
/// could not be copied may well be when there is room again.
bool MvCalendarEventFotoFolder::isKnown(const Source &source) const
{
    const auto known = m_outcomes->constFind(source);
    return known != m_outcomes->cend() && known->isOk() &&
           (known->foto.localFileInfo().isFile() || fetchBack(known->foto));
}

MvCalendarEventList MvCalendarEventFotoFolder::withOwnCopies(const MvCalendarEventList &events,
                                                             const StaysThere &staysThere)
{
    Fotos list(staysThere);
    MvCalendarEventList own = events;
    QStringList errors;
    bool hasFailed = false;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const MvFoto foto = events.at(i).foto();
        if (!list.isElsewhere(foto))
            continue;
        const Source source = sourceOf(foto);
        const bool isTriedInVain = m_outcomes->contains(source) && hasFailed; // a full disk is full for all of them
        if (!isKnown(source) && !isTriedInVain)
            m_outcomes->insert(source, MvCalendarEventFotoCopy::of(foto));
        const MvCalendarEventFotoCopy::Copy outcome = m_outcomes->value(source);
        hasFailed = hasFailed || !outcome.isOk();
        if (outcome.isOk()) {
            own[i].setFoto(outcome.foto);
        } else if (!m_told.contains(source)) {
            m_told.insert(source);
            errors.append(outcome.error);
        }
    }
    m_use.begin(); // the folder may be new
    MvDiskAccessRequest::instance().takeFotosFailed(errors);
    return own;
}

void MvCalendarEventFotoFolder::prepare(const MvCalendarEventList &events, QObject *receiver,
                                        const std::function<void()> &use, const StaysThere &staysThere)
{
    Fotos list(staysThere);
    QHash<Source, MvFoto> fotos;
    for (const MvCalendarEvent &event : events) {
        if (!list.isElsewhere(event.foto()))
            continue;
        const Source source = sourceOf(event.foto());
        if (!isKnown(source))
            fotos.insert(source, event.foto());
    }
    if (fotos.isEmpty()) {
        use();
        return;
    }
    const auto left = std::make_shared<qsizetype>(fotos.size());
    for (auto it = fotos.begin(); it != fotos.end(); ++it) { // one by one: what is more urgent comes in between
        const auto copy = [outcomes = m_outcomes, left, use, source = it.key(), foto = it.value()] {
            return [outcomes, left, use, source, outcome = MvCalendarEventFotoCopy::of(foto)] {
                outcomes->insert(source, outcome);
                if (--*left == 0)
                    use();
            };
        };
        MvFotoService::instance().run(MvFotoService::Urgency::Background, receiver, copy);
    }
}

bool MvCalendarEventFotoFolder::fetchBack(const MvFoto &foto)
{
    const QFileInfo file = foto.localFileInfo();
    const QDir folder = presentFolder();
    return foto.mayBeOpened() && file.absolutePath() == folder.absolutePath() &&
           MvFotoBin(folder).fetchBack(file.fileName());
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
    const QDir folder = MvCalendarEvent::imageDirectory();
    const MvFotoBin bin(folder);
    const QFileInfoList files = folder.entryInfoList(QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files) {
        if (!used.contains(file.absoluteFilePath()) && !used.contains(file.canonicalFilePath()))
            bin.put(file.fileName(), QDate::currentDate());
    }
}

void MvCalendarEventFotoFolder::sweep(QObject *receiver, const std::function<QSet<QString>()> &inUse,
                                      const std::function<bool()> &mayGoOn)
{
    if (!presentFolder().exists() || !m_use.beginAlone())
        return;
    const auto look = [this, inUse, mayGoOn, folder = presentFolder(), lists = userFiles()] {
        auto plan = std::make_shared<MvCalendarEventFotoSweep>(folder); // null: something could not be read
        for (const QFileInfo &list : lists) {
            if (plan && !plan->keepNamesIn(list))
                plan.reset();
        }
        return [this, inUse, mayGoOn, plan] {
            if (plan && mayGoOn()) {
                for (const QString &name : inUse())
                    plan->keep(name);
                const int count = plan->run(QDateTime::currentDateTime());
                MvLogger::legacyLog(u"CalendarEvents ACTION:sweepFotos VALUE:%1"_s.arg(count));
            }
            m_use.endAlone();
        };
    };
    MvFotoService::instance().run(MvFotoService::Urgency::Background, receiver, look);
}
