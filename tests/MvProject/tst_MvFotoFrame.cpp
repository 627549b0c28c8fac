// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvEntries.h"
#include "MvFolderTest.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPrintedFoto.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

#include <QPainter>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;

using Item = MvPaintRecording::Item;
using Placement = MvFotoFrame::Placement;
Q_DECLARE_METATYPE(Placement)

class tst_MvFotoFrame : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void clampsItsValues();
    void sharesThePage_data();
    void sharesThePage();
    void missing();
    void resolution_data();
    void resolution();
    void resolutionInCells();

private:
    static QList<Item> itemsOf(const MvCalendarPage &page, const MvPageFormat &format, unsigned rule);

    QString m_foto;
};

void tst_MvFotoFrame::initTestCase()
{
    m_foto = path(u"foto.png"_s);
    QVERIFY(writeFoto(m_foto, {300, 200}));
}

void tst_MvFotoFrame::clampsItsValues()
{
    MvFotoFrame frame(u"a.jpg"_s);
    QVERIFY(QDir::isAbsolutePath(frame.path()));
    frame.setShare(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(frame.share(), MvFotoFrame::defaultShare);
    frame.setShare(2.0);
    QCOMPARE(frame.share(), 0.75);
}

void tst_MvFotoFrame::sharesThePage_data()
{
    const MvRows<Placement, QRectF> row; // placement; foto: on A5 landscape (2100 x 1480) with 3 mm bleed
    row("top", Placement::Top, QRectF(-30, -30, 2160, 30 + 740));
    row("left", Placement::Left, QRectF(-30, -30, 30 + 1050, 1540));
    row("right", Placement::Right, QRectF(1050, -30, 1050 + 30, 1540));
}

void tst_MvFotoFrame::sharesThePage()
{
    const auto [placement, foto] = MvRows<Placement, QRectF>::current();
    MvCalendarDocument calendar = document(u"MONTH_GRID_COMPACT"_s, 1);
    MvFotoFrame frame(m_foto, placement);
    frame.setShare(0.5);
    setFoto(calendar, 0, frame);
    const MvPageFormat format = calendar.format();
    QCOMPARE(frame.rect(format), foto);
    const MvCalendarPage page = calendar.pages()[0];
    const QRectF room = page.calendariumRect(format);
    QVERIFY(!room.intersects(foto.adjusted(-50, -50, 50, 50)));
    QVERIFY(format.trimRect().adjusted(50, 50, -50, -50).contains(room));
    if (placement != Placement::Top)
        QCOMPARE(room.top(), 120.0); // the binding

    const QList<Item> items = itemsOf(page, format, MvRenderingRule::Print);
    int images = 0;
    int texts = 0;
    for (const Item &item : items) {
        if (item.kind == Item::Image) {
            ++images;
            QVERIFY(item.bounds.adjusted(-0.01, -0.01, 0.01, 0.01).contains(foto));
            QVERIFY(item.clip.intersected(item.bounds).adjusted(-0.01, -0.01, 0.01, 0.01).contains(foto));
            QVERIFY(foto.adjusted(-0.01, -0.01, 0.01, 0.01).contains(item.clip));
        } else if (item.kind == Item::Text) {
            ++texts;
            QVERIFY2(room.adjusted(-1, -1, 1, 1).contains(item.bounds), qPrintable(item.text));
        }
    }
    QCOMPARE(images, 1);
    QVERIFY(texts > 31);
}

void tst_MvFotoFrame::missing()
{
    for (const QByteArray &content : QByteArrayList{"no file", "Liebe Oma,", "\x89PNG\r\n\x1a\n...."}) {
        const QString foto = path(u"weg %1.jpg"_s.arg(content.size()));
        if (content != "no file")
            put(foto, content);
        MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 3);
        setFoto(calendar, 0, MvFotoFrame(foto));
        setFoto(calendar, 1, MvFotoFrame(m_foto));
        setFoto(calendar, 2, MvFotoFrame(foto));
        QCOMPARE(calendar.missingFotos(), QStringList{foto});

        const MvCalendarPage page = calendar.pages()[0];
        const QRectF frame = page.fotoFrame().rect(calendar.format());
        const auto isInFrame = [&frame](const Item &item) {
            return frame.contains(item.bounds) && item.bounds.height() > 0.0;
        };
        const auto inFrame = [&](unsigned rule) {
            QStringList kinds;
            for (const Item &item : itemsOf(page, calendar.format(), rule)) {
                if (isInFrame(item))
                    kinds.append(item.kind == Item::Text ? item.text : item.fill.name());
            }
            return kinds;
        };
        QCOMPARE(inFrame(MvRenderingRule::Print), QStringList());
        QCOMPARE(inFrame(MvRenderingRule::Thumbnail).size(), 1);
        const QStringList onScreen = inFrame(MvRenderingRule::InteractiveScreen);
        QCOMPARE(onScreen.size(), 3);
        QCOMPARE(onScreen.last(), QFileInfo(foto).fileName());
    }
}

void tst_MvFotoFrame::resolution_data()
{
    // expected: pixels per inch of a photo of 1600 x 1200 at the left
    const MvRows<QString, double, double, bool> row;
    // the frame with its bleed of 3 mm: heights 154, 216 and 303 mm; only a wide frame shows the photo's whole width
    row("A5", u"A5"_s, 0.5, 1200 / 154.0 * 25.4, false);
    row("A4", u"A4"_s, 0.5, 1200 / 216.0 * 25.4, true);
    row("A3, cropped above and below", u"A3"_s, 0.75, 1200 / 303.0 * 25.4, true);
}

void tst_MvFotoFrame::resolution()
{
    const auto [paper, share, expected, isMarked] = MvRows<QString, double, double, bool>::current();
    const QString large = path(u"gross.png"_s);
    QVERIFY(QImage(1600, 1200, QImage::Format_RGB32).save(large));
    MvPageFormat format = MvPageFormat::fromName(paper);
    format.setOrientation(MvPageFormat::Orientation::Landscape);
    format.setBleed(30.0);
    MvFotoFrame frame(large, Placement::Left);
    frame.setShare(share);
    MvCalendarPage page = document(u"MONTH_GRID_CLASSIC"_s, 1).pages()[0];
    page.setFotoFrame(frame);

    const QList<MvPrintedFoto> fotos = MvPrintedFoto::ofPage(page, format, {});
    QCOMPARE(fotos.size(), 1);
    QVERIFY2(std::abs(fotos[0].pixelsPerInch - expected) < 0.5, qPrintable(QString::number(fotos[0].pixelsPerInch)));
    QCOMPARE(fotos[0].grade() == MvFotoResolution::Grade::Poor, isMarked);
    const auto images = [&](unsigned rule) {
        const QList<Item> items = itemsOf(page, format, rule);
        return std::count_if(items.begin(), items.end(), [](const Item &item) { return item.kind == Item::Image; });
    };
    QCOMPARE(images(MvRenderingRule::Print), 1);
    QCOMPARE(images(MvRenderingRule::InteractiveScreen | MvRenderingRule::ShowQualityWarnings), isMarked ? 2 : 1);
}

void tst_MvFotoFrame::resolutionInCells()
{
    const QString small = path(u"klein.png"_s);
    QVERIFY(writeFoto(small, {90, 60}));
    const auto entry = [](const QDate &date, const QString &foto) {
        return MvEntries::entry(u"Oma"_s, date, MvFoto(QFileInfo(foto)));
    };
    MvCalendarEventRegistry &registry = MvCalendarEventRegistry::instance();
    registry.setEvents({entry({1960, 1, 20}, m_foto), entry({1962, 1, 6}, small)});
    const auto end = qScopeGuard([&registry] { registry.setEvents({}); });
    const MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 2);
    const QList<MvPrintedFoto> fotos = MvPrintedFoto::ofPage(calendar.pages()[0], calendar.format(), calendar.range());
    QCOMPARE(fotos.size(), 2);
    for (const auto &[foto, day, width] : {std::tuple(fotos[0], 6, 90), std::tuple(fotos[1], 20, 300)}) {
        QCOMPARE(foto.date, QDate(2027, 1, day));
        QVERIFY(std::abs(foto.rect.width() / foto.rect.height() - 1.5) < 0.05);
        QVERIFY(std::abs(foto.pixelsPerInch - width / foto.rect.width() * 254.0) < 3.0);
        QCOMPARE(foto.grade() == MvFotoResolution::Grade::Poor, day == 6);
    }
    QCOMPARE(MvPrintedFoto::ofPage(calendar.pages()[1], calendar.format(), calendar.range()).size(), 0);
    for (const auto &[rule, images] : {std::pair(unsigned(MvRenderingRule::InteractiveScreen), 2),
                                       std::pair(unsigned(MvRenderingRule::ShowQualityWarnings), 3)})
        QCOMPARE(calendar.pages()[0]
                     .record(calendar.format(), calendar.range(), {}, MvRenderingRule(rule))
                     .items(Item::Image)
                     .size(),
                 images);
}

QList<Item> tst_MvFotoFrame::itemsOf(const MvCalendarPage &page, const MvPageFormat &format, unsigned rule)
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    MvRenderingRule(rule).encodeInto(painter);
    page.paint(painter, format, MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    painter.end();
    return recorder.recording().items();
}

MV_TEST_MAIN(tst_MvFotoFrame)
#include "tst_MvFotoFrame.moc"
