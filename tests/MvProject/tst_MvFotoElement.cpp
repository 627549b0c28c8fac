// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"
#include "MvProject/MvFotoElement.h"
#include "MvProjectFixture.h"
#include "MvRows.h"

#include <QPainter>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace MvProjectFixture;
using Fit = MvFotoElement::Fit;

/// Photos in frames: what of them is seen, and that it is painted so.
class tst_MvFotoElement : public MvFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void seenPart_data();
    void seenPart();
    void straightened_data();
    void straightened();
    void dragging_data();
    void dragging();
    void keepsToItsLimits();
    void painted_data();
    void painted();
    void corrected_data();
    void corrected();
};

void tst_MvFotoElement::seenPart_data()
{
    // seen: of 300 x 200 pixels, from the frame's top left corner clockwise
    const MvRows<QSizeF, Fit, double, QPointF, int, QPolygonF, QRectF> row;
    const auto upright = [](double x, double y, double width, double height) {
        return QPolygonF({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
    };
    const QSizeF square(100, 100);
    const QRectF all({}, square);
    const QPointF middle(0.5, 0.5);
    row("fills", square, Fit::Fill, 1.0, middle, 0, upright(50, 0, 200, 200), all);
    row("zoomed", square, Fit::Fill, 2.0, middle, 0, upright(100, 50, 100, 100), all);
    row("focus in a corner", square, Fit::Fill, 2.0, QPointF(0, 1), 0, upright(0, 100, 100, 100), all);
    row("turned clockwise: its left is up", QSizeF(100, 200), Fit::Fill, 1.0, middle, 1,
        QPolygonF({{0, 175}, {0, 25}, {300, 25}, {300, 175}}), QRectF(0, 0, 100, 200));
    row("turned, its focus turned with it", square, Fit::Fill, 1.0, QPointF(0, 0.5), 1,
        QPolygonF({{0, 200}, {0, 0}, {200, 0}, {200, 200}}), all);
    row("upside down", square, Fit::Fill, 2.0, QPointF(0, 0), 2, QPolygonF({{100, 100}, {0, 100}, {0, 0}, {100, 0}}),
        all);
    row("counterclockwise", QSizeF(200, 300), Fit::Fill, 1.0, middle, -1,
        QPolygonF({{300, 0}, {300, 200}, {0, 200}, {0, 0}}), QRectF(0, 0, 200, 300));
    row("whole", square, Fit::Whole, 1.0, QPointF(0, 0), 0, upright(0, 0, 300, 200),
        QRectF(0, 100.0 / 6.0, 100, 400.0 / 6.0));
    row("whole, zoomed over the sides", square, Fit::Whole, 1.2, middle, 0, upright(25, 0, 250, 200),
        QRectF(0, 10, 100, 80));
    row("whole, zoomed beyond the frame", square, Fit::Whole, 3.0, middle, 0, upright(100, 50, 100, 100), all);
}

void tst_MvFotoElement::seenPart()
{
    const auto [frame, fit, zoom, focus, turns, seen, covered] =
        MvRows<QSizeF, Fit, double, QPointF, int, QPolygonF, QRectF>::current();
    MvFotoElement foto(u"/foto.jpg"_s);
    foto.setFit(fit);
    foto.setZoom(zoom);
    foto.setFocus(focus);
    foto.setQuarterTurns(turns);
    const QSizeF size(300, 200);
    QCOMPARE(foto.covered(size, frame), covered);
    const QPolygonF found = foto.seen(size, frame);
    for (int corner = 0; corner < 4; ++corner)
        QVERIFY2(QLineF(found[corner], seen[corner]).length() < 1e-6, qPrintable(QString::number(corner)));
    QCOMPARE(foto.seenSize(size, frame).width(), QLineF(seen[0], seen[1]).length());
}

void tst_MvFotoElement::straightened_data()
{
    // width: that is seen, in pixels; 0: not computed by hand
    const MvRows<QSizeF, QSizeF, Fit, double, QPointF, double> row;
    const QSizeF wide(300, 200);
    const QPointF middle(0.5, 0.5);
    row("square", QSizeF(200, 200), QSizeF(50, 50), Fit::Fill, 1.0, middle,
        200.0 / std::sqrt(1.5)); // by the sum of sine and cosine
    row("square, zoomed", QSizeF(200, 200), QSizeF(50, 50), Fit::Fill, 2.0, middle, 100.0 / std::sqrt(1.5));
    row("corner", wide, QSizeF(100, 100), Fit::Fill, 1.5, QPointF(1, 1), 0.0);
    row("upright in wide", QSizeF(200, 300), QSizeF(400, 100), Fit::Fill, 1.0, QPointF(0.2, 0), 0.0);
    row("whole", wide, QSizeF(100, 100), Fit::Whole, 1.0, middle, 0.0);
}

/// No corner beside the photo is ever seen, whatever the angle, and nothing is distorted.
void tst_MvFotoElement::straightened()
{
    const auto [foto, frame, fit, zoom, focus, width] = MvRows<QSizeF, QSizeF, Fit, double, QPointF, double>::current();
    for (const double degrees : {-15.0, -3.5, 0.1, 15.0}) {
        for (int turns = 0; turns < 4; ++turns) {
            MvFotoElement element(u"/foto.jpg"_s);
            element.setFit(fit);
            element.setZoom(zoom);
            element.setFocus(focus);
            element.setQuarterTurns(turns);
            element.setStraightening(degrees);
            const QPolygonF seen = element.seen(foto, frame);
            const QRectF all({}, foto);
            for (const QPointF &corner : seen)
                QVERIFY(all.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(corner));
            const QLineF top(seen[0], seen[1]);
            const QLineF left(seen[0], seen[3]);
            const QSizeF covered = element.covered(foto, frame).size();
            QVERIFY(std::abs(top.length() / left.length() - covered.width() / covered.height()) < 1e-6);
            QVERIFY(std::abs(top.angleTo(left) - 270.0) < 1e-6);
            const double turned = top.angle() - degrees - 90.0 * turns; // the photo's own top, back where it was
            QVERIFY(std::abs(std::remainder(turned, 360.0)) < 1e-6);
            if (width > 0.0 && std::abs(degrees) == 15.0)
                QVERIFY(std::abs(element.seenSize(foto, frame).width() - width) < 1e-6);
        }
    }
}

void tst_MvFotoElement::dragging_data()
{
    // focus: of 300 x 200 pixels, of which 100 x 100 are seen as many units
    const MvRows<int, QPointF, QPointF> row;
    row("to the right shows what was left", 0, QPointF(10, 0), QPointF(140 / 300.0, 0.5));
    row("to the edge", 0, QPointF(-500, 500), QPointF(250 / 300.0, 0.25));
    row("turned clockwise", 1, QPointF(10, 0), QPointF(0.5, 110 / 200.0));
}

void tst_MvFotoElement::dragging()
{
    const auto [turns, distance, focus] = MvRows<int, QPointF, QPointF>::current();
    MvFotoElement foto(u"/foto.jpg"_s);
    foto.setZoom(2.0);
    foto.setQuarterTurns(turns);
    const QPointF moved = foto.movedFocus({300, 200}, {100, 100}, distance);
    QVERIFY(QLineF(moved, focus).length() < 1e-9);
}

void tst_MvFotoElement::keepsToItsLimits()
{
    const double nan = std::nan("");
    MvFotoElement foto(u"/a.jpg"_s);
    for (const double zoom : {nan, -1.0, 0.5})
        foto.setZoom(zoom);
    QCOMPARE(foto.zoom(), 1.0);
    foto.setZoom(std::numeric_limits<double>::infinity());
    QCOMPARE(foto.zoom(), 1.0);
    foto.setStraightening(-90.0);
    QCOMPARE(foto.straightening(), -15.0);
    foto.setBrightness(51);
    foto.setContrast(-1000);
    QCOMPARE(std::pair(foto.brightness(), foto.contrast()), std::pair(50, -50));
    foto.setQuarterTurns(-5);
    QCOMPARE(foto.quarterTurns(), 3);
    foto.setFocus({nan, 7.0});
    QCOMPARE(foto.focus(), QPointF(0.5, 1.0));
    foto.setBorder({-3.0, QColor()});
    QVERIFY(foto.border() == MvFotoElement::Border());
    QVERIFY(foto.seen({0, 0}, {10, 10}).isEmpty() && foto.transform({}, {10, 10}).isIdentity());
}

void tst_MvFotoElement::painted_data()
{
    // colors: of the quarters, by reading order
    const MvRows<int, double, double, Fit, double, QStringList> row;
    const QString red = u"#ff0000"_s;
    const QString green = u"#00ff00"_s;
    const QString blue = u"#0000ff"_s;
    const QString yellow = u"#ffff00"_s;
    const QStringList usual = {red, green, blue, yellow};
    row("as it is", 0, 0.0, 0.0, Fit::Fill, 0.0, usual);
    row("turned", 1, 0.0, 0.0, Fit::Fill, 0.0, QStringList{blue, red, yellow, green});
    row("whole, with a border", 0, 0.0, 0.0, Fit::Whole, 30.0, usual);
    row("straightened", 0, 12.0, 0.0, Fit::Fill, 0.0, usual);
    row("hung askew", 2, 0.0, -5.0, Fit::Fill, 20.0, QStringList{yellow, blue, green, red});
}

void tst_MvFotoElement::painted()
{
    const auto [turns, straightening, rotation, fit, border, colors] =
        MvRows<int, double, double, Fit, double, QStringList>::current();
    QVERIFY(writeFoto(path(u"vier.png"_s), {600, 400}));
    MvFotoElement foto(path(u"vier.png"_s));
    foto.setQuarterTurns(turns);
    foto.setStraightening(straightening);
    foto.setFit(fit);
    foto.setBorder({border, Qt::cyan});
    MvPageElement element({300, 200, 800, 800}, foto);
    element.setRotation(rotation);
    const MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
    MvCalendarPage page = calendar.pages()[0];
    page.setElements({element, {{1200, 200, 100, 100}, MvFotoElement()}}); // an empty frame beside it
    QImage image(1400, 1200, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    page.paintFoto(painter, calendar.format());
    painter.end();

    const QRectF covered = foto.covered({600, 400}, {800, 800}).translated(300, 200);
    QTransform askew = QTransform::fromTranslate(covered.center().x(), covered.center().y());
    askew.rotate(rotation);
    const auto colorAt = [&](double x, double y) { // from the middle, in parts of half the photo
        return image.pixelColor(askew.map(QPointF(x * covered.width() / 2.0, y * covered.height() / 2.0)).toPoint());
    };
    int quarter = 0;
    for (const double y : {-0.5, 0.5}) {
        for (const double x : {-0.5, 0.5})
            QCOMPARE(colorAt(x, y).name(), colors[quarter++]);
    }
    for (const auto &[x, y] : {std::pair(-0.99, -0.99), {0.99, -0.99}, {0.99, 0.99}, {-0.99, 0.99}}) {
        const QColor inside = colorAt(x, y);
        QVERIFY(inside != QColor(Qt::magenta) && inside != QColor(Qt::white));
        QCOMPARE(inside == QColor(Qt::cyan), border > 0.0);
        QCOMPARE(colorAt(x * 1.03, y * 1.03), QColor(Qt::magenta));
    }
    QCOMPARE(image.pixelColor(1250, 250), QColor(Qt::magenta));
}

void tst_MvFotoElement::corrected_data()
{
    // dark: what becomes of it: darker -1, lighter 1; keepsEnds: black and white
    const MvRows<int, int, int, int, bool> row;
    row("as it is", 0, 0, 0, 0, true);
    row("lighter", 30, 0, 1, 1, true);
    row("darker", -50, 0, -1, -1, true);
    row("harder", 0, 50, -1, 1, true);
    row("softer", 0, -20, 1, -1, false);
}

/// On print and askew, where pictures are drawn in another way.
void tst_MvFotoElement::corrected()
{
    const auto [brightness, contrast, dark, light, keepsEnds] = MvRows<int, int, int, int, bool>::current();
    const QList<int> tones = {0, 70, 180, 255};
    QImage steps(400, 400, QImage::Format_RGB32);
    QPainter stepPainter(&steps);
    for (int i = 0; i < tones.size(); ++i)
        stepPainter.fillRect(100 * i, 0, 100, 400, QColor(tones[i], tones[i], tones[i]));
    QVERIFY(stepPainter.end() && steps.save(path(u"stufen.png"_s)));
    MvFotoElement foto(path(u"stufen.png"_s));
    foto.setBrightness(brightness);
    foto.setContrast(contrast);
    for (const double rotation : {0.0, 2.0}) {
        MvPageElement element({100, 100, 400, 400}, foto);
        element.setRotation(rotation);
        const MvCalendarDocument calendar = document(u"MONTH_GRID_CLASSIC"_s, 1);
        MvCalendarPage page = calendar.pages()[0];
        page.setElements({element});
        QImage image(600, 600, QImage::Format_RGB32);
        QPainter painter(&image);
        page.paintFoto(painter, calendar.format());
        painter.end();
        const auto change = [&](int i) { return image.pixelColor(150 + 100 * i, 300).green() - tones[i]; };
        const auto sign = [](int number) { return int(number > 0) - int(number < 0); };
        QCOMPARE(sign(change(1)), dark);
        QCOMPARE(sign(change(2)), light);
        QCOMPARE(change(0) == 0 && change(3) == 0, keepsEnds);
    }
}

MV_TEST_MAIN(tst_MvFotoElement)
#include "tst_MvFotoElement.moc"
