// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvStudioFixture.h"
#include "MvTestFiles.h"

#include "flows/MvFotoFlow.h"
#include "flows/MvMissingFotos.h"
#include "flows/MvPagePreview.h"
#include "flows/MvPrintFindingList.h"
#include "flows/MvProjectFlow.h"
#include "pages/MvPageCanvas.h"

#include "MvProject/MvProject.h"
#include "MvProject/MvProjectFile.h"

using namespace Qt::StringLiterals;

/// A calendar is made, saved, closed, found again and exported.
class tst_StudioFileJourneys : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void savedAndFoundAgain();
    void closeQuestion_data();
    void closeQuestion();
    void exported_data();
    void exported();
    void exportChecked();
    void exportCancelled();
    void missingFotosAreFound();
    void fotosStayWithTheirCalendar();
    void damagedFileLeadsToItsBackup();
    void failedSavingLeadsElsewhere();
    void nextCalendarIsLikeTheLast_data();
    void nextCalendarIsLikeTheLast();
};

void tst_StudioFileJourneys::savedAndFoundAgain()
{
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(studio.dropOnDate({2027, 1, 1}, studio.writeFoto(u"foto.png"_s, Qt::green)));
    QVERIFY(studio.trigger("saveProjectAs"));
    QVERIFY(studio.chooseFile(path));
    QVERIFY(!studio.window()->isWindowModified());
    const MvCalendarDocument saved = studio.document();

    studio.restart();
    QVERIFY(!(studio.document() == saved));
    auto *recent = studio.window()->findChild<QMenu *>(u"recentMenu"_s);
    recent->popup({});
    QVERIFY(studio.chooseInMenu(recent, u"1 "_s));
    QTRY_COMPARE(studio.window()->windowTitle().startsWith(u"familie"_s), true);
    QVERIFY(studio.document() == saved);
    QVERIFY(!studio.window()->isWindowModified());
    studio.undo(); // what was before belongs to another session
    QVERIFY(studio.document() == saved);
}

void tst_StudioFileJourneys::closeQuestion_data()
{
    const MvRows<QString, bool, bool> row; // button, isClosed, isWritten
    row("save", u"saveButton"_s, true, true);
    row("discard", u"discardButton"_s, true, false);
    row("cancel", u"cancelButton"_s, false, false);
    row("escape", QString(), false, false);
}

void tst_StudioFileJourneys::closeQuestion()
{
    const auto [button, isClosed, isWritten] = MvRows<QString, bool, bool>::current();
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(studio.trigger("saveProjectAs"));
    QVERIFY(studio.chooseFile(path));
    QVERIFY(studio.openSection("contentPanel"));
    QVERIFY(studio.choose("orientation", u"Hochformat"_s));
    QVERIFY(studio.window()->isWindowModified());

    studio.window()->close();
    QVERIFY(studio.window()->isVisible());
    auto *question = MvStudioFixture::dialog<QMessageBox>("saveQuestion");
    QVERIFY(question);
    if (button.isEmpty())
        QTest::keyClick(question, Qt::Key_Escape);
    else
        QVERIFY(studio.click(question, button.toLatin1()));
    QTRY_COMPARE(studio.window()->isVisible(), !isClosed);
    MvProject read;
    QVERIFY(read.open(QFileInfo(path)));
    QCOMPARE(read.document() == studio.document(), isWritten);
}

void tst_StudioFileJourneys::exported_data()
{
    const MvRows<QString, QString, QStringList> row; // action, press, files
    row("pdf", u"exportPdf"_s, QString(), QStringList{u"Kalender.pdf"_s});
    row("print shop", u"exportPdf"_s, u"fogra39"_s, QStringList{u"Kalender.pdf"_s});
    row("png", u"exportPng"_s, QString(), QStringList{u"2027-02-02.png"_s, u"2027-05-05.png"_s, u"2027-06-06.png"_s});
}

void tst_StudioFileJourneys::exported()
{
    const auto [action, press, files] = MvRows<QString, QString, QStringList>::current();
    MvStudioFixture studio;
    MvCalendarPage page = studio.document().pages().at(1);
    page.setFotoFrame(MvFotoFrame(studio.path(u"fehlt.jpg"_s)));
    studio.project()->changePage(1, page, u"Foto"_s);
    QVERIFY(studio.trigger(action.toLatin1()));
    auto *dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(dialog);
    auto *bleed = MvStudioFixture::find<QDoubleSpinBox>(dialog, "exportBleed");
    QCOMPARE(bleed != nullptr, action == u"exportPdf"_s);
    if (bleed) {
        auto *inks = MvStudioFixture::find<QComboBox>(dialog, "exportPress");
        inks->setCurrentIndex(inks->findData(press));
        QCOMPARE(bleed->value(), press.isEmpty() ? 0.0 : 3.0); // which shops ask for
        bleed->setValue(3.0);
        auto *target = MvStudioFixture::find<QLineEdit>(dialog, "exportTarget");
        QVERIFY(target->text().startsWith(studio.path({})));
        target->setText(studio.path(u"Kalender"_s)); // the suffix comes by itself
    } else {
        MvStudioFixture::find<QSpinBox>(dialog, "exportDpi")->setValue(72);
        MvStudioFixture::find<QLineEdit>(dialog, "exportPattern")->setText(u"%y-%m-%n"_s);
        MvStudioFixture::find<QComboBox>(dialog, "exportPages")->setCurrentIndex(2);
        MvStudioFixture::find<QLineEdit>(dialog, "exportPageText")->setText(u"2, 5-6"_s);
    }
    QVERIFY(studio.click(dialog, "exportButton"));
    auto *missing = MvStudioFixture::dialog<QMessageBox>("missingPhotosQuestion");
    QVERIFY(missing && missing->informativeText().contains(u"fehlt.jpg"_s));
    QVERIFY(studio.click(missing, "exportAnywayButton"));
    QTRY_VERIFY_WITH_TIMEOUT(MvStudioFixture::dialog<QMessageBox>("informationMessage"), 60000);
    QVERIFY(!MvStudioFixture::dialog<QDialog>("progressDialog"));
    MvStudioFixture::dialog<QMessageBox>("informationMessage")->close();
    QCOMPARE(QDir(studio.path({})).entryList(QDir::Files, QDir::Name), files);
    const QString file = studio.path(files.first());
    if (!bleed) {
        QCOMPARE(QImage(file).size(), QSize(842, 595)); // A4 at 72 dpi
        return;
    }
    const QByteArray said = MvTestFiles::outputOf(u"pdfinfo"_s, {file});
    QCOMPARE(said.contains("PDF/X-4"), !press.isEmpty());
    // 303 mm x 216 mm in points; 317 mm x 238 mm with marks
    QVERIFY2(said.contains(press.isEmpty() ? "858.898 x 612.28" : "898.583 x 674.646"), said);
}

/// What would not print well stands in the dialog, is marked in its preview, and is gone to from there.
void tst_StudioFileJourneys::exportChecked()
{
    MvStudioFixture studio;
    MvCalendarPage page = studio.document().pages().at(1);
    page.setFotoFrame(MvFotoFrame(studio.path(u"fehlt.jpg"_s)));
    studio.project()->changePage(1, page, u"Foto"_s);
    QVERIFY(studio.trigger("exportPdf"));
    auto *dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(dialog);
    auto *list = MvStudioFixture::find<MvPrintFindingList>(dialog, "printFindings");
    auto *preview = MvStudioFixture::find<MvPagePreview>(dialog, "pagePreview");
    QTRY_COMPARE(list->findings().size(), 1);
    QCOMPARE(preview->page(), 0);
    list->setCurrentRow(-1);
    list->setCurrentRow(0);
    QCOMPARE(preview->page(), 1);
    auto *pages = MvStudioFixture::find<QComboBox>(dialog, "exportPages");
    pages->setCurrentIndex(1); // the shown one alone
    QCOMPARE(list->findings().size(), 0);
    QVERIFY(list->item(0)->text().contains(u"gut"));
    pages->setCurrentIndex(0);
    list->setCurrentRow(0);
    QVERIFY(studio.click(dialog, "exportGoTo"));
    QTRY_COMPARE(studio.window()->currentPage(), 1);
    QVERIFY(!MvStudioFixture::dialog<QDialog>("exportDialog"));

    // what was in sight is not asked about again
    QVERIFY(studio.trigger("exportPdf"));
    dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(studio.click(dialog, "exportButton"));
    QVERIFY(!MvStudioFixture::dialog<QMessageBox>("missingPhotosQuestion"));
    QTRY_VERIFY_WITH_TIMEOUT(MvStudioFixture::dialog<QMessageBox>("informationMessage"), 60000);
    auto *told = MvStudioFixture::dialog<QMessageBox>("informationMessage");
    QVERIFY(told->informativeText().contains(u"fehlt.jpg"_s));
    told->close();
}

void tst_StudioFileJourneys::exportCancelled()
{
    MvStudioFixture studio;
    QVERIFY(studio.trigger("exportPng"));
    auto *dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(dialog);
    QVERIFY(studio.click(dialog, "exportButton"));
    QPointer<QDialog> progress = MvStudioFixture::dialog<QDialog>("progressDialog");
    QVERIFY(progress);
    QTRY_COMPARE(MvStudioFixture::find<QProgressBar>(progress, "progressBar")->maximum(), 12);
    QTest::keyClick(progress, Qt::Key_Escape);
    QTRY_VERIFY_WITH_TIMEOUT(!progress, 60000);
    QVERIFY(!MvStudioFixture::dialog<QMessageBox>());
    const QStringList left = QDir(studio.path({})).entryList(QDir::Files);
    QVERIFY(left.size() < 12);
    for (const QString &file : left)
        QVERIFY2(!QImage(studio.path(file)).isNull(), qPrintable(file)); // complete or not there
    QVERIFY(studio.trigger("exportPdf"));                                // and again
    QVERIFY(MvStudioFixture::dialog<QDialog>("exportDialog"));
}

/// Moved to another folder, where another file has the same name; one is gone for good.
void tst_StudioFileJourneys::missingFotosAreFound()
{
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(QDir().mkpath(studio.path(u"alt/sommer"_s)) && QDir().mkpath(studio.path(u"neu/sommer"_s)) &&
            QDir().mkpath(studio.path(u"neu/winter"_s)));
    MvCalendarDocument document = studio.document();
    for (int number = 0; number < 3; ++number) {
        MvCalendarPage page = document.pages().at(number);
        page.setFotoFrame(MvFotoFrame(studio.writeFoto(u"alt/sommer/%1.png"_s.arg(number), Qt::green)));
        document.setPage(number, page);
    }
    studio.project()->change(document, u"Fotos"_s);
    QVERIFY(studio.project()->saveAs(QFileInfo(path)));
    for (const QString &name : {u"0.png"_s, u"1.png"_s})
        QVERIFY(QFile::copy(studio.path(u"alt/sommer/"_s + name), studio.path(u"neu/sommer/"_s + name.toUpper())));
    QVERIFY(QFile::copy(studio.path(u"alt/sommer/0.png"_s), studio.path(u"neu/winter/0.png"_s)));
    QVERIFY(QDir(studio.path(u"alt"_s)).removeRecursively());

    studio.window()->projectFlow()->open(path);
    QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>("missingPhotosMessage"));
    auto *message = MvStudioFixture::dialog<QMessageBox>("missingPhotosMessage");
    QVERIFY2(message->text().startsWith(u"3 "_s), qPrintable(message->text()));
    QVERIFY(studio.click(message, "searchPhotosButton"));
    QVERIFY(studio.chooseFile(studio.path(u"neu"_s)));
    QTRY_VERIFY(MvStudioFixture::dialog<QMessageBox>("informationMessage")); // one is not found
    MvStudioFixture::dialog<QMessageBox>("informationMessage")->close();
    const auto foto = [&](int page) { return studio.document().pages().at(page).fotoFrame().path(); };
    QCOMPARE(foto(0), studio.path(u"neu/sommer/0.PNG"_s)); // the folder says more than the case of letters
    QCOMPARE(foto(1), studio.path(u"neu/sommer/1.PNG"_s));
    QCOMPARE(foto(2), studio.path(u"alt/sommer/2.png"_s));
    studio.undo(); // one step
    QCOMPARE(foto(0), studio.path(u"alt/sommer/0.png"_s));
    QCOMPARE(foto(1), studio.path(u"alt/sommer/1.png"_s));
}

/// Another calendar is opened while a folder is searched for photos; it misses the same one.
void tst_StudioFileJourneys::fotosStayWithTheirCalendar()
{
    MvStudioFixture studio;
    MvCalendarDocument document = studio.document();
    MvCalendarPage page = document.pages().at(0);
    page.setFotoFrame(MvFotoFrame(studio.path(u"alt/0.png"_s)));
    document.setPage(0, page);
    QVERIFY(QDir().mkpath(studio.path(u"neu"_s)));
    studio.writeFoto(u"neu/0.png"_s, Qt::green, {3000, 2500}); // not decoded at once
    studio.project()->newProject(document);
    const auto ask = [&] {
        return studio.trigger("findPhotos") &&
               QTest::qWaitFor([] { return MvStudioFixture::dialog<QMessageBox>("missingPhotosMessage") != nullptr; });
    };
    QVERIFY(ask());
    QVERIFY(studio.click(MvStudioFixture::dialog<QMessageBox>("missingPhotosMessage"), "searchPhotosButton"));
    MvCalendarDocument other = document;
    other.setTitle(u"Anderer"_s);
    connect(
        studio.window()->findChild<MvMissingFotos *>(), &MvMissingFotos::message, this,
        [&] { studio.project()->newProject(other); }, Qt::SingleShotConnection);
    QVERIFY(studio.chooseFile(studio.path(u"neu"_s)));
    QCOMPARE(studio.document().title(), other.title());
    QVERIFY(ask()); // is told after the search has ended
    QVERIFY(studio.document() == other);
    QCOMPARE(studio.steps(), 0);
    MvStudioFixture::dialog<QMessageBox>("missingPhotosMessage")->reject();

    auto *reading = studio.window()->findChild<MvFotoFlow *>(); // nor those that are just being read
    QStringList told;
    connect(reading, &MvFotoFlow::message, this, [&](const QString &text) { told.append(text); });
    connect(studio.canvas(), &MvPageCanvas::message, this, [&](const QString &text) { told.append(text); });
    reading->add({studio.path(u"neu/0.png"_s)});
    studio.canvas()->setFoto(studio.path(u"neu/0.png"_s));
    page.setFotoFrame({});
    other.setPage(0, page);
    studio.project()->newProject(other);
    const QString own = studio.writeFoto(u"eigenes.png"_s, Qt::blue);
    studio.canvas()->setFoto(own); // comes after the other
    QTRY_COMPARE(studio.document().pages().constFirst().fotoFrame().path(), own);
    QTRY_VERIFY(!reading->isRunning());
    QTRY_COMPARE(told.count(), 3); // neither goes without a word
    QCOMPARE(told.filter(u"nicht mehr offen"_s).count(), 2);
    QCOMPARE(studio.steps(), 1);
    QVERIFY(studio.document().fotoPool().isEmpty());
}

void tst_StudioFileJourneys::damagedFileLeadsToItsBackup()
{
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(studio.project()->saveAs(QFileInfo(path)));
    const MvCalendarDocument before = studio.document(); // NOLINT(performance-unnecessary-copy-initialization)
    MvCalendarDocument changed = before;
    changed.setTitle(u"Anders"_s);
    studio.project()->change(changed, u"Titel"_s);
    QVERIFY(studio.project()->save());
    QFile file(path);
    QVERIFY(file.resize(file.size() / 2));
    studio.window()->projectFlow()->open(path);
    auto *message = MvStudioFixture::dialog<QMessageBox>("errorMessage");
    QVERIFY(message);
    QVERIFY(studio.click(message, "openBackupButton"));
    QVERIFY(studio.document() == before);
    QCOMPARE(studio.project()->fileInfo().absoluteFilePath(), path);
    QVERIFY(studio.trigger("saveProject")); // mends the file without a question
    MvProject read;
    QVERIFY(read.open(QFileInfo(path)));
    QVERIFY(read.document() == before);
}

void tst_StudioFileJourneys::failedSavingLeadsElsewhere()
{
    MvStudioFixture studio;
    QVERIFY(QDir().mkpath(studio.path(u"im Weg.mvcalendar"_s)));
    QVERIFY(studio.project()->saveAs(QFileInfo(studio.path(u"familie.mvcalendar"_s))));
    studio.window()->projectFlow()->saveAs();
    auto *files = MvStudioFixture::dialog<QFileDialog>();
    QVERIFY(files);
    Q_EMIT files->fileSelected(studio.path(u"im Weg.mvcalendar"_s));
    delete files;
    auto *message = MvStudioFixture::dialog<QMessageBox>("errorMessage");
    QVERIFY(message);
    QCOMPARE(message->informativeText().count(u"im Weg"_s), 1);
    QVERIFY(studio.click(message, "saveElsewhereButton"));
    const QString elsewhere = studio.path(u"anderswo.mvcalendar"_s);
    QVERIFY(studio.chooseFile(elsewhere));
    MvProject read;
    QVERIFY(read.open(QFileInfo(elsewhere)));
    QVERIFY(read.document() == studio.document());
    QCOMPARE(studio.project()->fileInfo().absoluteFilePath(), elsewhere);
}

void tst_StudioFileJourneys::nextCalendarIsLikeTheLast_data()
{
    const MvRows<bool> row; // isOpened
    row("saved", false);
    row("opened and closed", true);
}

void tst_StudioFileJourneys::nextCalendarIsLikeTheLast()
{
    const auto [isOpened] = MvRows<bool>::current();
    MvStudioFixture studio;
    MvCalendarDocument document = studio.document();
    MvPageFormat format = MvPageFormat::fromName(u"A3"_s);
    format.setBleed(30);
    document.setFormat(format);
    document.setHolidayConfig({MvLocale(u"de_CH"_s), u"ZG"_s, document.holidayConfig().features()});
    const QFileInfo file(studio.path(u"familie.mvcalendar"_s));
    if (isOpened) {
        QCOMPARE(MvProjectFile::write(document, file).error, QString());
        studio.window()->projectFlow()->open(file.filePath());
        QVERIFY(studio.window()->close());
    } else {
        studio.project()->change(document, u"Papier"_s);
        QVERIFY(studio.project()->saveAs(file));
    }
    studio.restart();
    const MvCalendarDocument next = MvProjectFlow::firstDocument();
    QVERIFY(next.format() == format);
    QCOMPARE(next.holidayConfig().language(), MvLocale(u"de_CH"_s));
    QCOMPARE(next.holidayConfig().province(), u"ZG"_s);
    QSettings(QSettings::IniFormat, QSettings::UserScope, u"mvcalendar"_s, u"mvcalendar-studio"_s)
        .remove(u"calendar"_s);
}

MV_WIDGET_TEST_MAIN(tst_StudioFileJourneys)
#include "tst_StudioFileJourneys.moc"
