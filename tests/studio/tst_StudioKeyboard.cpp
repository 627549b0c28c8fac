// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvStudioFixture.h"

#include "flows/MvDocumentDialog.h"
#include "flows/MvRecoveryDialog.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageSelection.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryBubble.h"
#include "MvProject/MvProject.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QWidget *widget)
{
    const QString name = widget->objectName().isEmpty() ? widget->parentWidget()->objectName() : widget->objectName();
    return u"%1(%2)"_s.arg(QLatin1StringView(widget->metaObject()->className()), name);
}

/// What the focus goes to: the line edit of a spin box belongs to the box.
const QWidget *controlOf(const QWidget *widget)
{
    const QWidget *control = widget;
    while (control && control->parentWidget() && control->parentWidget()->focusProxy() == control)
        control = control->parentWidget();
    const QWidget *parent = widget->parentWidget();
    if (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent))
        return parent;
    return widget;
}

/// Whether a person can use it now: it is to be seen, enabled, and made for the keyboard.
bool isControl(const QWidget *widget)
{
    const bool isKind = qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
                        qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
                        qobject_cast<const QAbstractItemView *>(widget) ||
                        qobject_cast<const QGraphicsView *>(widget) || qobject_cast<const QAbstractSlider *>(widget);
    if (!isKind || !widget->isVisible() || !widget->isEnabled() || widget->visibleRegion().isEmpty())
        return false;
    if (qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QHeaderView *>(widget))
        return false; // their views scroll and sort by keys
    if (qobject_cast<const QLineEdit *>(widget->parentWidget()))
        return false; // its button to clear it: there are keys for that
    if (qobject_cast<const QToolBar *>(widget->parentWidget()) ||
        qobject_cast<const QDockWidget *>(widget->parentWidget()))
        return false; // the menus have the same actions
    if (qobject_cast<const QTabBar *>(widget->parentWidget()))
        return false; // the tab bar itself takes the keys
    const bool isPart = controlOf(widget) != widget;
    return !isPart && widget->objectName() != u"qt_toolbar_ext_button"_s;
}

QList<QWidget *> controlsIn(const QWidget *area)
{
    QList<QWidget *> all = area->findChildren<QWidget *>();
    all.removeIf([area](const QWidget *widget) { return widget->window() != area->window() || !isControl(widget); });
    return all;
}

/// All stops of the Tab key from the first one until it comes round; a stop may be visited more than once in a row.
QList<const QWidget *> tabStops(QWidget *window, QString *trap)
{
    constexpr int mostStops = 400;
    QList<const QWidget *> stops;
    window->activateWindow();
    const auto isActive = [window] { return QApplication::activeWindow() == window; };
    if (!QTest::qWaitFor(isActive)) {
        *trap = u"the window does not get active"_s;
        return stops;
    }
    if (!QApplication::focusWidget())
        QTest::keyClick(window, Qt::Key_Tab);
    for (int step = 0; step < mostStops; ++step) {
        const QWidget *focus = QApplication::focusWidget();
        if (!focus) {
            *trap = u"the focus is lost after %1"_s.arg(stops.isEmpty() ? u"nothing"_s : nameOf(stops.last()));
            return stops;
        }
        const QWidget *control = controlOf(focus);
        if (stops.isEmpty() || stops.last() != control) {
            if (stops.contains(control))
                return stops;
            stops.append(control);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    *trap = u"the focus stays at %1"_s.arg(nameOf(stops.last()));
    return stops;
}

QRect inWindow(const QWidget *widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

bool readsBefore(const QWidget *one, const QWidget *other)
{
    const QRect a = inWindow(one);
    const QRect b = inWindow(other);
    const bool isSameRow = qMin(a.bottom(), b.bottom()) - qMax(a.top(), b.top()) > qMin(a.height(), b.height()) / 2;
    return isSameRow ? a.left() <= b.left() : a.top() <= b.top();
}

/// Stops of one container follow each other by rows, and in a row from left to right. They make a ring, of which the
/// first that had the focus may be in the middle.
QStringList outOfOrder(const QList<const QWidget *> &stops)
{
    QStringList errors;
    bool isThroughTheEnd = false;
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QWidget *before = stops.at(i - 1);
        const QWidget *after = stops.at(i);
        if (before->parentWidget() != after->parentWidget() || readsBefore(before, after))
            continue;
        const bool isEndOfRing = !isThroughTheEnd && stops.first()->parentWidget() == after->parentWidget() &&
                                 stops.last()->parentWidget() == after->parentWidget() &&
                                 readsBefore(stops.last(), stops.first());
        isThroughTheEnd = isThroughTheEnd || isEndOfRing;
        if (isEndOfRing)
            continue;
        errors.append(u"%1 after %2"_s.arg(nameOf(after), nameOf(before)));
    }
    return errors;
}

QChar mnemonicOf(const QString &text)
{
    const QKeySequence sequence = QKeySequence::mnemonic(text);
    return sequence.isEmpty() ? QChar() : QChar(sequence[0].key()).toUpper();
}

QStringList doubles(const QList<QPair<QString, QString>> &texts) // what is shown, who shows it
{
    QStringList errors;
    QHash<QChar, QString> seen;
    for (const auto &[text, who] : texts) {
        const QChar key = mnemonicOf(text);
        if (key.isNull())
            continue;
        if (seen.contains(key) && seen.value(key) != who)
            errors.append(u"Alt+%1: %2 and %3"_s.arg(key).arg(seen.value(key), who));
        seen.insert(key, who);
    }
    return errors;
}

/// Of everything that is to be seen in a window at once, its menu bar included.
QStringList mnemonicsThatCollide(const QWidget *window)
{
    QList<QPair<QString, QString>> texts;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != window || widget->visibleRegion().isEmpty())
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget); button && button->isEnabled())
            texts.append({button->text(), button->text()});
        else if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            texts.append({label->text(), label->text()});
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            texts.append({group->title(), group->title()});
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                texts.append({tabs->tabText(tab), tabs->tabText(tab)});
        } else if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *action : bar->actions())
                texts.append({action->text(), action->text()});
        }
    }
    return doubles(texts);
}

QStringList nameless(const QList<QWidget *> &controls)
{
    QStringList errors;
    for (QWidget *control : controls) {
        const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
        if (!interface || interface->text(QAccessible::Name).trimmed().isEmpty())
            errors.append(nameOf(control));
    }
    return errors;
}

} // namespace

/// Everything can be reached and used by keyboard alone, and tells its name.
class tst_StudioKeyboard : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void sections_data();
    void sections();
    void dialogs_data();
    void dialogs();
    void menus_data();
    void menus();

private:
    static void check(QWidget *window, const QWidget *area);
};

void tst_StudioKeyboard::check(QWidget *window, const QWidget *area)
{
    const QList<QWidget *> controls = controlsIn(area);
    QVERIFY(!controls.isEmpty());
    QString trap;
    const QList<const QWidget *> stops = tabStops(window, &trap);
    QCOMPARE(trap, QString());
    QStringList unreached;
    for (const QWidget *control : controls) {
        // of buttons that exclude each other the chosen one is the stop, and arrow keys go through them
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        const bool isOneOfSeveral = button && button->group() && button->group()->exclusive();
        const auto isReached = [&](const QWidget *stop) {
            const auto *other = qobject_cast<const QAbstractButton *>(stop);
            return stop == control || (isOneOfSeveral && other && other->group() == button->group());
        };
        if (std::none_of(stops.begin(), stops.end(), isReached))
            unreached.append(nameOf(control));
    }
    QCOMPARE(unreached.join(u'\n'), QString());
    QCOMPARE(outOfOrder(stops).join(u'\n'), QString());
    QCOMPARE(nameless(controls).join(u'\n'), QString());
    QCOMPARE(mnemonicsThatCollide(window).join(u'\n'), QString());
}

void tst_StudioKeyboard::sections_data()
{
    const MvRows<QString, QString> row; // section: none: the start page; layout
    const QString month = u"MONTH_GRID_CLASSIC"_s;
    for (const char *section : {"", "themePanel", "templatePanel", "contentPanel", "layoutPanel", "colorPanel",
                                "fontPanel", "columnHeadersPanel", "entriesPanel", "photoPanel", "dayPanel",
                                "textPanel", "framePanel", "calendariumPanel"})
        row(section, QString::fromLatin1(section), month);
    row("columns", u"columnHeadersPanel"_s, u"FAMILY_PLANNER"_s);
}

/// The whole window with each of its panels, and with its start page.
void tst_StudioKeyboard::sections()
{
    const auto [section, layout] = MvRows<QString, QString>::current();
    MvStudioFixture studio(layout);
    studio.window()->resize(1280, 1000);
    if (section.isEmpty())
        QVERIFY(studio.trigger("showWelcome"));
    else if (section == u"dayPanel"_s)
        studio.canvas()->selection()->selectDay({2027, 1, 12});
    else if (section == u"textPanel"_s)
        QVERIFY(studio.trigger("addTextFrame"));
    else if (section == u"framePanel"_s || section == u"calendariumPanel"_s)
        QVERIFY(studio.trigger("addSmallMonth"));
    else if (section == u"photoPanel"_s)
        studio.selectFoto(studio.writeFoto(u"foto.png"_s, Qt::green));
    if (!section.isEmpty())
        QVERIFY(studio.openSection(section.toLatin1()));
    QCoreApplication::processEvents();
    check(studio.window(), studio.window());
}

void tst_StudioKeyboard::dialogs_data()
{
    const MvRows<QString, QString, QString> newRow; // language, action, dialog
    for (const char *language : {"de", "en"}) {
        const auto row = [&](const char *action, const char *dialog) {
            newRow(QString::asprintf("%s %s%s", language, action, dialog), QString::fromLatin1(language),
                   QString::fromLatin1(action), QString::fromLatin1(dialog));
        };
        row("newProject", "newProjectDialog");
        row("chooseLayout", "layoutDialog");
        row("pageSetup", "pageSetupDialog");
        row("groups", "groupsDialog");
        row("settings", "settingsDialog");
        row("shortcuts", "shortcutsDialog");
        row("about", "aboutDialog");
        row("exportPdf", "exportDialog");
        row("exportPng", "exportDialog");
        row("", "recoveryDialog");
        row("", ""); // the editor of a day
    }
}

void tst_StudioKeyboard::dialogs()
{
    const auto [language, action, dialog] = MvRows<QString, QString, QString>::current();
    MvStudioFixture studio(u"MONTH_GRID_CLASSIC"_s, language);
    if (dialog == u"recoveryDialog"_s)
        (new MvRecoveryDialog({{}, {}}, studio.window()))->open();
    else if (dialog.isEmpty())
        QVERIFY(studio.openDay({2027, 1, 14}, language == u"de"_s ? u"Neuer Eintrag"_s : u"New entry"_s));
    else
        QVERIFY(studio.trigger(action.toLatin1()));
    const QPointer<QDialog> open = dialog.isEmpty() ? MvStudioFixture::dialog<MvCalendarDayEditorDialog>()
                                                    : MvStudioFixture::dialog<QDialog>(dialog.toLatin1());
    QVERIFY(open);
    const auto buttons = open->findChildren<QPushButton *>();
    QVERIFY(std::any_of(buttons.begin(), buttons.end(), [](const QPushButton *one) { return one->isDefault(); }));
    check(open, open);
    if (QTest::currentTestFailed())
        return;
    QTest::keyClick(open, Qt::Key_Escape);
    QTRY_VERIFY(!open || !open->isVisible());
}

void tst_StudioKeyboard::menus_data()
{
    const MvRows<QString> row; // language
    row("German", u"de"_s);
    row("English", u"en"_s);
}

void tst_StudioKeyboard::menus()
{
    const auto [language] = MvRows<QString>::current();
    MvStudioFixture studio(u"MONTH_GRID_CLASSIC"_s, language);
    for (const char *section : {"contentPanel", "layoutPanel", "colorPanel", "fontPanel", "entriesPanel"}) {
        QVERIFY2(studio.openSection(section), section);
        QCOMPARE(mnemonicsThatCollide(studio.window()).join(u'\n'), QString());
    }
    const auto checkMenu = [](const QMenu *menu) {
        QList<QPair<QString, QString>> texts;
        for (const QAction *action : menu->actions()) {
            if (!action->isSeparator() && action->isVisible())
                texts.append({action->text(), action->text()});
        }
        return doubles(texts);
    };
    for (const QMenu *menu : studio.window()->menuBar()->findChildren<QMenu *>()) {
        QCOMPARE(checkMenu(menu).join(u'\n'), QString());
        for (const QAction *action : menu->actions())
            QVERIFY2(action->isSeparator() || action->isCheckable() || !mnemonicOf(action->text()).isNull(),
                     qPrintable(action->text()));
    }
    MvCalendarEventRegistry::instance().setEvents({MvEntries::entry(u"Oma"_s, {2027, 1, 14})});
    QVERIFY(studio.openSection("fontPanel"));
    QVERIFY(studio.press("fontFamilyBox", Qt::Key_E, Qt::ControlModifier)); // not the end of the line there
    QVERIFY(MvStudioFixture::dialog<QDialog>("exportDialog"));
    MvStudioFixture::dialog<QDialog>("exportDialog")->close();
    studio.canvas()->setFocusDate({2027, 1, 14});
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(studio.canvas(), &event);
    auto *day = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(day);
    QCOMPARE(checkMenu(day).join(u'\n'), QString());
    QTest::keyClick(day, Qt::Key_Escape);
    check(studio.window(), studio.clickDate({2027, 1, 14})); // the keyboard stays in the bubble
}

MV_WIDGET_TEST_MAIN(tst_StudioKeyboard)
#include "tst_StudioKeyboard.moc"
