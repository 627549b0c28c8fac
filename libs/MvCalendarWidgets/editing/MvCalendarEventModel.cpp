// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventModel.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvEntryEdits.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvStringHelper.h"
#include "MvFoto/MvFotoAccess.h"

#include <algorithm>
#include <functional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using LessThan = bool (*)(const MvCalendarEvent &, const MvCalendarEvent &);

/// Null for a column that cannot be sorted by.
LessThan lessThanOf(int column)
{
    switch (column) {
    case MvCalendarEventModel::DateColumn:
        return MvCalendarEvent::lessThanDate;
    case MvCalendarEventModel::NameColumn:
        return MvCalendarEvent::lessThanName;
    case MvCalendarEventModel::EventColumn:
        return MvCalendarEvent::lessThanRecurrent;
    default:
        return nullptr;
    }
}

bool isEarlier(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.dateTime() == b.dateTime() ? a < b : a.dateTime() < b.dateTime();
}

/// A photo that cannot be taken over leaves the entry as it is, and the user is told why.
void changeFoto(MvCalendarEvent &event, const QString &path)
{
    if (const MvOutcome taken = event.takeFoto(MvFoto(QFileInfo(path))); !taken.isOk())
        MvDiskAccessRequest::instance().takeFotosFailed({taken.error});
}

/// An empty name, or the present one in the form of the file, changes nothing.
void changeName(MvCalendarEvent &event, const QString &text)
{
    const QString name = MvStringHelper::simplifiedName(text);
    if (!name.isEmpty() && text != event.description())
        event.setEventName(name);
}

/// The entry with one field changed; equal to the given one when the value is of no use.
MvCalendarEvent changedBy(const MvCalendarEvent &event, int column, const QVariant &value)
{
    MvCalendarEvent changed = event;
    switch (column) {
    case MvCalendarEventModel::FotoColumn:
        changeFoto(changed, value.toString());
        break;
    case MvCalendarEventModel::DateColumn:
        if (value.toDateTime().isValid())
            changed.setDateTime(value.toDateTime());
        break;
    case MvCalendarEventModel::NameColumn:
        changeName(changed, value.toString());
        break;
    case MvCalendarEventModel::EventColumn:
        changed.setRecurrent(value.value<MvCalendarEvent>().isRecurrent());
        break;
    default:
        break;
    }
    return changed;
}

} // namespace

MvCalendarEventModel::MvCalendarEventModel(QObject *parent, MvSession &session)
    : QAbstractTableModel(parent)
    , m_session(session)
{
    connect(&session.entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvCalendarEventModel::eventsChanged);
}

MvSession &MvCalendarEventModel::sessionOf(const QModelIndex &index)
{
    const auto *model = qobject_cast<const MvCalendarEventModel *>(index.model());
    return model ? model->session() : MvSession::defaultSession();
}

void MvCalendarEventModel::eventsChanged()
{
    load();
}

void MvCalendarEventModel::load()
{
    beginResetModel();
    m_events = m_session.entries().eventsOfCurrentProject();
    sortEvents(DateColumn, Qt::DescendingOrder);
    endResetModel();
}

void MvCalendarEventModel::save() const
{
    const MvCalendarEventList events = m_events; // loaded anew while the registry signals
    m_session.entries().setEvents(events);
}

MvCalendarEvent MvCalendarEventModel::calendarEvent(const QModelIndex &index) const
{
    return hasRow(index.row()) ? m_events.at(index.row()) : MvCalendarEvent();
}

int MvCalendarEventModel::rowCount(const QModelIndex &) const
{
    return int(m_events.size());
}

int MvCalendarEventModel::columnCount(const QModelIndex &) const
{
    return numberOfColumns;
}

Qt::ItemFlags MvCalendarEventModel::flags(const QModelIndex &) const
{
    return Qt::NoItemFlags;
}

QVariant MvCalendarEventModel::data(const QModelIndex &index, int role) const
{
    const MvCalendarEvent event = calendarEvent(index);
    switch (role) {
    case Qt::DisplayRole:
        return displayData(event, index.column());
    case Qt::EditRole:
        return editData(event, index.column());
    case Qt::ToolTipRole:
        return index.column() == NameColumn ? QVariant(event.description()) : QVariant();
    case Qt::AccessibleTextRole: // as it is painted
        return index.column() == DateColumn ? QVariant(MvCalendarEvent::dateText(event.dateTime().date())) : QVariant();
    case Qt::UserRole:
        return QVariant::fromValue(event);
    default:
        return {};
    }
}

QVariant MvCalendarEventModel::displayData(const MvCalendarEvent &event, int column) const
{
    switch (column) {
    case FotoColumn:
        return event.isValid() ? QVariant(MvFotoAccess::fullRes(event.foto())) : QVariant();
    case DateColumn:
        return event.dateTime().date();
    case NameColumn:
        return event.description();
    case EventColumn:
        return QVariant::fromValue(event);
    default:
        return {};
    }
}

QVariant MvCalendarEventModel::editData(const MvCalendarEvent &event, int column) const
{
    if (column != FotoColumn)
        return displayData(event, column);
    return event.isValid() ? QVariant(event.foto().localFilePath()) : QVariant();
}

QVariant MvCalendarEventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Vertical)
        return u"     "_s;
    switch (section) {
    case FotoColumn:
        return tr("Foto");
    case DateColumn:
        return tr("Datum");
    case NameColumn:
        return tr("Name");
    case EventColumn:
        return {};
    default:
        return QAbstractTableModel::headerData(section, orientation, role);
    }
}

bool MvCalendarEventModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !hasRow(index.row()))
        return false;
    const MvCalendarEvent before = m_events.at(index.row());
    const MvCalendarEvent after = changedBy(before, index.column(), value);
    if (before == after)
        return false;
    m_events[index.row()] = after;
    MvEntryEdits(m_session).push(new MvCalendarEventStep(before, after, m_session), after);
    if (hasRow(index.row())) // the last row is gone when another program has removed entries
        Q_EMIT dataChanged(index, index);
    return true;
}

void MvCalendarEventModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    if (!lessThanOf(column))
        return; // callers rely on nothing being signalled as done
    sortEvents(column, order);
    endResetModel();
}

void MvCalendarEventModel::sortEvents(int column, Qt::SortOrder order)
{
    // By date, entries of one day and different years are equivalent, but those of one year go by name: no weak order,
    // which sorting would need. After this first pass, in full order, a stable pass keeps both.
    std::stable_sort(m_events.begin(), m_events.end(), isEarlier);
    std::stable_sort(m_events.begin(), m_events.end(), lessThanOf(column));
    if (order == Qt::AscendingOrder)
        std::reverse(m_events.begin(), m_events.end());
}

bool MvCalendarEventModel::removeRows(int row, int count, const QModelIndex &)
{
    if (count <= 0)
        return true;
    if (row < 0 || count > m_events.size() - row)
        return false;
    beginRemoveRows({}, row, row + count - 1);
    m_events.remove(row, count);
    endRemoveRows();
    return true;
}

bool MvCalendarEventModel::removeRows(const QList<int> &rows)
{
    const std::set<int, std::greater<>> fromTheEnd(rows.cbegin(), rows.cend()); // leaves earlier rows in place
    bool hadAll = true;
    for (const int row : fromTheEnd)
        hadAll = removeRows(row, 1) && hadAll;
    return hadAll;
}

bool MvCalendarEventModel::removeRows(const QList<QModelIndex> &indexes)
{
    QList<int> rows;
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    return removeRows(rows);
}
