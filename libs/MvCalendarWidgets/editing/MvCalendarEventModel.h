// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvSession.h"
#include "MvCalendarWidgets/mvcalendarwidgets_export.h"

#include <QAbstractTableModel>
#include <QList>

/// The active list of personal entries as a table: photo, date, name, and the entry itself.
///
/// A mirror of the entries of a session (MvCalendarEventRegistry), empty until load() or the registry's next change. An
/// edit becomes an undo command, which changes the registry; that makes every model load anew. Qt::UserRole gives the
/// row's MvCalendarEvent in every column.
class MVCALENDARWIDGETS_EXPORT MvCalendarEventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { FotoColumn = 0, DateColumn = 1, NameColumn = 2, EventColumn = 3 };
    static constexpr int numberOfColumns = 4;

    explicit MvCalendarEventModel(QObject *parent = nullptr, MvSession &session = MvSession::defaultSession());

    MvSession &session() const { return m_session; }
    /// The session of the model that the index is of; the default one for another model.
    static MvSession &sessionOf(const QModelIndex &index);

    /// Takes the registry's active list over, by month and day.
    void load();
    /// Makes the model's rows the registry's active list; needed after removing rows only.
    void save() const;

    /// The entry of a row; an invalid entry for a row that does not exist.
    MvCalendarEvent calendarEvent(const QModelIndex &index) const;

    /// The same for every parent, unlike a table's usual 0 below its cells.
    int rowCount(const QModelIndex &parent = {}) const override;
    /// The same for every parent.
    int columnCount(const QModelIndex &parent = {}) const override;
    /// None: views edit through widgets of their own, which call setData().
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Full-resolution photo, QDate, QString and MvCalendarEvent; to edit, the photo is the path of its file.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Changes an entry through an undo command; false when nothing changes, or the value is no date, no name after
    /// MvStringHelper::simplifiedName(), or no readable photo. No path means no photo, and the last column always makes
    /// the entry recurrent.
    /// The model has loaded anew on return: the entry may stand in another row.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// By date (month and day), name or recurrence; the columns for that are 1, 2 and 3. Descending puts the smallest
    /// first, the reverse of what views expect. Other columns must not be sorted by: a model reset begins, sorts
    /// nothing and does not end.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// Removing rows does not touch the registry until save(). A negative count removes nothing and is true; rows that
    /// do not exist are false, and none is removed.
    bool removeRows(int row, int count, const QModelIndex &parent = {}) override;
    /// Removes each row once, whatever its place in the list; false when one does not exist.
    bool removeRows(const QList<int> &rows);
    bool removeRows(const QList<QModelIndex> &indexes);

public Q_SLOTS:
    void eventsChanged();

private:
    bool hasRow(int row) const { return row >= 0 && row < m_events.size(); }
    QVariant displayData(const MvCalendarEvent &event, int column) const;
    QVariant editData(const MvCalendarEvent &event, int column) const;
    void sortEvents(int column, Qt::SortOrder order);

    MvSession &m_session;
    MvCalendarEventList m_events;
};
