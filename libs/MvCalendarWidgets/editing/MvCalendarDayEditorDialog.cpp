// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarDayEditorDialog.h"

#include "MvCalendar/MvCalendarEventDateEdit.h"
#include "MvCalendar/MvCalendarEventMerge.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvUndoCommandCalendarEvent.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvRequestHandler.h"
#include "MvCore/MvStringHelper.h"
#include "MvCore/MvUndoController.h"
#include "MvFoto/MvFotoList.h"
#include "MvFoto/MvFotoLoader.h"
#include "MvGUIWidgets/MvDropLabel.h"
#include "MvGUIWidgets/MvLineEdit.h"

#include <QAccessible>
#include <QApplication>
#include <QDragEnterEvent>
#include <QGraphicsObject>
#include <QGraphicsOpacityEffect>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGridLayout>
#include <QGroupBox>
#include <QMimeData>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int fadeDuration = 350; // ms; also the time after which a shown dialog and photo have settled
constexpr int groupMargin = 10;
constexpr int fotoLabelIndent = 13;
constexpr int spaceAroundRemoveButton = 5;
constexpr int fotoQuality = 4;
constexpr int fotoCaching = 13;
constexpr int linesOfHint = 4;

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

MvCalendarDayEditorDialog::MvCalendarDayEditorDialog(QGraphicsObject *item)
    : QDialog(nullptr, Qt::Tool)
    , m_item(item)
{
    setWindowModality(Qt::NonModal);
    setAttribute(Qt::WA_QuitOnClose, false);
    setupGUI();
    setAcceptDrops(true);
    resetPhoto();
    m_fade->stop(); // there is nothing to fade out yet
    m_removePhotoButton->graphicsEffect()->setProperty("opacity", 0.0);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &QWidget::close);
    connect(&MvCalendarEventRegistry::instance(), &MvCalendarEventRegistry::eventsChanged, this,
            &MvCalendarDayEditorDialog::followEntry);
}

MvCalendarDayEditorDialog::~MvCalendarDayEditorDialog() = default;

MvCalendarDayEditorDialog *MvCalendarDayEditorDialog::createSelfDeleting(QGraphicsObject *item)
{
    auto *dialog = new MvCalendarDayEditorDialog(item);
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

    layout->addWidget(createFotoContainer(), 1);
    auto *clickHint = new QLabel(tr("Ein Klick auf die Fläche wählt ein Foto aus."), group);
    clickHint->setForegroundRole(QPalette::PlaceholderText);
    clickHint->setAlignment(Qt::AlignHCenter);
    layout->addWidget(clickHint);
    return group;
}

QWidget *MvCalendarDayEditorDialog::createFotoContainer()
{
    auto *container = new QWidget(this);
    auto *grid = new QGridLayout(container);
    grid->setContentsMargins({});
    grid->setSpacing(0);
    grid->setRowMinimumHeight(0, spaceAroundRemoveButton);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnMinimumWidth(2, spaceAroundRemoveButton);

    m_fotoLabel = new MvDropLabel(container);
    m_fotoLabel->setObjectName(u"fotoLabel"_s);
    m_fotoLabel->setAccessibleName(tr("Foto auswählen"));
    m_fotoLabel->setToolTip(tr("Klicken um ein Foto auszuwählen"));
    m_fotoLabel->setWordWrap(true);
    m_fotoLabel->setIndent(fotoLabelIndent);
    m_fotoLabel->setAlignment(Qt::AlignCenter);
    m_fotoLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // a photo never widens the dialog
    m_fotoLabel->setMinimumHeight(linesOfHint * m_fotoLabel->fontMetrics().lineSpacing());
    setStyleClass(m_fotoLabel, u"HintTextLabelCalStyle"_s);
    m_fotoLabel->installEventFilter(this);
    connect(m_fotoLabel, &MvDropLabel::pressed, this, &MvCalendarDayEditorDialog::choosePhoto);
    grid->addWidget(m_fotoLabel, 0, 0, 3, 3);

    createRemovePhotoButton(container);
    grid->addWidget(m_removePhotoButton, 1, 1);
    m_removePhotoButton->raise();
    return container;
}

void MvCalendarDayEditorDialog::createRemovePhotoButton(QWidget *parent)
{
    m_removePhotoButton = new QPushButton(tr("&Foto entfernen"), parent);
    m_removePhotoButton->setObjectName(u"removePhotoButton"_s);
    m_removePhotoButton->setAutoDefault(false);
    m_removePhotoButton->setAttribute(Qt::WA_Hover);
    setStyleClass(m_removePhotoButton, u"2ndLevelPushButton"_s);
    m_removePhotoButton->installEventFilter(this);
    connect(m_removePhotoButton, &QPushButton::clicked, this, &MvCalendarDayEditorDialog::removePhoto);

    auto *effect = new QGraphicsOpacityEffect(m_removePhotoButton);
    effect->setOpacity(0.0);
    m_removePhotoButton->setGraphicsEffect(effect);
    m_fade = new QPropertyAnimation(effect, "opacity", this);
    m_fade->setDuration(fadeDuration);
    m_fade->setStartValue(0.0);
    m_fade->setEndValue(1.0);
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
    const QList<QWidget *> order{m_dateEdit,     m_descriptionEdit, m_fotoLabel,           m_removePhotoButton,
                                 m_deleteButton, m_cancelButton,    m_okAndContinueButton, m_okButton};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
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
    // two editors of one entry would make two of it
    if (MvCalendarDayEditorDialog *other = otherEditor(event)) {
        other->raise();
        other->activateWindow();
        close();
        return;
    }
    m_openedEvent = event;
    m_project = MvCalendarEventRegistry::instance().activeModelId();
    m_knownEvents = MvCalendarEventRegistry::instance().activeEventList();
    m_isOfList = holds(m_knownEvents, event);
    m_noticeLabel->hide();
    showName(event.description());
    setDate(event.dateTime().date());
    m_descriptionEdit->setFocus();
    m_okAndContinueButton->setVisible(series);
    m_deleteButton->setVisible(m_isOfList);
    if (!isVisible())
        moveToSource();
    show();
    activateWindow(); // not every window manager gives the keyboard to a tool window that opens
    setFoto(event.foto());
    QTimer::singleShot(fadeDuration, this, &MvCalendarDayEditorDialog::repolishAndUpdateWidget);
}

MvCalendarDayEditorDialog *MvCalendarDayEditorDialog::otherEditor(const MvCalendarEvent &event) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *editor = qobject_cast<MvCalendarDayEditorDialog *>(window);
        if (editor && editor != this && editor->isVisible() && (event.isValid() || !event.uuid().isNull()) &&
            isSameEntry(editor->m_openedEvent, event))
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
    const auto &registry = MvCalendarEventRegistry::instance();
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
    if (m_foto == before.foto() && !(present.foto() == before.foto()))
        setFoto(present.foto());
}

bool MvCalendarDayEditorDialog::isTouched() const
{
    return m_descriptionEdit->text() != m_shownName || m_dateEdit->isTouched() || !(m_foto == m_openedEvent.foto());
}

/// Somebody has deleted the entry. What the user has entered is not thrown away.
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
    changed.setRecurrent(true);
    QString error;
    if (!changed.takeFoto(m_foto, &error))
        MvDiskAccessRequest::instance().takeFotosFailed({error}, sourceWindow());
    change(changed, m_item);
    return changed;
}

void MvCalendarDayEditorDialog::change(const MvCalendarEvent &changed, QGraphicsObject *item)
{
    m_isPushing = true;
    push(new MvUndoCommandCalendarEvent(m_openedEvent, changed, item));
    m_isPushing = false;
    if (!changed.isValid())
        return;
    m_openedEvent = changed; // from now on it is this one that is edited
    m_knownEvents = MvCalendarEventRegistry::instance().activeEventList();
    m_isOfList = holds(m_knownEvents, changed);
    m_shownName = m_descriptionEdit->text();
}

void MvCalendarDayEditorDialog::push(MvUndoCommand *command)
{
    MvUndoController::instance().push(command);
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
    m_foto = foto;
    if (!foto.isValid()) {
        resetPhoto();
        return;
    }
    m_pixmap = {};
    showTextForPhoto(tr("Das Foto wird geladen…"));
    MvFotoLoader::midRes(foto, fotoQuality, fotoCaching, this,
                         [this, foto](const QImage &image) { takeImage(foto, image); });
}

void MvCalendarDayEditorDialog::takeImage(const MvFoto &foto, const QImage &image)
{
    if (!(foto == m_foto))
        return; // another one was set meanwhile
    m_pixmap = QPixmap::fromImage(image);
    if (m_pixmap.isNull())
        showTextForPhoto(tr("Das Foto „%1“ kann nicht gelesen werden.").arg(foto.localFileInfo().fileName()));
    else
        showPhoto();
    QTimer::singleShot(fadeDuration, this, &MvCalendarDayEditorDialog::animateInRemovePhotoButton);
}

void MvCalendarDayEditorDialog::showTextForPhoto(const QString &text)
{
    m_fotoLabel->clear();
    m_fotoLabel->setText(text);
    m_fotoLabel->setAccessibleName(tr("Anderes Foto auswählen"));
    m_removePhotoButton->setEnabled(true);
}

void MvCalendarDayEditorDialog::showPhoto()
{
    const qreal ratio = m_fotoLabel->devicePixelRatioF();
    QPixmap scaled = m_pixmap.scaled(m_fotoLabel->size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    m_fotoLabel->clear();
    m_fotoLabel->setPixmap(scaled);
}

void MvCalendarDayEditorDialog::removePhoto()
{
    setFoto(MvFoto());
}

void MvCalendarDayEditorDialog::resetPhoto()
{
    m_pixmap = {};
    m_fotoLabel->clear();
    m_fotoLabel->setAccessibleName(tr("Foto auswählen"));
    m_fotoLabel->setText(tr("Ziehen Sie ein Foto auf diese Fläche um es als Symbol für den Termin zu verwenden."));
    if (m_removePhotoButton->hasFocus())
        m_fotoLabel->setFocus();
    m_removePhotoButton->setEnabled(false); // invisible from now on, and so out of the keyboard's way
    animateRemovePhotoButton(false);
}

void MvCalendarDayEditorDialog::choosePhoto()
{
    const QString filter = tr("Fotos (%1)").arg(u"*.jpg *.jpeg *.png *.tif *.tiff *.webp *.bmp *.gif"_s);
    const auto take = [this](const QString &fileName) {
        if (fileName.isEmpty())
            return;
        const MvFoto foto{QFileInfo(fileName)};
        if (foto.mediaFormat().isValid())
            setFoto(foto);
        else
            MvDiskAccessRequest::instance().readFotoFailed(fileName, this);
    };
    MvDiskAccessRequest::instance().requestOpenFile(MvDiskAccessRequest::FotoFile, tr("Foto auswählen"), filter, this,
                                                    take);
}

bool MvCalendarDayEditorDialog::hasPhoto() const
{
    return m_fotoLabel && !m_fotoLabel->pixmap(Qt::ReturnByValue).isNull();
}

bool MvCalendarDayEditorDialog::canRemovePhoto() const
{
    return hasPhoto() || m_foto.isValid();
}

void MvCalendarDayEditorDialog::animateRemovePhotoButton(bool in)
{
    const auto direction = in ? QAbstractAnimation::Forward : QAbstractAnimation::Backward;
    if (!m_fade->targetObject() || m_fade->direction() == direction)
        return;
    m_fade->setDirection(direction);
    m_fade->start();
}

void MvCalendarDayEditorDialog::animateInRemovePhotoButton()
{
    if (canRemovePhoto())
        animateRemovePhotoButton(true);
}

/// Shown while the mouse or the keyboard is at the photo.
void MvCalendarDayEditorDialog::updateRemovePhotoButton()
{
    const bool isAtFoto = m_hoversFoto || m_fotoLabel->hasFocus() || m_removePhotoButton->hasFocus();
    if (canRemovePhoto() && !m_hoversRemoveButton)
        animateRemovePhotoButton(isAtFoto);
    else
        animateRemovePhotoButton(canRemovePhoto());
}

bool MvCalendarDayEditorDialog::eventFilter(QObject *watched, QEvent *event)
{
    bool &hovers = watched == m_removePhotoButton ? m_hoversRemoveButton : m_hoversFoto;
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        hovers = event->type() == QEvent::HoverEnter;
        updateRemovePhotoButton();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut: // the new focus is known only after this event
        QTimer::singleShot(0, this, &MvCalendarDayEditorDialog::updateRemovePhotoButton);
        break;
    case QEvent::Resize:
        if (watched == m_fotoLabel && hasPhoto())
            showPhoto();
        break;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void MvCalendarDayEditorDialog::dragEnterEvent(QDragEnterEvent *event)
{
    if (!event->mimeData()->hasUrls())
        return;
    m_fotoLabel->setDropOffered(true);
    event->acceptProposedAction();
}

void MvCalendarDayEditorDialog::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_fotoLabel->setDropOffered(false);
    QDialog::dragLeaveEvent(event);
}

void MvCalendarDayEditorDialog::dropEvent(QDropEvent *event)
{
    m_fotoLabel->setDropOffered(false);
    const MvFotoList fotos(event->mimeData());
    if (fotos.isEmpty()) {
        const QString file = event->mimeData()->urls().value(0).toLocalFile();
        if (!file.isEmpty())
            MvDiskAccessRequest::instance().readFotoFailed(file, this);
        return;
    }
    setFoto(fotos.first());
    event->acceptProposedAction();
}
