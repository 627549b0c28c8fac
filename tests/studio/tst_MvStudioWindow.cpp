// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvUndoController.h"
#include "MvEntries.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"
#include "MvRows.h"
#include "MvStudioTest.h"
#include "MvWidgetDriver.h"
#include "common/MvStudioSettings.h"
#include "flows/MvBirthdayImport.h"
#include "flows/MvProjectFlow.h"
#include "flows/MvUndoCommandEventList.h"
#include "pages/MvPageCanvas.h"

#include <QTextBrowser>

using namespace Qt::StringLiterals;

/// What a person does with the window: menus, dialogs and questions, driven through the real widgets.
class tst_MvStudioWindow : public MvStudioTest
{
    Q_OBJECT

private Q_SLOTS:
    void firstStart();
    void everyActionIsComplete();
    void newCalendar();
    void saveAndOpen();
    void recentFiles();
    void fileChangedByOthers();
    void dropOfAProject();
    void undoTexts();
    void statusBar();
    void recovery();
    void leapDayEntries();
    void birthdays();
    void birthdaysWithPhotos();
    void orderOfBirthdays_data();
    void orderOfBirthdays();
    void birthdaysThatAreNotSaved();
    void settings();

private:
    void chooseFile(const QString &path) const { QVERIFY2(m_studio->chooseFile(path), qPrintable(path)); }
    void rename(const QString &title) const;
    void importCards(const QByteArrayList &cards);
    QString importReport() const;
};

void tst_MvStudioWindow::rename(const QString &title) const
{
    MvCalendarDocument document = project()->document();
    document.setTitle(title);
    project()->change(document, u"Titel ändern"_s);
}

void tst_MvStudioWindow::firstStart()
{
    MvStudioSettings::setWelcomeShown(true);
    m_studio->start();
    const MvCalendarDocument &document = project()->document();
    QCOMPARE(document.pages().size(), 12);
    QCOMPARE(document.range(), MvDateRange::createDefaultCalendarDateRange());
    QCOMPARE(document.format().trimSize(), QSizeF(2970, 2100));
    QCOMPARE(document.holidayConfig().language().name(), u"de_DE"_s);
    QCOMPARE(document.holidayConfig().province(), QString());
    QVERIFY(document.isValid());
    QVERIFY(!window()->isWindowModified());

    QVERIFY(window()->isStartShown());
    QVERIFY(!m_studio->find("inspector"));
    click(window(), "startClose");
    QVERIFY(!window()->isStartShown());
    QVERIFY(m_studio->find("inspector") && m_studio->find("photoTray"));
    m_studio->start(); // it comes again, until somebody says otherwise
    QVERIFY(window()->isStartShown());
    click(window(), "startAtStart");
    m_studio->start();
    QVERIFY(!window()->isStartShown());
}

void tst_MvStudioWindow::everyActionIsComplete()
{
    QHash<QKeySequence, QString> shortcuts;
    QSet<QString> mnemonics;
    for (QAction *menuAction : window()->menuBar()->actions()) {
        const QChar key = menuAction->text().at(menuAction->text().indexOf(u'&') + 1);
        QVERIFY2(!mnemonics.contains(key), qPrintable(menuAction->text()));
        mnemonics.insert(key);
        for (const QAction *action : menuAction->menu()->actions()) {
            if (action->isSeparator() || action->menu())
                continue;
            QVERIFY2(!action->objectName().isEmpty() || action->isCheckable(), qPrintable(action->text()));
            if (!action->isCheckable()) {
                QVERIFY2(!action->statusTip().isEmpty(), qPrintable(action->text()));
                QVERIFY2(!action->icon().isNull(), qPrintable(action->text()));
                QVERIFY2(action->text().contains(u'&'), qPrintable(action->text()));
            }
            for (const QKeySequence &sequence : action->shortcuts()) {
                QVERIFY2(!shortcuts.contains(sequence), qPrintable(action->text() + shortcuts.value(sequence)));
                shortcuts.insert(sequence, action->text());
            }
        }
    }
    QVERIFY(shortcuts.size() > 20);
    trigger("shortcuts");
    QVERIFY(dialog("shortcutsDialog")->findChild<QTreeWidget *>()->topLevelItemCount() >= shortcuts.size());
    auto *guide = dialog("shortcutsDialog")->findChild<QTextBrowser *>();
    QVERIFY(guide && guide->toPlainText().contains(u"Foto"));
    const QRegularExpression picture(u"<img src=\"([^\"]+)\""_s);
    auto pictures = picture.globalMatch(guide->toHtml());
    QVERIFY(pictures.hasNext());
    while (pictures.hasNext())
        QVERIFY(!guide->loadResource(QTextDocument::ImageResource, pictures.next().captured(1)).isNull());
    trigger("about");
    QVERIFY(dialog("aboutDialog"));
}

void tst_MvStudioWindow::newCalendar()
{
    trigger("newProject");
    QDialog *setup = dialog("newProjectDialog");
    QVERIFY(setup);
    auto *kinds = setup->findChild<QListWidget *>(u"calendarKinds"_s);
    kinds->setCurrentRow(1); // a planner
    auto *layouts = setup->findChild<QListWidget *>(u"layoutList"_s);
    QVERIFY(layouts->count() > 10 && layouts->isVisible());
    layouts->setCurrentRow(1);
    setup->findChild<QComboBox *>(u"startMonth"_s)->setCurrentIndex(8);
    setup->findChild<QSpinBox *>(u"startYear"_s)->setValue(2027);
    setup->findChild<QSpinBox *>(u"monthCount"_s)->setValue(18);
    setup->findChild<QComboBox *>(u"paper"_s)->setCurrentText(u"A5"_s);
    setup->findChild<QComboBox *>(u"orientation"_s)->setCurrentIndex(1);
    setup->findChild<QComboBox *>(u"region"_s)->setCurrentText(u"Bayern"_s);
    QCOMPARE(setup->findChild<QLabel *>(u"lastMonth"_s)->text(), u"bis Februar 2029"_s);
    QTRY_VERIFY(!layouts->item(0)->icon().isNull());
    setup->accept();

    const MvCalendarDocument &document = project()->document();
    QCOMPARE(document.range(), MvDateRange(QDate(2027, 9, 1), QDate(2029, 2, 28)));
    QCOMPARE(document.pages().size(), 18);
    QCOMPARE(document.format().trimSize(), QSizeF(1480, 2100));
    QVERIFY(document.appearance().layoutSchema().ID() !=
            MvProjectFlow::firstDocument().appearance().layoutSchema().ID());
    QCOMPARE(project()->displayName(), u"Kalender September 2027 bis Februar 2029"_s);
    QVERIFY(!project()->isModified());
    QCOMPARE(document.holidayConfig().province(), u"BY"_s);

    // the next one begins with what was chosen; with pictures there are photos, cover and back
    for (const bool isOfPeople : {false, true}) {
        trigger("newProject");
        if (isOfPeople) // the photo is not saved
            click(dialog("saveQuestion"), "discardButton");
        setup = dialog("newProjectDialog");
        QCOMPARE(setup->findChild<QComboBox *>(u"paper"_s)->currentText(), u"A5"_s);
        QCOMPARE(setup->findChild<QComboBox *>(u"region"_s)->currentText(), u"Bayern"_s);
        setup->findChild<QListWidget *>(u"calendarKinds"_s)->setCurrentRow(isOfPeople ? 2 : 0);
        auto *themes = setup->findChild<QListWidget *>(u"newThemes"_s);
        QVERIFY(themes->isVisible());
        themes->setCurrentRow(2);
        setup->findChild<QComboBox *>(u"binding"_s)->setCurrentIndex(1);
        setup->findChild<QLineEdit *>(u"newTitle"_s)->setText(u"Für Oma"_s);
        setup->findChild<QCheckBox *>(u"newBack"_s)->setChecked(!isOfPeople);
        const QString foto = path(u"neu.png"_s);
        QVERIFY(MvWidgetDriver::writeFoto(foto, Qt::red));
        QVERIFY(MvStudioFixture::dropFile(setup, {5, 5}, foto));
        setup->accept();
        QTRY_COMPARE(project()->document().fotoPool().paths(), QStringList{foto});
        QCOMPARE(project()->document().pages().size(), isOfPeople ? 13 : 14);
        QCOMPARE(project()->document().title(), u"Für Oma"_s);
        QCOMPARE(project()->document().format().binding(), MvPageFormat::Binding::Top);
        QCOMPARE(project()->document().pages().at(3).templateId() == u"MONTH_PEOPLE"_s, isOfPeople);
        QVERIFY(project()->document().fotoUses().value(foto) > 0);
    }

    trigger("pageSetup");
    setup = dialog("pageSetupDialog");
    setup->findChild<QComboBox *>(u"paper"_s)->setCurrentText(u"Eigenes Format"_s);
    setup->findChild<QDoubleSpinBox *>(u"paperWidth"_s)->setValue(300.5);
    setup->findChild<QDoubleSpinBox *>(u"paperHeight"_s)->setValue(200);
    setup->findChild<QDoubleSpinBox *>(u"bleed"_s)->setValue(3);
    setup->accept();
    QCOMPARE(project()->document().format().trimSize(), QSizeF(3005, 2000));
    QCOMPARE(project()->document().format().bleed(), 30.0);
    QVERIFY(project()->isModified());

    // what is not saved is asked about before anything else
    trigger("newProject");
    QVERIFY(!dialog("newProjectDialog"));
    click(dialog("saveQuestion"), "cancelButton");
    QCOMPARE(project()->document().format().bleed(), 30.0);
}

void tst_MvStudioWindow::saveAndOpen()
{
    trigger("saveProject");
    chooseFile(path(u"Familie"_s));
    const QString file = path(u"Familie.mvcalendar"_s); // the suffix comes by itself
    m_studio->start({file});                            // from the command line
    QTRY_COMPARE(project()->fileInfo().filePath(), file);

    QVERIFY(MvTestFiles::write(path(u"kaputt.mvcalendar"_s), "<calendarproject"));
    trigger("openProject");
    chooseFile(path(u"kaputt.mvcalendar"_s));
    auto *error = dialog<QMessageBox>("errorMessage");
    QVERIFY(error);
    QVERIFY2(error->informativeText().contains(u"kaputt.mvcalendar"_s), qPrintable(error->informativeText()));
    QCOMPARE(project()->fileInfo().filePath(), file); // what was open stays
}

void tst_MvStudioWindow::recentFiles()
{
    const QString file = path(u"a & b.mvcalendar"_s);
    QVERIFY(project()->saveAs(QFileInfo(file)));
    MvStudioSettings::addRecentFile(path(u"weg.mvcalendar"_s));
    MvStudioSettings::addRecentFile(file);
    auto *menu = window()->findChild<QMenu *>(u"recentMenu"_s);
    Q_EMIT menu->aboutToShow();
    QCOMPARE(menu->actions().size(), 4); // two files, a line, and clearing
    menu->actions().at(1)->trigger();
    QVERIFY(dialog<QMessageBox>("errorMessage")->text().contains(u"weg.mvcalendar"_s));
    QCOMPARE(MvStudioSettings::recentFiles(), QStringList{file});
    project()->newProject(MvProjectFlow::firstDocument());
    menu->actions().at(0)->trigger();
    QCOMPARE(project()->fileInfo().filePath(), file);
}

void tst_MvStudioWindow::fileChangedByOthers()
{
    const QFileInfo file(path(u"Familie.mvcalendar"_s));
    QVERIFY(project()->saveAs(file));
    rename(u"Meins"_s);
    MvCalendarDocument theirs = project()->document();
    theirs.setTitle(u"Ihres"_s);
    QCOMPARE(MvProjectFile::write(theirs, file).error, QString());
    trigger("saveProject");
    QCOMPARE(MvProjectFile::read(file).document.title(), u"Ihres"_s);
    click(dialog("changedByOthersQuestion"), "otherNameButton");
    Q_EMIT qobject_cast<QFileDialog *>(dialog("projectFileDialog"))
        ->fileSelected(file.filePath()); // the same after all
    dialog("projectFileDialog")->close();
    QCOMPARE(MvProjectFile::read(file).document.title(), u"Ihres"_s);
    click(dialog("changedByOthersQuestion"), "replaceButton");
    QCOMPARE(MvProjectFile::read(file).document.title(), u"Meins"_s);
}

void tst_MvStudioWindow::dropOfAProject()
{
    const QString file = path(u"Familie.mvcalendar"_s);
    QVERIFY(project()->saveAs(QFileInfo(file)));
    project()->newProject(MvProjectFlow::firstDocument());
    QVERIFY(!MvStudioFixture::dropFile(window(), {5, 5}, path(u"bild.jpg"_s)));
    QVERIFY(MvStudioFixture::dropFile(window(), {5, 5}, file));
    QCOMPARE(project()->fileInfo().filePath(), file);
}

void tst_MvStudioWindow::undoTexts()
{
    auto *undo = window()->findChild<QAction *>(u"undo"_s);
    auto *redo = window()->findChild<QAction *>(u"redo"_s);
    QCOMPARE(undo->text().remove(u'&'), u"Rückgängig"_s);
    QVERIFY(!undo->isEnabled());
    rename(u"Neu"_s);
    QCOMPARE(undo->text().remove(u'&'), u"Rückgängig: Titel ändern"_s);
    QTest::keyClick(window(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(project()->document().title() != u"Neu"_s);
    QVERIFY(!project()->isModified());
    QCOMPARE(redo->text().remove(u'&'), u"Wiederholen: Titel ändern"_s);
    QTest::keyClick(window(), Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(project()->document().title(), u"Neu"_s);
}

void tst_MvStudioWindow::statusBar()
{
    const int year = project()->document().range().start().year();
    auto *label = window()->findChild<QLabel *>(u"pageLabel"_s);
    QCOMPARE(label->text(), u"Seite 1 von 12 · Januar %1"_s.arg(year));
    trigger("nextPage");
    QCOMPARE(label->text(), u"Seite 2 von 12 · Februar %1"_s.arg(year));
    trigger("lastPage");
    QVERIFY(!window()->findChild<QAction *>(u"nextPage"_s)->isEnabled());

    auto *canvas = window()->findChild<MvPageCanvas *>();
    auto *zoom = window()->findChild<QComboBox *>(u"zoomBox"_s);
    QCOMPARE(zoom->currentText(), u"Ganze Seite"_s);
    zoom->lineEdit()->selectAll();
    QTest::keyClicks(zoom->lineEdit(), u"80"_s);
    QTest::keyClick(zoom->lineEdit(), Qt::Key_Return);
    QCOMPARE(canvas->zoom(), 0.8);
    QCOMPARE(zoom->currentText(), u"80 %"_s);
    trigger("zoomFit");
    QVERIFY(canvas->isFitted());
    QCOMPARE(zoom->currentText(), u"Ganze Seite"_s);

    // a text that has no room is told, and its page is one click away
    auto *button = window()->findChild<QToolButton *>(u"unfittingButton"_s);
    QVERIFY(!button->isVisible());
    const QString longText = u"Donaudampfschifffahrtsgesellschaftskapitänswitwenrentenauszahlungsstelle"_s.repeated(20);
    MvCalendarEventRegistry::instance().setEvents({MvEntries::entry(longText, {1990, 5, 17})});
    QTRY_VERIFY(button->isVisible());
    QCOMPARE(button->text(), u"1 Text ohne Platz"_s);
    Q_EMIT button->menu()->aboutToShow();
    button->menu()->actions().first()->trigger();
    QCOMPARE(window()->currentPage(), 4);

    // so are characters that no font has, and photos of few pixels
    MvCalendarEventRegistry::instance().setEvents({MvEntries::entry(u"Anna \u0378"_s, {1990, 5, 17})});
    QVERIFY(MvTestFiles::writeFoto(path(u"klein.png"_s), {30, 20}));
    MvCalendarPage page = project()->document().pages().at(4);
    page.setFotoFrame(MvFotoFrame(path(u"klein.png"_s)));
    project()->changePage(4, page, u"Foto"_s);
    QTRY_COMPARE(button->text(), u"2 Hinweise zum Druck"_s);
    Q_EMIT button->menu()->aboutToShow();
    const QList<QAction *> notes = button->menu()->actions();
    QCOMPARE(notes.size(), 2);
    QVERIFY2(notes.at(0)->text().contains(u"„klein.png“"_s), qPrintable(notes.at(0)->text()));
    QCOMPARE(notes.at(1)->text(), u"17.05.27: „Anna \u0378“ – keine Schrift hat \u0378"_s);
    window()->setCurrentPage(0); // each leads to its place
    notes.at(0)->trigger();
    QCOMPARE(window()->currentPage(), 4);
    QVERIFY(m_studio->find("photoPanel"));
}

void tst_MvStudioWindow::recovery()
{
    MvCalendarDocument lost = MvProjectFlow::firstDocument();
    lost.setTitle(u"Verloren"_s);
    for (const QString &name : {u"a"_s, u"b"_s}) {
        QVERIFY(MvTestFiles::write(u"%1/%2.%3"_s.arg(MvProjectAutosave::folder(), name, MvProjectFile::suffix()),
                                   MvProjectFile::toBytes(lost, QDir(MvProjectAutosave::folder()))));
    }
    m_studio->start();
    QTRY_VERIFY(dialog("recoveryDialog"));
    auto *list = dialog("recoveryDialog")->findChild<QTreeWidget *>(u"recoveryList"_s);
    QCOMPARE(list->topLevelItemCount(), 2);
    QCOMPARE(list->topLevelItem(0)->text(0), u"Verloren"_s);
    click(dialog("recoveryDialog"), "recoveryDiscard");
    QCOMPARE(list->topLevelItemCount(), 1);
    click(dialog("recoveryDialog"), "recoveryOpen");
    QCOMPARE(project()->document().title(), u"Verloren"_s);
    QVERIFY(project()->isModified());

    QVERIFY(project()->saveAs(QFileInfo(path(u"gerettet.mvcalendar"_s))));
    m_studio->start();
    QTest::qWait(50);
    QVERIFY(!dialog("recoveryDialog"));
}

void tst_MvStudioWindow::leapDayEntries()
{
    const auto shown = [this] { return window()->statusBar()->currentMessage(); };
    using MvEntries::entry;
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    MvCalendarDocument document = project()->document();
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    project()->change(document, u"Monate"_s);
    window()->statusBar()->clearMessage();
    const MvCalendarEvent anna = entry(u"Anna"_s, {1992, 2, 29});
    registry.setEvents({entry(u"Bert"_s, {1992, 2, 28})});
    QCoreApplication::processEvents();
    QCOMPARE(shown(), QString());
    registry.setEvents({anna});
    QTRY_VERIFY(shown().contains(u"Anna"_s));
    window()->statusBar()->clearMessage();
    registry.setEvents({anna, entry(u"Carl"_s, {1950, 5, 1})}); // Anna's is known
    QCoreApplication::processEvents();
    QCOMPARE(shown(), QString());

    document.setRange({QDate(2027, 3, 1), QDate(2028, 2, 29)});
    project()->change(document, u"Monate"_s);
    registry.setEvents({anna, entry(u"Dora"_s, {1604, 2, 29})});
    QCoreApplication::processEvents();
    QVERIFY(!shown().contains(u"Dora"_s));
}

void tst_MvStudioWindow::importCards(const QByteArrayList &cards)
{
    QByteArray content;
    for (const QByteArray &card : cards)
        content += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + card + "\r\nEND:VCARD\r\n";
    QVERIFY(MvTestFiles::write(path(u"kontakte.vcf"_s), content));
    trigger("importBirthdays");
    chooseFile(path(u"kontakte.vcf"_s));
}

/// What the import tells at its end; an empty text when it does not come.
QString tst_MvStudioWindow::importReport() const
{
    const auto box = [this] {
        auto *error = dialog<QMessageBox>("errorMessage");
        return error ? error : dialog<QMessageBox>("informationMessage");
    };
    if (!QTest::qWaitFor([&] { return box() && !window()->birthdayImport()->isRunning(); }))
        return {};
    const QString text = box()->text() + u'\n' + box()->informativeText();
    delete box();
    return text;
}

void tst_MvStudioWindow::birthdays()
{
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    const auto entry = [](const QString &name) { return MvEntries::entry(name, {1950, 5, 1}); };
    const auto names = [&registry] { return MvEntries::names(registry.activeEventList()).join(u' '); };
    registry.setEvents({entry(u"Zoe"_s), entry(u"Udo"_s)});
    QSignalSpy finished(window()->birthdayImport(), &MvBirthdayImport::finished);
    const QByteArrayList cards{"Anna\r\nBDAY:19900517", "Bert\r\nBDAY:19900518", "Carl\r\nBDAY:19900230", "Dora",
                               "\r\nBDAY:19900517"};
    for (const int imported : {2, 0}) {
        importCards(cards);
        const QString report = importReport();
        QCOMPARE(finished.takeFirst(), (QVariantList{2, imported}));
        QCOMPARE(names(), u"Zoe Udo Anna Bert"_s);
        QVERIFY(
            report.startsWith(imported > 0 ? u"2 Geburtstage importiert."_s : u"Alle 2 Geburtstage waren schon da."_s));
        for (const QString &part : {u"(1):\nCarl: 19900230"_s, u"keinen Geburtstag"_s, u"keinen Namen"_s})
            QVERIFY2(report.contains(part), qPrintable(report));
    }
    QCOMPARE(window()->findChild<QAction *>(u"undo"_s)->text().remove(u'&'), u"Rückgängig: Geburtstage importieren"_s);

    const auto own = [&registry] { return MvEntries::names(registry.ownEvents()).join(u' '); };
    MvCalendarEventRegistry other; // another program adds one, which comes in with the next change there
    other.changeEvent({}, entry(u"Xaver"_s));
    registry.setOwnEvents(registry.ownEvents());
    QCOMPARE(own(), u"Anna Bert Xaver"_s);
    trigger("undo");
    QCOMPARE(names() + u", "_s + own(), u"Zoe Udo, Xaver"_s);
    trigger("redo");
    QCOMPARE(names() + u", "_s + own(), u"Zoe Udo Anna Bert, Xaver Anna Bert"_s);
    MvCalendarEventList renamed = registry.ownEvents();
    renamed.last().setEventName(u"Berti"_s); // elsewhere
    registry.setOwnEvents(renamed);
    trigger("undo");
    QCOMPARE(names() + u", "_s + own(), u"Zoe Udo, Xaver Berti"_s);
}

/// Saving moves photos: they go and come back all the same.
void tst_MvStudioWindow::birthdaysWithPhotos()
{
    QVERIFY(MvWidgetDriver::writeFoto(path(u"anna.png"_s), Qt::red));
    const MvCalendarEvent anna = MvEntries::entry(u"Anna"_s, {1990, 5, 17}, MvFoto(QFileInfo(path(u"anna.png"_s))));
    MvUndoController::instance().push(new MvUndoCommandEventList({}, {anna}, MvSession::defaultSession()));
    QVERIFY(project()->saveAs(QFileInfo(path(u"k."_s + MvProjectFile::suffix()))).isOk());
    trigger("undo");
    QVERIFY(MvCalendarEventRegistry::instance().activeEventList().isEmpty());
    trigger("redo");
    const MvCalendarEventList again = MvCalendarEventRegistry::instance().activeEventList();
    QVERIFY(again.value(0).imagePath().filePath().startsWith(path(u"eintraege/anna"_s)));
}

void tst_MvStudioWindow::orderOfBirthdays_data()
{
    const MvRows<int, QList<QDate>> row; // button, dates
    const QDate anna(1990, 5, 17);
    row("day first", 0, QList{anna, QDate(1985, 12, 4)});
    row("month first", 1, QList{anna, QDate(1985, 4, 12)});
    row("left out", 2, QList{anna});
    row("cancelled", -1, QList<QDate>());
    row("another calendar is open by then", 3, QList<QDate>());
}

void tst_MvStudioWindow::orderOfBirthdays()
{
    const auto [button, dates] = MvRows<int, QList<QDate>>::current();
    const auto question = [this] { return window()->findChild<QMessageBox *>(); };
    importCards({"Anna\r\nBDAY:19900517", "Bert\r\nBDAY:04/12/1985"});
    QTRY_VERIFY(question());
    QVERIFY(question()->text().contains(u"04/12/1985"_s));
    if (button < 0)
        window()->birthdayImport()->cancel();
    if (button == 3)
        project()->newProject(m_studio->document());
    question()->buttons().at(qMax(0, button % 3))->click();
    const QString report = button < 0 ? QString() : importReport();
    QVERIFY(!window()->birthdayImport()->isRunning());
    QCOMPARE(report.contains(u"Bert: 04/12/1985"_s), button == 2);
    QCOMPARE(report.contains(u"nicht mehr offen"_s), button == 3);
    QList<QDate> found;
    for (const MvCalendarEvent &event : MvCalendarEventRegistry::instance().activeEventList())
        found.append(event.dateTime().date());
    QCOMPARE(found, dates);
}

void tst_MvStudioWindow::birthdaysThatAreNotSaved()
{
    const QString file = MvCalendarEventRegistry::instance().calendarEventsDir().filePath();
    QFile::remove(file);
    QVERIFY(QDir().mkdir(file)); // no file can take its place
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"calendarEvents\\.xml"_s));
    importCards({"Anna\r\nBDAY:19900517"});
    const QString report = importReport();
    QVERIFY(QDir().rmdir(file));
    QVERIFY2(!report.contains(u"importiert"_s) && report.contains(file), qPrintable(report));
}

void tst_MvStudioWindow::settings()
{
    trigger("settings");
    QDialog *settings = dialog("settingsDialog");
    settings->findChild<QComboBox *>(u"settingsTheme"_s)->setCurrentIndex(2);
    settings->findChild<QComboBox *>(u"settingsLanguage"_s)->setCurrentIndex(2);
    settings->accept();
    QCOMPARE(MvStudioSettings::theme(), u"dark"_s);
    QCOMPARE(MvStudioSettings::language(), u"en"_s);
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 100);
    MvStudioSettings::setTheme(u"system"_s);
}

MV_WIDGET_TEST_MAIN(tst_MvStudioWindow)
#include "tst_MvStudioWindow.moc"
