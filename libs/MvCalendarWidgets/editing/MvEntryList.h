// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventListWidget.h"

class MvEntryListModel;
class QAction;
class QComboBox;
class QLabel;
class QTreeView;

/// The entries of a list in compact rows, of which several can be chosen: searched, filtered by group, moved between
/// groups, shifted and removed, each as one step. It says how many of them are shown.
///
/// A click or a key shows an entry's day (eventClicked()), a double click or Return edits it, Delete removes what is
/// chosen. What is chosen stays chosen while the list changes around it.
class MVCALENDARWIDGETS_EXPORT MvEntryList : public MvCalendarEventListWidget
{
    Q_OBJECT

public:
    explicit MvEntryList(QWidget *parent = nullptr, MvSession &session = MvSession::defaultSession());
    ~MvEntryList() override;

    MvCalendarEventList selectedEvents() const;

Q_SIGNALS:
    /// Somebody wants to name, colour or order the groups.
    void groupsRequested();

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createTable();
    void createActions();
    QWidget *createFilters();
    QWidget *createActionRow();
    QAction *createAction(const QString &objectName, const QString &text, const std::function<void()> &act);

    void renew();
    QList<int> selectedRows() const;
    void rememberSelection();
    void restoreSelection();
    void showGroups();
    void showCounts();
    void showContextMenu(const QPoint &position);
    void fillGroupMenu(QMenu *menu);
    void askForNewGroup(bool isOnly);
    void askForShift();

    MvEntryListModel *m_model;
    QTreeView *m_table;
    QLabel *m_emptyText;
    QLineEdit *m_search;
    QComboBox *m_groupFilter;
    QLabel *m_counts;
    QAction *m_goTo = nullptr;
    QAction *m_edit = nullptr;
    QAction *m_shift = nullptr;
    QAction *m_remove = nullptr;
    QMenu *m_groupMenu;
    bool m_isOutdated = true;
    MvCalendarEventList m_selected; // while the rows change
    MvCalendarEventList m_current;  // none or one
    int m_currentRow = -1;
};
