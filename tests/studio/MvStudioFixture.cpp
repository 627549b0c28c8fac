// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStudioFixture.h"
#include "MvTestFiles.h"

#include "MvProjectFixture.h"
#include "MvStudioApplication.h"
#include "common/MvStudioSettings.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageEntries.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryBubble.h"
#include "MvCore/MvDiskAccessRequest.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"

using namespace Qt::StringLiterals;
using MvTestFiles::contentOf;

namespace {

MvCalendarDocument calendarOf2027(const QString &layout)
{
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    document.setAppearance(MvProjectFixture::appearance(layout));
    document.setTitle(u"Familie 2027"_s);
    return document;
}

QString plain(QString text)
{
    text.remove(u'&').remove(QChar::SoftHyphen);
    return text;
}

QString squeezed(QString text)
{
    static const QRegularExpression breaks(u"[\\s\\x{ad}-]"_s);
    return text.remove(breaks);
}

} // namespace

MvStudioFixture::MvStudioFixture(const QString &layout, const QString &language)
    : m_language(language)
{
    MvStudioSettings::clearRecentFiles();
    MvStudioSettings::setWelcomeShown(false);
    MvStudioSettings::setEntriesReachOwn(true);
    MvStudioSettings::setFolderOfRequest(MvDiskAccessRequest::FotoFile, m_folder.path());
    MvStudioSettings::setWindow({}, {});
    MvStudioSettings::setFolder(u"project"_s, m_folder.path());
    MvStudioSettings::setFolder(u"export"_s, m_folder.path());
    MvCalendarEventRegistry::instance().setEvents({});
    MvCalendarEventRegistry::instance().setGroups({});
    start();
    project()->newProject(calendarOf2027(layout));
    QCoreApplication::processEvents();
}

MvStudioFixture::~MvStudioFixture()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const QList<QPointer<QWidget>> windows(widgets.cbegin(),
                                           widgets.cend()); // the lists of a dialog's boxes go with it
    for (const QPointer<QWidget> &window : windows) {
        if (qobject_cast<MvCalendarDayEditorDialog *>(window))
            delete window;
    }
    m_studio.reset();
}

void MvStudioFixture::start(const QStringList &arguments)
{
    m_studio.reset();
    m_studio = std::make_unique<MvStudioApplication>(
        MvStudioOptions::parse(QStringList{u"mvcalendar-studio"_s, u"--language"_s, m_language} + arguments));
    m_studio->start();
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    window()->activateWindow();
    QCoreApplication::processEvents();
}

void MvStudioFixture::restart()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    const QString path = registry.calendarEventsDir().filePath();
    m_studio.reset();
    const QByteArray left = contentOf(path);
    registry.setEvents({}); // as in a new process: nothing is known but by reading
    QVERIFY(MvTestFiles::write(path, left));
    registry.load();
    start();
    project()->newProject(calendarOf2027(u"MONTH_GRID_CLASSIC"_s));
    QCoreApplication::processEvents();
}

MvStudioWindow *MvStudioFixture::window() const
{
    return m_studio->window();
}

MvProject *MvStudioFixture::project() const
{
    return m_studio->project();
}

const MvCalendarDocument &MvStudioFixture::document() const
{
    return project()->document();
}

MvPageCanvas *MvStudioFixture::canvas() const
{
    return window()->findChild<MvPageCanvas *>();
}

MvPageItem *MvStudioFixture::page() const
{
    QTest::qWait(1); // the page is recorded on the next turn of the event loop
    return canvas()->pageItem();
}

QString MvStudioFixture::writeFoto(const QString &name, const QColor &color, const QSize &size) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image.save(path(name)) ? path(name) : QString();
}

// ------------------------------------------------------------------------------------------------ what a person does

/// Nobody else sees to that when a dialog has closed.
void MvStudioFixture::activate() const
{
    QVERIFY(QTest::qWaitFor([this] {
        window()->activateWindow();
        return QApplication::activeWindow() == window();
    }));
}

bool MvStudioFixture::openSection(const char *name) const
{
    const QByteArray header = QByteArray(name) + "Header";
    if (!find(header.constData()) && !click(window(), "inspectorBack"))
        return false;
    if (!click(window(), header.constData()))
        return false;
    QCoreApplication::processEvents();
    const auto *panel = find(name);
    return panel && !panel->visibleRegion().isEmpty();
}

bool MvStudioFixture::trigger(const char *name) const
{
    auto *action = window()->findChild<QAction *>(QLatin1StringView(name));
    if (!action || !action->isEnabled())
        return false;
    action->trigger();
    return true;
}

bool MvStudioFixture::click(QWidget *parent, const char *name) const
{
    auto *button = parent ? find<QAbstractButton>(parent, name) : nullptr;
    if (!button || !button->isEnabled())
        return false;
    QTest::mouseClick(button, Qt::LeftButton);
    return true;
}

bool MvStudioFixture::press(const char *name, int key, Qt::KeyboardModifiers modifiers) const
{
    auto *widget = find(name);
    if (!widget || !widget->isEnabled())
        return false;
    activate();
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, Qt::Key(key), modifiers);
    return true;
}

bool MvStudioFixture::choose(const char *name, const QString &text) const
{
    auto *box = find<QComboBox>(name);
    const int row = box ? box->findText(text, Qt::MatchStartsWith) : -1;
    if (row < 0 || !box->isEnabled())
        return false;
    box->showPopup();
    box->view()->setCurrentIndex(box->model()->index(row, box->modelColumn()));
    QTest::keyClick(box->view(), Qt::Key_Return);
    QTest::qWait(1); // boxes may report later
    return box->currentIndex() == row;
}

bool MvStudioFixture::chooseInMenu(QMenu *menu, const QString &begin) const
{
    if (!menu)
        return false;
    for (QAction *action : menu->actions()) {
        if (!plain(action->text()).startsWith(begin) || !action->isEnabled())
            continue;
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
        return true;
    }
    return false;
}

bool MvStudioFixture::chooseFile(const QString &path) const
{
    auto *files = dialog<QFileDialog>();
    auto *name = files ? files->findChild<QLineEdit *>(u"fileNameEdit"_s) : nullptr;
    if (!name)
        return false;
    files->activateWindow();
    name->setFocus(); // without, a file that the list selects goes before the name
    if (!QTest::qWaitFor([name] { return name->hasFocus(); }))
        return false;
    name->setText(path);
    static_cast<QDialog *>(files)->accept();
    return true;
}

QPoint MvStudioFixture::pointOf(const QDate &date) const
{
    return canvas()->mapFromScene(page()->mapToScene(rectOf(date).center()));
}

MvEntryBubble *MvStudioFixture::clickDate(const QDate &date) const
{
    QTest::mouseClick(canvas()->viewport(), Qt::LeftButton, {}, pointOf(date));
    const auto isOpen = [this, &date] {
        const MvEntryBubble *bubble = canvas()->entries()->bubble();
        return bubble && bubble->date() == date;
    };
    return QTest::qWaitFor(isOpen) ? canvas()->entries()->bubble() : nullptr;
}

MvEntryBubble *MvStudioFixture::openBubble(const QDate &date, const QString &entry) const
{
    MvEntryBubble *bubble = clickDate(date);
    auto *list = bubble ? find<QListWidget>(bubble, "bubbleEntries") : nullptr;
    if (!list) // with nothing to choose from
        return bubble;
    const QList<QListWidgetItem *> rows = list->findItems(entry, Qt::MatchStartsWith);
    if (rows.isEmpty())
        return nullptr;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(rows.first()).center());
    return bubble;
}

MvCalendarDayEditorDialog *MvStudioFixture::openDay(const QDate &date, const QString &entry) const
{
    MvEntryBubble *bubble = openBubble(date, entry);
    return bubble && click(bubble, "bubbleMore") ? dialog<MvCalendarDayEditorDialog>() : nullptr;
}

bool MvStudioFixture::dragEntry(const QDate &from, const QString &text, const QDate &to,
                                Qt::KeyboardModifiers modifiers) const
{
    const QRectF cell = rectOf(from);
    for (const MvPaintRecording::Item &item : items(MvPaintRecording::Item::Text)) {
        const QString written = squeezed(item.text);
        if (written.isEmpty() || !cell.contains(item.bounds.center()) || !squeezed(text).contains(written))
            continue;
        QWidget *port = canvas()->viewport();
        const QPoint start = canvas()->mapFromScene(page()->mapToScene(item.bounds.center()));
        const auto moveTo = [port, modifiers](const QPoint &position) {
            QMouseEvent move(QEvent::MouseMove, position, port->mapToGlobal(position), Qt::NoButton, Qt::LeftButton,
                             modifiers);
            QApplication::sendEvent(port, &move);
        };
        QTest::mousePress(port, Qt::LeftButton, {}, start);
        moveTo(start + QPoint(QApplication::startDragDistance() + 1, 0));
        moveTo(pointOf(to));
        QTest::mouseRelease(port, Qt::LeftButton, modifiers, pointOf(to));
        return true;
    }
    return false;
}

bool MvStudioFixture::dropFile(QWidget *window, const QPoint &position, const QString &path,
                               Qt::KeyboardModifiers modifiers)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QWidget *under = window->childAt(position);
    QWidget *target = under ? under : window;
    while (!target->acceptDrops() && target != window)
        target = target->parentWidget();
    const QPoint there = target->mapFrom(window, position);
    QDragEnterEvent enter(there, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(target, &enter);
    QDragMoveEvent move(there, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(target, &move);
    QDropEvent drop(there, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
    QApplication::sendEvent(target, &drop);
    return enter.isAccepted() && drop.isAccepted();
}

bool MvStudioFixture::dropOnDate(const QDate &date, const QString &path, Qt::KeyboardModifiers modifiers) const
{
    const QPoint inWindow = canvas()->viewport()->mapTo(window(), pointOf(date));
    return dropFile(window(), inWindow, path, modifiers);
}

void MvStudioFixture::selectFoto(const QString &path) const
{
    canvas()->setFoto(path);
    const MvPageItem *shown = page();
    for (int element = 0; element < shown->elements().size(); ++element) {
        if (shown->foto(element) && shown->foto(element)->path() == path)
            canvas()->selection()->selectElement(element);
    }
}

void MvStudioFixture::undo() const
{
    pressInCanvas(Qt::Key_Z, Qt::ControlModifier);
}

void MvStudioFixture::redo() const
{
    pressInCanvas(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

void MvStudioFixture::pressInCanvas(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    activate();
    canvas()->setFocus();
    QTest::keyClick(canvas(), key, modifiers);
    QCoreApplication::processEvents();
}

int MvStudioFixture::steps() const
{
    return MvUndoController::instance().stack()->index();
}

// ------------------------------------------------------------------------------------------------ what is to be seen

QRectF MvStudioFixture::rectOf(const QDate &date) const
{
    return page()->dateRect(date);
}

QList<MvPaintRecording::Item> MvStudioFixture::items(MvPaintRecording::Item::Kind kind) const
{
    return page()->recording().items(kind);
}

QString MvStudioFixture::texts(const QDate &date) const
{
    QString all;
    const QRectF rect = date.isValid() ? rectOf(date) : page()->pageRect();
    for (const MvPaintRecording::Item &item : items(MvPaintRecording::Item::Text)) {
        if (rect.contains(item.bounds.center()))
            all += item.text;
    }
    return squeezed(all);
}

QList<QDate> MvStudioFixture::datesWith(const QString &text) const
{
    QList<QDate> found;
    for (const QDate &date : page()->dates()) {
        if (texts(date).contains(squeezed(text)))
            found.append(date);
    }
    return found;
}

bool MvStudioFixture::hasPhoto(const QDate &date) const
{
    const QRectF rect = rectOf(date);
    const QList<MvPaintRecording::Item> images = items(MvPaintRecording::Item::Image);
    return std::any_of(images.begin(), images.end(),
                       [&rect](const MvPaintRecording::Item &image) { return rect.contains(image.bounds.center()); });
}

QColor MvStudioFixture::cellColor(const QDate &date) const
{
    const QPointF center = rectOf(date).center();
    QColor color;
    for (const MvPaintRecording::Item &item : page()->recording().items()) { // cells of one colour are one path
        if (item.fill.isValid() && item.kind != MvPaintRecording::Item::Text && item.shape.contains(center))
            color = item.fill;
    }
    return color;
}

QSet<QRgb> MvStudioFixture::lineColors() const
{
    QSet<QRgb> colors;
    for (const MvPaintRecording::Item &item : page()->recording().items()) {
        if (item.stroke.isValid() && item.stroke.alpha() > 0 && item.kind != MvPaintRecording::Item::Text)
            colors.insert(item.stroke.rgb());
    }
    return colors;
}
