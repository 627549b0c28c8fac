// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarDayEditorDialog.h"

#include "MvCalendar/MvCalendarEventDateEdit.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryEdits.h"
#include "MvCalendar/MvEventRepetitionEdit.h"
#include "MvCalendar/MvFotoField.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvStringHelper.h"
#include "MvCore/MvUndoController.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvLineEdit.h"

#include <QAccessible>
#include <QApplication>
#include <QDragEnterEvent>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int settlingTime = 350; // ms, of a dialog that is shown
constexpr int groupMargin = 10;

void setStyleClass(QWidget *widget, const QString &name)
{
    widget->setProperty("cssstyle", name);
}

/// This very entry: those of a series share their uuid, and equal ones differ in it.
bool isSameEntry(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.uuid() == b.uuid() && a == b;
}

bool holds(const MvCalendarEventList &events, const MvCalendarEvent &event)
{
    return std::any_of(events.cbegin(), events.cend(),
                       [&event](const MvCalendarEvent &other) { return isSameEntry(other, event); });
}

} // namespace

MvCalendarDayEditorDialog::MvCalendarDayEditorDialog(QGraphicsObject *item, MvSession &session)
    : QDialog(nullptr, Qt::Tool)
    , m_session(session)
    , m_item(item)
{
    setWindowModality(Qt::NonModal);
    setAttribute(Qt::WA_QuitOnClose, false);
    setupGUI();
    setAcceptDrops(true);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &QWidget::close);
    connect(&m_session.entries(), &MvCalendarEventRegistry::eventsChanged, this,
            &MvCalendarDayEditorDialog::followEntry);
}

MvCalendarDayEditorDialog::~MvCalendarDayEditorDialog() = default;

MvCalendarDayEditorDialog *MvCalendarDayEditorDialog::createSelfDeleting(QGraphicsObject *item, MvSession &session)
{
    auto *dialog = new MvCalendarDayEditorDialog(item, session);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setSize(defaultWidth, defaultHeight);
    return dialog;
}

// ---- widgets

void MvCalendarDayEditorDialog::setupGUI()
{
    setWindowTitle(tr("Kalendereintrag bearbeiten"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(createEntryGroup(), 1);
    layout->addWidget(createButtonGroup());
    setupKeyboard();
    setSize(defaultWidth, defaultHeight);
}

QGroupBox *MvCalendarDayEditorDialog::createEntryGroup()
{
    auto *group = new QGroupBox(tr("Mein Termin / Ereignis"), this);
    auto *layout = new QVBoxLayout(group);
    layout->setAlignment(Qt::AlignTop);
    layout->setContentsMargins(groupMargin, groupMargin, groupMargin, groupMargin);

    m_noticeLabel = new QLabel(group);
    m_noticeLabel->setObjectName(u"noticeLabel"_s);
    m_noticeLabel->setTextFormat(Qt::PlainText);
    m_noticeLabel->setWordWrap(true);
    m_noticeLabel->hide();
    layout->addWidget(m_noticeLabel);

    m_dateEdit = new MvCalendarEventDateEdit(group);
    layout->addWidget(m_dateEdit);

    m_dateLabel = new QLabel(group);
    m_dateLabel->setObjectName(u"dateLabel"_s);
    m_dateLabel->hide();
    layout->addWidget(m_dateLabel);

    m_descriptionEdit = new MvLineEdit(group);
    m_descriptionEdit->setObjectName(u"descriptionEdit"_s);
    m_descriptionEdit->setPlaceholderText(tr("Beschreibung"));
    m_descriptionEdit->setAccessibleName(tr("Beschreibung"));
    m_descriptionEdit->setMaxLength(MvStringHelper::longestName);
    connect(m_descriptionEdit, &QLineEdit::textChanged, this, &MvCalendarDayEditorDialog::onTextChanged);
    layout->addWidget(m_descriptionEdit);

    m_repetitionEdit = new MvEventRepetitionEdit(group);
    layout->addWidget(m_repetitionEdit);

    m_fotoField = new MvFotoField(group);
    layout->addWidget(m_fotoField, 1);
    auto *clickHint = new QLabel(tr("Ein Klick auf die Fläche wählt ein Foto aus."), group);
    clickHint->setForegroundRole(QPalette::PlaceholderText);
    clickHint->setAlignment(Qt::AlignHCenter);
    layout->addWidget(clickHint);
    return group;
}

QGroupBox *MvCalendarDayEditorDialog::createButtonGroup()
{
    auto *group = new QGroupBox(this);
    group->setFlat(true);
    auto *layout = new QHBoxLayout(group);
    layout->setAlignment(Qt::AlignBottom);

    m_deleteButton = createButton(tr("Eintrag &löschen"), u"deleteButton"_s, layout);
    connect(m_deleteButton, &QPushButton::clicked, this, &MvCalendarDayEditorDialog::deleteEntry);
    layout->addStretch();
    m_cancelButton = createButton(tr("&Abbrechen"), u"cancelButton"_s, layout);
    connect(m_cancelButton, &QPushButton::clicked, this, &MvCalendarDayEditorDialog::rejectedClicked);
    m_okAndContinueButton = createButton(tr("OK und &weiter"), u"okAndContinueButton"_s, layout);
    m_okAndContinueButton->setToolTip(tr("Bestätigt den Termin und ermöglicht es, direkt einen Weiteren anzulegen."));
    m_okAndContinueButton->setEnabled(false);
    connect(m_okAndContinueButton, &QPushButton::clicked, this, &MvCalendarDayEditorDialog::acceptedAndContinueClicked);
    m_okButton = createButton(tr("OK"), u"okButton"_s, layout);
    m_okButton->setAutoDefault(true);
    m_okButton->setDefault(true);
    m_okButton->setEnabled(false);
    connect(m_okButton, &QPushButton::clicked, this, &MvCalendarDayEditorDialog::acceptedClicked);
    return group;
}

QPushButton *MvCalendarDayEditorDialog::createButton(const QString &text, const QString &name, QBoxLayout *layout)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    setStyleClass(button, u"2ndLevelPushButton"_s);
    layout->addWidget(button);
    return button;
}

void MvCalendarDayEditorDialog::setupKeyboard()
{
    QList<QWidget *> order{m_dateEdit, m_descriptionEdit};
    order += m_repetitionEdit->focusWidgets();
    order += m_fotoField->focusWidgets();
    order += {m_deleteButton, m_cancelButton, m_okAndContinueButton, m_okButton};
    MvFormFields::setTabOrder(order);
}

void MvCalendarDayEditorDialog::setSize(int width, int height)
{
    const QSize size = QSize(width, height).expandedTo(minimumSizeHint());
    setFixedSize(size.width(), qMax(size.height(), layout()->totalMinimumHeightForWidth(size.width())));
}

void MvCalendarDayEditorDialog::repolishAndUpdateWidget()
{
    style()->unpolish(this);
    style()->polish(this);
    adjustSize();
    update();
    updateGeometry();
}

// ---- opening and closing

void MvCalendarDayEditorDialog::openDayEditorSingle(const MvCalendarEvent &event)
{
    openDayEditorDialog(event, false);
}

void MvCalendarDayEditorDialog::openDayEditorSeries(const MvCalendarEvent &event)
{
    openDayEditorDialog(event, true);
}

void MvCalendarDayEditorDialog::openDayEditorDialog(const MvCalendarEvent &event, bool series)
{
    // a second editor of the same entry would save a second, different version of it
    if (MvCalendarDayEditorDialog *other = otherEditor(event)) {
        other->raise();
        other->activateWindow();
        close();
        return;
    }
    m_openedEvent = event;
    m_project = m_session.entries().activeModelId();
    m_knownEvents = m_session.entries().activeEventList();
    m_isOfList = holds(m_knownEvents, event);
    m_noticeLabel->hide();
    showName(event.description());
    setDate(event.dateTime().date());
    m_repetitionEdit->setEvent(event, m_knownEvents.groups(), !m_isOfList);
    m_descriptionEdit->setFocus();
    m_okAndContinueButton->setVisible(series);
    m_deleteButton->setVisible(m_isOfList);
    if (!isVisible())
        moveToSource();
    show();
    activateWindow(); // not every window manager gives the keyboard to a tool window that opens
    setFoto(event.foto());
    QTimer::singleShot(settlingTime, this, &MvCalendarDayEditorDialog::repolishAndUpdateWidget);
}

void MvCalendarDayEditorDialog::takeTyped(const MvCalendarEvent &typed, const MvEventGroupList &groups)
{
    m_descriptionEdit->setText(typed.description());
    m_dateEdit->showDate(typed.dateTime().date());
    m_repetitionEdit->showTyped(typed, groups);
}

MvCalendarDayEditorDialog *MvCalendarDayEditorDialog::otherEditor(const MvCalendarEvent &event) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *editor = qobject_cast<MvCalendarDayEditorDialog *>(window);
        if (editor && editor != this && &editor->m_session == &m_session && editor->isVisible() &&
            (event.isValid() || !event.uuid().isNull()) && isSameEntry(editor->m_openedEvent, event))
            return editor;
    }
    return nullptr;
}

/// The window that the user sees the dialog come from; null when there is none.
QWidget *MvCalendarDayEditorDialog::sourceWindow() const
{
    if (m_item && m_item->scene()) {
        const QList<QGraphicsView *> views = m_item->scene()->views();
        for (const QGraphicsView *view : views) {
            if (view->isVisible())
                return view->window();
        }
    }
    QWidget *active = QApplication::activeWindow();
    return active == this ? m_source.data() : active;
}

/// Over the middle of the window it comes from, above that window, and gone with it.
void MvCalendarDayEditorDialog::moveToSource()
{
    QWidget *source = sourceWindow();
    if (!source)
        return;
    m_source = source; // messages belong to it: they outlive this dialog
    winId();           // makes the window handles
    if (windowHandle() && source->windowHandle())
        windowHandle()->setTransientParent(source->windowHandle());
    connect(source, &QObject::destroyed, this, &QWidget::close, Qt::UniqueConnection);

    QRect place(QPoint(), size());
    place.moveCenter(source->frameGeometry().center());
    const QRect screen = source->screen()->availableGeometry();
    place.moveLeft(qMax(screen.left(), qMin(place.left(), screen.right() - place.width())));
    place.moveTop(qMax(screen.top(), qMin(place.top(), screen.bottom() - place.height())));
    move(place.topLeft());
}

// ---- changes from elsewhere

void MvCalendarDayEditorDialog::followEntry()
{
    const auto &registry = m_session.entries();
    if (!isVisible())
        return;
    if (!(registry.activeModelId() == m_project)) { // its entries are not to be changed by what was opened for others
        rejectedClicked();
        return;
    }
    const MvCalendarEventList before = std::exchange(m_knownEvents, registry.activeEventList());
    if (!m_isOfList || m_isPushing)
        return;
    const MvCalendarEvent present = MvCalendarEventMerge::successor(m_openedEvent, before, m_knownEvents);
    if (present.isValid())
        takeOver(present);
    else
        loseEntry();
}

/// Fields that the user has touched stay as they are.
void MvCalendarDayEditorDialog::takeOver(const MvCalendarEvent &present)
{
    const MvCalendarEvent before = std::exchange(m_openedEvent, present);
    if (m_descriptionEdit->text() == m_shownName && present.description() != before.description())
        showName(present.description());
    if (!m_dateEdit->isTouched() && present.dateTime() != before.dateTime())
        setDate(present.dateTime().date());
    if (!m_repetitionEdit->isTouched())
        m_repetitionEdit->setEvent(present, m_session.entries().activeEventList().groups(), false);
    if (m_fotoField->foto() == before.foto() && !(present.foto() == before.foto()))
        setFoto(present.foto());
}

bool MvCalendarDayEditorDialog::isTouched() const
{
    return m_descriptionEdit->text() != m_shownName || m_dateEdit->isTouched() || m_repetitionEdit->isTouched() ||
           !(m_fotoField->foto() == m_openedEvent.foto());
}

/// The entry has been deleted elsewhere. What the user has typed is kept.
void MvCalendarDayEditorDialog::loseEntry()
{
    const QString name = MvStringHelper::simplifiedName(m_openedEvent.description());
    if (!isTouched()) {
        const QString text =
            tr("Der Eintrag „%1“ ist inzwischen gelöscht worden. Das Fenster dafür ist deshalb geschlossen.").arg(name);
        MvRequestHandler::current().report(windowTitle(), text, sourceWindow());
        rejectedClicked();
        return;
    }
    m_isOfList = false;
    m_deleteButton->hide();
    m_shownName.clear(); // the name is to be entered, too
    m_openedEvent = MvCalendarEvent({}, m_openedEvent.dateTime(), true, MvFoto(), QUuid::createUuid(), {});
    m_noticeLabel->setText(
        tr("Der Eintrag „%1“ ist inzwischen gelöscht worden. „OK“ legt ihn mit Ihren Angaben neu an.").arg(name));
    m_noticeLabel->show();
    QAccessibleEvent alert(m_noticeLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    m_noticeLabel->parentWidget()->layout()->activate();
    setSize(width(), height()); // the line may need room
}

// ---- buttons

void MvCalendarDayEditorDialog::acceptedClicked()
{
    if (!m_dateEdit->takeText())
        return;
    applyEventChange();
    accept();
    close();
}

void MvCalendarDayEditorDialog::acceptedAndContinueClicked()
{
    if (!m_dateEdit->takeText())
        return;
    MvCalendarEvent next = applyEventChange();
    next.setFoto(MvFoto());
    next.setEventName({});
    next.setEndDate({});
    QDate tomorrow = next.dateTime().date().addDays(1);
    if (!next.hasYear())
        tomorrow.setDate(MvCalendarEvent::unknownYear, tomorrow.month(), tomorrow.day());
    next.setDateTime(MvCalendarEvent::startOf(tomorrow));
    openDayEditorDialog(next, true);
}

void MvCalendarDayEditorDialog::rejectedClicked()
{
    reject();
    close();
}

void MvCalendarDayEditorDialog::deleteEntry()
{
    change(MvCalendarEvent(), nullptr);
    accept();
    close();
}

// ---- the entry

void MvCalendarDayEditorDialog::setDate(const QDate &date)
{
    m_date = date;
    m_dateEdit->setDate(date);
    const QLocale locale = MvApplicationLocale::instance().locale();
    m_dateLabel->setText(date.year() == MvCalendarEvent::unknownYear ? locale.toString(date, u"d. MMMM"_s)
                                                                     : locale.toString(date, QLocale::LongFormat));
}

void MvCalendarDayEditorDialog::showName(const QString &name)
{
    m_descriptionEdit->setText(name);
    m_shownName = m_descriptionEdit->text();
    onTextChanged();
}

MvCalendarEvent MvCalendarDayEditorDialog::applyEventChange()
{
    m_dateEdit->takeText();
    MvCalendarEvent changed = m_openedEvent;
    changed.setDateTime(MvCalendarEvent::startOf(m_dateEdit->date()));
    if (m_descriptionEdit->text() != m_shownName) // a file's own form stays as long as nobody changes it
        changed.setEventName(MvStringHelper::simplifiedName(m_descriptionEdit->text()));
    MvEventGroupList groups = m_session.entries().activeEventList().groups();
    m_repetitionEdit->applyTo(changed, groups);
    if (const MvOutcome taken = changed.takeFoto(m_fotoField->foto()); !taken.isOk())
        MvDiskAccessRequest::instance().takeFotosFailed({taken.error}, sourceWindow());
    change(changed, m_item, groups);
    return changed;
}

void MvCalendarDayEditorDialog::change(const MvCalendarEvent &changed, QGraphicsObject *item,
                                       const MvEventGroupList &groups)
{
    m_isPushing = true;
    MvEntryEdits(m_session).push(new MvUndoCommandCalendarEvent(m_openedEvent, changed, item, m_session), changed,
                                 groups);
    m_isPushing = false;
    if (!changed.isValid())
        return;
    m_openedEvent = changed; // from now on it is this one that is edited
    m_knownEvents = m_session.entries().activeEventList();
    m_isOfList = holds(m_knownEvents, changed);
    m_shownName = m_descriptionEdit->text();
}

void MvCalendarDayEditorDialog::push(MvUndoCommand *command)
{
    m_session.undo().push(command);
}

void MvCalendarDayEditorDialog::onTextChanged()
{
    const bool hasName = !MvStringHelper::simplifiedName(m_descriptionEdit->text()).isEmpty();
    m_okButton->setEnabled(hasName);
    m_okAndContinueButton->setEnabled(hasName);
}

// ---- the photo

void MvCalendarDayEditorDialog::setFoto(const MvFoto &foto)
{
    m_fotoField->setFoto(foto);
}

void MvCalendarDayEditorDialog::removePhoto()
{
    m_fotoField->removeFoto();
}

void MvCalendarDayEditorDialog::resetPhoto()
{
    m_fotoField->showHint();
}

void MvCalendarDayEditorDialog::chooseFoto()
{
    m_fotoField->chooseFoto();
}

bool MvCalendarDayEditorDialog::hasPhoto() const
{
    return m_fotoField->hasImage();
}

void MvCalendarDayEditorDialog::animateRemovePhotoButton(bool in)
{
    m_fotoField->animateRemoveButton(in);
}

void MvCalendarDayEditorDialog::animateInRemovePhotoButton()
{
    m_fotoField->animateInRemoveButton();
}

// the whole window takes what is dropped

void MvCalendarDayEditorDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_fotoField->offerDrop(event->mimeData()))
        event->acceptProposedAction();
}

void MvCalendarDayEditorDialog::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_fotoField->endDrop();
    QDialog::dragLeaveEvent(event);
}

void MvCalendarDayEditorDialog::dropEvent(QDropEvent *event)
{
    if (m_fotoField->takeDrop(event->mimeData()))
        event->acceptProposedAction();
}
