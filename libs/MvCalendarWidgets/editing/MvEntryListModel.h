// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QStringList>

/// The active list of personal entries as rows to be chosen: name, date, groups; in order, and of them those that are
/// searched for. Qt::UserRole gives the row's MvCalendarEvent in every column.
///
/// A mirror of the session's entries as they were when load() was called last. Searching asks nobody and looks at one
/// text per entry, so that lists of thousands follow each letter.
class MVCALENDARWIDGETS_EXPORT MvEntryListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, DateColumn, GroupColumn };
    static constexpr int numberOfColumns = 3;

    explicit MvEntryListModel(MvSession &session, QObject *parent = nullptr);

    void load();
    /// Entries whose name, date or groups contain each of the words; dates as "09.03.1941" and "9. März 1941".
    void setSearch(const QString &text);
    /// Entries of the group; of none at all with `none`, all of them with an empty id.
    void setGroup(const QString &id);
    static const QString none;

    const MvEventGroupList &groups() const { return m_events.groups(); }
    /// All entries, whichever are shown.
    int total() const { return int(m_events.size()); }
    /// An invalid entry for a row that does not exist.
    MvCalendarEvent event(int row) const;
    /// The rows in which these entries are now, as far as they are shown: each itself, or the only one with its uuid.
    QList<int> rowsOf(const MvCalendarEventList &events) const;

    /// The groups' colours as dots; null without groups.
    static QIcon dots(const MvEventGroupList &groups);
    /// As large as they are beside a text; they are finer than that.
    static QSize sizeOfDots(const QIcon &icon);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// By name, by month and day, or by groups.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    int rowOf(const MvCalendarEvent &event) const;
    QString display(const MvCalendarEvent &event, int column) const;
    QString inFull(const MvCalendarEvent &event, int column) const;
    QString tip(const MvCalendarEvent &event) const;
    MvEventGroupList groupsOf(const MvCalendarEvent &event) const;
    QString namesOf(const MvCalendarEvent &event) const;
    const QStringList &searchTexts() const;
    void sortEvents();
    void find();
    void findAnew();

    MvSession &m_session;
    MvCalendarEventList m_events; // in order
    QList<int> m_shown;           // of them
    QStringList m_words;          // searched for
    QString m_group;
    int m_sortColumn = DateColumn;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    mutable QStringList m_searchTexts; // one for each entry, once somebody searches
    mutable QHash<QString, QIcon> m_dots;
};
