// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvEntryBubble.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEntryMove.h"
#include "MvCalendar/MvEntryQuestion.h"
#include "MvCalendar/MvEventRepetitionEdit.h"
#include "MvCalendar/MvFotoField.h"

#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvStringHelper.h"
#include "MvGUIWidgets/MvDateEdit.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvGUIWidgets/MvLineEdit.h"
#include "MvPaint/MvPrintableText.h"

#include <QAccessible>
#include <QDragEnterEvent>
#include <QGraphicsObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostRows = 4;   // of the list, before it scrolls
constexpr int textWidth = 22; // of the field, in widths of an m
constexpr qsizetype longestName = 60;

MvCalendarEvent newEntryAt(const QDate &date)
{
    return {{}, MvCalendarEvent::startOf(date), true, MvFoto(), QUuid::createUuid(), QDateTime::currentDateTime()};
}

bool hasRule(const MvCalendarEvent &event)
{
    return !event.repetition().rule.isNone();
}

QString shortName(const MvCalendarEvent &event)
{
    return MvPrintableText::inShort(event.description(), longestName);
}

} // namespace

MvEntryBubble::MvEntryBubble(MvSession &session, QGraphicsObject *item, QWidget *widget)
    : MvBubble(widget)
    , m_session(session)
    , m_item(item)
{
    setObjectName(u"entryBubble"_s);
    setAcceptDrops(true);
    setContent(createContent());
    connect(&session.entries(), &MvCalendarEventRegistry::eventsChanged, this, &MvEntryBubble::followEntries);
}

MvEntryBubble::~MvEntryBubble() = default;

// ---- widgets

QWidget *MvEntryBubble::createContent()
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins({});
    layout->addLayout(createHead());
    createList();
    layout->addWidget(m_list);
    m_name = new MvLineEdit;
    m_name->setObjectName(u"bubbleText"_s);
    m_name->setPlaceholderText(tr("Was ist an diesem Tag?"));
    m_name->setAccessibleName(tr("Text des Eintrags"));
    m_name->setMaxLength(MvStringHelper::longestName);
    m_name->setMinimumWidth(textWidth * m_name->fontMetrics().horizontalAdvance(u'm'));
    layout->addWidget(m_name);
    layout->addLayout(createDay());
    m_repetition = new MvEventRepetitionEdit;
    layout->addWidget(m_repetition);
    m_hint = new QLabel;
    m_hint->setObjectName(u"bubbleHint"_s);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->hide();
    layout->addWidget(m_hint);
    layout->addLayout(createButtons());
    return content;
}

QLayout *MvEntryBubble::createHead()
{
    m_title = new QLabel;
    m_title->setObjectName(u"bubbleTitle"_s);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    auto *close = new QToolButton;
    close->setObjectName(u"bubbleClose"_s);
    close->setIcon(MvIconRegistry::instance().icon(u"ico_common_close"_s));
    close->setAutoRaise(true);
    close->setToolTip(tr("Ohne Änderung verlassen (Esc)"));
    close->setAccessibleName(close->toolTip());
    connect(close, &QToolButton::clicked, this, &MvBubble::closeBubble);
    auto *row = new QHBoxLayout;
    row->addWidget(m_title, 1);
    row->addWidget(close);
    return row;
}

void MvEntryBubble::createList()
{
    m_list = new QListWidget;
    m_list->setObjectName(u"bubbleEntries"_s);
    m_list->setAccessibleName(tr("Einträge des Tages"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(m_list, &QListWidget::currentRowChanged, this, &MvEntryBubble::chooseRow);
}

QLayout *MvEntryBubble::createDay()
{
    m_dateEdit = new MvDateEdit;
    m_dateEdit->setObjectName(u"bubbleDate"_s);
    m_dateEdit->setAccessibleName(tr("Datum"));
    m_dateEdit->setMinimumWidth(m_dateEdit->fontMetrics().horizontalAdvance(u"00. September 0000 ✕"_s)); // as typed
    m_dateEdit->setToolTip(tr("Ein anderes Datum verschiebt den Eintrag"));
    m_foto = new MvFotoField;
    m_foto->setCompact();
    auto *row = new QHBoxLayout;
    row->addWidget(m_dateEdit, 0, Qt::AlignTop);
    row->addWidget(m_foto, 1);
    return row;
}

QLayout *MvEntryBubble::createButtons()
{
    const auto create = [this](const QString &text, const char *name, auto slot) {
        auto *button = new QPushButton(text);
        button->setObjectName(QLatin1StringView(name));
        button->setAutoDefault(true); // answers Enter
        connect(button, &QPushButton::clicked, this, slot);
        return button;
    };
    m_delete = create(tr("Löschen"), "bubbleDelete", &MvEntryBubble::deleteEntry);
    auto *more = create(tr("Mehr …"), "bubbleMore", &MvEntryBubble::openEditor);
    more->setToolTip(tr("Alle Angaben, mit dem, was Sie eingetippt haben"));
    auto *save = create(tr("Sichern"), "bubbleSave", &MvEntryBubble::accept);
    save->setDefault(true);
    auto *row = new QHBoxLayout;
    row->addWidget(m_delete);
    row->addWidget(more);
    row->addStretch();
    row->addWidget(save);
    return row;
}

// ---- showing

void MvEntryBubble::openFor(const QDate &date, const MvCalendarEventList &entries, const MvCalendarEvent &chosen,
                            const QRect &target)
{
    m_date = date;
    m_project = m_session.entries().activeModelId();
    const QString day = MvEntryQuestion::dayText(date);
    m_title->setText(day);
    setAccessibleName(tr("Eintrag am %1").arg(day));
    fillList(entries, chosen);
    showEntry(chosen);
    openAt(target);
    m_name->setFocus(Qt::PopupFocusReason);
}

void MvEntryBubble::fillList(const MvCalendarEventList &entries, const MvCalendarEvent &chosen)
{
    const QSignalBlocker blocker(m_list);
    m_entries = entries;
    m_list->clear();
    for (const MvCalendarEvent &event : entries)
        m_list->addItem(shortName(event));
    m_list->addItem(
        new QListWidgetItem(MvIconRegistry::instance().icon(u"ico_common_plus_grey"_s), tr("Neuer Eintrag")));
    const qsizetype row = chosen.isValid() ? entries.indexOf(chosen) : -1;
    m_list->setCurrentRow(row < 0 ? m_list->count() - 1 : int(row));
    m_list->ensurePolished();
    int height = 2 * m_list->frameWidth();
    for (int shown = 0; shown < qMin(mostRows, m_list->count()); ++shown)
        height += m_list->sizeHintForRow(shown);
    m_list->setFixedHeight(height);
    m_list->setVisible(!entries.isEmpty());
}

/// What was typed for the one before is saved first.
void MvEntryBubble::chooseRow(int row)
{
    const MvCalendarEvent chosen = m_entries.value(row);
    if (!save()) {
        const QSignalBlocker blocker(m_list);
        const qsizetype present = m_entries.indexOf(m_event);
        m_list->setCurrentRow(present < 0 ? m_list->count() - 1 : int(present));
        return;
    }
    const MvCalendarEvent present = chosen.isValid() ? m_session.entries().presentEvent(chosen) : chosen;
    showEntry(present);
}

void MvEntryBubble::showEntry(const MvCalendarEvent &event)
{
    m_isOfList = event.isValid();
    m_event = m_isOfList ? event : newEntryAt(m_date);
    m_name->setText(m_event.description());
    m_shownName = m_name->text();
    const QDate time = hasRule(m_event) ? m_event.startAt(m_date) : QDate();
    m_shownDate = time.isValid() ? time : m_event.dateTime().date();
    m_dateEdit->setDisplayFormat(m_event.hasYear() ? u"dd.MM.yyyy"_s : u"dd.MM."_s);
    m_dateEdit->setCalendarPopup(m_event.hasYear());
    m_dateEdit->showDate(m_shownDate);
    m_foto->setFoto(m_event.foto());
    m_repetition->setEvent(m_event, m_session.entries().activeEventList().groups(), !m_isOfList);
    m_delete->setVisible(m_isOfList);
    m_hint->hide();
    adjust();
}

/// Another calendar, or what another program has done.
void MvEntryBubble::followEntries()
{
    if (m_isPushing || isHidden())
        return;
    if (!(m_session.entries().activeModelId() == m_project)) {
        closeBubble();
        return;
    }
    const MvCalendarEvent present = m_isOfList ? m_session.entries().presentEvent(m_event) : m_event;
    if (!m_isOfList || present == m_event)
        return;
    if (isTouched()) {
        m_isOfList = present.isValid(); // what was typed makes a new one of an entry that has gone
        m_delete->setVisible(m_isOfList);
    } else if (present.isValid()) {
        showEntry(present);
    } else {
        closeBubble();
    }
}

void MvEntryBubble::changeEvent(QEvent *event)
{
    MvBubble::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        adjust();
}

// ---- what was typed

bool MvEntryBubble::isDateTouched() const
{
    return m_dateEdit->isEdited() || m_dateEdit->date() != m_shownDate;
}

bool MvEntryBubble::isTouched() const
{
    return m_name->text() != m_shownName || isDateTouched() || m_repetition->isTouched() ||
           !(m_foto->foto() == m_event.foto());
}

/// Says why it stays open.
bool MvEntryBubble::refuse(const QString &text, QWidget *field)
{
    m_hint->setText(text);
    m_hint->show();
    adjust();
    field->setFocus(Qt::OtherFocusReason);
    QAccessibleEvent alert(m_hint, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    return false;
}

/// The entry with all that was typed but its photo; of one that repeats by a rule, at its old date. A group that was
/// typed is added to the groups.
MvCalendarEvent MvEntryBubble::typed(MvEventGroupList &groups) const
{
    MvCalendarEvent event = m_event;
    if (m_name->text() != m_shownName) // a file's own form stays as long as nobody changes it
        event.setEventName(MvStringHelper::simplifiedName(m_name->text()));
    const QDate before = event.dateTime().date();
    if (isDateTouched() && !hasRule(m_event))
        event.setDateTime(MvCalendarEvent::startOf(m_dateEdit->date()));
    m_repetition->applyTo(event, groups);
    if (hasRule(m_event) && MvEntryMove::doesRepeat(event) == false) // once: this time is meant
        event.setDateTime(MvCalendarEvent::startOf(m_dateEdit->date()));
    else if (m_event.endDate().isValid() && event.endDate() == m_event.endDate()) // as long as before
        event.setEndDate(event.endDate().addDays(before.daysTo(event.dateTime().date())));
    return event;
}

bool MvEntryBubble::takeFoto(MvCalendarEvent &event)
{
    const MvOutcome taken = event.takeFoto(m_foto->foto());
    if (!taken.isOk())
        MvDiskAccessRequest::instance().takeFotosFailed({taken.error}, window());
    return taken.isOk();
}

/// True when nothing of it would be lost by leaving.
bool MvEntryBubble::save()
{
    if (!isTouched())
        return true;
    if (!m_dateEdit->takeText())
        return refuse(m_dateEdit->error(), m_dateEdit);
    if (MvStringHelper::simplifiedName(m_name->text()).isEmpty()) {
        if (!m_isOfList && !m_foto->foto().isValid())
            return true; // settings of nothing
        return refuse(tr("Ein Eintrag braucht einen Text. Esc verlässt ihn ohne Änderung."), m_name);
    }
    MvEventGroupList groups = m_session.entries().activeEventList().groups();
    MvCalendarEvent event = typed(groups);
    if (!takeFoto(event))
        m_foto->setFoto(m_event.foto()); // told by a message; the rest is kept
    const bool isMoved = hasRule(m_event) && isDateTouched() && MvEntryMove::doesRepeat(event);
    if (m_isOfList && isMoved) {
        MvEntryQuestion::askForMove(MvEntryMove(m_event, m_shownDate, m_dateEdit->date()), event, this,
                                    [this, groups](const QList<MvEntryChange> &changes) {
                                        if (changes.isEmpty())
                                            return;
                                        push(tr("Eintrag verschieben"), changes, tr("„%1“ ist verschoben."), groups);
                                        closeBubble();
                                    });
        return false;
    }
    push(m_isOfList ? tr("Eintrag ändern") : tr("Eintrag anlegen"), {{m_isOfList ? m_event : MvCalendarEvent(), event}},
         tr("„%1“ ist gesichert."), groups);
    updateRow(event);
    return true;
}

/// Whoever goes on to another entry of the day sees what was saved in the list.
void MvEntryBubble::updateRow(const MvCalendarEvent &saved)
{
    const QSignalBlocker blocker(m_list);
    const qsizetype row = m_isOfList ? m_entries.indexOf(m_event) : -1;
    if (row >= 0) {
        m_entries[row] = saved;
        m_list->item(int(row))->setText(shortName(saved));
    } else {
        m_list->insertItem(int(m_entries.size()), shortName(saved));
        m_entries.append(saved);
    }
}

void MvEntryBubble::push(const QString &name, const QList<MvEntryChange> &changes, const QString &told,
                         const MvEventGroupList &groups)
{
    const QScopedValueRollback pushing(m_isPushing, true);
    MvEntryEdits(m_session).change(name, name, changes, MvEntryEdits::Reach::AsSet, groups);
    const MvCalendarEvent &last = changes.last().after.isValid() ? changes.last().after : m_event;
    const QString undo = QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText);
    Q_EMIT message(told.arg(shortName(last)) + u' ' + tr("%1 nimmt es zurück.").arg(undo));
}

// ---- leaving

bool MvEntryBubble::mayLeave()
{
    return save();
}

void MvEntryBubble::accept()
{
    if (!isTouched() && !m_isOfList) {
        refuse(tr("Ein Eintrag braucht einen Text. Esc verlässt ihn ohne Änderung."), m_name);
        return;
    }
    if (save())
        closeBubble();
}

void MvEntryBubble::deleteEntry()
{
    MvEntryQuestion::askForDeletion(m_event, m_date, this, [this](const QList<MvEntryChange> &changes) {
        if (changes.isEmpty())
            return;
        push(tr("Eintrag löschen"), changes, tr("„%1“ ist gelöscht."));
        closeBubble();
    });
}

void MvEntryBubble::openEditor()
{
    MvEventGroupList groups = m_session.entries().activeEventList().groups();
    MvCalendarEvent event = typed(groups);
    if (m_dateEdit->takeText() && isDateTouched() && hasRule(m_event)) {
        const QList<MvEntryChange> moved = MvEntryMove(m_event, m_shownDate, m_dateEdit->date()).allTimes(event);
        if (!moved.isEmpty())
            event = moved.first().after;
    }
    auto *editor = MvCalendarDayEditorDialog::createSelfDeleting(m_item, m_session);
    editor->openDayEditorSingle(m_event);
    if (editor->isVisible()) {
        editor->takeTyped(event, groups);
        if (!(m_foto->foto() == m_event.foto()))
            editor->setFoto(m_foto->foto());
    } else if (!save()) { // another window has the entry already, and follows it
        return;
    }
    closeBubble();
}

void MvEntryBubble::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        accept();
    MvBubble::keyPressEvent(event);
}

// ---- a photo may be dropped anywhere on it

void MvEntryBubble::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_foto->offerDrop(event->mimeData()))
        event->acceptProposedAction();
}

void MvEntryBubble::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    m_foto->endDrop();
}

void MvEntryBubble::dropEvent(QDropEvent *event)
{
    if (m_foto->takeDrop(event->mimeData()))
        event->acceptProposedAction();
}
