// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvStudioFixture.h"

#include "common/MvStudioSettings.h"
#include "pages/MvFotoHandle.h"
#include "pages/MvPageCanvas.h"
#include "pages/MvPageItem.h"
#include "pages/MvPageSelection.h"
#include "panels/MvThemeChooser.h"
#include "start/MvStartDropZone.h"
#include "tray/MvFotoTray.h"
#include "tray/MvFotoTrayModel.h"

#include "MvExifFixture.h"
#include "MvProject/MvProject.h"
#include "MvTestFiles.h"
#include "MvWidgetDriver.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int drawnFotos = 33;
constexpr int telephoneFotos[] = {1, 2, 3, 6, 8}; // of these there is another one, of a telephone
constexpr int goodFotos = drawnFotos + int(std::size(telephoneFotos));
constexpr int brokenFotos = 2;

/// As cameras write it: taken at noon of a day, and held in one of eight ways.
bool writeJpeg(const QString &path, const QSize &size, const QColor &color, int orientation, const QDate &day)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    return image.save(&buffer, "JPG", 80) &&
           MvTestFiles::write(
               path,
               MvExifFixture::inJpeg(
                   jpeg, MvExifFixture::block(orientation, day.toString(u"yyyy:MM:dd"_s).toLatin1() + " 12:00:00")));
}

/// One of a telephone, from a JPEG; where this computer cannot encode it, one of the tests' own.
bool writeHeic(const QString &path, const QString &jpeg, int number)
{
    const QString program = QStandardPaths::findExecutable(u"heif-enc"_s);
    if (!program.isEmpty() && QProcess::execute(program, {u"-q"_s, u"40"_s, u"-o"_s, path, jpeg}) == 0 &&
        QFileInfo(path).size() > 0)
        return true;
    QFile::remove(path);
    return QFile::copy(QStringLiteral(MV_TEST_DATA "/fotos/") + (number % 2 ? u"p3.heic"_s : u"turned.heic"_s), path);
}

/// A folder of photos of all shapes, 0.3 to 24 megapixels, held in all ways, taken over a year, in a folder below, too;
/// and some files that are none.
bool fillFolder(const QString &folder)
{
    const QSize sizes[] = {{640, 480}, {480, 640}, {900, 900}, {1600, 500}, {3000, 2000}, {2000, 3000}};
    bool isWritten = QDir().mkpath(folder + u"/unten"_s);
    for (int number = 0; number < drawnFotos; ++number) {
        const QSize size = number == 7 ? QSize(6000, 4000) : sizes[number % std::size(sizes)];
        const QString name =
            u"%1/IMG_%2.jpg"_s.arg(number % 5 ? folder : folder + u"/unten"_s).arg(number, 4, 10, QChar(u'0'));
        isWritten = isWritten && writeJpeg(name, size, QColor::fromHsv(number * 9, 120, 200), number % 8 + 1,
                                           QDate(2027, 1, 4).addDays(number * 9LL));
    }
    for (const int number : telephoneFotos)
        isWritten = isWritten && writeHeic(u"%1/IMG_%2.heic"_s.arg(folder).arg(number),
                                           u"%1/IMG_%2.jpg"_s.arg(folder).arg(number, 4, 10, QChar(u'0')), number);
    for (int number = 0; number < brokenFotos; ++number) // what they hold is far too little for their size
        isWritten = isWritten && MvWidgetDriver::writeHugeFoto(u"%1/kaputt%2.webp"_s.arg(folder).arg(number));
    return isWritten;
}

} // namespace

/// From a folder of photos to the finished file, with the hands that a person has: every click and drag is counted.
class tst_StudioPictureJourney : public MvWidgetTest
{
    Q_OBJECT

private Q_SLOTS:
    void fromFolderToPdf();
    void trayMarksWhatIsUsed();
    void pagesComeAndGo();

private:
    static constexpr int mostHands = 12;

    void click(QWidget *widget, const QPoint &position)
    {
        ++m_hands;
        QTest::mouseClick(widget, Qt::LeftButton, {}, position);
        QCoreApplication::processEvents();
    }
    void click(QWidget *widget) { click(widget, widget->rect().center()); }
    void dragOnPage(const MvStudioFixture &studio, const QPointF &from, const QPointF &to);
    static QList<int> filledFrames(const MvCalendarDocument &document, int page);

    int m_hands = 0;
};

void tst_StudioPictureJourney::dragOnPage(const MvStudioFixture &studio, const QPointF &from, const QPointF &to)
{
    ++m_hands;
    QWidget *viewport = studio.canvas()->viewport();
    const auto inView = [&studio](const QPointF &point) {
        return studio.canvas()->mapFromScene(studio.page()->mapToScene(point));
    };
    const QPoint start = inView(from);
    const QPoint end = inView(to);
    QTest::mouseMove(viewport, start);
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    for (const QPoint &point : {(start + end) / 2, end}) {
        QMouseEvent move(QEvent::MouseMove, point, viewport->mapToGlobal(point), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, end);
    QCoreApplication::processEvents();
}

QList<int> tst_StudioPictureJourney::filledFrames(const MvCalendarDocument &document, int page)
{
    QList<int> frames;
    for (const MvCalendarDocument::FrameId &frame : document.frames())
        if (frame.page == page && !document.foto(frame).isEmpty())
            frames.append(frame.element);
    return frames;
}

void tst_StudioPictureJourney::fromFolderToPdf()
{
    m_hands = 0;
    MvStudioFixture studio;
    MvStudioSettings::setWelcomeShown(true);
    studio.start();
    studio.window()->resize(1280, 900);
    const QString folder = studio.path(u"Fotos"_s);
    QVERIFY(fillFolder(folder));

    // what it is to look like, then the folder
    auto *themes = studio.find<MvThemeChooser>("startThemes");
    QVERIFY(themes && themes->count() >= 12);
    int row = 0;
    while (row < themes->count() && themes->idOf(row).compare(u"ALBUM"_s, Qt::CaseInsensitive) != 0)
        ++row;
    QVERIFY(row < themes->count());
    studio.find<QScrollArea>("startPage")->ensureWidgetVisible(themes);
    QCoreApplication::processEvents();
    click(themes->viewport(), themes->visualItemRect(themes->item(row)).center());
    auto *zone = studio.find<MvStartDropZone>("startDropZone");
    studio.find<QScrollArea>("startPage")->ensureWidgetVisible(zone);
    QCoreApplication::processEvents();
    ++m_hands;
    QVERIFY(MvStudioFixture::dropFile(studio.window(), zone->mapTo(studio.window(), QPoint(20, 20)), folder));
    QVERIFY(!studio.window()->isStartShown());
    QTRY_VERIFY_WITH_TIMEOUT(MvStudioFixture::dialog<QMessageBox>("informationMessage"), 60000);
    auto *told = MvStudioFixture::dialog<QMessageBox>("informationMessage");
    QVERIFY2(told->text().contains(QString::number(goodFotos)), qPrintable(told->text()));
    QVERIFY2(told->informativeText().contains(u"kaputt0.webp"_s), qPrintable(told->informativeText()));
    click(told->button(QMessageBox::Ok));
    QCOMPARE(studio.document().fotoPool().size(), goodFotos);
    QCOMPARE(studio.document().themeId(), themes->idOf(row));
    const QHash<QString, int> uses = studio.document().fotoUses();
    QVERIFY(uses.size() >= 12);

    // two photos of a page change places
    int page = 0;
    while (page < studio.document().pages().size() &&
           !(studio.document().isMonthPage(page) && filledFrames(studio.document(), page).size() > 1))
        ++page;
    QVERIFY(page < studio.document().pages().size());
    auto *strip = studio.window()->findChild<QListView *>(u"pageStrip"_s);
    strip->scrollTo(strip->model()->index(page, 0));
    click(strip->viewport(), strip->visualRect(strip->model()->index(page, 0)).center());
    QCOMPARE(studio.window()->currentPage(), page);
    const QList<int> frames = filledFrames(studio.document(), page);
    const MvCalendarDocument before = studio.document();
    const auto centre = [&studio](int element) { return studio.page()->elements().at(element).rect().center(); };
    dragOnPage(studio, centre(frames.at(0)), centre(frames.at(1)));
    QCOMPARE(studio.document().foto({page, frames.at(0)}).path(), before.foto({page, frames.at(1)}).path());
    QCOMPARE(studio.document().foto({page, frames.at(1)}).path(), before.foto({page, frames.at(0)}).path());

    // one comes nearer, and gets a caption; it is chosen since it was dragged
    QCOMPARE(studio.canvas()->selection()->element(), frames.at(1));
    auto *zoom = studio.find<QSlider>("photoZoomSlider");
    QVERIFY(zoom);
    click(zoom, {zoom->width() / 2, zoom->height() / 2});
    QVERIFY(studio.document().foto({page, frames.at(1)}).zoom() > 1.0);
    auto *caption = studio.find<QLineEdit>("photoCaption");
    click(caption);
    QTest::keyClicks(caption, u"Am See"_s);
    QCOMPARE(studio.document().foto({page, frames.at(1)}).caption(), u"Am See"_s);

    // to the print shop
    click(studio.find<QToolButton>("exportButton"), {5, 5});
    auto *dialog = MvStudioFixture::dialog<QDialog>("exportDialog");
    QVERIFY(dialog);
    click(MvStudioFixture::find<QPushButton>(dialog, "exportButton"));
    if (auto *question = MvStudioFixture::dialog<QMessageBox>("missingPhotosQuestion"))
        click(question->findChild<QPushButton *>(u"exportAnywayButton"_s));
    QTRY_VERIFY_WITH_TIMEOUT(MvStudioFixture::dialog<QMessageBox>("informationMessage"), 120000);
    MvStudioFixture::dialog<QMessageBox>("informationMessage")->close();
    const QStringList files = QDir(studio.path({})).entryList({u"*.pdf"_s});
    QCOMPARE(files.size(), 1);
    QVERIFY(QFileInfo(studio.path(files.constFirst())).size() > 10'000);
    QVERIFY2(m_hands <= mostHands, qPrintable(QString::number(m_hands)));
}

void tst_StudioPictureJourney::trayMarksWhatIsUsed()
{
    MvStudioFixture studio;
    const QString used = studio.writeFoto(u"drin.png"_s, Qt::green);
    const QString spare = studio.writeFoto(u"frei.png"_s, Qt::red);
    auto *tray = studio.find<MvFotoTray>("photoTray");
    QVERIFY(tray);
    QVERIFY(MvStudioFixture::dropFile(studio.window(), tray->mapTo(studio.window(), QPoint(5, 5)), used));
    QTRY_COMPARE(studio.document().fotoPool().size(), 1);
    QVERIFY(MvStudioFixture::dropFile(studio.window(), tray->mapTo(studio.window(), QPoint(5, 5)), spare));
    QTRY_COMPARE(studio.document().fotoPool().size(), 2);
    Q_EMIT tray->fotoActivated(used);
    QTRY_COMPARE(studio.document().pages().at(0).fotoFrame().path(), used);
    const QAbstractItemModel *model = tray->view()->model();
    const auto uses = [model](const QString &path) {
        return model->match(model->index(0, 0), MvFotoTrayModel::PathRole, path)
            .value(0)
            .data(MvFotoTrayModel::UsesRole)
            .toInt();
    };
    QCOMPARE(uses(used), 1);
    QCOMPARE(uses(spare), 0);
    tray->view()->selectAll(); // what is on a page stays
    QTest::keyClick(tray->view(), Qt::Key_Delete);
    QCOMPARE(studio.document().fotoPool().paths(), QStringList{used});
    studio.undo();
    QCOMPARE(studio.document().fotoPool().size(), 2);
}

void tst_StudioPictureJourney::pagesComeAndGo()
{
    const MvStudioFixture studio;
    const auto kinds = [&studio] {
        QList<MvPageKind> all;
        for (const MvCalendarPage &page : studio.document().pages())
            all.append(page.kind());
        return all;
    };
    QVERIFY(!studio.window()->findChild<QAction *>(u"removePage"_s)->isEnabled()); // of a month
    QVERIFY(studio.trigger("addCover"));
    QCOMPARE(kinds().constFirst(), MvPageKind::Cover);
    QCOMPARE(studio.window()->currentPage(), 0);
    QVERIFY(studio.trigger("addBack"));
    QCOMPARE(kinds().constLast(), MvPageKind::Back);
    studio.window()->setCurrentPage(3);
    QVERIFY(studio.trigger("addPage"));
    QCOMPARE(kinds().at(4), MvPageKind::Free);
    QVERIFY(studio.trigger("movePageDown"));
    QCOMPARE(kinds().at(5), MvPageKind::Free);
    QCOMPARE(studio.window()->currentPage(), 5);
    QVERIFY(studio.trigger("duplicatePage"));
    QCOMPARE(kinds().count(MvPageKind::Free), 2);
    QVERIFY(studio.trigger("removePage"));
    QCOMPARE(kinds().count(MvPageKind::Free), 1);
    while (studio.steps() > 0)
        studio.undo();
    QCOMPARE(kinds(), QList<MvPageKind>(12, MvPageKind::Month));
}

MV_WIDGET_TEST_MAIN(tst_StudioPictureJourney)
#include "tst_StudioPictureJourney.moc"
