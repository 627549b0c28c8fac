// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvProject/MvFotoAim.h"
#include "MvProject/MvFotoDistribution.h"
#include "MvProject/MvThemeApplication.h"

using namespace Qt::StringLiterals;

/// What is worth seeing of a photo stands where nothing covers it, in each frame that the photo comes into.
class tst_MvFotoAim : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsWhatMatters_data();
    void showsWhatMatters();
    void leavesOutWhatMattersLess();
    void followsItsFrame();
    void interestSurvivesFiles_data();
    void interestSurvivesFiles();
};

namespace {

/// A face in parts of the photo.
MvFotoPoolItem photoWith(const QRectF &face, const QSize &size)
{
    return {u"/fotos/a.jpg"_s, size, {}, face.center(), MvFotoInterest({{face, 3.0}})};
}

MvPageElement words(const QRectF &rect)
{
    return {rect, MvTextElement(u"Sommer"_s)};
}

/// Where a part of the photo stands on the page.
QRectF onPage(const MvPageElement &frame, const QRectF &part, const QSize &size)
{
    const QRectF pixels(part.x() * size.width(), part.y() * size.height(), part.width() * size.width(),
                        part.height() * size.height());
    return frame.foto()->transform(size, frame.rect().size()).mapRect(pixels).translated(frame.rect().topLeft());
}

QRectF facesOf(const MvCalendarDocument &document, int page, const QRectF &face, const QSize &size)
{
    for (const MvPageElement &element : document.pages().at(page).elementsOn(document.format())) {
        if (element.foto() && !element.foto()->isEmpty())
            return onPage(element, face, size);
    }
    return {};
}

const QSize wide(3000, 2000);
const QSize upright(2000, 3000);

} // namespace

void tst_MvFotoAim::showsWhatMatters_data()
{
    // frame: on A5 landscape, 2100 by 1480; seen: where the face is to be
    const MvRows<QSize, QRectF, QRectF, QList<MvPageElement>, QRectF> row;
    using Elements = QList<MvPageElement>;
    const QRectF page(-30, -30, 2160, 1540);
    row("a strip at the foot", upright, QRectF(0.4, 0.55, 0.15, 0.2), page, Elements{words({100, 1080, 1900, 300})},
        QRectF(0, 0, 2100, 1080));
    row("a month at the foot", upright, QRectF(0.4, 0.6, 0.3, 0.15), page,
        Elements{{{60, 980, 1980, 440}, MvCalendariumElement()}}, QRectF(0, 0, 2100, 980));
    row("a list at the right", wide, QRectF(0.45, 0.3, 0.14, 0.25), page, Elements{words({1300, 60, 740, 1360})},
        QRectF(0, 0, 1300, 1480));
    row("a month in a corner", wide, QRectF(0.2, 0.6, 0.15, 0.2), QRectF(0, 0, 2100, 1100),
        Elements{words({1050, 600, 1000, 480})}, QRectF(0, 0, 2100, 1100));
    row("a photo above it", wide, QRectF(0.1, 0.5, 0.1, 0.2), QRectF(0, 0, 2100, 900),
        Elements{{{0, 500, 800, 400}, MvFotoElement(u"/b.jpg"_s)}}, QRectF(0, 0, 2100, 900));
    row("nothing above, narrow", wide, QRectF(0.7, 0.2, 0.15, 0.3), QRectF(0, 0, 500, 1400), Elements{},
        QRectF(0, 0, 500, 1400));
    row("nothing above, wide", upright, QRectF(0.3, 0.1, 0.3, 0.12), QRectF(0, 0, 2100, 800), Elements{},
        QRectF(0, 0, 2100, 800));
}

void tst_MvFotoAim::showsWhatMatters()
{
    const auto [size, face, frame, above, seen] =
        MvRows<QSize, QRectF, QRectF, QList<MvPageElement>, QRectF>::current();
    const MvCalendarDocument document = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 1);
    const MvFotoPoolItem photo = photoWith(face, size);
    for (const double zoom : {1.0, 1.5}) {
        MvFotoElement foto(photo.path);
        foto.setZoom(zoom);
        MvCalendarPage page = document.pages().constFirst();
        page.setElements(QList<MvPageElement>{{frame, foto}} + above);
        const MvPageElement aimed(frame, MvFotoAim::aimed(photo, page, 0, document.format()));
        const QRectF stands = onPage(aimed, face, size);
        QVERIFY2(seen.adjusted(-1, -1, 1, 1).contains(stands), qPrintable(QDebug::toString(stands)));
        for (const MvPageElement &element : above)
            QVERIFY2(!element.rect().intersects(stands), qPrintable(QDebug::toString(stands)));
    }
}

/// A lamp above much rock: the detail below does not pull it out of sight. And a face too high for its frame is cut at
/// the hat rather than at the chin.
void tst_MvFotoAim::leavesOutWhatMattersLess()
{
    MvFotoPoolItem tower = photoWith({0.5, 0.25, 0.1, 0.1}, upright);
    tower.focus = {0.6, 0.3};
    tower.interest = MvFotoInterest({}, {2, 4}, {0, 1, 0, 2, 9, 9, 9, 9});
    const QSizeF band(2100, 900);
    const MvFotoElement foto(tower.path);
    QCOMPARE(MvFotoAim::focus(tower, foto, band, {QRectF(QPointF(), band)}), tower.focus);
    const QRectF upper(0, 0, 2100, 600);
    MvFotoElement aimed(tower.path);
    aimed.setFocus(MvFotoAim::focus(tower, foto, band, {upper}));
    const QPointF lamp = aimed.transform(upright, band).map(QPointF(0.6 * upright.width(), 0.3 * upright.height()));
    QVERIFY2(upper.contains(lamp), qPrintable(QDebug::toString(lamp)));

    const QRectF face(0.3, 0.4, 0.4, 0.3);
    MvFotoPoolItem girl = photoWith(face, upright);
    girl.interest = MvFotoInterest({{face, 1.4}, {{0.2, 0.1, 0.6, 0.6}, 0.7}});
    const QPointF focus = MvFotoAim::focus(girl, foto, {2100, 700}, {QRectF(0, 0, 2100, 700)});
    QVERIFY2(focus.y() > 0.45 && focus.y() < 0.6, qPrintable(QDebug::toString(focus)));
}

/// From template to template and from paper to paper; what a hand has placed stays.
void tst_MvFotoAim::followsItsFrame()
{
    const QRectF face(0.3, 0.3, 0.1, 0.2);
    MvCalendarDocument calendar = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 2);
    const auto divided = [](MvCalendarDocument document, const QString &id) {
        const MvCalendarDocument before = document;
        for (int number = 0; number < document.pages().size(); ++number) {
            MvCalendarPage page = document.pages().at(number);
            page.setTemplate(MvThemeApplication::pageTemplate({}, id), document.format());
            document.setPage(number, page);
        }
        return MvFotoAim::followed(before, document);
    };
    MvFotoPool pool;
    pool.add(photoWith(face, wide));
    MvFotoPoolItem other = photoWith(face, wide);
    other.path = u"/fotos/b.jpg"_s;
    pool.add(other);
    calendar.setFotoPool(pool);
    calendar = MvFotoDistribution::distribute(divided(calendar, u"MONTH_ABOVE"_s)).document;
    MvFotoElement placed = calendar.foto({1, 0});
    QVERIFY(!placed.isEmpty() && !calendar.foto({0, 0}).isEmpty());
    placed.setFocus({0.2, 0.2});
    calendar.setFoto({1, 0}, placed);

    MvPageFormat square = MvPageFormat::fromName(u"square-210"_s);
    const auto isSeen = [&face](const MvCalendarDocument &document) {
        const QRectF stands = facesOf(document, 0, face, wide);
        const QRectF month = document.pages().at(0).calendariumRect(document.format());
        return document.format().trimRect().contains(stands) && !month.intersects(stands);
    };
    QVERIFY(isSeen(calendar));
    for (const QString &id : {u"MONTH_FULL_STRIP"_s, u"MONTH_FULL_LIST"_s, u"MONTH_FULL_CORNER"_s, u"MONTH_LEFT"_s}) {
        QVERIFY2(MvThemeApplication::pageTemplate({}, id).isValid(), qPrintable(id));
        MvCalendarDocument changed = divided(calendar, id);
        QVERIFY2(isSeen(changed), qPrintable(id));
        QCOMPARE(changed.foto({1, 0}).focus(), placed.focus());
        changed.setFormat(square);
        QVERIFY2(isSeen(changed), qPrintable(id));
        QCOMPARE(changed.foto({1, 0}).focus(), placed.focus());
    }
}

void tst_MvFotoAim::interestSurvivesFiles_data()
{
    const MvRows<QString, bool> row; // text, isKnown
    row("faces", u"100,200,300,400,3000;500,0,500,1000,1500"_s, true);
    row("cells", u"0,0,500,500,1000;2*2:0af1"_s, true);
    row("none", QString(), false);
    row("outside", u"-500,0,400,100,1000"_s, false);
    row("beyond numbers", u"1,2,99999999999999999999,x,nan;5*5"_s, false);
    row("too few cells", u"9*9:1"_s, false);
    row("too many cells", u"40*40:"_s + QString(1600, u'1'), false);
    row("no digits", u"2*1:zz"_s, false);
}

void tst_MvFotoAim::interestSurvivesFiles()
{
    const auto [text, isKnown] = MvRows<QString, bool>::current();
    QCOMPARE(!MvFotoInterest::fromText(text).isEmpty(), isKnown);
    const MvFotoInterest known = MvFotoInterest::fromText(text);
    QCOMPARE(MvFotoInterest::fromText(known.toText()), known);
    QRandomGenerator random(7);
    for (int i = 0; i < 50; ++i) { // what no file should hold is taken for nothing worse than something else
        QString broken = text;
        for (QChar &c : broken)
            c = random.bounded(4) == 0 ? QChar(random.bounded(32, 127)) : c;
        const MvFotoInterest read = MvFotoInterest::fromText(broken);
        QCOMPARE(MvFotoInterest::fromText(read.toText()), read);
    }
}

MV_TEST_MAIN(tst_MvFotoAim)
#include "tst_MvFotoAim.moc"
