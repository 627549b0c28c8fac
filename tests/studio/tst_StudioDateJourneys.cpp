// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvStudioFixture.h"
#include "MvTestFiles.h"
#include "MvWidgetDriver.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageEntries.h"
#include "pages/MvPageItem.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvEntryBubble.h"
#include "MvCalendar/MvEntryTableDialog.h"
#include "MvProductBase/MvEntryDisplay.h"
#include "MvProject/MvProject.h"

using namespace Qt::StringLiterals;
using MvEntries::entry;

namespace {

using Days = QList<QDate>;

const QDate thursday(2027, 1, 14);

MvCalendarEventRegistry &registry()
{
    return MvCalendarEventRegistry::instance();
}

QStringList names()
{
    return MvEntries::names(registry().activeEventList());
}

/// Of the question that is open.
bool answer(const QString &begin)
{
    auto *box = MvStudioFixture::dialog<QMessageBox>();
    for (QAbstractButton *button : box ? box->buttons() : QList<QAbstractButton *>()) {
        if (button->text().remove(u'&').startsWith(begin)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

MvCalendarEvent everyWeek(const QString &name, const QDate &first)
{
    MvCalendarEvent event = entry(name, first, {}, false);
    MvEventRepetition repetition;
    repetition.rule.frequency = MvRecurrenceRule::Weekly;
    event.setRepetition(repetition);
    return event;
}

const char *const examWeeks = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//x//y//DE\r\n"
                              "BEGIN:VEVENT\r\nUID:k1@schule\r\nDTSTAMP:20260801T000000Z\r\n"
                              "DTSTART;VALUE=DATE:20270125\r\nDTEND;VALUE=DATE:20270206\r\nSUMMARY:Klausuren\r\n"
                              "CATEGORIES:Schule\r\n"
                              "END:VEVENT\r\nBEGIN:VEVENT\r\nUID:k2@schule\r\nDTSTAMP:20260801T000000Z\r\n"
                              "DTSTART;VALUE=DATE:20260914\r\nSUMMARY:Konferenz\r\nEND:VEVENT\r\n"
                              "BEGIN:VEVENT\r\nUID:k3@schule\r\nDTSTAMP:20260801T000000Z\r\nSUMMARY:Ohne Tag\r\n"
                              "END:VEVENT\r\nEND:VCALENDAR\r\n";

} // namespace

/// Dates typed at their day, moved with the mouse, and brought by files.
class tst_StudioDateJourneys : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void parentKeepsBirthdaysAndTraining();
    void bubbleLosesNothing();
    void entriesAreDragged();
    void groupsAreUndoneWithTheirEntries();
    void teacherDropsExamWeeks();
    void tableIsShownFirst();
    void bubbleStaysOnTheScreen();
};

void tst_StudioDateJourneys::parentKeepsBirthdaysAndTraining()
{
    MvStudioFixture studio;
    MvCalendarDocument document = studio.document();
    MvEntryDisplay display = document.entryDisplay();
    display.text = u"%name (%age)"_s;
    document.setEntryDisplay(display);
    studio.project()->change(document, u"Alter"_s);

    QVERIFY(studio.clickDate(thursday));
    QTest::keyClicks(studio.find("bubbleText"), u"Oma Erna"_s);
    auto *date = studio.find<QDateTimeEdit>("bubbleDate");
    date->setFocus(Qt::TabFocusReason);
    date->findChild<QLineEdit *>()->selectAll();
    QTest::keyClicks(date, u"14.1.1957"_s);
    QTest::keyClick(date, Qt::Key_Return);
    QTRY_VERIFY(!studio.canvas()->entries()->bubble());
    QCOMPARE(studio.datesWith(u"Oma Erna (70)"_s), Days{thursday});

    QVERIFY(studio.openBubble(thursday, u"Neuer Eintrag"_s));
    QTest::keyClicks(studio.find("bubbleText"), u"Turnen"_s);
    QVERIFY(studio.choose("repetitionCombo", u"Jede Woche"_s));
    QVERIFY(studio.click(studio.window(), "bubbleSave"));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{thursday, {2027, 1, 21}, {2027, 1, 28}}));
    QCOMPARE(studio.texts({2027, 1, 21}).count(u"("_s), 0); // no age of what is no birthday

    QVERIFY(studio.openBubble({2027, 1, 21}, u"Turnen"_s)); // falls out
    QCOMPARE(studio.find<QDateTimeEdit>("bubbleDate")->date(), QDate(2027, 1, 21));
    QVERIFY(studio.click(studio.window(), "bubbleDelete"));
    QVERIFY(answer(u"Nur am"_s));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{thursday, {2027, 1, 28}}));

    QVERIFY(studio.openBubble({2027, 1, 28}, u"Turnen"_s)); // a day earlier, by the keyboard
    date = studio.find<QDateTimeEdit>("bubbleDate");
    date->setFocus(Qt::TabFocusReason);
    date->setSelectedSection(QDateTimeEdit::DaySection);
    QTest::keyClick(date, Qt::Key_Down);
    QTest::keyClick(date, Qt::Key_Return);
    QVERIFY(answer(u"Nur dieses Mal"_s));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{thursday, {2027, 1, 27}}));
    QCOMPARE(studio.steps(), 5);
    studio.undo();
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{thursday, {2027, 1, 28}}));
    studio.undo();
    QCOMPARE(studio.datesWith(u"Turnen"_s).size(), 3);
}

/// Whatever a person turns to, what was typed is saved, goes along, or stays in sight.
void tst_StudioDateJourneys::bubbleLosesNothing()
{
    MvStudioFixture studio;
    QVERIFY(studio.clickDate(thursday));
    QTest::keyClicks(studio.find("bubbleText"), u"Oma"_s);
    QVERIFY(studio.clickDate({2027, 1, 20})); // another day
    QCOMPARE(studio.datesWith(u"Oma"_s), Days{thursday});
    QVERIFY(studio.window()->statusBar()->currentMessage().contains(u"„Oma“ ist gesichert."_s));
    QTest::keyClicks(studio.find("bubbleText"), u"Opa"_s);
    QVERIFY(studio.trigger("zoomIn")); // not by its keys: nothing is left
    QVERIFY(studio.canvas()->entries()->bubble());
    studio.activate();
    QTest::keyClick(studio.window(), Qt::Key_0, Qt::ControlModifier); // a shortcut
    QTRY_COMPARE(studio.datesWith(u"Opa"_s), (Days{{2027, 1, 20}}));
    QVERIFY(!studio.canvas()->entries()->bubble());

    QVERIFY(studio.openBubble(thursday, u"Neuer Eintrag"_s));
    QTest::keyClicks(studio.find("bubbleText"), u"Kuchen"_s);
    auto *list = studio.find<QListWidget>("bubbleEntries");
    list->setCurrentRow(0); // another entry of the day
    QCOMPARE(studio.find<QLineEdit>("bubbleText")->text(), u"Oma"_s);
    QVERIFY(list->count() == 3 && list->item(1)->text() == u"Kuchen"_s);
    QCOMPARE(studio.datesWith(u"Kuchen"_s), Days{thursday});
    studio.undo();

    QVERIFY(studio.openBubble(thursday, u"Oma"_s));
    QTest::keyClicks(studio.find("bubbleText"), u" Erna"_s);
    QTest::keyClick(studio.find("bubbleText"), Qt::Key_Escape);
    QCOMPARE(studio.datesWith(u"Oma Erna"_s), Days());
    QVERIFY(studio.openBubble(thursday, u"Oma"_s));
    studio.find<QLineEdit>("bubbleText")->selectAll();
    QTest::keyClick(studio.find("bubbleText"), Qt::Key_Delete);
    QTest::mouseClick(studio.find("pagesDock"), Qt::LeftButton);
    QVERIFY(studio.canvas()->entries()->bubble()); // an entry without a text is none
    QVERIFY(studio.find("bubbleHint"));
    QTest::keyClicks(studio.find("bubbleText"), u"Uroma"_s);
    QVERIFY(studio.choose("repetitionCombo", u"Alle 2 Jahre"_s));
    QVERIFY(studio.click(studio.window(), "bubbleMore"));
    auto *editor = MvStudioFixture::dialog<MvCalendarDayEditorDialog>();
    QVERIFY(editor);
    QCOMPARE(editor->findChild<QLineEdit *>(u"descriptionEdit"_s)->text(), u"Uroma"_s);
    QCOMPARE(editor->findChild<QComboBox *>(u"repetitionCombo"_s)->currentText(), u"Alle 2 Jahre"_s);
    QVERIFY(studio.click(editor, "okButton"));
    QCOMPARE(studio.datesWith(u"Uroma"_s), Days{thursday});
    QCOMPARE(registry().activeEventList().first().repetition().rule.interval, 2);

    QVERIFY(studio.clickDate({2027, 1, 6}));
    QTest::keyClicks(studio.find("bubbleText"), u"Sternsinger"_s);
    studio.window()->close(); // asks about changes, with the entry in them
    QVERIFY(names().contains(u"Sternsinger"_s));
}

void tst_StudioDateJourneys::entriesAreDragged()
{
    MvStudioFixture studio;
    MvCalendarEvent trip = entry(u"Reise"_s, {2027, 1, 5}, {}, false);
    trip.setEndDate({2027, 1, 7});
    registry().setEvents({entry(u"Zahnarzt"_s, {2027, 1, 12}, {}, false), everyWeek(u"Turnen"_s, thursday), trip});
    const int before = studio.steps();
    QVERIFY(studio.dragEntry({2027, 1, 12}, u"Zahnarzt"_s, {2027, 1, 26}));
    QCOMPARE(studio.datesWith(u"Zahnarzt"_s), (Days{{2027, 1, 26}}));
    QTest::qWait(QApplication::doubleClickInterval()); // it was no click
    QVERIFY(!studio.canvas()->entries()->bubble());
    QVERIFY(studio.dragEntry({2027, 1, 26}, u"Zahnarzt"_s, {2027, 1, 11}, Qt::ControlModifier));
    QCOMPARE(studio.datesWith(u"Zahnarzt"_s), (Days{{2027, 1, 11}, {2027, 1, 26}}));

    QVERIFY(studio.dragEntry(thursday, u"Turnen"_s, {2027, 1, 15}));
    QVERIFY(answer(u"Abbrechen"_s));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{thursday, {2027, 1, 21}, {2027, 1, 28}}));
    QVERIFY(studio.dragEntry(thursday, u"Turnen"_s, {2027, 1, 15}));
    QVERIFY(answer(u"Nur dieses Mal"_s));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{{2027, 1, 15}, {2027, 1, 21}, {2027, 1, 28}}));
    studio.undo();
    QVERIFY(studio.dragEntry({2027, 1, 21}, u"Turnen"_s, {2027, 1, 22}));
    QVERIFY(answer(u"Alle"_s));
    QCOMPARE(studio.datesWith(u"Turnen"_s), (Days{{2027, 1, 15}, {2027, 1, 22}, {2027, 1, 29}}));

    QVERIFY(studio.dragEntry({2027, 1, 5}, u"Reise"_s, {2027, 1, 19}));
    const MvCalendarEvent moved = registry().activeEventList().value(2);
    QCOMPARE(moved.dateTime().date(), QDate(2027, 1, 19));
    QCOMPARE(moved.endDate(), QDate(2027, 1, 21));
    QCOMPARE(studio.steps(), before + 4);
}

/// However they came: typed in the bubble, or taken from there to the editor.
void tst_StudioDateJourneys::groupsAreUndoneWithTheirEntries()
{
    MvStudioFixture studio;
    const auto groups = [] {
        QStringList all;
        const MvCalendarEventList list = registry().activeEventList();
        for (const MvEventGroup &group : list.groups())
            all.append(group.name);
        return all;
    };
    const auto type = [&](const QString &name, const QString &group) {
        QTest::keyClicks(studio.find("bubbleText"), name);
        auto *box = studio.find<QComboBox>("groupCombo");
        box->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(box, group);
    };
    QVERIFY(studio.clickDate(thursday));
    type(u"Probe"_s, u"Chor"_s);
    QVERIFY(studio.click(studio.window(), "bubbleSave"));
    QCOMPARE(groups(), QStringList{u"Chor"_s});
    QVERIFY(studio.clickDate({2027, 1, 20}));
    type(u"Spiel"_s, u"Verein"_s);
    QVERIFY(studio.click(studio.window(), "bubbleMore"));
    QCOMPARE(groups(), QStringList{u"Chor"_s}); // nothing is saved yet
    QVERIFY(studio.click(MvStudioFixture::dialog<MvCalendarDayEditorDialog>(), "okButton"));
    QCOMPARE(groups(), (QStringList{u"Chor"_s, u"Verein"_s}));
    QCOMPARE(studio.steps(), 2);
    studio.undo();
    QCOMPARE(groups(), QStringList{u"Chor"_s});
    studio.undo();
    QCOMPARE(groups(), QStringList());
    studio.redo();
    studio.redo();
    QCOMPARE(groups(), (QStringList{u"Chor"_s, u"Verein"_s}));
    QCOMPARE(names(), (QStringList{u"Probe"_s, u"Spiel"_s}));
}

/// August to July, with the weeks of exams as somebody else has written them; and a photo in the same drop.
void tst_StudioDateJourneys::teacherDropsExamWeeks()
{
    MvStudioFixture studio;
    MvCalendarDocument document = studio.document();
    document.setRange({QDate(2026, 8, 1), QDate(2027, 7, 31)});
    studio.project()->newProject(document);
    const QString file = studio.path(u"klausuren.ics"_s);
    QVERIFY(MvTestFiles::write(file, examWeeks));
    const auto report = [] { return MvStudioFixture::dialog<QDialog>("entryImportReport"); };
    const auto summary = [&report] { return report()->findChild<QLabel *>(u"importSummary"_s)->text(); };
    QVERIFY(studio.dropOnDate({2026, 8, 12}, file));
    QTRY_VERIFY(report());
    QCOMPARE(summary(), u"2 neu, 0 geändert, 0 gleich, 1 ausgelassen"_s);
    const QString left = report()->findChild<QPlainTextEdit *>(u"importLines"_s)->toPlainText();
    QVERIFY2(left.contains(u"klausuren.ics: Zeile 18"_s) && left.contains(u"Ohne Tag"_s), qPrintable(left));
    report()->close();
    QCOMPARE(studio.steps(), 1);
    studio.window()->setCurrentPage(5); // January 2027
    const Days named = studio.datesWith(u"Klausuren"_s);
    QVERIFY(named.contains({2027, 1, 25}) && !named.contains({2027, 1, 24})); // at the begin of each row
    for (const MvCalendarEvent &event : registry().activeEventList()) {
        if (event.description() == u"Klausuren"_s)
            QCOMPARE(event.endDate(), QDate(2027, 2, 5));
    }
    QTRY_VERIFY(!report());

    const QString photo = studio.writeFoto(u"klasse.png"_s, Qt::red);
    MvWidgetDriver::Drag mixed(studio.canvas()->viewport(), {file, photo});
    const QPoint beside(20, 20);
    QVERIFY(mixed.isTaken(beside) && mixed.drop(beside));
    QTRY_VERIFY(report());
    QCOMPARE(summary(), u"0 neu, 0 geändert, 2 gleich, 1 ausgelassen"_s); // nothing twice
    report()->close();
    QCOMPARE(studio.page()->foto(0) ? studio.page()->foto(0)->path() : QString(), photo);
    QCOMPARE(studio.steps(), 2);
    QVERIFY(registry().activeEventList().groups().findName(u"Schule"_s));
    studio.undo();
    studio.undo();
    QCOMPARE(names(), QStringList());
    QVERIFY(registry().activeEventList().groups().isEmpty());
}

/// What a table leaves open is asked, and every choice shows at once.
void tst_StudioDateJourneys::tableIsShownFirst()
{
    MvStudioFixture studio;
    const QString file = studio.path(u"termine.csv"_s);
    QVERIFY(MvTestFiles::write(file, "Anlass,Wann,Ort\nSommerfest,04/05/2027,Hof\n\"Sp\xe4ter, viel\",09/10/2027,Saal\n"
                                     "Ohne,irgendwann,Saal\n"));
    QVERIFY(studio.dropOnDate(thursday, file));
    const auto dialog = [] { return MvStudioFixture::dialog<MvEntryTableDialog>(); };
    QTRY_VERIFY(dialog());
    auto *table = dialog()->findChild<QTableWidget *>();
    auto *take = dialog()->findChild<QPushButton *>(u"takeTableButton"_s);
    const auto told = [&] { return dialog()->findChild<QLabel *>(u"tableResult"_s)->text(); };
    const auto choose = [&](const char *box, int row) {
        auto *combo = dialog()->findChild<QComboBox *>(QLatin1StringView(box));
        combo->setCurrentIndex(row);
        Q_EMIT combo->activated(row);
    };
    QCOMPARE(table->item(2, 0)->text(), u"Sommerfest"_s);
    QCOMPARE(table->item(3, 0)->text(), u"Später, viel"_s);
    QVERIFY2(told().contains(u"„04/05/2027“"_s) && told().contains(u"Zeile 4, „Ohne“"_s), qPrintable(told()));
    QVERIFY(!take->isEnabled());
    choose("orderCombo", 1);
    QVERIFY(take->isEnabled());
    choose("separatorCombo", 0); // one column, and nothing to be read
    QVERIFY(!take->isEnabled());
    QCOMPARE(table->columnCount(), 1);
    choose("separatorCombo", 1);
    choose("columnCombo2", 1); // the place is the name
    QVERIFY2(told().startsWith(u"2 Einträge"_s), qPrintable(told()));
    choose("columnCombo0", 1);
    choose("encodingCombo", 1);
    choose("orderCombo", 1);
    QVERIFY(studio.click(dialog(), "takeTableButton"));
    QTRY_VERIFY(MvStudioFixture::dialog<QDialog>("entryImportReport"));
    MvStudioFixture::dialog<QDialog>("entryImportReport")->close();
    QCOMPARE(names(), (QStringList{u"Sommerfest"_s, u"Später, viel"_s}));
    QCOMPARE(registry().activeEventList().first().dateTime().date(), QDate(2027, 4, 5));

    QVERIFY(studio.dropOnDate(thursday, file));
    QTRY_VERIFY(dialog());
    QVERIFY(studio.click(dialog(), "cancelButton"));
    QCOMPARE(names().size(), 2);
    QCOMPARE(studio.steps(), 1);

    QVERIFY(studio.dropOnDate(thursday, file));
    QTRY_VERIFY(dialog());
    registry().setOwnEvents({});
    studio.project()->newProject(studio.document()); // which the table is not for
    choose("orderCombo", 1);
    QVERIFY(studio.click(dialog(), "takeTableButton"));
    QTRY_VERIFY(MvStudioFixture::dialog<QDialog>("entryImportReport"));
    auto *report = MvStudioFixture::dialog<QDialog>("entryImportReport");
    QVERIFY(report->findChild<QLabel *>(u"importSummary"_s)->text().startsWith(u"Nichts übernommen"_s));
    report->close();
    QCOMPARE(names(), QStringList());
    QCOMPARE(studio.steps(), 0);
}

/// At days in all corners of a small window.
void tst_StudioDateJourneys::bubbleStaysOnTheScreen()
{
    MvStudioFixture studio;
    registry().setEvents({entry(u"Oma"_s, {2027, 1, 1}), entry(u"Opa"_s, {2027, 1, 1})});
    studio.window()->resize(1024, 600);
    for (const QDate &date :
         {QDate(2027, 1, 1), QDate(2027, 1, 4), QDate(2027, 1, 10), QDate(2027, 1, 25), QDate(2027, 1, 31)}) {
        MvEntryBubble *bubble = studio.clickDate(date);
        QVERIFY(bubble);
        QVERIFY(studio.window()->rect().contains(bubble->geometry()));
        QVERIFY(studio.window()->screen()->geometry().contains(QRect(bubble->mapToGlobal(QPoint()), bubble->size())));
        const auto *area = bubble->findChild<QScrollArea *>();
        QVERIFY(!area->verticalScrollBar()->isVisible()); // nothing has to be scrolled for
        for (const QWidget *widget : area->widget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            const QRect inArea(widget->mapTo(area, QPoint()), widget->size());
            QVERIFY2(!widget->isVisible() || area->rect().contains(inArea), qPrintable(widget->objectName()));
        }
        QTest::keyClick(studio.find("bubbleText"), Qt::Key_Escape);
    }
}

MV_WIDGET_TEST_MAIN(tst_StudioDateJourneys)
#include "tst_StudioDateJourneys.moc"
