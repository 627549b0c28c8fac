#include "MvStudioFixture.h"

#include "MvProject/MvProject.h"

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
    void exportCancelled();
};

void tst_StudioFileJourneys::savedAndFoundAgain()
{
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(studio.dropOnDate({2027, 1, 1}, studio.writePhoto(u"foto.png"_s, Qt::green), Qt::ShiftModifier));
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
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("save") << u"saveButton"_s << true << true;
    QTest::newRow("discard") << u"discardButton"_s << true << false;
    QTest::newRow("cancel") << u"cancelButton"_s << false << false;
    QTest::newRow("escape") << QString() << false << false;
}

void tst_StudioFileJourneys::closeQuestion()
{
    QFETCH(QString, button);
    QFETCH(bool, isClosed);
    QFETCH(bool, isWritten);
    MvStudioFixture studio;
    const QString path = studio.path(u"familie.mvcalendar"_s);
    QVERIFY(studio.trigger("saveProjectAs"));
    QVERIFY(studio.chooseFile(path));
    QVERIFY(studio.raiseDock("contentPanelDock"));
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
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QStringList>("files");
    QTest::newRow("pdf") << u"exportPdf"_s << u"Alle"_s << QStringList{u"Familie 2027.pdf"_s};
    QTest::newRow("png") << u"exportPng"_s << u"Gezeigte"_s << QStringList{u"Familie 2027-02.png"_s};
}

void tst_StudioFileJourneys::exported()
{
    QFETCH(QString, action);
    QFETCH(QString, pages);
    QFETCH(QStringList, files);
    MvStudioFixture studio;
    QVERIFY(studio.trigger("nextPage"));
    QVERIFY(studio.trigger(action.toLatin1()));
    auto *dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(dialog);
    if (auto *resolution = MvStudioFixture::find<QSpinBox>(dialog, "exportDpi"))
        resolution->setValue(72);
    auto *box = MvStudioFixture::find<QComboBox>(dialog, "exportPages");
    box->setCurrentIndex(box->findText(pages, Qt::MatchStartsWith));
    QVERIFY(studio.click(dialog, "exportButton"));
    QTRY_VERIFY_WITH_TIMEOUT(MvStudioFixture::dialog<QMessageBox>("informationMessage"), 60000);
    QVERIFY(!MvStudioFixture::dialog<QDialog>("progressDialog"));
    MvStudioFixture::dialog<QMessageBox>("informationMessage")->close();
    QCOMPARE(QDir(studio.path({})).entryList(QDir::Files), files);
    const QFileInfo file(studio.path(files.first()));
    QVERIFY(file.size() > 1000);
    if (action == u"exportPng"_s)
        QCOMPARE(QImage(file.filePath()).size(), QSize(842, 595)); // A4 at 72 dpi
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
    QCOMPARE(MvStudioFixture::find<QProgressBar>(progress, "progressBar")->maximum() >= 0, true);
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

MV_WIDGET_TEST_MAIN(tst_StudioFileJourneys)
#include "tst_StudioFileJourneys.moc"
