// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventRegistry.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventStore.h"

#include "MvCore/MvBasisSettings.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvPlatformIndependent.h"
#include "MvCore/MvProactiveHelpController.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"
#include "MvProductBase/MvSVGImageRendererCache.h"

#include <QFile>

#include <utility>

template class MvSingleton<MvCalendarEventRegistry>;

using namespace Qt::StringLiterals;

const MvProjectIdentifier DEFAULT_PROJECT_ID(u"DEFAULT_START_CALENDAR_ID"_s, false);

namespace {

constexpr int importAdvice = 43;
constexpr double importAdviceDelay = 0.5;
constexpr int importAdviceHelpType = 4;

MvCalendarEventList validOnly(const MvCalendarEventList &events)
{
    MvCalendarEventList valid;
    for (const MvCalendarEvent &event : events) {
        if (event.isValid())
            valid.append(event);
    }
    return valid;
}

/// A photo that has gone to the bin comes back when it is to be shown.
bool isThere(const MvFoto &foto)
{
    return foto.mayBeOpened() && (foto.localFileInfo().isFile() || MvCalendarEventFotoFolder::fetchBack(foto));
}

MvCalendarEvent eventOf(const MvSimplePerson &person, const QString &temporaryPath)
{
    MvFoto foto;
    const QImage image = person.image();
    if (!image.isNull() && image.save(temporaryPath, "PNG"))
        foto = MvFoto(QFileInfo(temporaryPath));
    MvCalendarEvent event(person.name(), MvCalendarEvent::startOf(person.birthday()), true, MvFoto(), person.uuid(),
                          QDateTime::currentDateTime());
    QString error;
    if (!event.takeFoto(foto, &error)) // a birthday without its picture is better than none
        qWarning().noquote() << error;
    return event;
}

} // namespace

MvCalendarEventRegistry::MvCalendarEventRegistry()
    : m_activeModelId(DEFAULT_PROJECT_ID)
    , m_userFile(new MvCalendarEventStore(this))
    , m_keptProject(DEFAULT_PROJECT_ID)
{
    connect(m_userFile, &MvCalendarEventStore::eventsReplaced, this, &MvCalendarEventRegistry::replaceEvents);
    store(DEFAULT_PROJECT_ID, {});
    load();
}

MvCalendarEventRegistry::~MvCalendarEventRegistry() = default;

void MvCalendarEventRegistry::setupInstance()
{
    // artwork and texts that show entries are made anew after every change
    connect(this, &MvCalendarEventRegistry::eventsChanged, this, [] { MvSVGImageRendererCache::instance().clear(); });
    connect(this, &MvCalendarEventRegistry::eventsChanged, this,
            [] { MvSVGCompilerInstructionsCache::instance().clear(); });
}

// ---- what falls on a day

const MvCalendarEventIndex *MvCalendarEventRegistry::indexFor(const MvCalendariumContentConfig &config,
                                                              const MvProjectIdentifier &project) const
{
    if (!config.hasFeatures(MvCalendariumFeatures(FEATURE_ENTRIES)))
        return nullptr;
    finishWork();
    const auto found = m_lists.constFind(project);
    return found == m_lists.cend() ? nullptr : &*found;
}

template <class Function>
void MvCalendarEventRegistry::visit(const MvCalendariumContentConfig &config, const MvProjectIdentifier &project,
                                    Function function) const
{
    if (const MvCalendarEventIndex *index = indexFor(config, project))
        index->visit(config.date(), function);
}

bool MvCalendarEventRegistry::hasHolidayOfType(const MvCalendariumContentKey &, const MvCalendariumHolidayType &)
{
    return false;
}

QStringList MvCalendarEventRegistry::descriptions(const MvCalendariumContentKey &key)
{
    QStringList texts;
    visit(key.config(), key.project(), [&texts](const MvCalendarEvent &event) {
        texts.append(event.description());
        return false;
    });
    return texts;
}

MvImageReference MvCalendarEventRegistry::imageFile(const MvCalendariumContentKey &key) const
{
    MvImageReference reference;
    visit(key.config(), key.project(), [&reference](const MvCalendarEvent &event) {
        if (!isThere(event.foto()))
            return false;
        reference = {event.imagePath().absoluteFilePath(), event.imageSize()};
        return true;
    });
    return reference;
}

MvCalendarEventList MvCalendarEventRegistry::events(const MvCalendariumContentConfig &config) const
{
    return events(config, m_activeModelId);
}

MvCalendarEventList MvCalendarEventRegistry::events(const MvCalendariumContentConfig &config,
                                                    const MvProjectIdentifier &project) const
{
    MvCalendarEventList found;
    visit(config, project, [&found](const MvCalendarEvent &event) {
        found.append(event);
        return false;
    });
    return found;
}

QImage MvCalendarEventRegistry::eventImage(const MvCalendariumContentKey &key) const
{
    QImage image;
    visit(key.config(), key.project(), [&image](const MvCalendarEvent &event) {
        if (isThere(event.foto()))
            image = MvFotoAccess::fullRes(event.foto());
        return !image.isNull();
    });
    return image;
}

QImage MvCalendarEventRegistry::eventImage(const MvCalendariumContentKey &key, const QSize &bounds) const
{
    QImage image;
    visit(key.config(), key.project(), [&image, &bounds](const MvCalendarEvent &event) {
        if (isThere(event.foto()))
            image = MvFotoAccess::scaled(event.foto(), bounds);
        return !image.isNull();
    });
    return image;
}

// ---- lists

void MvCalendarEventRegistry::store(const MvProjectIdentifier &project, const MvCalendarEventList &events)
{
    if (project == m_activeModelId) {
        m_work.reset();
        m_isWorkNewer = false;
    }
    m_lists.insert(project, MvCalendarEventIndex(events));
}

/// What the user's file brings by itself.
void MvCalendarEventRegistry::replaceEvents(const MvCalendarEventList &events)
{
    if (m_openChanges > 0 && m_keptProject == m_activeModelId) {
        store(m_keptProject, MvCalendarEventMerge::threeWay(m_beforeChanges, activeEventList(), events));
        m_beforeChanges = events;
    } else {
        store(m_keptProject, events);
    }
    Q_EMIT eventsChanged();
}

MvCalendarEventWorkList &MvCalendarEventRegistry::workList() const
{
    if (!m_work)
        m_work = std::make_unique<MvCalendarEventWorkList>(activeEventList());
    return *m_work;
}

/// The work list has changed: now, or at the end of many changes, it becomes the active list.
void MvCalendarEventRegistry::takeWork()
{
    m_isWorkNewer = true;
    if (m_openChanges > 0)
        m_hasOpenChanges = true;
    else
        setEvents(m_work->events());
}

void MvCalendarEventRegistry::finishWork() const
{
    if (std::exchange(m_isWorkNewer, false))
        m_lists.insert(m_activeModelId, MvCalendarEventIndex(m_work->events()));
}

void MvCalendarEventRegistry::setActiveModelId(const MvProjectIdentifier &id, bool silent)
{
    if (!m_lists.contains(id))
        store(id, eventsOfProject(DEFAULT_PROJECT_ID));
    finishWork();
    m_work.reset();
    m_activeModelId = id;
    if (!silent)
        Q_EMIT eventsChanged();
}

void MvCalendarEventRegistry::updateActiveModelId(const MvProjectIdentifier &from, const MvProjectIdentifier &to)
{
    store(to, eventsOfProject(from));
    Q_EMIT eventsChanged();
}

MvCalendarEventList MvCalendarEventRegistry::eventsOfProject(const MvProjectIdentifier &project) const
{
    finishWork();
    const auto found = m_lists.constFind(project);
    return found == m_lists.cend() ? MvCalendarEventList() : found->events();
}

void MvCalendarEventRegistry::setEvents(const MvCalendarEventList &events)
{
    if (m_openChanges > 0) {
        store(m_activeModelId, validOnly(events));
        m_hasOpenChanges = true;
        return;
    }
    const MvCalendarEventList own = m_fotos.withOwnCopies(validOnly(events));
    m_errorElsewhere.reset();
    m_keptProject = m_activeModelId;
    m_userFile->keep(own, [this](const MvCalendarEventList &all) { store(m_activeModelId, all); });
    Q_EMIT eventsChanged();
}

bool MvCalendarEventRegistry::changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after)
{
    if (before == after || !workList().change(before, after))
        return false;
    takeWork();
    return true;
}

bool MvCalendarEventRegistry::insertEvent(const MvCalendarEvent &event, const MvCalendarEventWorkList::Place &place)
{
    if (!event.isValid())
        return false;
    workList().insert(event, place);
    takeWork();
    return true;
}

MvCalendarEvent MvCalendarEventRegistry::presentEvent(const MvCalendarEvent &event) const
{
    return workList().present(event);
}

MvCalendarEventWorkList::Place MvCalendarEventRegistry::placeOfEvent(const MvCalendarEvent &event) const
{
    return workList().placeOf(event);
}

void MvCalendarEventRegistry::beginChanges()
{
    if (m_openChanges++ == 0)
        m_beforeChanges = activeEventList();
}

void MvCalendarEventRegistry::endChanges()
{
    if (m_openChanges > 0 && --m_openChanges == 0 && std::exchange(m_hasOpenChanges, false))
        setEvents(m_isWorkNewer ? m_work->events() : activeEventList());
}

MvCalendarEventList MvCalendarEventRegistry::mergeLists(const MvCalendarEventList &base,
                                                        const MvCalendarEventList &other, bool keepBase) const
{
    return MvCalendarEventMerge::joined(base, other, keepBase);
}

MvCalendarEventList MvCalendarEventRegistry::onlyNewEvents(const MvCalendarEventList &base,
                                                           const MvCalendarEventList &other) const
{
    return mergeLists(base, other, false);
}

// ---- reading

MvCalendarEventList MvCalendarEventRegistry::readFromDocument(const QDomDocument &document) const
{
    return readFromElement(document.firstChildElement(u"CalendarEvents"_s));
}

MvCalendarEventList MvCalendarEventRegistry::readFromElement(const QDomElement &element) const
{
    return MvCalendarEventFile::readElement(element);
}

QFileInfo MvCalendarEventRegistry::calendarEventsDir() const
{
    return m_userFile->file();
}

bool MvCalendarEventRegistry::load()
{
    return loadFrom(calendarEventsDir(), false);
}

bool MvCalendarEventRegistry::loadFrom(const QFileInfo &file, bool merge)
{
    MvLogger::legacyLog(u"CalendarEvents ACTION:loadFromFileOnStartup MERGE:%1"_s.arg(merge ? u"set"_s : u"unset"_s));
    const bool isUserFile = m_userFile->isFile(file);
    const MvCalendarEventList present = activeEventList();
    const MvCalendarEventFile::Content content =
        isUserFile ? m_userFile->read(merge || present.isEmpty()) : MvCalendarEventFile::read(file);
    if (!content.isRead()) {
        if (!content.isMissing)
            qWarning().noquote() << content.error;
        return false;
    }
    const MvCalendarEventList events =
        merge ? mergeLists({}, content.events, true) : mergeLists(present, content.events, true);
    if (isUserFile)
        m_keptProject = m_activeModelId;
    if (!events.isEmpty()) {
        store(m_activeModelId, events);
        Q_EMIT eventsChanged();
    }
    return true;
}

// ---- writing

void MvCalendarEventRegistry::save() const
{
    saveAs(calendarEventsDir());
}

void MvCalendarEventRegistry::saveAs(const QFileInfo &file) const
{
    if (!m_userFile->isFile(file)) {
        writeElsewhere(file);
        return;
    }
    m_errorElsewhere.reset();
    m_userFile->keep(m_fotos.withOwnCopies(activeEventList()), {});
}

void MvCalendarEventRegistry::writeElsewhere(const QFileInfo &file) const
{
    MvLogger::legacyLog(u"CalendarEvents ACTION:saveToFile VALUE:%1"_s.arg(file.baseName()));
    const MvSafeFileWriter::Result result =
        MvSafeFileWriter::write(file, MvCalendarEventFile::toBytes(activeEventList()));
    m_errorElsewhere = result.error;
    if (!result.isOk()) {
        qWarning().noquote() << result.error;
        return;
    }
    if (!result.note.isEmpty())
        MvLogger::legacyLog(u"CalendarEvents ACTION:saveToFile NOTE:%1"_s.arg(result.note));
    MvPlatformIndependent::instance().fileWritten(QFileInfo(file.absoluteFilePath()));
}

QString MvCalendarEventRegistry::lastSaveError() const
{
    return m_errorElsewhere.value_or(m_userFile->saveError());
}

void MvCalendarEventRegistry::prepareFotos(const MvCalendarEventList &events, QObject *receiver,
                                           const std::function<void()> &use)
{
    m_fotos.prepare(events, receiver, use);
}

// ---- address book and photos

MvCalendarEventList MvCalendarEventRegistry::loadFromSystemAddressBook()
{
    const MvSimplePersonList persons = MvPlatformIndependent::instance().addressBookContacts();
    const QString folder = MvBasisSettings::instance().temporaryDirectory();
    MvCalendarEventList events;
    for (const MvSimplePerson &person : persons) {
        const QString temporaryPath = u"%1/%2.png"_s.arg(folder, person.uuid().toString());
        events.append(eventOf(person, temporaryPath));
        QFile::remove(temporaryPath);
    }
    return events;
}

void MvCalendarEventRegistry::playImportedCustomerEntriesProactiveAdvice(int foundInAddressBook, int imported) const
{
    const QString text = tr("%1 von %2 Einträgen mit Geburtstagen importiert").arg(imported).arg(foundInAddressBook);
    MvProactiveHelpController &help = MvProactiveHelpController::instance();
    help.resetPendingAdvicesAndClose();
    help.updatePlaceHolderText(importAdvice, u"#ENTRIES_MESSAGE#"_s, text);
    help.showAdvice(importAdvice, importAdviceDelay, importAdviceHelpType, MvProactiveHelpTransferContent{0, {}});
}

void MvCalendarEventRegistry::cleanupImageDirectory() const
{
    const MvCalendarEventList events = m_userFile->withChangesOfOthers(activeEventList());
    if (!m_userFile->isWhole())
        return;
    MvCalendarEventFotoFolder::removeAllBut(events);
}

void MvCalendarEventRegistry::sweepFotos()
{
    const auto isQuiet = [this] {
        return m_openChanges == 0 && MvUndoController::instance().stack()->count() == 0 && m_userFile->isWhole() &&
               !m_userFile->hasUnsavedChanges() && !m_userFile->problem().isProblem() &&
               QFileInfo(m_userFile->file().filePath()).isFile();
    };
    const auto inUse = [this] {
        finishWork();
        QSet<QString> names;
        for (const MvCalendarEventIndex &list : std::as_const(m_lists)) {
            for (const MvCalendarEvent &event : list.events())
                names.insert(event.imagePath().fileName());
        }
        return names;
    };
    if (isQuiet())
        m_fotos.sweep(this, inUse, isQuiet);
}
