// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendarEventWorkList.h"
#include "MvCalendar/mvcalendar_export.h"

#include "MvCore/MvSingleton.h"
#include "MvModelBase/MvProjectIdentifier.h"
#include "MvProductBase/MvAbstractHolidayCache.h"

#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

class MvCalendarEventDay;
class MvCalendarEventFotoFolder;
class MvCalendarEventLists;
class MvCalendarEventProjectStore;
class MvCalendarEventRegistry;
class MvCalendarEventStore;
class MvUndoController;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendarEventRegistry>;

/// The list that exists before any document is opened.
MVCALENDAR_EXPORT extern const MvProjectIdentifier DEFAULT_PROJECT_ID;

/// The user's personal entries: one list per document, one of them active. The active one is shown, edited and kept in
/// the user's file, which is written at once after every change.
///
/// In a program that installs a store for the lists of documents (installProjectStore()), those are kept with their
/// documents. The user's file then holds the user's own list alone, the default one: the entries before any document
/// is opened, from which new documents start, and which takes what somebody wants to have there, too.
///
/// This is where the parts meet, and what tells that something has changed: MvCalendarEventLists holds the lists,
/// MvCalendarEventStore knows what happens between the active one and the file and what a person must know about that
/// (userFile()), MvCalendarEventFotoFolder has the photos copied. To be used from the GUI thread.
class MVCALENDAR_EXPORT MvCalendarEventRegistry : public MvAbstractHolidayCache,
                                                  public MvSingleton<MvCalendarEventRegistry>,
                                                  public MvCalendarEventSource
{
    Q_OBJECT

public:
    /// The active list, or that of the user's file; often they are one.
    enum class List { Active, Own };

    /// The entries of the user's file, changed by steps of MvUndoController::instance().
    MvCalendarEventRegistry();
    /// Entries that begin empty and live in memory only, changed by steps of the controller; see MvSession.
    explicit MvCalendarEventRegistry(MvUndoController &undo);
    ~MvCalendarEventRegistry() override;

    /// Personal entries are never holidays: always false.
    bool hasHolidayOfType(const MvCalendariumContentKey &key, const MvCalendariumHolidayType &type) override;

    // What falls on a day. Without the feature "entries" in the configuration: nothing. None of these searches the
    // list or decodes anything that was decoded before.
    QStringList descriptions(const MvCalendariumContentKey &key) override;
    MvImageReference imageFile(const MvCalendariumContentKey &key) const override;
    MvCalendarEventList events(const MvCalendariumContentConfig &config) const;
    MvCalendarEventList events(const MvCalendariumContentConfig &config, const MvProjectIdentifier &project) const;
    /// The photo, in full resolution, of the first entry of the day that has one which can be read; else null.
    QImage eventImage(const MvCalendariumContentKey &key) const;
    /// The same within the bounds (pixels), keeping the aspect ratio, smooth: what painting a cell needs. Decoded once
    /// per photo and size.
    QImage eventImage(const MvCalendariumContentKey &key, const QSize &bounds) const;

    void setupInstance() override;

    // the same for painting
    MvProjectIdentifier project() const override { return activeModelId(); }
    MvCalendarEventList events(const MvCalendariumContentKey &key) const override;
    QList<MvEventText> texts(const MvCalendariumContentKey &key) const override;
    QStringList descriptions(const MvCalendariumContentKey &key) const override;
    QImage eventImage(const MvCalendariumContentKey &key, const QSize &bounds, MvFotoSource &fotos) const override;

    MvProjectIdentifier activeModelId() const;
    /// Makes a document's list the active one; a document without a list starts with a copy of the default list.
    void setActiveModelId(const MvProjectIdentifier &id, bool silent);
    /// Copies the list of one document to another, such as a document saved under a new name.
    void updateActiveModelId(const MvProjectIdentifier &from, const MvProjectIdentifier &to);

    MvCalendarEventList eventsOfProject(const MvProjectIdentifier &project) const;
    MvCalendarEventList activeEventList() const { return eventsOfProject(activeModelId()); }
    MvCalendarEventList eventsOfCurrentProject() const { return activeEventList(); }

    // ---- lists that are kept with their documents

    /// From now on the store keeps the lists of its documents; null, as at first: all of them go to the user's file
    /// when they are active. Not owned; whoever installs one removes it before it goes.
    void installProjectStore(MvCalendarEventProjectStore *store);
    /// The active list is kept with its document.
    bool isKeptWithProject() const;
    /// Gives a document its list as it was read. Nothing is saved or signalled; setActiveModelId() follows.
    void takeList(const MvProjectIdentifier &project, const MvCalendarEventList &events);
    /// The document is closed; nothing for the active one.
    void forgetList(const MvProjectIdentifier &project);
    /// The list of the user's file: the active one, unless that is kept with its document.
    MvCalendarEventList ownEvents() const { return eventsOfProject(listOf(List::Own)); }
    /// Replaces that list by the valid entries of the list and saves it, as setEvents() does with the active one.
    void setOwnEvents(const MvCalendarEventList &events);
    /// Whether steps that change a list kept with its document change the user's own list, too; off at first.
    void setChangesReachOwn(bool reach) { m_doChangesReachOwn = reach; }
    bool doChangesReachOwn() const { return m_doChangesReachOwn && isKeptWithProject(); }

    // ---- changing

    /// Replaces the active list by the valid entries of the list and saves it. Photos that came with an imported file
    /// are copied into the photo folder.
    void setEvents(const MvCalendarEventList &events);
    /// Makes these the groups of a list, and saves it; its entries stay as they are. setEvents() with a list without
    /// groups leaves them alone.
    void setGroups(const MvEventGroupList &groups, List list = List::Active);
    /// Calls when setEvents() would not have to decode photos any more: copies those that lie elsewhere into the photo
    /// folder, in the background. At once when there is nothing to copy; not at all when the receiver is gone by then.
    void prepareFotos(const MvCalendarEventList &events, QObject *receiver, const std::function<void()> &use);
    /// Replaces an entry; an invalid `before` adds one, an invalid `after` removes one. Says whether anything changed.
    bool changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after);
    bool changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after, List list);
    /// Adds an entry where one was removed, at the end when its neighbours are gone.
    bool insertEvent(const MvCalendarEvent &event, const MvCalendarEventWorkList::Place &place,
                     List list = List::Active);
    /// The very entry as it stands in the list by now, even if another program has changed it since; invalid when it
    /// is gone. See MvCalendarEventWorkList::present().
    MvCalendarEvent presentEvent(const MvCalendarEvent &event, List list = List::Active) const;
    /// Where it stands in the list.
    MvCalendarEventWorkList::Place placeOfEvent(const MvCalendarEvent &event, List list = List::Active) const;
    /// Changes until the matching endChanges() are written and signalled once, there. May be nested. Many changes in
    /// between take time in proportion to their number.
    void beginChanges();
    void endChanges();

    /// `base`, when it is to be kept, then the entries of `other` whose uuid is null or unknown in `base`.
    MvCalendarEventList mergeLists(const MvCalendarEventList &base, const MvCalendarEventList &other,
                                   bool keepBase) const;
    MvCalendarEventList onlyNewEvents(const MvCalendarEventList &base, const MvCalendarEventList &other) const;

    MvCalendarEventList readFromDocument(const QDomDocument &document) const;
    MvCalendarEventList readFromElement(const QDomElement &element) const;

    /// The user's file, whether it exists or not.
    QFileInfo calendarEventsDir() const;
    /// The same with what is known about it: whether it could be read, whether everything is saved. Owned here.
    MvCalendarEventStore &userFile() const { return *m_userFile; }
    /// Reads the user's file; false when it is missing or damaged.
    bool load();
    /// Reads a file into the active list. The flag works the other way round than its name says, which callers rely
    /// on: set, the file's entries replace the list; unset, those with unknown uuids are added.
    bool loadFrom(const QFileInfo &file, bool merge);
    /// Writes the user's file. A list that is kept with its document is no part of that.
    void save() const;
    /// Writes the active list to a file. The user's file only takes in what it lacks of a list that is kept with its
    /// document.
    void saveAs(const QFileInfo &file) const;
    /// Writes the list of the user's file to another file.
    void saveOwnAs(const QFileInfo &file) const;
    /// Why the last saving failed, for a person; empty when it did not.
    QString lastSaveError() const;

    /// An entry for each contact of the system's address book. Nothing is stored.
    MvCalendarEventList loadFromSystemAddressBook();
    /// Tells the user how many of the found birthdays are new.
    void playImportedCustomerEntriesProactiveAdvice(int foundInAddressBook, int imported) const;

    /// Moves the photos that no entry of the active list and of the user's file uses out of the photo folder, into its
    /// bin (MvFotoBin). Does nothing as long as the user's file could not be read: its entries are not known then.
    void cleanupImageDirectory() const;
    /// Moves photos into the bin that nothing needs any more: no list here, no step that can be undone, no file of the
    /// user's, backups and set-aside ones among them, no other running program. Happens in the background, and only
    /// when nothing is in doubt: for a program that has started and waits for its user.
    void sweepFotos();

Q_SIGNALS:
    void eventsChanged();

private:
    MvCalendarEventRegistry(MvUndoController &undo, bool isUserFileKept);

    MvCalendarEventDay day(const MvCalendariumContentConfig &config, const MvProjectIdentifier &project) const;
    MvProjectIdentifier listOf(List list) const;
    MvCalendarEventList withGroups(const MvProjectIdentifier &project, const MvCalendarEventList &events) const;
    bool isKeptByStore(const MvProjectIdentifier &project) const;
    void setList(const MvProjectIdentifier &project, const MvCalendarEventList &events);
    void keepList(const MvProjectIdentifier &project, const MvCalendarEventList &list);
    void takeWork(const MvProjectIdentifier &project);
    void replaceEvents(const MvCalendarEventList &events);
    bool isQuiet() const;

    MvUndoController &m_undo;
    std::unique_ptr<MvCalendarEventLists> m_lists;
    std::unique_ptr<MvCalendarEventFotoFolder> m_fotos;
    MvCalendarEventStore *m_userFile;
    MvCalendarEventProjectStore *m_projectStore = nullptr;
    bool m_doChangesReachOwn = false;
    MvProjectIdentifier m_keptProject;          // whose list was last handed to the user's file
    int m_openChanges = 0;                      // beginChanges() without endChanges()
    QList<MvProjectIdentifier> m_openlyChanged; // whose lists have changed since
    MvCalendarEventList m_beforeChanges;        // that of the user's file
};
