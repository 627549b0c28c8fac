// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvRows.h"
#include "MvStudioFixture.h"

#include "common/MvProgressDialog.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"
#include "flows/MvImportReport.h"
#include "flows/MvRecoveryDialog.h"
#include "flows/MvRestoreEntriesDialog.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"
#include "window/MvHelpDialogs.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCore/MvRequestHandler.h"
#include "MvProject/MvProject.h"

using namespace Qt::StringLiterals;

namespace {

/// In logical pixels.
struct Screen
{
    QSize size;
    double scale = 1.0;
    const char *language = nullptr;
    const char *theme = nullptr;
};

constexpr Screen screens[] = {
    {{960, 540}, 2.0, "de", "light"},   {{960, 540}, 1.0, "en", "dark"},  {{1024, 600}, 1.0, "de", "dark"},
    {{1024, 600}, 1.5, "en", "light"},  {{1280, 800}, 3.0, "de", "dark"}, {{1280, 800}, 1.5, "de", "light"},
    {{2560, 1440}, 1.0, "en", "light"},
};

/// The screens stand side by side, far from each other.
QByteArray screenConfiguration()
{
    QJsonArray all;
    for (const Screen &screen : screens)
        all.append(QJsonObject{{u"name"_s, QString::number(all.size())},
                               {u"x"_s, int(all.size()) * 8000},
                               {u"y"_s, 0},
                               {u"width"_s, screen.size.width()},
                               {u"height"_s, screen.size.height()},
                               {u"dpr"_s, screen.scale}});
    return QJsonDocument(QJsonObject{{u"screens"_s, all}}).toJson();
}

/// A control that shows less than it has to say; empty when none does.
QString cutControl(const QWidget *window)
{
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        const bool hasText = qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
                             qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QLabel *>(widget);
        bool scrolls = false;
        bool isBehind = widget->objectName().startsWith(u"qt_"_s); // parts of the toolkit's own
        for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
            scrolls = scrolls || qobject_cast<const QAbstractScrollArea *>(parent);
            isBehind = isBehind || (qobject_cast<const QDockWidget *>(parent) && parent->visibleRegion().isEmpty());
        }
        if (!hasText || !widget->isVisible() || widget->window() != window || isBehind)
            continue;
        const QSize needed = widget->minimumSizeHint() - QSize(1, 1); // fonts are rounded by the screen
        if (widget->width() < needed.width() || widget->height() < needed.height())
            return u"%1 %2: %3x%4 of %5x%6"_s
                .arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName())
                .arg(widget->width())
                .arg(widget->height())
                .arg(needed.width())
                .arg(needed.height());
        const QRect inWindow(widget->mapTo(window, QPoint()), widget->size());
        if (!scrolls && !window->rect().contains(inWindow))
            return u"%1 lies outside"_s.arg(widget->objectName());
    }
    return {};
}

} // namespace

/// The window and every dialog on small screens: all of it is to be seen and reached.
class tst_StudioScreens : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyDialog_data();
    void everyDialog();
    void sidePanels_data() { everyDialog_data(); }
    void sidePanels();

private:
    /// Opens dialogs one after the other; each call gives the next one's way.
    static QList<std::pair<QString, std::function<void()>>> openers(const MvStudioFixture &studio);
};

void tst_StudioScreens::everyDialog_data()
{
    const MvRows<QScreen *, QString, QString> row; // screen, language, theme
    QCOMPARE(QGuiApplication::screens().size(), qsizetype(std::size(screens)));
    int number = 0;
    for (const Screen &one : screens)
        row(QString::asprintf("%dx%d@%g %s %s", one.size.width(), one.size.height(), one.scale, one.language,
                              one.theme),
            QGuiApplication::screens().at(number++), QString::fromLatin1(one.language), QString::fromLatin1(one.theme));
}

QList<std::pair<QString, std::function<void()>>> tst_StudioScreens::openers(const MvStudioFixture &studio)
{
    QList<std::pair<QString, std::function<void()>>> openers;
    for (QMenu *menu : studio.window()->findChildren<QMenu *>())
        for (QAction *action : menu->actions())
            if (action->text().contains(u'…') && action->isEnabled() && action->menu() == nullptr)
                openers.append({action->objectName(), [action] { action->trigger(); }});
    MvStudioWindow *window = studio.window();
    const QStringList many(12, u"Eine Zeile, die von einem Eintrag aus einer langen Liste erzählt"_s);
    openers += {
        {u"shortcuts"_s, [&studio] { studio.trigger("shortcuts"); }},
        {u"about"_s, [&studio] { studio.trigger("about"); }},
        {u"day"_s,
         [&studio] {
             const MvCalendarEvent entry = MvEntries::entry({}, {2027, 5, 6});
             MvCalendarDayEditorDialog::createSelfDeleting(studio.page())->openDayEditorSeries(entry);
         }},
        {u"message"_s, [=] { MvStudioMessage::error(window, many.first(), MvStudioMessage::shortened(many, 10)); }},
        {u"choice"_s,
         [=] {
             MvRequestHandler::current().askChoice(
                 {u"Einträge"_s, many.mid(0, 2).join(u' '), many.join(u'\n'), {u"Ersetzen"_s, u"Abbrechen"_s}}, window,
                 [](int) {});
         }},
        {u"progress"_s, [=] { (new MvProgressDialog(u"Export"_s, many.join(u' '), window))->open(); }},
        {u"recovery"_s,
         [=] {
             (new MvRecoveryDialog({{QFileInfo(u"1"_s), u"/home/sabine/Kalender/Familie 2027.mvcalendar"_s,
                                     u"Familie 2027"_s, QDateTime(QDate(2026, 11, 3), QTime(20, 14))}},
                                   window))
                 ->open();
         }},
        {u"restore"_s, [=] { (new MvRestoreEntriesDialog({}, window))->open(); }},
    };
    return openers;
}

void tst_StudioScreens::everyDialog()
{
    const auto [screen, language, theme] = MvRows<QScreen *, QString, QString>::current();
    MvStudioSettings::setTheme(theme);
    const MvStudioFixture studio(u"MONTH_GRID_CLASSIC"_s, language);
    MvCalendarPage page = studio.document().pages().first();
    page.setFotoFrame(MvFotoFrame(studio.path(u"nicht da.jpg"_s)));
    studio.project()->changePage(0, page, u"Foto"_s);
    MvStudioWindow *window = studio.window();
    window->setGeometry(screen->availableGeometry());
    QTRY_COMPARE(window->screen(), screen);
    QVERIFY2(screen->availableGeometry().contains(window->geometry()), "the window itself");
    int seen = 0;
    for (const auto &[name, open] : openers(studio)) {
        open();
        QList<QDialog *> dialogs;
        QVERIFY2(QTest::qWaitFor([&dialogs] {
                     for (QWidget *widget : QApplication::topLevelWidgets())
                         if (auto *dialog = qobject_cast<QDialog *>(widget); dialog && dialog->isVisible())
                             dialogs.append(dialog);
                     return !dialogs.isEmpty();
                 }),
                 qPrintable(name));
        QCoreApplication::processEvents();
        QDialog *dialog = dialogs.constFirst();
        QVERIFY2(screen->availableGeometry().contains(dialog->frameGeometry()),
                 qPrintable(u"%1: %2x%3"_s.arg(name).arg(dialog->width()).arg(dialog->height())));
        if (!qobject_cast<QFileDialog *>(dialog)) { // the toolkit's own
            const QString cut = cutControl(dialog);
            QVERIFY2(cut.isEmpty(), qPrintable(name + u": "_s + cut));
        }
        if (auto *progress = qobject_cast<MvProgressDialog *>(dialog))
            progress->finish();
        else
            dialog->close();
        delete dialog;
        ++seen;
    }
    QVERIFY(seen > 12);
}

/// The inspector keeps the width of what is in it; the start page breaks its rows.
void tst_StudioScreens::sidePanels()
{
    const auto [screen, language, theme] = MvRows<QScreen *, QString, QString>::current();
    MvStudioSettings::setTheme(theme);
    const MvStudioFixture studio(u"MONTH_GRID_CLASSIC"_s, language);
    MvStudioWindow *window = studio.window();
    MvStudioSettings::addRecentFile(studio.writeFoto(u"Unser Familienkalender fürs Jahr.png"_s, Qt::red));
    window->setGeometry(screen->availableGeometry());
    QTest::qWait(1); // the layout comes later
    QVERIFY2(window->minimumSizeHint().width() <= screen->availableSize().width(),
             qPrintable(QDebug::toString(window->minimumSizeHint())));
    window->resizeDocks({window->findChild<QDockWidget *>(u"inspectorDock"_s)}, {100}, Qt::Horizontal);
    for (const char *section : {"themePanel", "templatePanel", "contentPanel", "layoutPanel", "colorPanel", "fontPanel",
                                "columnHeadersPanel", "entriesPanel"}) {
        QVERIFY2(studio.openSection(section), section);
        QVERIFY2(cutControl(window).isEmpty(), qPrintable(cutControl(window)));
        for (const QScrollArea *area : studio.find(section)->findChildren<QScrollArea *>())
            QVERIFY2(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0, section);
    }
    studio.selectFoto(studio.writeFoto(u"foto.png"_s, Qt::green));
    const auto isWhole = [&studio, window](const char *panel) {
        return studio.openSection(panel) && cutControl(window).isEmpty();
    };
    QVERIFY2(isWhole("photoPanel"), qPrintable(cutControl(window)));
    QVERIFY2(isWhole("framePanel"), qPrintable(cutControl(window)));
    QVERIFY(studio.trigger("addTextFrame"));
    QVERIFY2(isWhole("textPanel"), qPrintable(cutControl(window)));
    QVERIFY(studio.trigger("addSmallMonth"));
    QVERIFY2(isWhole("calendariumPanel"), qPrintable(cutControl(window)));
    studio.canvas()->selection()->selectDay({2027, 1, 12});
    QVERIFY2(isWhole("dayPanel"), qPrintable(cutControl(window)));
    QVERIFY(studio.trigger("showWelcome"));
    QTest::qWait(1);
    QVERIFY2(cutControl(window).isEmpty(), qPrintable(cutControl(window)));
    QVERIFY(studio.find<QScrollArea>("startPage")->horizontalScrollBar()->maximum() == 0);
}

int main(int argc, char **argv)
{
    QTemporaryFile screens;
    if (!screens.open() || screens.write(screenConfiguration()) < 0 || !screens.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screens.fileName()));
    return mvRunWidgetTest(argc, argv, []() -> QObject * { return new tst_StudioScreens; });
}
#include "tst_StudioScreens.moc"
