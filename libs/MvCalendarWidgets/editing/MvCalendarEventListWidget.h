// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QDate>
#include <QPoint>
#include <QWidget>

class MvCalendarEventModel;
class MvTableView;
class QFrame;
class QLineEdit;
class QMenu;
class QModelIndex;
class QPushButton;

/// All personal entries of the document: a table with photo, date, name and buttons per entry, a button for a new one,
/// and a menu to save them to a file, load or add those of a file, and delete all. Whatever it changes is one undo
/// step.
///
/// What is typed into the field above the table leaves only the rows whose name or date contains it.
///
/// It holds no entries itself: its table follows those of the session. Where the list is kept with its document
/// (MvCalendarEventRegistry::isKeptWithProject()), entries can be taken over from the user's own list and into it, and
/// what replaces or removes the whole list leaves the user's own one alone.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventListWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MvCalendarEventListWidget(QWidget *parent = nullptr, MvSession &session = MvSession::defaultSession());
    ~MvCalendarEventListWidget() override;

    // The parts that the constructor puts together; each call makes a new one, owned by the widget or the parent.
    MvCalendarEventModel *createEventModel();
    MvTableView *createEventTableView(QWidget *parent);
    QFrame *createHorizontalLine(QWidget *parent);
    QPushButton *createNewEntryButton(QWidget *parent);
    /// Not placed by the constructor: only some programs have an address book.
    QPushButton *createImportFromContactsButton(QWidget *parent);
    QPushButton *changeEventListButton(QWidget *parent);

    QLineEdit *createSearchField(QWidget *parent);

    MvCalendarEventList events() const;

    /// The date that new entries begin with; an invalid one, as at first: today.
    void setDateOfNewEntries(const QDate &date) { m_newDate = date; }

    /// Replaces the entries by those of a file that the user chooses; with `merge`, adds those whose uuid is new. A
    /// file that is no list or cannot be read is reported and changes nothing; the user is asked before entries get
    /// lost and before only a part of the file is taken. Tables are shown first; what calendars, tables and visiting
    /// cards of others bring is reported, and with `merge` replaces what they have brought before.
    void loadEventList(bool merge);

public Q_SLOTS:
    /// Opens the day editor for a new entry, and for further ones.
    void addNewCalenderEntryClicked();
    void onTableViewContextMenuRequested(const QPoint &pos);
    // of the actions of the context menu, which carry their entry
    void editEntryActionTriggered();
    void deleteActionTriggered();
    void saveEventList();
    void importEventList();
    /// Asks first.
    void clearEventList();
    /// Shows what the user's own list has new or otherwise, and takes over what is ticked, as one step.
    void takeFromOwnEvents();
    /// The other way round.
    void takeToOwnEvents();
    /// Adds the birthdays of the address book that are not among the entries yet, and reports how many.
    void importFromContacts();

Q_SIGNALS:
    void calendarEventAdded();
    /// A row was clicked.
    void eventClicked(const MvCalendarEvent &event);

protected:
    /// Without any part: for a list that looks otherwise and can do the same.
    MvCalendarEventListWidget(MvSession &session, QWidget *parent);

    MvSession &session() const { return m_session; }
    void editEvent(const MvCalendarEvent &event);

private:
    QPushButton *createAddButton(const QString &text, const QString &name, QWidget *parent);
    QString writeEventList(const QString &fileName) const;
    void importFile(const QString &fileName);
    void readEventList(const QString &fileName, bool merge);
    void takeEventList(const MvCalendarEventList &read, bool merge);
    using Reach = MvEntryEdits::Reach;
    using Change = MvEntryEdits::Change;

    void replaceEvents(const QString &macro, const QString &name, const MvCalendarEventList &removed,
                       const MvCalendarEventList &added, Reach reach, const MvEventGroupList &groups = {});
    void transferEvents(bool isFromOwn);
    void takeTransfer(const QList<Change> &chosen, const MvEventGroupList &groups, bool isFromOwn);
    void describeActions(const QMenu *menu) const;
    void deleteEvent(const MvCalendarEvent &event);
    MvCalendarEventList newEvents(const MvCalendarEventList &current, const MvCalendarEventList &read) const;
    void finishAdding();
    void showFoundRows();

    MvSession &m_session;
    MvTableView *m_tableView = nullptr;
    QLineEdit *m_searchField = nullptr;
    QDate m_newDate;
};
