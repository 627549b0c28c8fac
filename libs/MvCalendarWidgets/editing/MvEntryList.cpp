// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryList.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryListModel.h"
#include "MvCalendar/MvEntryShiftDialog.h"
#include "MvCalendar/MvOpenCalendar.h"

#include "MvGUIWidgets/MvFlowLayout.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvPaint/MvPrintableText.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSet>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowAir = 12; // above and below the text together
constexpr int fewestRows = 3;
constexpr int groupLetters = 12;
constexpr qsizetype menuLetters = 60;

/// Rows of one height.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        return {0, heightOf(option.fontMetrics)};
    }
    static int heightOf(const QFontMetrics &metrics) { return metrics.height() + rowAir; }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationSize = MvEntryListModel::sizeOfDots(option->icon);
    }
};

/// For a menu: an ampersand in a name is no key.
QString menuText(const MvEventGroup &group)
{
    return MvPrintableText::inShort(group.name, menuLetters).replace(u'&', u"&&"_s);
}

} // namespace

MvEntryList::MvEntryList(QWidget *parent, MvSession &session)
    : MvCalendarEventListWidget(session, parent)
    , m_model(new MvEntryListModel(session, this))
    , m_table(nullptr)
    , m_emptyText(nullptr)
    , m_search(nullptr)
    , m_groupFilter(nullptr)
    , m_counts(new QLabel(this))
    , m_groupMenu(new QMenu(this))
{
    createActions();
    auto *column = new QVBoxLayout(this);
    column->addWidget(createFilters());
    createTable();
    column->addWidget(m_table, 1);
    m_counts->setObjectName(u"entryCounts"_s);
    m_counts->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(m_counts);
    column->addWidget(createActionRow());
    auto *bottom = new MvFlowLayout;
    bottom->addWidget(createNewEntryButton(this));
    bottom->addWidget(changeEventListButton(this));
    column->addLayout(bottom);

    connect(&session.entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvEntryList::renew);
    connect(m_groupMenu, &QMenu::aboutToShow, this, [this] { fillGroupMenu(m_groupMenu); });
    showCounts();
}

MvEntryList::~MvEntryList() = default;

// ---- parts

QWidget *MvEntryList::createFilters()
{
    auto *row = new QWidget(this);
    m_search = new QLineEdit(row);
    m_search->setObjectName(u"entrySearchField"_s);
    m_search->setPlaceholderText(tr("Suchen"));
    m_search->setAccessibleName(tr("Einträge suchen"));
    m_search->setClearButtonEnabled(true);
    m_groupFilter = new QComboBox(row);
    m_groupFilter->setObjectName(u"entryGroupFilter"_s);
    auto *unseen = new QLabel(tr("Einträge welcher Gruppe"), row); // a box with a list takes its name from a label
    unseen->setBuddy(m_groupFilter);
    unseen->hide();
    m_groupFilter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_groupFilter->setMinimumContentsLength(groupLetters);
    m_groupFilter->setIconSize(MvEntryListModel::sizeOfDots(MvEntryListModel::dots({MvEventGroup()})));
    MvFormFields::keepWheelOut({m_groupFilter});
    auto *groups = new QToolButton(row);
    groups->setObjectName(u"editGroupsButton"_s);
    groups->setText(tr("Gruppen …"));
    groups->setToolTip(tr("Gruppen benennen, färben und ordnen, und welche der Kalender zeigt"));
    groups->setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->addWidget(m_search, 1);
    layout->addWidget(m_groupFilter);
    layout->addWidget(groups);
    connect(m_search, &QLineEdit::textChanged, m_model, &MvEntryListModel::setSearch);
    connect(m_groupFilter, &QComboBox::currentIndexChanged, this,
            [this] { m_model->setGroup(m_groupFilter->currentData().toString()); });
    connect(groups, &QToolButton::clicked, this, &MvEntryList::groupsRequested);
    return row;
}

void MvEntryList::createTable()
{
    m_table = new QTreeView(this);
    m_table->setObjectName(u"entryTable"_s);
    m_table->setAccessibleName(tr("Einträge"));
    m_table->setItemDelegate(new RowDelegate(m_table));
    m_table->setModel(m_model);
    m_table->setRootIsDecorated(false);
    m_table->setItemsExpandable(false);
    m_table->setUniformRowHeights(true); // thousands are as quick as ten
    m_table->setAllColumnsShowFocus(true);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->setContextMenuPolicy(Qt::CustomContextMenu);
    m_table->setTabKeyNavigation(false);
    m_table->installEventFilter(this);
    QHeaderView *header = m_table->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setSectionResizeMode(MvEntryListModel::NameColumn, QHeaderView::Stretch);
    m_table->setColumnWidth(MvEntryListModel::DateColumn, fontMetrics().horizontalAdvance(u"00.00.0000 ↻ "_s) + rowAir);
    m_table->setColumnWidth(MvEntryListModel::GroupColumn, fontMetrics().averageCharWidth() * (groupLetters + 2));
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(MvEntryListModel::DateColumn, Qt::AscendingOrder);
    m_table->setMinimumHeight(header->sizeHint().height() + fewestRows * RowDelegate::heightOf(fontMetrics()) +
                              2 * m_table->frameWidth());

    m_emptyText = new QLabel(m_table->viewport());
    m_emptyText->setObjectName(u"noEntries"_s);
    m_emptyText->setWordWrap(true);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setForegroundRole(QPalette::PlaceholderText);
    m_emptyText->setAttribute(Qt::WA_TransparentForMouseEvents);
    (new QVBoxLayout(m_table->viewport()))->addWidget(m_emptyText);

    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, &MvEntryList::rememberSelection);
    connect(m_model, &QAbstractItemModel::modelReset, this, &MvEntryList::restoreSelection);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MvEntryList::showCounts);
    connect(m_table, &QAbstractItemView::clicked, this, [this](const QModelIndex &index) {
        if (selectedRows().size() <= 1) // else somebody is choosing
            Q_EMIT eventClicked(m_model->event(index.row()));
    });
    connect(m_table, &QAbstractItemView::doubleClicked, m_edit, &QAction::trigger);
    connect(m_table, &QWidget::customContextMenuRequested, this, &MvEntryList::showContextMenu);
}

QAction *MvEntryList::createAction(const QString &objectName, const QString &text, const std::function<void()> &act)
{
    auto *action = new QAction(text, this);
    action->setObjectName(objectName);
    connect(action, &QAction::triggered, this, act);
    return action;
}

void MvEntryList::createActions()
{
    const auto current = [this] { return m_model->event(m_table->currentIndex().row()); };
    m_goTo = createAction(u"goToEntry"_s, tr("Tag zeigen"), [this, current] { Q_EMIT eventClicked(current()); });
    m_edit = createAction(u"editEntry"_s, tr("Bearbeiten …"), [this, current] { editEvent(current()); });
    m_shift = createAction(u"shiftEntries"_s, tr("Verschieben …"), [this] { askForShift(); });
    m_remove =
        createAction(u"removeEntries"_s, tr("Löschen"), [this] { MvEntryEdits(session()).remove(selectedEvents()); });
}

QWidget *MvEntryList::createActionRow()
{
    auto *row = new QWidget(this);
    auto *layout = new MvFlowLayout(row);
    layout->setContentsMargins({});
    const auto addButton = [row, layout](const QString &objectName, const QString &text) {
        auto *button = new QToolButton(row);
        button->setObjectName(objectName);
        button->setText(text);
        button->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(button);
        return button;
    };
    auto *group = addButton(u"entryGroupButton"_s, tr("Gruppe"));
    group->setPopupMode(QToolButton::InstantPopup);
    group->setMenu(m_groupMenu);
    group->setToolTip(tr("Gruppe der ausgewählten Einträge"));
    connect(m_shift, &QAction::changed, group, [this, group] { group->setEnabled(m_shift->isEnabled()); });
    const std::pair<const char *, QAction *> others[] = {{"entryShiftButton", m_shift},
                                                         {"entryRemoveButton", m_remove}};
    for (const auto &[name, action] : others) {
        auto *button = addButton(QLatin1StringView(name), action->text());
        connect(button, &QToolButton::clicked, action, &QAction::trigger);
        connect(action, &QAction::changed, button,
                [button, action = action] { button->setEnabled(action->isEnabled()); });
    }
    return row;
}

// ---- following the list

void MvEntryList::showEvent(QShowEvent *event)
{
    MvCalendarEventListWidget::showEvent(event);
    if (m_isOutdated)
        renew();
}

void MvEntryList::renew()
{
    m_isOutdated = !isVisible();
    if (m_isOutdated)
        return;
    m_model->load();
    showGroups();
}

/// The groups to filter by; the chosen one stays chosen as long as there is one of its id.
void MvEntryList::showGroups()
{
    const MvEventGroupList &groups = m_model->groups();
    const QString chosen = m_groupFilter->currentData().toString();
    {
        const QSignalBlocker blocker(m_groupFilter);
        m_groupFilter->clear();
        m_groupFilter->addItem(tr("Alle"), QString());
        for (const MvEventGroup &group : groups)
            m_groupFilter->addItem(MvEntryListModel::dots({group}), MvPrintableText::inShort(group.name), group.id);
        m_groupFilter->addItem(tr("Ohne Gruppe"), MvEntryListModel::none);
        m_groupFilter->setCurrentIndex(qMax(0, m_groupFilter->findData(chosen)));
    }
    m_groupFilter->setEnabled(!groups.isEmpty());
    m_table->setColumnHidden(MvEntryListModel::GroupColumn, groups.isEmpty());
    m_model->setGroup(m_groupFilter->currentData().toString());
}

/// In order. Ranges are asked, not cells: thousands may be chosen.
QList<int> MvEntryList::selectedRows() const
{
    QList<int> rows;
    const QItemSelection selection = m_table->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

MvCalendarEventList MvEntryList::selectedEvents() const
{
    MvCalendarEventList events;
    const QList<int> rows = selectedRows();
    for (const int row : rows)
        events.append(m_model->event(row));
    return events;
}

void MvEntryList::rememberSelection()
{
    m_selected = selectedEvents();
    m_currentRow = m_table->currentIndex().row();
    m_current.clear();
    if (m_currentRow >= 0)
        m_current.append(m_model->event(m_currentRow));
}

/// Where all that was chosen is gone, as it was removed, the cursor stays at its place.
void MvEntryList::restoreSelection()
{
    QItemSelectionModel *selection = m_table->selectionModel();
    const QList<int> rows = m_model->rowsOf(m_selected);
    QItemSelection selected;
    for (qsizetype first = 0, last = 0; first < rows.size(); first = ++last) {
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        selected.append(QItemSelectionRange(m_model->index(rows.at(first), 0),
                                            m_model->index(rows.at(last), MvEntryListModel::numberOfColumns - 1)));
    }
    selection->select(selected, QItemSelectionModel::ClearAndSelect);
    const int present = m_model->rowsOf(m_current).value(0, qMin(m_currentRow, m_model->rowCount() - 1));
    if (present >= 0 && m_currentRow >= 0) {
        const QModelIndex index = m_model->index(present, 0);
        const bool isGone = rows.isEmpty() && !m_selected.isEmpty();
        selection->setCurrentIndex(index, isGone ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                                 : QItemSelectionModel::NoUpdate);
        m_table->scrollTo(index);
    }
    showCounts();
}

void MvEntryList::showCounts()
{
    const int shown = m_model->rowCount();
    const int total = m_model->total();
    const int chosen = int(selectedRows().size());
    QString text =
        shown == total ? tr("%n Einträge", nullptr, total) : tr("%1 von %n Einträgen", nullptr, total).arg(shown);
    if (chosen > 0)
        text += u", "_s + tr("%n ausgewählt", nullptr, chosen);
    m_counts->setText(text);
    for (QAction *action : {m_shift, m_remove})
        action->setEnabled(chosen > 0);
    m_edit->setEnabled(m_table->currentIndex().isValid());
    m_goTo->setEnabled(m_table->currentIndex().isValid());
    m_emptyText->setVisible(shown == 0);
    m_emptyText->setText(total > 0 ? tr("Kein Eintrag passt zu Suche und Gruppe.")
                                   : tr("Noch keine Einträge. Fügen Sie Geburtstage, Jahrestage und andere Termine "
                                        "hinzu, und sie erscheinen in Ihrem Kalender."));
}

// ---- what is done with what is chosen

bool MvEntryList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress)
        return MvCalendarEventListWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        (static_cast<QKeyEvent *>(event)->modifiers() & Qt::ControlModifier ? m_goTo : m_edit)->trigger();
        return true;
    case Qt::Key_F2:
        m_edit->trigger();
        return true;
    case Qt::Key_Delete:
        m_remove->trigger();
        return true;
    default:
        return false;
    }
}

void MvEntryList::showContextMenu(const QPoint &position)
{
    if (!m_table->currentIndex().isValid())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(m_goTo);
    menu->addAction(m_edit);
    menu->addSeparator();
    QMenu *groups = menu->addMenu(tr("Gruppe"));
    fillGroupMenu(groups);
    menu->addAction(m_shift);
    menu->addSeparator();
    menu->addAction(m_remove);
    const bool isByMouse = m_table->indexAt(position).isValid();
    const QPoint place = isByMouse ? position : m_table->visualRect(m_table->currentIndex()).center();
    menu->popup(m_table->viewport()->mapToGlobal(place));
}

void MvEntryList::fillGroupMenu(QMenu *menu)
{
    using Membership = MvEntryEdits::Membership;
    qDeleteAll(menu->findChildren<QMenu *>(Qt::FindDirectChildrenOnly)); // which clearing would leave behind
    menu->clear();
    const MvCalendarEventList events = selectedEvents();
    QSet<QString> own;
    for (const MvCalendarEvent &event : events) {
        for (const QString &id : event.groups())
            own.insert(id);
    }
    const auto set = [this](const QString &group, Membership membership) {
        MvEntryEdits(session()).setMembership(selectedEvents(), group, membership);
    };
    const auto addMenu = [&](const QString &name, const QString &title, Membership membership) {
        QMenu *part = menu->addMenu(title);
        part->setObjectName(name);
        for (const MvEventGroup &group : m_model->groups()) {
            if (membership != Membership::Removed || own.contains(group.id))
                part->addAction(MvEntryListModel::dots({group}), menuText(group), this,
                                [set, name = group.name, membership] { set(name, membership); });
        }
        return part;
    };
    QMenu *only = addMenu(u"moveToGroupMenu"_s, tr("In Gruppe verschieben"), Membership::Only);
    only->addAction(tr("Ohne Gruppe"), this, [set] { set(QString(), Membership::Only); })->setEnabled(!own.isEmpty());
    only->addSeparator();
    only->addAction(tr("Neue Gruppe …"), this, [this] { askForNewGroup(true); });
    QMenu *added = addMenu(u"addToGroupMenu"_s, tr("Zu Gruppe hinzufügen"), Membership::Added);
    added->addSeparator();
    added->addAction(tr("Neue Gruppe …"), this, [this] { askForNewGroup(false); });
    QMenu *removed = addMenu(u"removeFromGroupMenu"_s, tr("Aus Gruppe nehmen"), Membership::Removed);
    removed->setEnabled(!removed->isEmpty());
}

/// For the entries that are chosen now, whatever is chosen when the answer comes.
void MvEntryList::askForNewGroup(bool isOnly)
{
    auto *dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(u"newGroupDialog"_s);
    dialog->setWindowTitle(tr("Neue Gruppe"));
    dialog->setLabelText(tr("Name der Gruppe:"));
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this, isOnly, events = selectedEvents(), calendar = MvOpenCalendar(session())](const QString &name) {
                using Membership = MvEntryEdits::Membership;
                if (name.simplified().isEmpty() || !calendar.isStillOpenOrTell(this))
                    return;
                MvEntryEdits(session()).setMembership(events, name, isOnly ? Membership::Only : Membership::Added);
            });
    dialog->open();
}

void MvEntryList::askForShift()
{
    auto *dialog = new MvEntryShiftDialog(selectedEvents(), this);
    connect(dialog, &QDialog::accepted, this, [this, dialog, calendar = MvOpenCalendar(session())] {
        if (calendar.isStillOpenOrTell(this))
            MvEntryEdits(session()).shift(dialog->events(), dialog->years(), dialog->days());
    });
    dialog->open();
}
