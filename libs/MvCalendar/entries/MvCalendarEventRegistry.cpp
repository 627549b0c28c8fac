// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventRegistry.h"

#include "MvCalendar/MvCalendarEventContacts.h"
#include "MvCalendar/MvCalendarEventDay.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventFotoFolder.h"
#include "MvCalendar/MvCalendarEventLists.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventProjectStore.h"
#include "MvCalendar/MvCalendarEventStore.h"

#include "MvCore/MvLogger.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoSource.h"
#include "MvProductBase/MvSVGCompilerInstructionsCache.h"
#include "MvProductBase/MvSVGImageRendererCache.h"

#include <QSet>

#include <algorithm>
#include <utility>

template class MvSingleton<MvCalendarEventRegistry>;

using namespace Qt::StringLiterals;

const MvProjectIdentifier DEFAULT_PROJECT_ID(u"DEFAULT_START_CALENDAR_ID"_s, false);

namespace {

/// The list itself when all of it is valid.
MvCalendarEventList validOnly(const MvCalendarEventList &events)
{
    const auto isValid = [](const MvCalendarEvent &event) { return event.isValid(); };
    if (std::all_of(events.cbegin(), events.cend(), isValid))
        return events;
    MvCalendarEventList valid;
    valid.setGroups(events.groups());
    std::copy_if(events.cbegin(), events.cend(), std::back_inserter(valid), isValid);
    return valid;
}

} // namespace

MvCalendarEventRegistry::MvCalendarEventRegistry(MvUndoController &undo, bool isUserFileKept)
    : m_undo(undo)
    , m_lists(std::make_unique<MvCalendarEventLists>(DEFAULT_PROJECT_ID))
    , m_fotos(std::make_unique<MvCalendarEventFotoFolder>())
    , m_userFile(new MvCalendarEventStore(
          isUserFileKept ? MvCalendarEventStore::Kept::InUserFile : MvCalendarEventStore::Kept::InMemory, this))
    , m_keptProject(DEFAULT_PROJECT_ID)
{
    connect(m_userFile, &MvCalendarEventStore::eventsReplaced, this, &MvCalendarEventRegistry::replaceEvents);
}

MvCalendarEventRegistry::MvCalendarEventRegistry()
    : MvCalendarEventRegistry(MvUndoController::instance(), true)
{
    load();
}

MvCalendarEventRegistry::MvCalendarEventRegistry(MvUndoController &undo)
    : MvCalendarEventRegistry(undo, false)
{}

MvCalendarEventRegistry::~MvCalendarEventRegistry() = default;

void MvCalendarEventRegistry::setupInstance()
{
    // artwork and texts that show entries are made anew after every change
    connect(this, &MvCalendarEventRegistry::eventsChanged, this, [] { MvSVGImageRendererCache::instance().clear(); });
    connect(this, &MvCalendarEventRegistry::eventsChanged, this,
            [] { MvSVGCompilerInstructionsCache::instance().clear(); });
}

// ---- what falls on a day

MvCalendarEventDay MvCalendarEventRegistry::day(const MvCalendariumContentConfig &config,
                                                const MvProjectIdentifier &project) const
{
    return {m_lists->index(project), config};
}

bool MvCalendarEventRegistry::hasHolidayOfType(const MvCalendariumContentKey &, const MvCalendariumHolidayType &)
{
    return false;
}

QStringList MvCalendarEventRegistry::descriptions(const MvCalendariumContentKey &key)
{
    return std::as_const(*this).descriptions(key);
}

QList<MvEventText> MvCalendarEventRegistry::texts(const MvCalendariumContentKey &key) const
{
    return day(key.config(), key.project()).texts();
}

QStringList MvCalendarEventRegistry::descriptions(const MvCalendariumContentKey &key) const
{
    return day(key.config(), key.project()).descriptions();
}

MvImageReference MvCalendarEventRegistry::imageFile(const MvCalendariumContentKey &key) const
{
    return day(key.config(), key.project()).imageFile();
}

MvCalendarEventList MvCalendarEventRegistry::events(const MvCalendariumContentConfig &config) const
{
    return events(config, activeModelId());
}

MvCalendarEventList MvCalendarEventRegistry::events(const MvCalendariumContentConfig &config,
                                                    const MvProjectIdentifier &project) const
{
    return day(config, project).events();
}

MvCalendarEventList MvCalendarEventRegistry::events(const MvCalendariumContentKey &key) const
{
    return day(key.config(), key.project()).events();
}

QImage MvCalendarEventRegistry::eventImage(const MvCalendariumContentKey &key) const
{
    return day(key.config(), key.project()).image(&MvFotoAccess::fullRes);
}

QImage MvCalendarEventRegistry::eventImage(const MvCalendariumContentKey &key, const QSize &bounds) const
{
    return day(key.config(), key.project()).image([&bounds](const MvFoto &foto) {
        return MvFotoAccess::scaled(foto, bounds);
    });
}

QImage MvCalendarEventRegistry::eventImage(const MvCalendariumContentKey &key, const QSize &bounds,
                                           MvFotoSource &fotos) const
{
    return day(key.config(), key.project()).image([&](const MvFoto &foto) {
        return fotos.scaled(foto.localFileInfo(), bounds);
    });
}

// ---- lists

/// What the user's file contains when it is read.
void MvCalendarEventRegistry::replaceEvents(const MvCalendarEventList &events)
{
    if (m_openChanges > 0 && m_keptProject == listOf(List::Own)) {
        m_lists->store(m_keptProject, MvCalendarEventMerge::threeWay(m_beforeChanges, ownEvents(), events));
        m_beforeChanges = events;
    } else {
        m_lists->store(m_keptProject, events);
    }
    Q_EMIT eventsChanged();
}

MvProjectIdentifier MvCalendarEventRegistry::activeModelId() const
{
    return m_lists->active();
}

void MvCalendarEventRegistry::setActiveModelId(const MvProjectIdentifier &id, bool silent)
{
    if (!m_lists->contains(id))
        m_lists->store(id, eventsOfProject(DEFAULT_PROJECT_ID));
    m_lists->setActive(id);
    if (!silent)
        Q_EMIT eventsChanged();
}

void MvCalendarEventRegistry::updateActiveModelId(const MvProjectIdentifier &from, const MvProjectIdentifier &to)
{
    m_lists->store(to, eventsOfProject(from));
    Q_EMIT eventsChanged();
}

MvCalendarEventList MvCalendarEventRegistry::eventsOfProject(const MvProjectIdentifier &project) const
{
    return m_lists->events(project);
}

// ---- lists that are kept with their documents

void MvCalendarEventRegistry::installProjectStore(MvCalendarEventProjectStore *store)
{
    m_projectStore = store;
}

bool MvCalendarEventRegistry::isKeptByStore(const MvProjectIdentifier &project) const
{
    return m_projectStore && m_projectStore->keeps(project);
}

bool MvCalendarEventRegistry::isKeptWithProject() const
{
    return isKeptByStore(activeModelId());
}

MvProjectIdentifier MvCalendarEventRegistry::listOf(List list) const
{
    return list == List::Own && isKeptWithProject() ? DEFAULT_PROJECT_ID : activeModelId();
}

void MvCalendarEventRegistry::takeList(const MvProjectIdentifier &project, const MvCalendarEventList &events)
{
    m_lists->store(project, events);
}

void MvCalendarEventRegistry::forgetList(const MvProjectIdentifier &project)
{
    m_lists->remove(project);
}

// ---- changing

void MvCalendarEventRegistry::setEvents(const MvCalendarEventList &events)
{
    setList(activeModelId(), events);
}

void MvCalendarEventRegistry::setOwnEvents(const MvCalendarEventList &events)
{
    setList(listOf(List::Own), events);
}

void MvCalendarEventRegistry::setGroups(const MvEventGroupList &groups, List list)
{
    const MvProjectIdentifier project = listOf(list);
    MvCalendarEventList events = eventsOfProject(project);
    if (events.groups() == groups)
        return;
    events.setGroups(groups);
    m_lists->store(project, events);
    takeWork(project);
}

/// Entries that come from the user's list to a document, or back, bring their groups along.
MvCalendarEventList MvCalendarEventRegistry::withGroups(const MvProjectIdentifier &project,
                                                        const MvCalendarEventList &events) const
{
    const MvProjectIdentifier other = project == DEFAULT_PROJECT_ID ? activeModelId() : DEFAULT_PROJECT_ID;
    const MvEventGroupList known = eventsOfProject(other).groups();
    if (known.isEmpty() || other == project)
        return events;
    QSet<QString> unknown;
    for (const MvCalendarEvent &event : events) {
        const QStringList ids = event.groups();
        unknown += QSet<QString>(ids.cbegin(), ids.cend());
    }
    for (const MvEventGroup &group : events.groups())
        unknown.remove(group.id);
    MvCalendarEventList all = events;
    for (const MvEventGroup &group : known) {
        if (unknown.contains(group.id))
            all.groups().append(group);
    }
    return all;
}

void MvCalendarEventRegistry::setList(const MvProjectIdentifier &project, const MvCalendarEventList &events)
{
    MvCalendarEventList all = validOnly(events);
    if (all.groups().isEmpty()) // whoever puts a list together means its entries
        all.setGroups(eventsOfProject(project).groups());
    if (m_openChanges > 0) {
        m_lists->store(project, all);
        if (!m_openlyChanged.contains(project))
            m_openlyChanged.append(project);
        return;
    }
    keepList(project, all);
    Q_EMIT eventsChanged();
}

/// The list goes where it is kept, and its photos with it.
void MvCalendarEventRegistry::keepList(const MvProjectIdentifier &project, const MvCalendarEventList &list)
{
    const MvCalendarEventList events = withGroups(project, list);
    if (isKeptByStore(project)) {
        const auto staysThere = [this](const QString &path) { return m_projectStore->holdsFoto(path); };
        m_lists->store(project, m_fotos->withOwnCopies(events, staysThere));
        m_projectStore->listChanged(project);
        return;
    }
    m_keptProject = project;
    m_userFile->keep(m_fotos->withOwnCopies(events),
                     [this](const MvCalendarEventList &all) { m_lists->store(m_keptProject, all); });
}

bool MvCalendarEventRegistry::changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after)
{
    return changeEvent(before, after, List::Active);
}

bool MvCalendarEventRegistry::changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after, List list)
{
    const MvProjectIdentifier project = listOf(list);
    if (before == after || !m_lists->change(project, before, after))
        return false;
    takeWork(project);
    return true;
}

bool MvCalendarEventRegistry::insertEvent(const MvCalendarEvent &event, const MvCalendarEventWorkList::Place &place,
                                          List list)
{
    if (!event.isValid())
        return false;
    const MvProjectIdentifier project = listOf(list);
    m_lists->insert(project, event, place);
    takeWork(project);
    return true;
}

MvCalendarEvent MvCalendarEventRegistry::presentEvent(const MvCalendarEvent &event, List list) const
{
    return m_lists->present(listOf(list), event);
}

MvCalendarEventWorkList::Place MvCalendarEventRegistry::placeOfEvent(const MvCalendarEvent &event, List list) const
{
    return m_lists->placeOf(listOf(list), event);
}

/// One entry has changed: what follows from that happens now, or at the end of many changes.
void MvCalendarEventRegistry::takeWork(const MvProjectIdentifier &project)
{
    if (m_openChanges == 0)
        setList(project, eventsOfProject(project));
    else if (!m_openlyChanged.contains(project))
        m_openlyChanged.append(project);
}

void MvCalendarEventRegistry::beginChanges()
{
    if (m_openChanges++ == 0)
        m_beforeChanges = ownEvents();
}

void MvCalendarEventRegistry::endChanges()
{
    if (m_openChanges == 0 || --m_openChanges > 0 || m_openlyChanged.isEmpty())
        return;
    for (const MvProjectIdentifier &project : std::exchange(m_openlyChanged, {}))
        keepList(project, validOnly(eventsOfProject(project)));
    Q_EMIT eventsChanged();
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
    const MvProjectIdentifier project = listOf(isUserFile ? List::Own : List::Active);
    const MvCalendarEventList present = eventsOfProject(project);
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
        m_keptProject = project;
    if (!events.isEmpty()) {
        m_lists->store(project, events);
        if (isKeptByStore(project))
            m_projectStore->listChanged(project);
        Q_EMIT eventsChanged();
    }
    return true;
}

// ---- writing

void MvCalendarEventRegistry::save() const
{
    m_userFile->keep(m_fotos->withOwnCopies(ownEvents()), {});
}

void MvCalendarEventRegistry::saveAs(const QFileInfo &file) const
{
    if (!m_userFile->isFile(file)) {
        m_userFile->writeElsewhere(file, activeEventList());
    } else if (!isKeptWithProject()) {
        save();
    } else {
        const MvCalendarEventList joined = mergeLists(ownEvents(), activeEventList(), true);
        m_userFile->keep(m_fotos->withOwnCopies(joined),
                         [this](const MvCalendarEventList &all) { m_lists->store(DEFAULT_PROJECT_ID, all); });
    }
}

void MvCalendarEventRegistry::saveOwnAs(const QFileInfo &file) const
{
    m_userFile->writeElsewhere(file, ownEvents());
}

QString MvCalendarEventRegistry::lastSaveError() const
{
    return m_userFile->saveError();
}

// ---- address book and photos

MvCalendarEventList MvCalendarEventRegistry::loadFromSystemAddressBook()
{
    return MvCalendarEventContacts::entries();
}

void MvCalendarEventRegistry::playImportedCustomerEntriesProactiveAdvice(int foundInAddressBook, int imported) const
{
    MvCalendarEventContacts::tellImported(foundInAddressBook, imported);
}

void MvCalendarEventRegistry::prepareFotos(const MvCalendarEventList &events, QObject *receiver,
                                           const std::function<void()> &use)
{
    m_fotos->prepare(events, receiver, use,
                     [this](const QString &path) { return isKeptWithProject() && m_projectStore->holdsFoto(path); });
}

void MvCalendarEventRegistry::cleanupImageDirectory() const
{
    MvCalendarEventList events = m_userFile->withChangesOfOthers(ownEvents());
    if (isKeptWithProject())
        events += activeEventList();
    if (m_userFile->isWhole())
        MvCalendarEventFotoFolder::removeAllBut(events);
}

/// Nothing is under way, in doubt or yet to be undone.
bool MvCalendarEventRegistry::isQuiet() const
{
    return m_openChanges == 0 && m_undo.stack()->count() == 0 && m_userFile->isWhole() &&
           !m_userFile->hasUnsavedChanges() && !m_userFile->problem().isProblem() && m_userFile->isInPlace();
}

void MvCalendarEventRegistry::sweepFotos()
{
    if (isQuiet())
        m_fotos->sweep(
            this, [this] { return m_lists->fotoNames(); }, [this] { return isQuiet(); });
}
