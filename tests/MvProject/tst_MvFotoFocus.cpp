// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvProject/MvFotoAim.h"
#include "MvProject/MvFotoElement.h"
#include "MvProject/MvFotoFocus.h"
#include "MvProject/MvFotoPool.h"

#include <QPainter>
#include <QRadialGradient>

/// Where the crop of a photo lies: people keep their faces and some air above them, towers their tops.
class tst_MvFotoFocus : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void keepsFaces_data();
    void keepsFaces();
    void keepsTheHeadOfAThing();
};

namespace {

/// In parts of the picture: a face from hairline to chin.
struct Person
{
    QRectF face;
    QColor skin;
    QColor hair = QColor(60, 40, 30);
    QColor hat = {};
};

QImage ground(const QSize &size, const QColor &above, const QColor &below)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient light(0, 0, 0, size.height());
    light.setColorAt(0.0, above);
    light.setColorAt(1.0, below);
    QPainter(&image).fillRect(image.rect(), light);
    return image;
}

void paintHead(QPainter &painter, const QRectF &face, const Person &person)
{
    const auto oval = [&](double x, double y, double width, double height, const QBrush &brush) {
        painter.setBrush(brush);
        painter.drawEllipse(QPointF(face.left() + x * face.width(), face.top() + y * face.height()),
                            width * face.width(), height * face.height());
    };
    oval(0.5, 0.4, 0.62, 0.58, person.hair);
    painter.fillRect(QRectF(face.left() + 0.3 * face.width(), face.bottom() - 0.1 * face.height(), 0.4 * face.width(),
                            0.35 * face.height()),
                     person.skin.darker(115));
    oval(0.5, 1.9, 1.1, 0.75, QColor(70, 90, 150)); // shoulders
    QRadialGradient shade(face.center() - QPointF(0.15 * face.width(), 0.1 * face.height()), face.height());
    shade.setColorAt(0.0, person.skin.lighter(106));
    shade.setColorAt(1.0, person.skin.darker(135));
    oval(0.5, 0.5, 0.5, 0.5, shade);
    for (const double x : {0.3, 0.7}) {
        oval(x, 0.33, 0.12, 0.02, person.hair); // brow
        oval(x, 0.42, 0.1, 0.045, QColor(230, 228, 224).darker(100 + (255 - person.skin.lightness()) / 3));
        oval(x, 0.42, 0.055, 0.045, QColor(40, 30, 25));
    }
    oval(0.5, 0.75, 0.2, 0.04, QColor(150, 60, 60).darker(100 + (255 - person.skin.lightness()) / 3));
    if (person.hat.isValid()) {
        oval(0.5, 0.0, 1.1, 0.13, person.hat);
        oval(0.5, -0.2, 0.55, 0.35, person.hat);
    }
}

QImage portrait(const QImage &ground, const QList<Person> &people)
{
    QImage image = ground;
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const Person &person : people) {
        const QRectF &face = person.face;
        paintHead(painter,
                  {face.x() * image.width(), face.y() * image.height(), face.width() * image.width(),
                   face.height() * image.height()},
                  person);
    }
    return image;
}

/// A face in a picture of the size, by the place of its middle and its height.
QRectF faceAt(const QSize &size, double x, double y, double height)
{
    const double width = 0.8 * height * size.height() / size.width();
    return {x - width / 2.0, y - height / 2.0, width, height};
}

/// Small fields in turn, as leaves or windows are.
void paintDetail(QPainter &painter, const QRectF &rect)
{
    for (int row = 0; row < 12; ++row)
        for (int column = 0; column < 12; ++column)
            painter.fillRect(QRectF(rect.left() + column * rect.width() / 12, rect.top() + row * rect.height() / 12,
                                    rect.width() / 12, rect.height() / 12),
                             (row + column) % 2 ? Qt::black : Qt::white);
}

QImage scene(const QSize &size, const QList<std::pair<QRectF, QColor>> &fields, const QRectF &detail = {})
{
    QImage image = ground(size, QColor(90, 130, 170), QColor(100, 140, 175));
    QPainter painter(&image);
    painter.scale(size.width(), size.height());
    for (const auto &[rect, color] : fields)
        painter.fillRect(rect, color);
    paintDetail(painter, detail);
    return image;
}

const QColor pale(240, 204, 182);
const QColor brown(150, 98, 68);
const QColor dark(86, 56, 42);
const QSize wide(1200, 800);
const QSize upright(800, 1200);

} // namespace

void tst_MvFotoFocus::finds_data()
{
    const MvRows<QImage, QRectF> row; // image; area: in which the focus lies
    const QColor sand(214, 184, 144);
    const QColor wood(139, 96, 60);
    row("nothing at all", QImage(), QRectF(0.5, 0.5, 0.0, 0.0));
    row("nothing to see", scene(wide, {}), QRectF(0.45, 0.4, 0.1, 0.2));
    row("detail left", scene(wide, {}, {0.05, 0.3, 0.2, 0.3}), QRectF(0.05, 0.25, 0.3, 0.35));
    row("detail below right", scene(wide, {}, {0.7, 0.6, 0.2, 0.3}), QRectF(0.6, 0.55, 0.35, 0.35));
    row("a beach is no face", scene(wide, {{{0.0, 0.6, 1.0, 0.4}, sand}}, {0.1, 0.2, 0.15, 0.2}),
        QRectF(0.05, 0.15, 0.35, 0.4));
    row("planks are no faces",
        scene(wide, {{{0.6, 0.1, 0.1, 0.9}, wood}, {{0.8, 0.1, 0.1, 0.9}, wood}}, {0.1, 0.3, 0.2, 0.25}),
        QRectF(0.05, 0.2, 0.4, 0.4));
    row("a tower keeps its top",
        scene(upright,
              {{{0.45, 0.2, 0.1, 0.6}, QColor(230, 230, 230)}, {{0.44, 0.2, 0.12, 0.06}, QColor(190, 30, 30)}}),
        QRectF(0.3, 0.15, 0.4, 0.25));
}

void tst_MvFotoFocus::finds()
{
    const auto [image, area] = MvRows<QImage, QRectF>::current();
    const QPointF focus = MvFotoFocus::of(image);
    QVERIFY2(area.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(focus), qPrintable(QDebug::toString(focus)));
}

void tst_MvFotoFocus::keepsFaces_data()
{
    const MvRows<QImage, QList<QRectF>> add; // image, faces
    const auto row = [&](const char *name, const QImage &ground, const QList<Person> &people) {
        QList<QRectF> faces;
        for (const Person &person : people)
            faces.append(person.face);
        add(name, portrait(ground, people), faces);
    };
    const QImage sky = ground(wide, QColor(110, 160, 215), QColor(170, 190, 150));
    const QImage tall = ground(upright, QColor(150, 170, 120), QColor(90, 120, 70));
    row("pale, upright", tall, {{faceAt(upright, 0.5, 0.35, 0.2), pale}});
    row("brown, at the left", sky, {{faceAt(wide, 0.2, 0.4, 0.3), brown}});
    row("dark, at the right", sky, {{faceAt(wide, 0.82, 0.35, 0.25), dark, QColor(20, 16, 14)}});
    row("dark before dark", ground(wide, QColor(40, 44, 60), QColor(20, 22, 30)),
        {{faceAt(wide, 0.3, 0.4, 0.35), dark}});
    row("against the light", ground(upright, QColor(250, 246, 230), QColor(255, 250, 240)),
        {{faceAt(upright, 0.5, 0.4, 0.2), QColor(112, 76, 58), QColor(35, 28, 24)}});
    row("under a straw hat", tall,
        {{faceAt(upright, 0.5, 0.45, 0.2), pale, QColor(120, 80, 50), QColor(222, 184, 120)}});
    row("fair hair", sky, {{faceAt(wide, 0.6, 0.45, 0.3), pale, QColor(224, 190, 120)}});
    row("on a beach", ground(wide, QColor(120, 180, 225), QColor(214, 184, 144)),
        {{faceAt(wide, 0.3, 0.4, 0.2), brown}});
    row("a child below", tall, {{faceAt(upright, 0.4, 0.7, 0.14), pale}});
    row("far away", sky, {{faceAt(wide, 0.7, 0.5, 0.12), pale}});
    row("three people", sky,
        {{faceAt(wide, 0.35, 0.4, 0.18), pale},
         {faceAt(wide, 0.5, 0.35, 0.2), dark},
         {faceAt(wide, 0.65, 0.42, 0.18), brown}});
    row("two, one of them small", tall,
        {{faceAt(upright, 0.4, 0.3, 0.16), brown}, {faceAt(upright, 0.62, 0.42, 0.13), pale}});
}

/// In frames of seven shapes the faces are whole, with a tenth of their height above the hair; where they have room.
void tst_MvFotoFocus::keepsFaces()
{
    const auto [image, faces] = MvRows<QImage, QList<QRectF>>::current();
    MvFotoElement foto(u"/foto.jpg"_qs);
    foto.setFocus(MvFotoFocus::of(image));
    QRectF all;
    double tallest = 0.0;
    for (const QRectF &face : faces) {
        all |= face.adjusted(-0.1 * face.width(), -0.28 * face.height(), 0.1 * face.width(), 0.05 * face.height());
        tallest = std::max(tallest, face.height());
    }
    int shown = 0;
    for (const double shape : {0.5, 0.7, 1.0, 1.4, 1.9, 2.4, 3.0}) {
        const QRectF seen = foto.crop(image.size(), {shape * 100, 100});
        const QRectF part(seen.x() / image.width(), seen.y() / image.height(), seen.width() / image.width(),
                          seen.height() / image.height());
        if (part.width() < 1.15 * all.width() || part.height() < 1.15 * all.height())
            continue;
        ++shown;
        QVERIFY2(part.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(all & QRectF(0, 0, 1, 1)),
                 qPrintable(u"%1: %2 of %3"_qs.arg(shape).arg(QDebug::toString(part), QDebug::toString(all))));
    }
    QVERIFY(shown >= 3);
}

/// Before a window through which there is much to be seen above it, in a frame that it is too tall for.
void tst_MvFotoFocus::keepsTheHeadOfAThing()
{
    QImage image = scene({800, 800}, {}, {0.3, 0.32, 0.25, 0.6});
    QPainter painter(&image);
    painter.scale(image.width(), image.height());
    paintDetail(painter, {0.5, 0.04, 0.3, 0.14});
    painter.end();
    const MvFotoFocus::Found found = MvFotoFocus::in(image);
    MvFotoElement foto(u"/foto.jpg"_qs);
    for (const double shape : {1.8, 2.1, 2.4}) {
        const QSizeF frame(shape * 1000, 1000);
        foto.setFocus(MvFotoAim::focus({foto.path(), image.size(), {}, found.point, found.interest}, foto, frame,
                                       {QRectF(QPointF(), frame)}));
        const QRectF seen = foto.crop(image.size(), frame);
        QVERIFY2(seen.top() < 0.32 * image.height(), qPrintable(QDebug::toString(seen)));
    }
}

MV_TEST_MAIN(tst_MvFotoFocus)
#include "tst_MvFotoFocus.moc"
