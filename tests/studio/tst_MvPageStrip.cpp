// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvProjectFixture.h"
#include "pages/MvPageStrip.h"

#include "MvCalendar/MvCalendarEvent.h"
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCore/MvUndoController.h"
#include "MvProject/MvProject.h"
#include "MvWidgetDriver.h"
#include "MvWidgetTest.h"

using namespace Qt::StringLiterals;

/// The strip of pages: thumbnails that arrive and follow, and the way to a page.
class tst_MvPageStrip : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thumbnailsArriveAndFollow();
    void choosesPages();
    void fotoOnAThumbnail();

private:
    static bool show(MvPageStrip &strip);
};

void tst_MvPageStrip::init()
{
    MvWidgetTest::failOnWarnings();
    MvCalendarEventRegistry::instance().setEvents({});
    MvUndoController::instance().clear();
}

bool tst_MvPageStrip::show(MvPageStrip &strip)
{
    strip.resize(180, 500);
    strip.show();
    return QTest::qWaitForWindowExposed(&strip);
}

void tst_MvPageStrip::thumbnailsArriveAndFollow()
{
    MvProject project;
    project.newProject(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 24));
    MvPageStrip strip(&project);
    QCOMPARE(strip.model()->rowCount(), 24);
    QVERIFY(!strip.isComplete()); // nothing is made before it is seen
    QVERIFY(show(strip));
    strip.setCurrentPage(20);
    QTRY_VERIFY(!strip.thumbnail(20).isNull());
    QVERIFY(strip.thumbnail(10).isNull()); // the shown ones come first
    QTRY_VERIFY(strip.isComplete());
    QCOMPARE(strip.model()->index(20, 0).data().toString(), u"September 2028"_s);

    // another look of one page
    const QImage first = strip.thumbnail(0);
    const QImage second = strip.thumbnail(1);
    MvCalendarPage page = project.document().pages().at(1);
    page.setAppearance(MvProjectFixture::appearance(u"FAMILY_PLANNER"_s));
    project.changePage(1, page, u"Layout"_s);
    QCOMPARE(strip.thumbnail(1), second); // the old one stays until the new one is there
    QTRY_VERIFY(strip.thumbnail(1) != second);
    QCOMPARE(strip.thumbnail(0), first);

    // an entry on its day
    QTRY_VERIFY(strip.isComplete());
    const MvCalendarEvent entry = MvEntries::entry(u"Erika"_s, {2027, 1, 12});
    QVERIFY(MvCalendarEventRegistry::instance().changeEvent({}, entry));
    QTRY_VERIFY(strip.isComplete());
    QVERIFY(strip.thumbnail(0) != first);

    // fewer pages
    MvCalendarDocument document = project.document();
    document.setRange({QDate(2027, 1, 1), QDate(2027, 3, 31)});
    project.change(document, u"Monate"_s);
    QCOMPARE(strip.model()->rowCount(), 3);
    QCOMPARE(strip.currentPage(), 2);
}

void tst_MvPageStrip::choosesPages()
{
    MvProject project;
    project.newProject(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 12));
    MvPageStrip strip(&project);
    QVERIFY(show(strip));
    QSignalSpy activated(&strip, &MvPageStrip::pageActivated);
    strip.setCurrentPage(1);
    QCOMPARE(activated.size(), 0); // told by the program, not by the user
    QTest::mouseClick(strip.viewport(), Qt::LeftButton, {}, strip.visualRect(strip.model()->index(2, 0)).center());
    QCOMPARE(activated.takeFirst().value(0).toInt(), 2);
    QTest::keyClick(&strip, Qt::Key_Down);
    QCOMPARE(activated.takeFirst().value(0).toInt(), 3);
    MvCalendarDocument document = project.document();
    document.setRange({QDate(2028, 1, 1), QDate(2028, 12, 31)});
    project.change(document, u"Beginn"_s);
    QCOMPARE(strip.currentPage(), 3);
    QCOMPARE(activated.size(), 0);
    QCOMPARE(strip.currentIndex().data().toString(), u"April 2028"_s);
}

void tst_MvPageStrip::fotoOnAThumbnail()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"foto.png"_s);
    QVERIFY(MvProjectFixture::writeFoto(path, {300, 200}));
    MvProject project;
    project.newProject(MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 12));
    MvPageStrip strip(&project);
    QVERIFY(show(strip));
    QTRY_VERIFY(strip.isComplete());
    const QImage before = strip.thumbnail(1);
    const QPoint position = strip.visualRect(strip.model()->index(1, 0)).center();
    MvWidgetDriver::Drag drag(strip.viewport(), {path});
    QVERIFY(drag.isTaken(position) && drag.drop(position));
    QCOMPARE(project.document().pages().at(1).fotoFrame().path(), path);
    // decoded in the background, then seen: red at its upper left
    QTRY_COMPARE(strip.thumbnail(1).pixelColor(6, 6), QColor(Qt::red));
    QVERIFY(strip.thumbnail(1) != before);
}

MV_WIDGET_TEST_MAIN(tst_MvPageStrip)
#include "tst_MvPageStrip.moc"
