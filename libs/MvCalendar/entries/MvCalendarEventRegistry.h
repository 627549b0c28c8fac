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
#include <QString>

#include <functional>
#include <memory>

class MvCalendarEventDay;
class MvCalendarEventFotoFolder;
class MvCalendarEventLists;
class MvCalendarEventRegistry;
class MvCalendarEventStore;
class MvUndoController;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendarEventRegistry>;

/// The list that exists before any document is opened.
MVCALENDAR_EXPORT extern const MvProjectIdentifier DEFAULT_PROJECT_ID;

/// The user's personal entries: one list per document, one of them active. The active one is shown, edited and kept in
/// the user's file, which is written at once after every change.
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

    /// Replaces the active list by the valid entries of the list and saves it. Photos that came with an imported file
    /// are copied into the photo folder.
    void setEvents(const MvCalendarEventList &events);
    /// Calls when setEvents() would not have to decode photos any more: copies those that lie elsewhere into the photo
    /// folder, in the background. At once when there is nothing to copy; not at all when the receiver is gone by then.
    void prepareFotos(const MvCalendarEventList &events, QObject *receiver, const std::function<void()> &use);
    /// Replaces an entry; an invalid `before` adds one, an invalid `after` removes one. Says whether anything changed.
    bool changeEvent(const MvCalendarEvent &before, const MvCalendarEvent &after);
    /// Adds an entry where one was removed, at the end when its neighbours are gone.
    bool insertEvent(const MvCalendarEvent &event, const MvCalendarEventWorkList::Place &place);
    /// The very entry as it stands in the active list by now, even if another program has changed it since; invalid
    /// when it is gone. See MvCalendarEventWorkList::present().
    MvCalendarEvent presentEvent(const MvCalendarEvent &event) const;
    /// Where it stands in the active list.
    MvCalendarEventWorkList::Place placeOfEvent(const MvCalendarEvent &event) const;
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
    void save() const;
    void saveAs(const QFileInfo &file) const;
    /// Why the last saving failed, for a person; empty when it did not.
    QString lastSaveError() const;

    /// An entry for each contact of the system's address book. Nothing is stored.
    MvCalendarEventList loadFromSystemAddressBook();
    /// Tells the user how many of the found birthdays are new.
    void playImportedCustomerEntriesProactiveAdvice(int foundInAddressBook, int imported) const;

    /// Moves the photos that no entry of the active list uses out of the photo folder, into its bin
    /// (MvFotoBin). Does nothing as long as the user's file could not be read: its entries are not known
    /// then.
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
    void takeWork();
    void replaceEvents(const MvCalendarEventList &events);
    bool isQuiet() const;

    MvUndoController &m_undo;
    std::unique_ptr<MvCalendarEventLists> m_lists;
    std::unique_ptr<MvCalendarEventFotoFolder> m_fotos;
    MvCalendarEventStore *m_userFile;
    MvProjectIdentifier m_keptProject; // whose list was last handed to the user's file
    int m_openChanges = 0;             // beginChanges() without endChanges()
    bool m_hasOpenChanges = false;     // something has changed since
    MvCalendarEventList m_beforeChanges;
};
