// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvTest.h"

#include "MvProject/MvFotoElement.h"
#include "MvProject/MvFotoFocus.h"

#include <QPainter>

class tst_MvFotoFocus : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void keepsHeadRoom_data();
    void keepsHeadRoom();
};

/// A picture of a quiet blue, in which something is drawn; lengths are parts of its width and height.
static QImage drawn(const QSize &size, const std::function<void(QPainter &)> &draw)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(90, 130, 170));
    QPainter painter(&image);
    painter.scale(size.width(), size.height());
    painter.setPen(Qt::NoPen);
    draw(painter);
    return image;
}

static void face(QPainter &painter, const QPointF &middle, double width, const QColor &skin)
{
    painter.setBrush(QColor(60, 40, 30)); // hair
    painter.drawEllipse(middle - QPointF(0, 0.03), 0.6 * width, 0.8 * width);
    painter.setBrush(skin);
    painter.drawEllipse(middle, 0.5 * width, 0.65 * width);
}

/// Small fields in turn, as leaves or windows are.
static void detail(QPainter &painter, const QRectF &rect)
{
    for (int row = 0; row < 12; ++row)
        for (int column = 0; column < 12; ++column)
            painter.fillRect(QRectF(rect.left() + column * rect.width() / 12, rect.top() + row * rect.height() / 12,
                                    rect.width() / 12, rect.height() / 12),
                             (row + column) % 2 ? Qt::black : Qt::white);
}

void tst_MvFotoFocus::finds_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<QRectF>("area"); // in which the focus lies
    const auto row = [](const char *name, const QImage &image, const QRectF &area) {
        QTest::newRow(name) << image << area;
    };
    const QColor light(236, 188, 160);
    const QColor dark(110, 72, 50);
    const QSize wide(1200, 800);
    row("nothing at all", QImage(), {0.5, 0.5, 0.0, 0.0});
    row("nothing to see", drawn(wide, [](QPainter &) {}), {0.49, 0.49, 0.02, 0.02});
    row("nothing to see, upright", drawn({800, 1200}, [](QPainter &) {}), {0.49, 0.38, 0.02, 0.1});
    row("face left", drawn(wide, [&](QPainter &p) { face(p, {0.2, 0.4}, 0.15, light); }), {0.15, 0.3, 0.1, 0.12});
    row("dark face right", drawn(wide, [&](QPainter &p) { face(p, {0.8, 0.3}, 0.15, dark); }), {0.75, 0.2, 0.1, 0.12});
    row("small face", drawn(wide, [&](QPainter &p) { face(p, {0.7, 0.5}, 0.06, light); }), {0.66, 0.4, 0.08, 0.12});
    row("two faces",
        drawn(wide,
              [&](QPainter &p) {
                  face(p, {0.3, 0.4}, 0.15, light);
                  face(p, {0.6, 0.4}, 0.15, dark);
              }),
        {0.4, 0.3, 0.1, 0.12});
    row("face before detail",
        drawn(wide,
              [&](QPainter &p) {
                  detail(p, {0.6, 0.3, 0.35, 0.5});
                  face(p, {0.2, 0.4}, 0.2, light);
              }),
        {0.15, 0.25, 0.1, 0.17});
    row("detail left", drawn(wide, [](QPainter &p) { detail(p, {0.05, 0.3, 0.2, 0.3}); }), {0.1, 0.38, 0.25, 0.14});
    row("detail below right",
        drawn(wide,
              [](QPainter &p) {
                  detail(p, {0.7, 0.6, 0.2, 0.3});
              }),
        {0.62, 0.58, 0.25, 0.25});
    row("a beach is no face",
        drawn(wide,
              [](QPainter &p) {
                  p.fillRect(QRectF(0, 0.6, 1, 0.4), QColor(214, 184, 144));
                  detail(p, {0.1, 0.2, 0.15, 0.2});
              }),
        {0.1, 0.25, 0.3, 0.3});
}

void tst_MvFotoFocus::finds()
{
    QFETCH(QImage, image);
    QFETCH(QRectF, area);
    const QPointF focus = MvFotoFocus::of(image);
    QVERIFY2(area.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(focus), qPrintable(QDebug::toString(focus)));
}

void tst_MvFotoFocus::keepsHeadRoom_data()
{
    QTest::addColumn<double>("height"); // of the face's middle
    for (const double height : {0.25, 0.35, 0.5})
        QTest::newRow(qPrintable(QString::number(height))) << height;
}

/// An upright portrait in a wide frame: hair and air above it stay.
void tst_MvFotoFocus::keepsHeadRoom()
{
    QFETCH(double, height);
    const QSize size(900, 1200);
    const QImage image = drawn(size, [&](QPainter &p) {
        face(p, {0.5, height}, 0.25, QColor(236, 188, 160));
        p.fillRect(QRectF(0.44, height + 0.1, 0.12, 0.15), QColor(226, 178, 150)); // the neck
        p.fillRect(QRectF(0.2, height + 0.22, 0.6, 0.5), QColor(150, 30, 40));     // the dress
    });
    MvFotoElement foto(u"/foto.jpg"_qs);
    foto.setFocus(MvFotoFocus::of(image));
    const QRectF seen = foto.crop(size, {300, 180});
    const double hair = (height - 0.03 - 0.8 * 0.25) * size.height();
    QVERIFY2(seen.top() < std::max(1.0, hair) && seen.bottom() > (height + 0.15) * size.height(),
             qPrintable(QDebug::toString(seen)));
}

MV_TEST_MAIN(tst_MvFotoFocus)
#include "tst_MvFotoFocus.moc"
