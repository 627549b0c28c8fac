// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventListWidget.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventDelegateEditDelete.h"
#include "MvCalendar/MvCalendarEventFileIntake.h"
#include "MvCalendar/MvCalendarEventFotoDelegate.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventModel.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStep.h"
#include "MvCalendar/MvCalendarEventTextDelegate.h"
#include "MvCalendar/MvCalendarEventTransferDialog.h"
#include "MvCalendar/MvEntryFileImport.h"
#include "MvCalendar/MvEntryFiles.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvCalendar/MvOpenCalendar.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvLogger.h"
#include "MvCore/MvUndoController.h"
#include "MvCore/MvYesNoRequest.h"
#include "MvGUIWidgets/MvActionRegistry.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvGUIWidgets/MvTableView.h"

#include <QAction>
#include <QFrame>
#include <QGridLayout>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int fotoColumnWidth = 66;

MvCalendarEvent eventOf(const QModelIndex &index)
{
    return index.data(Qt::UserRole).value<MvCalendarEvent>();
}

} // namespace

MvCalendarEventListWidget::MvCalendarEventListWidget(QWidget *parent, MvSession &session)
    : QWidget(parent)
    , m_session(session)
{
    auto *newEntryButton = createNewEntryButton(this); // first in the tab order
    m_tableView = createEventTableView(this);
    auto *layout = new QGridLayout(this);
    m_searchField = createSearchField(this);
    MvFormFields::setTabOrder({newEntryButton, m_searchField, m_tableView});
    layout->addWidget(newEntryButton, 0, 0, Qt::AlignLeft);
    layout->addWidget(m_searchField, 0, 1);
    layout->setColumnStretch(1, 1);
    layout->addWidget(createHorizontalLine(this), 1, 0, 1, 2);
    layout->addWidget(m_tableView, 2, 0, 1, 2);
    layout->addWidget(changeEventListButton(this), 3, 0, 1, 2, Qt::AlignLeft);
}

MvCalendarEventListWidget::MvCalendarEventListWidget(MvSession &session, QWidget *parent)
    : QWidget(parent)
    , m_session(session)
{}

MvCalendarEventListWidget::~MvCalendarEventListWidget() = default;

// ---- parts

MvCalendarEventModel *MvCalendarEventListWidget::createEventModel()
{
    auto *model = new MvCalendarEventModel(this, m_session);
    model->load();
    return model;
}

MvTableView *MvCalendarEventListWidget::createEventTableView(QWidget *parent)
{
    using Model = MvCalendarEventModel;
    auto *view = new MvTableView(parent);
    view->setObjectName(u"eventTableView"_s);
    view->setAccessibleName(tr("Eigene Einträge"));
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setCornerButtonEnabled(false);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setModel(createEventModel());
    view->setSortingEnabled(false);
    view->setTextElideMode(Qt::ElideRight);
    view->setWordWrap(true); // rows have room for two lines
    view->setListMode({Model::FotoColumn, Model::EventColumn});
    view->setEmptyText(tr("Noch keine Einträge. Fügen Sie Geburtstage, Jahrestage und andere Termine hinzu, und sie "
                          "erscheinen in Ihrem Kalender."));

    QHeaderView *header = view->horizontalHeader();
    header->setSectionsClickable(false);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setMinimumSectionSize(fotoColumnWidth);
    header->setSectionResizeMode(Model::FotoColumn, QHeaderView::Fixed);
    header->resizeSection(Model::FotoColumn, fotoColumnWidth);
    header->setSectionResizeMode(Model::DateColumn, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(Model::NameColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(Model::EventColumn, QHeaderView::ResizeToContents);
    view->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);

    view->setItemDelegate(new MvCalendarEventTextDelegate(view));
    view->setItemDelegateForColumn(Model::FotoColumn, new MvCalendarEventFotoDelegate(view));
    view->setItemDelegateForColumn(Model::EventColumn, new MvCalendarEventDelegateEditDelete(view));
    view->updateToReasonableMinHeight();
    connect(view, &QWidget::customContextMenuRequested, this,
            &MvCalendarEventListWidget::onTableViewContextMenuRequested);
    connect(view, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT eventClicked(eventOf(index)); });
    connect(view, &MvTableView::rowActivated, this, [this](const QModelIndex &index) { editEvent(eventOf(index)); });
    connect(view, &MvTableView::rowRemovalRequested, this,
            [this](const QModelIndex &index) { deleteEvent(eventOf(index)); });
    return view;
}

QLineEdit *MvCalendarEventListWidget::createSearchField(QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(u"entrySearchField"_s);
    field->setPlaceholderText(tr("Suchen"));
    field->setAccessibleName(tr("Einträge suchen"));
    field->setClearButtonEnabled(true);
    connect(field, &QLineEdit::textChanged, this, &MvCalendarEventListWidget::showFoundRows);
    const QAbstractItemModel *model = m_tableView->model();
    connect(model, &QAbstractItemModel::modelReset, this, &MvCalendarEventListWidget::showFoundRows);
    connect(model, &QAbstractItemModel::layoutChanged, this, &MvCalendarEventListWidget::showFoundRows);
    return field;
}

void MvCalendarEventListWidget::showFoundRows()
{
    const QString wanted = m_searchField->text().simplified();
    const QAbstractItemModel *model = m_tableView->model();
    const QLocale locale = MvApplicationLocale::instance().locale();
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString name = model->index(row, MvCalendarEventModel::NameColumn).data().toString();
        const QDate date = model->index(row, MvCalendarEventModel::DateColumn).data().toDate();
        const bool isFound = name.contains(wanted, Qt::CaseInsensitive) ||
                             locale.toString(date, u"dd.MM.yyyy"_s).contains(wanted) ||
                             locale.toString(date, u"d. MMMM yyyy"_s).contains(wanted, Qt::CaseInsensitive);
        m_tableView->setRowHidden(row, !isFound);
    }
}

QFrame *MvCalendarEventListWidget::createHorizontalLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Midlight);
    return line;
}

QPushButton *MvCalendarEventListWidget::createAddButton(const QString &text, const QString &name, QWidget *parent)
{
    auto *button = new QPushButton(MvIconRegistry::instance().icon(u"ico_common_plus_grey"_s), text, parent);
    button->setObjectName(name);
    button->setProperty("cssstyle", u"addEntryButton"_s);
    return button;
}

QPushButton *MvCalendarEventListWidget::createNewEntryButton(QWidget *parent)
{
    QPushButton *button = createAddButton(tr("Eintrag hinzufügen..."), u"newEntryButton"_s, parent);
    connect(button, &QPushButton::clicked, this, &MvCalendarEventListWidget::addNewCalenderEntryClicked);
    return button;
}

QPushButton *MvCalendarEventListWidget::createImportFromContactsButton(QWidget *parent)
{
    QPushButton *button = createAddButton(tr("Aus Adressbuch importieren"), u"importFromContactsButton"_s, parent);
    connect(button, &QPushButton::clicked, this, &MvCalendarEventListWidget::importFromContacts);
    return button;
}

QPushButton *MvCalendarEventListWidget::changeEventListButton(QWidget *parent)
{
    auto *button = new QPushButton(tr("Andere Einträge…"), parent);
    button->setObjectName(u"changeEventListButton"_s);
    button->setProperty("cssstyle", u"hyperlinkStyle"_s);
    button->setCursor(Qt::PointingHandCursor);
    auto *menu = new QMenu(button);
    menu->addAction(tr("Sichern"), this, &MvCalendarEventListWidget::saveEventList);
    menu->setToolTipsVisible(true);
    const auto addAction = [menu](const QString &text, const char *name, QObject *receiver, auto slot) {
        menu->addAction(text, receiver, slot)->setObjectName(QLatin1StringView(name));
    };
    addAction(tr("Laden…"), "loadListAction", this, [this] { loadEventList(false); });
    addAction(tr("Hinzufügen…"), "addListAction", this, [this] { importEventList(); });
    menu->addSeparator()->setObjectName(u"ownListSeparator"_s);
    addAction(tr("Aus meinen Einträgen übernehmen…"), "takeFromOwnAction", this, [this] { takeFromOwnEvents(); });
    addAction(tr("In meine Einträge übernehmen…"), "takeToOwnAction", this, [this] { takeToOwnEvents(); });
    menu->addSeparator();
    addAction(tr("Alle löschen…"), "clearListAction", this, [this] { clearEventList(); });
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { describeActions(menu); });
    describeActions(menu);
    button->setMenu(menu);
    return button;
}

/// Says what they hit: this calendar, or all of them.
void MvCalendarEventListWidget::describeActions(const QMenu *menu) const
{
    const bool isKept = m_session.entries().isKeptWithProject();
    const QHash<QString, QString> tips = {
        {u"loadListAction"_s, isKept ? tr("Ersetzt die Einträge dieses Kalenders durch die einer Datei")
                                     : tr("Ersetzt Ihre Einträge, in allen Ihren Kalendern, durch die einer Datei")},
        {u"addListAction"_s, isKept ? tr("Fügt die Einträge einer Datei zu denen dieses Kalenders hinzu")
                                    : tr("Fügt die Einträge einer Datei zu Ihren hinzu, in allen Ihren Kalendern")},
        {u"clearListAction"_s, isKept ? tr("Löscht die Einträge dieses Kalenders; Ihre eigenen bleiben")
                                      : tr("Löscht Ihre Einträge aus allen Ihren Kalendern")},
        {u"takeFromOwnAction"_s, tr("Zeigt, was in Ihren eigenen Einträgen neu oder anders ist")},
        {u"takeToOwnAction"_s, tr("Zeigt, was in diesem Kalender neu oder anders ist; aus Ihren eigenen Einträgen "
                                  "entstehen neue Kalender")},
    };
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        action->setToolTip(tips.value(action->objectName()));
        if (action->objectName().contains("Own"_L1) || action->objectName() == "ownListSeparator"_L1)
            action->setVisible(isKept);
    }
}

// ---- single entries

/// The entry as it is by now: it may have changed while a menu with it stood open.
void MvCalendarEventListWidget::editEvent(const MvCalendarEvent &event)
{
    const MvCalendarEvent present = m_session.entries().presentEvent(event);
    if (present.isValid())
        MvCalendarDayEditorDialog::createSelfDeleting(nullptr, m_session)->openDayEditorSingle(present);
}

void MvCalendarEventListWidget::deleteEvent(const MvCalendarEvent &event)
{
    m_session.undo().push(new MvCalendarEventStep(event, MvCalendarEvent(), m_session));
}

MvCalendarEventList MvCalendarEventListWidget::events() const
{
    return m_session.entries().eventsOfCurrentProject();
}

void MvCalendarEventListWidget::addNewCalenderEntryClicked()
{
    auto *dialog = MvCalendarDayEditorDialog::createSelfDeleting(nullptr, m_session);
    connect(dialog, &QDialog::accepted, this, &MvCalendarEventListWidget::calendarEventAdded);
    const QDateTime now = QDateTime::currentDateTime();
    const QDateTime start = m_newDate.isValid() ? MvCalendarEvent::startOf(m_newDate) : now;
    dialog->openDayEditorSeries(MvCalendarEvent({}, start, true, MvFoto(), QUuid::createUuid(), now));
}

void MvCalendarEventListWidget::onTableViewContextMenuRequested(const QPoint &pos)
{
    const QModelIndex index = m_tableView->indexAt(pos);
    if (!index.isValid() || index.column() == MvCalendarEventModel::EventColumn)
        return;
    const QVariant event = index.siblingAtColumn(MvCalendarEventModel::EventColumn).data();
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto addAction = [this, menu, &event](int type, void (MvCalendarEventListWidget::*slot)()) {
        QAction *action = MvActionRegistry::instance().unregisteredAction(type, menu);
        action->setData(event);
        connect(action, &QAction::triggered, this, slot);
        menu->addAction(action);
    };
    addAction(MvActionRegistry::EditCalendarEvent, &MvCalendarEventListWidget::editEntryActionTriggered);
    addAction(MvActionRegistry::DeleteCalendarEvent, &MvCalendarEventListWidget::deleteActionTriggered);
    menu->popup(m_tableView->viewport()->mapToGlobal(pos));
}

void MvCalendarEventListWidget::editEntryActionTriggered()
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        editEvent(action->data().value<MvCalendarEvent>());
}

void MvCalendarEventListWidget::deleteActionTriggered()
{
    if (const auto *action = qobject_cast<QAction *>(sender()))
        deleteEvent(action->data().value<MvCalendarEvent>());
}

// ---- lists

/// What the list does not have. A file without uuids gets new ones with each reading: its entries are known by what
/// they say.
MvCalendarEventList MvCalendarEventListWidget::newEvents(const MvCalendarEventList &current,
                                                         const MvCalendarEventList &read) const
{
    MvCalendarEventList added = m_session.entries().onlyNewEvents(current, read);
    const QSet<MvCalendarEvent> known(current.cbegin(), current.cend());
    added.removeIf([&known](const MvCalendarEvent &event) { return known.contains(event); });
    return added;
}

void MvCalendarEventListWidget::replaceEvents(const QString &macro, const QString &name,
                                              const MvCalendarEventList &removed, const MvCalendarEventList &added,
                                              Reach reach, const MvEventGroupList &groups)
{
    QList<Change> changes;
    for (const MvCalendarEvent &event : removed) {
        if (event.isValid())
            changes.append({event, {}});
    }
    for (const MvCalendarEvent &event : added)
        changes.append({{}, event});
    MvEntryEdits(m_session).change(macro, name, changes, reach, groups);
}

void MvCalendarEventListWidget::finishAdding()
{
    m_session.entries().save();
    Q_EMIT calendarEventAdded();
}

void MvCalendarEventListWidget::saveEventList()
{
    const auto save = [this](const QString &fileName) {
        if (fileName.isEmpty())
            return;
        const QString error = writeEventList(fileName);
        if (!error.isEmpty())
            MvDiskAccessRequest::instance().writeCalendarEntriesFileFailed(fileName, error, this);
    };
    MvDiskAccessRequest::instance().requestSaveFile(MvDiskAccessRequest::CalendarEntriesFile, tr("Kalendereinträge"),
                                                    MvEntryFiles::saveFilter(), tr("Kalendereinträge") + u".xml"_s,
                                                    this, save);
}

/// What went wrong, for a person.
QString MvCalendarEventListWidget::writeEventList(const QString &fileName) const
{
    using Kind = MvEntryFiles::Kind;
    const Kind kind = MvEntryFiles::kindOf(fileName);
    if (kind == Kind::Calendar || kind == Kind::Table)
        return MvEntryFiles::write(events(), QFileInfo(fileName)).error;
    m_session.entries().saveAs(QFileInfo(fileName));
    return m_session.entries().lastSaveError();
}

void MvCalendarEventListWidget::importEventList()
{
    loadEventList(true);
}

void MvCalendarEventListWidget::loadEventList(bool merge)
{
    const auto read = [this, merge](const QString &fileName) {
        if (!fileName.isEmpty())
            readEventList(fileName, merge);
    };
    MvDiskAccessRequest::instance().requestOpenFile(MvDiskAccessRequest::CalendarEntriesFile, tr("Kalendereinträge"),
                                                    MvEntryFiles::openFilter(), this, read);
}

void MvCalendarEventListWidget::readEventList(const QString &fileName, bool merge)
{
    using Intake = MvCalendarEventFileIntake;
    using Kind = MvEntryFiles::Kind;
    MvLogger::legacyLog(u"CalendarEvents ACTION:loadFromFile MERGE:%1"_s.arg(merge ? u"set"_s : u"unset"_s));
    const Kind kind = MvEntryFiles::kindOf(fileName);
    if (merge && kind != Kind::List && kind != Kind::None) { // what others have written may have changed since
        importFile(fileName);
        return;
    }
    Intake::start(
        fileName, merge ? Intake::Purpose::Add : Intake::Purpose::Replace, this,
        [this, merge](const MvCalendarEventList &read) {
            const MvOpenCalendar calendar(m_session);
            m_session.entries().prepareFotos(read, this, [this, read, merge, calendar] {
                if (calendar.isStillOpen())
                    takeEventList(read, merge);
                else
                    MvRequestHandler::current().report(tr("Kalendereinträge"), MvOpenCalendar::closedText(), this);
            });
        },
        m_session);
}

void MvCalendarEventListWidget::importFile(const QString &fileName)
{
    auto *import = new MvEntryFileImport(m_session, this);
    connect(import, &MvEntryFileImport::finished, this, [this, import](const MvEntryFileImport::Result &result) {
        constexpr int mostNamed = 10;
        import->deleteLater();
        if (result.isCancelled)
            return;
        QStringList lines{result.summary()};
        lines += (result.errors + result.lines).mid(0, mostNamed);
        MvRequestHandler::current().report(tr("Kalendereinträge"), lines.join(u'\n'), this);
        if (!result.isDropped)
            finishAdding();
    });
    import->import({fileName});
}

void MvCalendarEventListWidget::takeEventList(const MvCalendarEventList &read, bool merge)
{
    const MvCalendarEventList current = events();
    const MvCalendarEventList taken = MvEntryIntake::inGroups(current.groups(), read);
    if (merge)
        replaceEvents(u"loadEventList"_s, tr("Einträge hinzufügen"), {}, newEvents(current, taken), Reach::AsSet,
                      taken.groups());
    else // a whole list is this calendar's alone: that of a club must not replace the user's own
        replaceEvents(u"loadEventList"_s, tr("Einträge laden"), current, taken, Reach::ActiveList, taken.groups());
    finishAdding();
}

void MvCalendarEventListWidget::clearEventList()
{
    MvRequestHandler::ChoiceRequest question;
    question.title = tr("Alle Einträge löschen?");
    question.text = question.title;
    question.details =
        m_session.entries().isKeptWithProject()
            ? tr("Die %n Einträge dieses Kalenders verschwinden. Ihre eigenen Einträge und Ihre anderen Kalender "
                 "bleiben, wie sie sind. Mit „Rückgängig“ bekommen Sie sie wieder.",
                 nullptr, int(events().size()))
            : tr("Ihre Einträge verschwinden aus allen Ihren Kalendern, nicht nur aus diesem. Mit „Rückgängig“ "
                 "bekommen Sie sie wieder.");
    question.buttons = QStringList{tr("Ja"), tr("Nein")};
    const auto clear = [this, calendar = MvOpenCalendar(m_session)](bool yes) {
        MvLogger::legacyLog(u"CalendarEvents ACTION:deleteAll VALUE:%1"_s.arg(int(yes)));
        if (yes && calendar.isStillOpenOrTell(this))
            replaceEvents(u"clearEventList"_s, tr("Einträge löschen"), events(), {}, Reach::ActiveList);
    };
    MvYesNoRequest::instance().request(question, this, clear);
}

void MvCalendarEventListWidget::takeFromOwnEvents()
{
    transferEvents(true);
}

void MvCalendarEventListWidget::takeToOwnEvents()
{
    transferEvents(false);
}

void MvCalendarEventListWidget::transferEvents(bool isFromOwn)
{
    using Dialog = MvCalendarEventTransferDialog;
    const auto &registry = m_session.entries();
    const MvCalendarEventList here = isFromOwn ? registry.ownEvents() : events();
    const MvCalendarEventList there = isFromOwn ? events() : registry.ownEvents();
    const MvCalendarEventList coming =
        MvEntryIntake::inGroups(there.groups(), here, MvEntryIntake::Origin::OtherList); // as it will be there
    const Dialog::Differences differences = MvCalendarEventMerge::differences(coming, there);
    if (differences.isEmpty()) {
        const QString text = isFromOwn ? tr("Alles, was in Ihren Einträgen steht, steht auch in diesem Kalender.")
                                       : tr("Alles, was in diesem Kalender steht, steht auch in Ihren Einträgen.");
        MvRequestHandler::current().report(tr("Kalendereinträge"), text, this);
        return;
    }
    auto *dialog = new Dialog(differences, isFromOwn ? Dialog::Direction::FromOwn : Dialog::Direction::ToOwn, this);
    const auto take = [this, dialog, isFromOwn, groups = coming.groups(), calendar = MvOpenCalendar(m_session)] {
        if (!calendar.isStillOpenOrTell(this))
            return;
        QList<Change> chosen;
        MvEventGroupList named;
        for (const auto &[wanted, present] : dialog->chosen()) {
            chosen.append({present, wanted});
            for (const QString &id : wanted.groups()) {
                if (const MvEventGroup *group = groups.find(id))
                    named.put(*group);
            }
        }
        takeTransfer(chosen, named, isFromOwn);
    };
    connect(dialog, &QDialog::accepted, this, take);
    dialog->open();
}

/// What another program has changed meanwhile stays: the step means the very entry.
void MvCalendarEventListWidget::takeTransfer(const QList<Change> &chosen, const MvEventGroupList &groups,
                                             bool isFromOwn)
{
    MvEntryEdits(m_session).change(
        u"transferEvents"_s, isFromOwn ? tr("Aus meinen Einträgen übernehmen") : tr("In meine Einträge übernehmen"),
        chosen, isFromOwn ? Reach::ActiveList : Reach::OwnList, groups);
    Q_EMIT calendarEventAdded();
}

void MvCalendarEventListWidget::importFromContacts()
{
    auto &registry = m_session.entries();
    const MvCalendarEventList contacts = registry.loadFromSystemAddressBook();
    MvCalendarEventList birthdays;
    for (const MvCalendarEvent &contact : contacts) {
        if (contact.isValid()) // with a name and a date: the others are never stored
            birthdays.append(contact);
    }
    const MvCalendarEventList current = events();
    const MvCalendarEventList added = registry.onlyNewEvents(current, birthdays);
    if (!added.isEmpty()) {
        replaceEvents(u"loadEventList"_s, tr("Einträge hinzufügen"), {}, added, Reach::AsSet);
        finishAdding();
    }
    MvLogger::legacyLog(
        u"CalendarEvents ACTION:importFromAddressBook MERGE:%1 STARTCOUNT:%2 FOUNDINADDRESSBOOK:%3 IMPORTED:%4"_s.arg(
            u"set"_s, QString::number(current.size()), QString::number(contacts.size()),
            QString::number(added.size())));
    registry.playImportedCustomerEntriesProactiveAdvice(int(birthdays.size()), int(added.size()));
}
