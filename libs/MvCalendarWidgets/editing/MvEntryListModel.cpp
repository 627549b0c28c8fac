// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryListModel.h"

#include "MvCalendar/MvCalendarEventRegistry.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvPaint/MvPrintableText.h"

#include <QCollator>
#include <QMultiHash>
#include <QPainter>

#include <algorithm>
#include <numeric>
#include <tuple>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostDots = 3;
constexpr int dotSize = 9;
constexpr int dotStep = 7; // they overlap a little
constexpr int finest = 3;  // pixels per pixel of the finest screens

/// Birthdays in the order of the year, those of one day from the oldest on.
bool isEarlier(const QDate &a, const QDate &b)
{
    return std::tuple(a.month(), a.day(), a.year()) < std::tuple(b.month(), b.day(), b.year());
}

} // namespace

const QString MvEntryListModel::none = u"\n"_s; // which no id of a group is

MvEntryListModel::MvEntryListModel(MvSession &session, QObject *parent)
    : QAbstractTableModel(parent)
    , m_session(session)
{}

void MvEntryListModel::load()
{
    beginResetModel();
    m_events = m_session.entries().activeEventList();
    m_dots.clear();
    sortEvents();
    find();
    endResetModel();
}

void MvEntryListModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    sortEvents();
    find();
    endResetModel();
}

void MvEntryListModel::sortEvents()
{
    m_searchTexts.clear();
    QCollator collator(MvApplicationLocale::instance().locale());
    collator.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, int>> keys;
    keys.reserve(size_t(m_events.size()));
    for (int i = 0; i < m_events.size(); ++i) {
        const QString groups = m_sortColumn == GroupColumn ? namesOf(m_events.at(i)) + u'\n' : QString();
        keys.emplace_back(collator.sortKey(groups + m_events.at(i).description()), i);
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
    if (m_sortColumn == DateColumn)
        std::stable_sort(keys.begin(), keys.end(), [this](const auto &a, const auto &b) {
            return isEarlier(m_events.at(a.second).dateTime().date(), m_events.at(b.second).dateTime().date());
        });
    if (m_sortOrder == Qt::DescendingOrder)
        std::reverse(keys.begin(), keys.end());
    MvCalendarEventList sorted;
    sorted.reserve(m_events.size());
    sorted.setGroups(m_events.groups());
    for (const auto &[key, place] : keys)
        sorted.append(m_events.at(place));
    m_events = sorted;
}

// ---- searching

void MvEntryListModel::setSearch(const QString &text)
{
    const QStringList words = text.toCaseFolded().simplified().split(u' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    findAnew();
}

void MvEntryListModel::setGroup(const QString &id)
{
    if (id == m_group)
        return;
    m_group = id;
    findAnew();
}

void MvEntryListModel::findAnew()
{
    beginResetModel();
    find();
    endResetModel();
}

const QStringList &MvEntryListModel::searchTexts() const
{
    if (m_searchTexts.size() == m_events.size())
        return m_searchTexts;
    const QLocale locale = MvApplicationLocale::instance().locale();
    m_searchTexts.clear();
    m_searchTexts.reserve(m_events.size());
    for (const MvCalendarEvent &event : m_events) {
        const QDate date = event.dateTime().date();
        const QString inWords = locale.toString(date, event.hasYear() ? u"d. MMMM yyyy"_s : u"d. MMMM"_s);
        const QString all =
            QStringList{event.description(), MvCalendarEvent::dateText(date), inWords, namesOf(event)}.join(u'\n');
        m_searchTexts.append(all.toCaseFolded());
    }
    return m_searchTexts;
}

void MvEntryListModel::find()
{
    m_shown.resize(m_events.size());
    std::iota(m_shown.begin(), m_shown.end(), 0);
    if (!m_group.isEmpty()) {
        m_shown.removeIf([this](int place) {
            const QStringList ids = m_events.at(place).groups();
            return m_group == none ? !ids.isEmpty() : !ids.contains(m_group);
        });
    }
    if (m_words.isEmpty())
        return;
    const QStringList &texts = searchTexts();
    m_shown.removeIf([&](int place) {
        return !std::all_of(m_words.cbegin(), m_words.cend(),
                            [&](const QString &word) { return texts.at(place).contains(word); });
    });
}

MvCalendarEvent MvEntryListModel::event(int row) const
{
    return row >= 0 && row < m_shown.size() ? m_events.at(m_shown.at(row)) : MvCalendarEvent();
}

/// One is looked for without an index of all.
int MvEntryListModel::rowOf(const MvCalendarEvent &event) const
{
    int ofUuid = -1;
    int count = 0;
    for (int row = 0; row < m_shown.size(); ++row) {
        const MvCalendarEvent &shown = m_events.at(m_shown.at(row));
        if (shown == event)
            return row;
        if (shown.uuid() == event.uuid()) {
            ofUuid = row;
            ++count;
        }
    }
    return count == 1 ? ofUuid : -1;
}

QList<int> MvEntryListModel::rowsOf(const MvCalendarEventList &events) const
{
    if (events.isEmpty())
        return {};
    if (events.size() == 1) {
        const int row = rowOf(events.constFirst());
        return row >= 0 ? QList<int>{row} : QList<int>();
    }
    QHash<MvCalendarEvent, int> equal;
    QMultiHash<QUuid, int> ofUuid;
    for (int row = 0; row < m_shown.size(); ++row) {
        equal.insert(event(row), row);
        ofUuid.insert(event(row).uuid(), row);
    }
    QList<int> rows;
    for (const MvCalendarEvent &wanted : events) {
        if (const auto found = equal.constFind(wanted); found != equal.cend())
            rows.append(*found);
        else if (ofUuid.count(wanted.uuid()) == 1)
            rows.append(ofUuid.value(wanted.uuid()));
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

// ---- what a row says

MvEventGroupList MvEntryListModel::groupsOf(const MvCalendarEvent &event) const
{
    MvEventGroupList groups;
    const QStringList ids = event.groups();
    for (const QString &id : ids) {
        if (const MvEventGroup *group = m_events.groups().find(id))
            groups.append(*group);
    }
    return groups;
}

QString MvEntryListModel::namesOf(const MvCalendarEvent &event) const
{
    QStringList names;
    const MvEventGroupList groups = groupsOf(event);
    for (const MvEventGroup &group : groups)
        names.append(MvPrintableText::inShort(group.name));
    return names.join(u", "_s);
}

QString MvEntryListModel::display(const MvCalendarEvent &event, int column) const
{
    switch (column) {
    case NameColumn:
        return MvPrintableText::inShort(event.description());
    case DateColumn:
        return MvCalendarEvent::dateText(event.dateTime().date()) + (event.endDate().isValid() ? u" …"_s : QString()) +
               (event.repetition().rule.isNone() ? QString() : u" ↻"_s);
    case GroupColumn:
        return namesOf(event);
    default:
        return {};
    }
}

/// What the short form leaves out: how it repeats, and until when it lasts.
QString MvEntryListModel::inFull(const MvCalendarEvent &event, int column) const
{
    if (column != DateColumn)
        return display(event, column);
    QString text = MvCalendarEvent::dateText(event.dateTime().date());
    if (event.endDate().isValid())
        text = tr("%1 bis %2").arg(text, MvCalendarEvent::dateText(event.endDate()));
    if (event.time().isValid())
        text += tr(", %1 Uhr").arg(event.time().toString(u"HH:mm"_s));
    if (!event.repetition().rule.isNone())
        return text + u", "_s + event.repetition().rule.describe();
    return text + u", "_s + (event.storedRecurrent() ? tr("jedes Jahr") : tr("einmal"));
}

/// A name may look like HTML.
QString MvEntryListModel::tip(const MvCalendarEvent &event) const
{
    const QStringList lines{inFull(event, NameColumn), inFull(event, DateColumn), namesOf(event)};
    return u"<qt>%1</qt>"_s.arg(lines.join(u'\n').trimmed().toHtmlEscaped().replace(u'\n', u"<br>"_s));
}

QIcon MvEntryListModel::dots(const MvEventGroupList &groups)
{
    const qsizetype count = std::min(groups.size(), mostDots);
    if (count == 0)
        return {};
    QPixmap pixmap(QSize(dotSize + int(count - 1) * dotStep, dotSize) * finest);
    pixmap.setDevicePixelRatio(finest);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    for (qsizetype i = count - 1; i >= 0; --i) {
        const QColor color = groups.at(i).color;
        painter.setPen(QPen(QColor(128, 128, 128, 160), 1)); // seen on light and dark rows alike
        painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
        painter.drawEllipse(QRectF(double(i) * dotStep + 0.5, 0.5, dotSize - 1, dotSize - 1));
    }
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // as it is, on a chosen row, too
    return icon;
}

QSize MvEntryListModel::sizeOfDots(const QIcon &icon)
{
    return icon.isNull() ? QSize() : icon.availableSizes().constFirst() / finest;
}

int MvEntryListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int MvEntryListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numberOfColumns;
}

Qt::ItemFlags MvEntryListModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren : Qt::NoItemFlags;
}

QVariant MvEntryListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_shown.size())
        return {};
    const MvCalendarEvent &event = m_events.at(m_shown.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return display(event, index.column());
    case Qt::AccessibleTextRole:
        return inFull(event, index.column());
    case Qt::ToolTipRole:
        return tip(event);
    case Qt::DecorationRole:
        if (index.column() == GroupColumn && !event.groups().isEmpty()) {
            QIcon &icon = m_dots[event.groups().join(u',')];
            if (icon.isNull())
                icon = dots(groupsOf(event));
            return icon;
        }
        return {};
    case Qt::UserRole:
        return QVariant::fromValue(event);
    default:
        return {};
    }
}

QVariant MvEntryListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NameColumn:
        return tr("Eintrag");
    case DateColumn:
        return tr("Datum");
    default:
        return tr("Gruppe");
    }
}
