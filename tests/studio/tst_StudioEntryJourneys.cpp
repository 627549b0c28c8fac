// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvStudioFixture.h"
#include "MvTestFiles.h"

#include "MvProject/MvProject.h"
#include "common/MvStudioSettings.h"
#include "pages/MvDayMark.h"
#include "pages/MvPageItem.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
#include "MvCalendar/MvEntryIntake.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvUndoController.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;

namespace {

const QDate birthday(2027, 1, 14);

MvCalendarEventList entries()
{
    return MvCalendarEventRegistry::instance().activeEventList();
}

QStringList names()
{
    QStringList all = MvEntries::names(entries());
    all.sort();
    return all;
}

QColor fotoColor(const MvCalendarEvent &event)
{
    const QImage foto(event.imagePath().filePath());
    return foto.isNull() ? QColor() : foto.pixelColor(foto.rect().center());
}

bool isNearly(const QColor &a, const QColor &b) // photos are stored as JPEG
{
    constexpr int tolerance = 12;
    return a.isValid() && qAbs(a.red() - b.red()) < tolerance && qAbs(a.green() - b.green()) < tolerance &&
           qAbs(a.blue() - b.blue()) < tolerance;
}

} // namespace

/// Personal entries: from a click on a date to the next start of the program.
class tst_StudioEntryJourneys : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        if (!QByteArray(QTest::currentTestFunction()).startsWith("trouble")) // which is logged, too
            failOnWarnings();
    }
    void birthdayWithFotos();
    void editorOfALostEntryCloses();
    void secretaryOpensTheFamilysCalendar();
    void listIsSearchedAndChosenFrom();
    void groupsAreMadeAndShown();
    void secretaryMakesARoster();
    void troubleWithReadingIsToldAndMended();
    void troubleWithSavingIsToldAndAsked();
    void troubleWithFoldersIsTold();

private:
    static bool addEntry(const MvStudioFixture &studio, const QDate &date, const QString &name);
};

/// By click and keys, in the bubble.
bool tst_StudioEntryJourneys::addEntry(const MvStudioFixture &studio, const QDate &date, const QString &name)
{
    if (!studio.openBubble(date, u"Neuer Eintrag"_s))
        return false;
    auto *text = studio.find<QLineEdit>("bubbleText");
    QTest::keyClicks(text, name);
    QTest::keyClick(text, Qt::Key_Return);
    return studio.datesWith(name).contains(date);
}

void tst_StudioEntryJourneys::birthdayWithFotos()
{
    MvStudioFixture studio;
    const QString red = studio.writeFoto(u"rot.png"_s, Qt::red);
    const QString blue = studio.writeFoto(u"blau.png"_s, Qt::blue);
    QPointer<MvCalendarDayEditorDialog> editor = studio.openDay(birthday, u"Neuer Eintrag"_s);
    QVERIFY(editor);
    QVERIFY(!MvStudioFixture::find<QPushButton>(editor, "okButton")->isEnabled()); // nothing to keep yet
    QTest::keyClicks(editor->focusWidget(), u"Oma Erna"_s);
    auto *place = MvStudioFixture::find(editor, "fotoLabel");
    QVERIFY(MvStudioFixture::dropFile(editor, place->mapTo(editor, place->rect().center()), red));
    QVERIFY(studio.click(editor, "okButton"));
    QTRY_VERIFY(!editor);
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>{birthday});
    QVERIFY(studio.hasPhoto(birthday));
    QVERIFY(isNearly(fotoColor(entries().value(0)), Qt::red));
    QCOMPARE(studio.steps(), 1);

    QVERIFY(studio.dropOnDate(birthday, blue, Qt::ShiftModifier)); // the day has one entry: it is meant
    QCOMPARE(entries().size(), 1);
    QVERIFY(isNearly(fotoColor(entries().value(0)), Qt::blue));
    studio.undo();
    QVERIFY(isNearly(fotoColor(entries().value(0)), Qt::red));
    studio.undo();
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>());
    QVERIFY(!studio.hasPhoto(birthday));
    studio.redo();
    studio.redo();
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>{birthday});

    studio.restart();
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>{birthday});
    QVERIFY(studio.hasPhoto(birthday));
    QVERIFY(isNearly(fotoColor(entries().value(0)), Qt::blue));

    editor = studio.openDay(birthday, u"Oma Erna"_s); // and straight to its photo
    QVERIFY(editor);
    QTRY_VERIFY(editor->hasPhoto());
    QVERIFY(studio.click(editor, "removePhotoButton"));
    QVERIFY(studio.click(editor, "okButton"));
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>{birthday});
    QVERIFY(!studio.hasPhoto(birthday));

    editor = studio.openDay(birthday, u"Oma Erna"_s);
    studio.undo();
    QTRY_VERIFY(studio.hasPhoto(birthday) && editor->hasPhoto()); // follows its entry
    QVERIFY(studio.click(editor, "deleteButton"));
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>());
    studio.restart();
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>());
}

/// The message that says so belongs to the window: it outlives the editor.
void tst_StudioEntryJourneys::editorOfALostEntryCloses()
{
    MvStudioFixture studio;
    QVERIFY(addEntry(studio, birthday, u"Oma"_s));
    QVERIFY(studio.openDay(birthday, u"Oma"_s));
    MvUndoController::instance().undo();
    QTRY_VERIFY(!MvStudioFixture::dialog<MvCalendarDayEditorDialog>());
    QTest::qWait(1);
    QVERIFY(MvStudioFixture::dialog<QMessageBox>());
}

/// One person, two calendars: what is done to the club's dates is nothing to the family.
void tst_StudioEntryJourneys::secretaryOpensTheFamilysCalendar()
{
    MvStudioFixture studio;
    const auto saveAs = [&studio](const QString &name) {
        return studio.trigger("saveProjectAs") && studio.chooseFile(studio.path(name));
    };
    const auto open = [&studio](const QString &name) {
        return studio.trigger("openProject") && studio.chooseFile(studio.path(name));
    };
    const auto own = [] { return MvEntries::names(MvCalendarEventRegistry::instance().ownEvents()); };
    const auto chooseInList = [&studio](const QString &action) {
        if (!studio.find("entriesPanel") && !studio.openSection("entriesPanel"))
            return false;
        auto *button = studio.find<QPushButton>("changeEventListButton");
        return button && (button->menu()->popup({}), studio.chooseInMenu(button->menu(), action));
    };
    QVERIFY(addEntry(studio, birthday, u"Oma"_s));
    QVERIFY(saveAs(u"familie.mvcalendar"_s));
    QCOMPARE(own(), QStringList{u"Oma"_s});

    studio.project()->newProject(studio.document()); // starts with a copy
    QCOMPARE(studio.datesWith(u"Oma"_s), QList<QDate>{birthday});
    QVERIFY(MvTestFiles::write(studio.path(u"verein.xml"_s),
                               MvCalendarEventFile::toBytes({entry(u"Sommerfest"_s, {2026, 1, 20})})));
    QVERIFY(chooseInList(u"Laden"_s) && studio.chooseFile(studio.path(u"verein.xml"_s)));
    auto *question = MvStudioFixture::dialog<QMessageBox>();
    QVERIFY(question && question->informativeText().contains(u"Ihre eigenen Einträge"_s));
    QTest::mouseClick(question->buttons().first(), Qt::LeftButton);
    QCOMPARE(names(), QStringList{u"Sommerfest"_s});
    QCOMPARE(own(), QStringList{u"Oma"_s});
    auto *reach = studio.find<QCheckBox>("ownEntriesSwitch");
    QVERIFY(reach && reach->isChecked());
    QTest::mouseClick(reach, Qt::LeftButton, {}, QPoint(10, reach->height() / 2));
    QVERIFY(addEntry(studio, QDate(2027, 1, 28), u"Probe"_s));
    QCOMPARE(own(), QStringList{u"Oma"_s});
    QVERIFY(chooseInList(u"Aus meinen"_s));
    auto *transfer = MvStudioFixture::dialog<QDialog>("transferEntriesDialog");
    QVERIFY(studio.click(transfer, "transferButton"));
    QCOMPARE(names(), (QStringList{u"Oma"_s, u"Probe"_s, u"Sommerfest"_s}));
    studio.undo();
    QCOMPARE(names(), (QStringList{u"Probe"_s, u"Sommerfest"_s}));
    QVERIFY(saveAs(u"verein.mvcalendar"_s));

    QVERIFY(open(u"familie.mvcalendar"_s));
    QCOMPARE(names(), QStringList{u"Oma"_s});
    QCOMPARE(studio.datesWith(u"Oma"_s), QList<QDate>{birthday});
    QCOMPARE(studio.datesWith(u"Probe"_s), QList<QDate>());
    QVERIFY(chooseInList(u"Alle löschen"_s));
    question = MvStudioFixture::dialog<QMessageBox>();
    QVERIFY(question && question->informativeText().contains(u"dieses Kalenders"_s));
    QTest::mouseClick(question->buttons().first(), Qt::LeftButton);
    QCOMPARE(names(), QStringList());
    QCOMPARE(own(), QStringList{u"Oma"_s});
    QVERIFY(studio.window()->isWindowModified());
    studio.undo();
    QVERIFY(!studio.window()->isWindowModified());
    QVERIFY(open(u"verein.mvcalendar"_s));
    QCOMPARE(names(), (QStringList{u"Probe"_s, u"Sommerfest"_s}));
}

void tst_StudioEntryJourneys::listIsSearchedAndChosenFrom()
{
    MvStudioFixture studio;
    MvCalendarEventList events{entry(u"Oma Erna"_s, {1941, 3, 9}), entry(u"Opa"_s, {1938, 5, 4}),
                               entry(u"Probe"_s, {2027, 5, 13}), entry(u"Früher"_s, {2026, 5, 4}, {}, false)};
    MvEventRepetition weekly;
    weekly.rule = MvRecurrenceRule::parse(u"FREQ=WEEKLY"_s).rule;
    events[2].setRepetition(weekly);
    MvCalendarEventRegistry::instance().setEvents(events);
    QVERIFY(studio.openSection("entriesPanel"));
    auto *list = studio.find<QTreeView>("entryTable");
    auto *field = studio.find<QLineEdit>("entrySearchField");
    const QList<QGraphicsItem *> onPage = studio.page()->childItems();
    const MvDayMark *mark = nullptr;
    for (const QGraphicsItem *item : onPage)
        mark = mark ? mark : dynamic_cast<const MvDayMark *>(item);
    QVERIFY(mark);
    const auto counts = [&studio] { return studio.find<QLabel>("entryCounts")->text(); };
    const auto clickRow = [list](const QString &name, Qt::KeyboardModifiers modifiers = {}) {
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, name);
        QVERIFY(!found.isEmpty());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualRect(found.first()).center());
    };
    QCOMPARE(counts(), u"4 Einträge"_s);
    QTest::keyClicks(field, u"mai"_s);
    QCOMPARE(counts(), u"3 von 4 Einträgen"_s);
    clickRow(u"Opa"_s);
    QCOMPARE(studio.window()->currentPage(), 4);
    QCOMPARE(mark->date(), QDate(2027, 5, 4));
    field->clear();
    QCOMPARE(counts(), u"4 Einträge, 1 ausgewählt"_s);
    clickRow(u"Probe"_s); // its next date from the shown month on
    QCOMPARE(mark->date(), QDate(2027, 5, 13));
    clickRow(u"Früher"_s); // the calendar does not have that
    QCOMPARE(mark->date(), QDate(2027, 5, 13));

    clickRow(u"Oma Erna"_s);
    clickRow(u"Opa"_s, Qt::ControlModifier);
    QVERIFY(studio.click(studio.window(), "entryShiftButton"));
    auto *shift = MvStudioFixture::dialog<QDialog>("shiftEntriesDialog");
    QVERIFY(shift && !MvStudioFixture::find<QPushButton>(shift, "shiftNowButton")->isEnabled());
    QTest::keyClicks(shift->focusWidget(), u"-1"_s);
    const QString example = shift->findChild<QLabel *>(u"shiftExample"_s)->text();
    QVERIFY2(example.contains(u"09.03.1940"_s), qPrintable(example));
    QVERIFY(studio.click(shift, "shiftNowButton"));
    QCOMPARE(counts(), u"4 Einträge, 2 ausgewählt"_s); // the same, where they are now
    QVERIFY(studio.press("entryTable", Qt::Key_Delete));
    QCOMPARE(names(), (QStringList{u"Früher"_s, u"Probe"_s}));
    QCOMPARE(studio.steps(), 2);
    studio.undo();
    studio.undo();
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), QList<QDate>{QDate(2027, 3, 9)});

    QVERIFY(studio.openSection("entriesPanel"));
    clickRow(u"Oma Erna"_s);
    QVERIFY(studio.press("entryTable", Qt::Key_Return));
    auto *editor = MvStudioFixture::dialog<MvCalendarDayEditorDialog>();
    QVERIFY(editor && editor->findChild<QLineEdit *>(u"descriptionEdit"_s)->text() == u"Oma Erna"_s);
    editor->close();
    QVERIFY(studio.click(studio.window(), "newEntryButton")); // begins within the calendar
    editor = MvStudioFixture::dialog<MvCalendarDayEditorDialog>();
    QVERIFY(editor);
    QCOMPARE(editor->findChild<QDateTimeEdit *>()->date(), QDate(2027, 3, 1));
}

/// By clicks in the dialog, with the page beside it.
void tst_StudioEntryJourneys::groupsAreMadeAndShown()
{
    MvStudioFixture studio(u"FAMILY_PLANNER"_s);
    MvCalendarEventRegistry::instance().setEvents(
        {entry(u"Jörg"_s, {1967, 1, 12}), entry(u"Probe"_s, {2027, 1, 14}), entry(u"Müll"_s, {2027, 1, 13})});
    QVERIFY(studio.openSection("entriesPanel"));
    auto *list = studio.find<QTreeView>("entryTable");
    const auto putInto = [&](const QString &name, const QString &group) { // a new one, by the button's menu
        const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, name);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(found.value(0)).center());
        auto *menu = studio.find<QToolButton>("entryGroupButton")->menu();
        Q_EMIT menu->aboutToShow();
        menu->findChild<QMenu *>(u"moveToGroupMenu"_s)->actions().last()->trigger();
        auto *question = MvStudioFixture::dialog<QInputDialog>();
        QVERIFY(question);
        question->setTextValue(group);
        question->accept();
    };
    putInto(u"Jörg"_s, u"Familie"_s);
    putInto(u"Probe"_s, u"Verein"_s);
    QVERIFY(studio.choose("entryGroupFilter", u"Familie"_s));
    QCOMPARE(studio.find<QLabel>("entryCounts")->text().section(u',', 0, 0), u"1 von 3 Einträgen"_s);
    const auto headings = [&studio] { return studio.document().appearance().columnHeadersList().join(u','); };
    QVERIFY(studio.openSection("columnHeadersPanel"));
    QVERIFY(studio.click(studio.window(), "columnsFromGroups"));
    QCOMPARE(headings(), u" ,Familie,Verein"_s); // the first column is that of all others

    QVERIFY(studio.trigger("groups"));
    auto *dialog = MvStudioFixture::dialog<QDialog>("groupsDialog");
    QVERIFY(dialog);
    auto *groups = dialog->findChild<QListWidget *>(u"groupList"_s);
    QCOMPARE(groups->item(0)->text(), u"Familie (1)"_s);
    groups->setCurrentRow(0);
    auto *name = dialog->findChild<QLineEdit *>(u"groupName"_s);
    const auto type = [name](const QString &text) {
        name->setFocus();
        name->selectAll();
        QTest::keyClicks(name, text);
        QTest::keyClick(name, Qt::Key_Return);
    };
    const int before = studio.steps();
    type(u"verein"_s); // another one's
    QVERIFY(MvStudioFixture::find<QLabel>(dialog, "groupNameNotice"));
    QCOMPARE(studio.steps(), before);
    type(u"Sippe"_s);
    QCOMPARE(headings(), u" ,Sippe,Verein"_s); // goes along
    QVERIFY(dialog->isVisible());
    QCOMPARE(studio.steps(), before + 1);

    auto *forms = dialog->findChild<QComboBox *>(u"calendarPatternForms"_s);
    forms->setCurrentIndex(forms->findData(u"%name (%age)"_s));
    Q_EMIT forms->activated(forms->currentIndex());
    QVERIFY2(studio.texts().contains(u"Jörg(60)"_s), qPrintable(studio.texts()));
    QVERIFY(dialog->findChild<QLabel *>(u"calendarPatternExample"_s)->text().endsWith(u"Jörg (60)"_s));
    auto *round = dialog->findChild<QCheckBox *>(u"calendarPatternRound"_s);
    round->click();
    QVERIFY2(studio.texts().contains(u"Jörg(60!)"_s), qPrintable(studio.texts()));
    round->click();
    QCOMPARE(studio.steps(), before + 4);
    groups->item(1)->setCheckState(Qt::Unchecked);
    QVERIFY(!studio.texts().contains(u"Probe"_s));
    QCOMPARE(studio.steps(), before + 5);
    QVERIFY(studio.click(dialog, "removeGroup"));
    auto *question = MvStudioFixture::dialog<QMessageBox>();
    QVERIFY(question && question->informativeText().startsWith(u"1 Eintrag gehört"_s));
    QTest::mouseClick(question->buttons().first(), Qt::LeftButton);
    QVERIFY(studio.texts().contains(u"Jörg(60)"_s));
    QCOMPARE(groups->count(), 1);
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    for (int step = 0; step < 6; ++step)
        QTest::keyClick(groups, Qt::Key_Z, Qt::ControlModifier); // from within the dialog
    QCOMPARE(headings(), u" ,Familie,Verein"_s);
    QVERIFY(studio.texts().contains(u"Probe"_s) && !studio.texts().contains(u"(60)"_s));
    QCOMPARE(groups->item(0)->text(), u"Familie (1)"_s);
}

/// A club's year: 60 dates of a table, a roster on A3 with a column for each of three groups, and the dates for other
/// programs. Every click and every file that is named is a hand's turn.
void tst_StudioEntryJourneys::secretaryMakesARoster()
{
    MvStudioFixture studio;
    const QStringList groups{u"Vorstand"_s, u"Jugend"_s, u"Orchester"_s};
    QByteArray table("Datum;Termin;Gruppe\r\n");
    for (int i = 0; i < 60; ++i)
        table += QDate(2027, 1, 4).addDays(6LL * i).toString(u"dd.MM.yyyy"_s).toUtf8() + ";Termin" +
                 QByteArray::number(i) + ';' + groups.at(i % 3).toUtf8() + "\r\n";
    QVERIFY(MvTestFiles::write(studio.path(u"termine.csv"_s), table));
    int hands = 0;
    const auto hand = [&hands](bool isDone) {
        ++hands;
        return isDone;
    };
    const auto chooseInList = [&](const QString &action, const QString &file) {
        auto *button = studio.find<QPushButton>("changeEventListButton");
        return hand(button && (button->menu()->popup({}), true)) && hand(studio.chooseInMenu(button->menu(), action)) &&
               hand(studio.chooseFile(studio.path(file)));
    };
    QVERIFY(hand(studio.openSection("entriesPanel")));
    QVERIFY(chooseInList(u"Hinzufügen"_s, u"termine.csv"_s));
    QTRY_VERIFY(MvStudioFixture::dialog<QDialog>("entryTableDialog"));
    QVERIFY(hand(studio.click(MvStudioFixture::dialog<QDialog>("entryTableDialog"), "takeTableButton")));
    QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>()); // says what came
    QVERIFY(hand(MvStudioFixture::dialog<QMessageBox>()->close()));
    QTRY_COMPARE(studio.find<QLabel>("entryCounts")->text(), u"60 Einträge"_s);
    QVERIFY(hand(studio.openSection("columnHeadersPanel")));
    QVERIFY(hand(studio.click(studio.window(), "chooseColumnsLayout")));
    QVERIFY(hand(studio.click(studio.window(), "columnsFromGroups")));
    QVERIFY(hand(studio.openSection("contentPanel")));
    QVERIFY(hand(studio.choose("orientation", u"Hochformat"_s)));
    QVERIFY(hand(studio.choose("paper", u"A3"_s)));
    QCOMPARE(studio.page()->pageRect().size(), QSizeF(2970, 4200));

    const auto centreOf = [&studio](const QString &text) {
        for (const MvPaintRecording::Item &item : studio.items(MvPaintRecording::Item::Text)) {
            if (item.text.compare(text, Qt::CaseInsensitive) == 0)
                return item.bounds.center().x();
        }
        return -1.0;
    };
    for (int i = 0; i < 5; ++i) { // of January
        const double place = centreOf(u"Termin%1"_s.arg(i));
        QVERIFY(place > 0);
        QStringList byDistance = groups;
        std::sort(byDistance.begin(), byDistance.end(), [&](const QString &a, const QString &b) {
            return std::abs(centreOf(a) - place) < std::abs(centreOf(b) - place);
        });
        QCOMPARE(byDistance.first(), groups.at(i % 3));
    }
    QVERIFY(hand(studio.openSection("entriesPanel")));
    QVERIFY(chooseInList(u"Sichern"_s, u"termine.ics"_s));
    const MvEntryReading read = MvEntryIntake::read(QFileInfo(studio.path(u"termine.ics"_s)));
    QCOMPARE(read.events.size(), 60);
    QCOMPARE(read.events.groups().size(), 3);
    QCOMPARE(hands, 16);
    QCOMPARE(studio.steps(), 4); // to be undone: the paper is one
}

void tst_StudioEntryJourneys::troubleWithReadingIsToldAndMended()
{
    MvStudioFixture studio;
    QVERIFY(addEntry(studio, birthday, u"Oma"_s));
    QVERIFY(addEntry(studio, birthday, u"Opa"_s));
    QFile own(MvCalendarEventRegistry::instance().calendarEventsDir().filePath()); // Oma is in the version before
    QVERIFY(own.resize(200));
    studio.restart();
    QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>("entriesProblem"));
    auto *told = MvStudioFixture::dialog<QMessageBox>("entriesProblem");
    QVERIFY2(told->informativeText().contains(own.fileName()), qPrintable(told->informativeText()));
    const QString date =
        QLocale(u"de"_s).toString(QFileInfo(own.fileName() + u'~').lastModified(), QLocale::ShortFormat);
    QVERIFY2(told->informativeText().contains(date), qPrintable(told->informativeText()));
    QVERIFY(studio.click(told, "laterButton"));
    const auto chooseVersion = [&studio]() -> QDialog * {
        return studio.click(studio.window(), "entriesNoticeButton") && // stays
                       studio.click(MvStudioFixture::dialog<QMessageBox>("entriesProblem"), "restoreButton")
                   ? MvStudioFixture::dialog<QDialog>("restoreEntriesDialog")
                   : nullptr;
    };
    auto other = std::make_unique<MvFileGuard>(QFileInfo(own.fileName()), 0);
    QVERIFY(studio.click(chooseVersion(), "restoreNowButton"));
    auto *refused = MvStudioFixture::dialog<QMessageBox>();
    QVERIFY(refused && refused->informativeText().contains(u"anderes Programm"_s));
    refused->close();
    other.reset();
    auto *versions = chooseVersion();
    QVERIFY(versions);
    QCOMPARE(versions->findChild<QTreeWidget *>()->topLevelItem(0)->text(1), u"1 Eintrag"_s);
    QVERIFY(studio.click(versions, "restoreNowButton"));
    QCOMPARE(names(), QStringList{u"Oma"_s});
    QVERIFY(!studio.find("entriesNoticeButton"));
    QCOMPARE(MvCalendarEventFile::read(QFileInfo(own.fileName())).events.size(), 1);
}

void tst_StudioEntryJourneys::troubleWithSavingIsToldAndAsked()
{
    MvStudioFixture studio;
    const QString folder = MvDirectoryConfig::instance().programDataDir().absolutePath();
    QFile inTheWay(folder);
    QVERIFY(QDir().rename(folder, folder + u"-weg"_s) && inTheWay.open(QIODevice::WriteOnly));
    QVERIFY(addEntry(studio, birthday, u"Oma"_s));
    QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>("entriesProblem"));
    QVERIFY(studio.click(MvStudioFixture::dialog<QMessageBox>("entriesProblem"), "laterButton"));
    QVERIFY(addEntry(studio, birthday, u"Opa"_s));
    QCoreApplication::processEvents();
    QVERIFY(!MvStudioFixture::dialog<QMessageBox>("entriesProblem")); // once
    QVERIFY(studio.find("entriesNoticeButton"));

    studio.project()->newProject(studio.document()); // nothing but the entries is unsaved
    studio.window()->close();
    QVERIFY(studio.click(MvStudioFixture::dialog<QMessageBox>("entriesUnsavedQuestion"), "cancelButton"));
    QVERIFY(studio.window()->isVisible());
    studio.window()->close();
    QVERIFY(MvStudioFixture::dialog<QMessageBox>("entriesUnsavedQuestion"));
    QVERIFY(inTheWay.remove() && QDir().rename(folder + u"-weg"_s, folder));
    QVERIFY(MvCalendarEventRegistry::instance().userFile().saveNow()); // as a try of its own does
    QCOMPARE(MvCalendarEventFile::read(MvCalendarEventRegistry::instance().calendarEventsDir()).events.size(), 2);
    QTRY_VERIFY(!studio.window()->isVisible()); // the question has answered itself
}

void tst_StudioEntryJourneys::troubleWithFoldersIsTold()
{
    QTemporaryFile inTheWay;
    QVERIFY(inTheWay.open());
    const QString missing = inTheWay.fileName() + u"/mvcalendar"_s;
    const QString folder = MvDirectoryConfig::instance().programDataDir().path();
    MvDirectoryConfig::instance().setProgramDataDir(missing);
    {
        const MvStudioFixture studio;
        QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>("errorMessage"));
        const QString told = MvStudioFixture::dialog<QMessageBox>("errorMessage")->informativeText();
        QVERIFY2(told.contains(missing), qPrintable(told));
    }
    MvDirectoryConfig::instance().setProgramDataDir(folder);
    QVERIFY(MvCalendarEventRegistry::instance().userFile().saveNow());

    QStringList errors;
    MvStudioSettings::setFailureHandler([&errors](const QString &error) { errors.append(error); });
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, missing);
    MvStudioSettings::setTheme(u"dark"_s);
    MvStudioSettings::setTheme(u"light"_s);
    QCOMPARE(errors.size(), 1); // once
    QVERIFY2(errors.first().contains(missing), qPrintable(errors.first()));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

MV_WIDGET_TEST_MAIN(tst_StudioEntryJourneys)
#include "tst_StudioEntryJourneys.moc"
