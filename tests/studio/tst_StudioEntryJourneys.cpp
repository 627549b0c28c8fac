// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvStudioFixture.h"
#include "MvTestFiles.h"

#include "MvProject/MvProject.h"
#include "common/MvStudioSettings.h"

#include "MvCalendar/MvCalendarDayEditorDialog.h"
#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendarEventStore.h"
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
    void listIsSearched();
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

void tst_StudioEntryJourneys::listIsSearched()
{
    MvStudioFixture studio;
    MvCalendarEventRegistry::instance().setEvents(
        {entry(u"Oma Erna"_s, QDate(1941, 3, 9)), entry(u"Opa"_s, QDate(1938, 5, 4))});
    QVERIFY(studio.openSection("entriesPanel"));
    auto *list = studio.find<QTableView>("eventTableView");
    auto *field = studio.find<QLineEdit>("entrySearchField");
    const auto shown = [list] {
        QStringList names;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            if (!list->isRowHidden(row))
                names.append(list->model()->index(row, 2).data().toString());
        return names;
    };
    QTest::keyClicks(field, u"erna"_s);
    QCOMPARE(shown(), QStringList{u"Oma Erna"_s});
    field->setText(u"mai"_s);
    QCOMPARE(shown(), QStringList{u"Opa"_s});
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 2)).center());
    QCOMPARE(studio.window()->currentPage(), 4);
    QVERIFY(studio.press("eventTableView", Qt::Key_Home)); // passes the hidden row over
    QCOMPARE(list->currentIndex().row(), 1);
    field->clear();
    QCOMPARE(shown().size(), 2);

    QVERIFY(studio.click(studio.window(), "newEntryButton")); // begins within the calendar
    auto *editor = MvStudioFixture::dialog<MvCalendarDayEditorDialog>();
    QVERIFY(editor);
    QCOMPARE(editor->findChild<QDateTimeEdit *>()->date(), QDate(2027, 5, 1));
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
