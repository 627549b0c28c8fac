// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPaintRecorder.h"

#include <QBitmap>
#include <QPaintEngine>
#include <QPainter>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <QTextDocument>

#include <functional>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;
using Painting = std::function<void(QPainter &)>;
Q_DECLARE_METATYPE(Painting)

namespace {
constexpr auto hintsOfTarget = QPainter::Antialiasing | QPainter::SmoothPixmapTransform;

QImage canvas(double pixelRatio = 1.0)
{
    QImage image(QSize(240, 200) * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDotsPerMeterX(5906); // 150 dpi
    image.setDotsPerMeterY(5906);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(0xfff0f4ff);
    return image;
}

QImage foto()
{
    QImage image(40, 30, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qPremultiply(qRgba(x * 6, y * 8, (x * y) % 255, 255 - x * 3)));
    }
    return image;
}

MvPaintRecording recorded(const QPainter &target, const Painting &painting)
{
    MvPaintRecorder recorder(target);
    QPainter painter(&recorder);
    painter.setRenderHints(target.renderHints());
    painting(painter);
    painter.end();
    return recorder.recording();
}

MvPaintRecording recorded(const Painting &painting)
{
    QImage target = canvas();
    QPainter painter(&target);
    painter.setRenderHints(hintsOfTarget);
    return recorded(painter, painting);
}

QByteArray svg(const Painting &painting)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(QSize(240, 200));
    generator.setViewBox(QRect(0, 0, 240, 200));
    QPainter painter(&generator);
    painter.setRenderHints(hintsOfTarget);
    painting(painter);
    painter.end();
    return buffer.data();
}

int differingPixels(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}

QPainterPath star()
{
    QPainterPath path;
    path.moveTo(60.3, 10.2);
    path.lineTo(90.7, 100.1);
    path.lineTo(10.4, 45.5);
    path.lineTo(110.2, 45.5);
    path.cubicTo(80, 70, 50, 90, 30.1, 100.9);
    path.closeSubpath();
    return path;
}

void drawShapes(QPainter &painter)
{
    painter.setPen(QPen(QColor(0x20, 0x40, 0x80), 2.5, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(200, 80, 30, 140));
    painter.drawRect(QRectF(10.25, 12.75, 60.5, 30.1));
    painter.drawRect(QRect(80, 12, 30, 30));
    painter.drawEllipse(QRectF(12.5, 60.5, 50, 31.3));
    painter.drawEllipse(QRect(70, 60, 30, 40));
    painter.drawPath(star());
    painter.drawPie(QRectF(130, 100, 60, 60), 300, 2900);
    painter.drawLine(QPointF(5.1, 150.2), QPointF(210.7, 170.9));
    painter.drawLine(5, 160, 210, 160);
    painter.setPen(QPen(Qt::black, 2));
    painter.drawRoundedRect(QRectF(120.5, 20.5, 70.3, 50.2), 8, 12);
    painter.setPen(Qt::black); // one unit wide
    painter.drawLine(QPointF(3.5, 3.5), QPointF(3.5, 190.5));
    painter.setPen(QPen(Qt::darkGreen, 0)); // cosmetic
    painter.drawPolyline(QPolygonF({{10, 180}, {40.5, 130}, {70, 185.5}}));
    painter.drawPolygon(QPolygonF({{100, 180}, {140.5, 130}, {170, 185.5}, {105, 140}}), Qt::WindingFill);
    painter.drawPolygon(QPolygon({{180, 180}, {200, 130}, {230, 185}}));
    painter.drawPoints(QPolygonF({QPointF(220.5, 20.5), QPointF(225, 30)}));
}

void drawFills(QPainter &painter)
{
    painter.fillRect(QRectF(10.3, 10.6, 50.25, 40.7), QColor(220, 20, 60));
    painter.fillRect(QRectF(60.55, 10.6, 50.25, 40.7), QColor(20, 60, 220, 90));
    painter.fillRect(QRect(120, 10, 33, 41), Qt::darkCyan);
    QPainterPath cells;
    cells.addRect(QRectF(10.5, 70.25, 40, 30));
    cells.addRect(QRectF(50.5, 70.25, 40, 30));
    painter.fillPath(cells, QColor(0, 128, 0, 128));
    QLinearGradient gradient(0, 110, 100, 190);
    gradient.setColorAt(0, Qt::yellow);
    gradient.setColorAt(1, Qt::magenta);
    painter.fillRect(QRectF(10, 110, 90, 80), gradient);
    QRadialGradient bounding(0.5, 0.5, 0.5);
    bounding.setCoordinateMode(QGradient::ObjectMode);
    bounding.setColorAt(0, Qt::white);
    bounding.setColorAt(1, Qt::darkRed);
    painter.fillRect(QRectF(110, 110, 90, 40), bounding);
}

/// Blocks of cells as small months have them, some cells missing, one twice and one larger, off the grid of pixels.
void drawGrounds(QPainter &painter)
{
    for (const auto &[color, missing] : {std::pair(QColor(90, 30, 160, 130), 5), {QColor(250, 200, 40), 4}}) {
        QPainterPath cells;
        cells.setFillRule(Qt::WindingFill);
        for (int cell = 0; cell < 6 * 35; ++cell) {
            const int block = cell / 35;
            const int blockRow = block / 3;
            const int row = cell / 7 % 5;
            const QPointF corner(10.3 + block % 3 * 64.7 + cell % 7 * 8.7, 8.4 + blockRow * 85.13 + row * 15.9);
            if (cell % missing != 0)
                cells.addRect({corner, QSizeF(8.7, 15.9)});
            if (cell % 50 == 1)
                cells.addRect({corner, QSizeF(9.2, 16.3)});
        }
        cells.addRect(QRectF(150.5, 150.2, 40, 0)); // nothing of it is seen
        painter.fillPath(cells, color);
    }
}

void drawPatterns(QPainter &painter)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(Qt::blue, Qt::DiagCrossPattern));
    painter.drawRect(QRectF(10, 15, 90, 40));
    painter.setBrushOrigin(QPointF(3.5, 2));
    painter.setBrush(QBrush(foto()));
    painter.drawEllipse(QRectF(20, 60, 90, 80));
    painter.fillRect(QRectF(120.3, 60.2, 70.6, 70.1), QBrush(Qt::red, Qt::Dense4Pattern));
    painter.setPen(QPen(QBrush(Qt::darkGreen, Qt::Dense3Pattern), 7));
    painter.drawLine(QPointF(10, 150), QPointF(190, 180));
}

void drawImages(QPainter &painter)
{
    painter.drawImage(QPointF(10, 10), foto());
    painter.drawImage(QPointF(60.3, 10.6), foto());
    painter.drawImage(QRectF(110.25, 10.5, 70.3, 50.8), foto());
    painter.drawImage(QRectF(10, 60, 40, 30), foto(), QRectF(5.5, 4.5, 20, 15));
    painter.drawPixmap(QPointF(60, 60), QPixmap::fromImage(foto()));
    painter.drawPixmap(QRectF(110, 70, 100, 60), QPixmap::fromImage(foto()), QRectF(0, 0, 40, 30));
    painter.drawTiledPixmap(QRectF(10, 110, 90, 70), QPixmap::fromImage(foto()), QPointF(7, 3));
    QBitmap bitmap(16, 16);
    bitmap.fill(Qt::color0);
    QPainter(&bitmap).fillRect(4, 4, 8, 8, Qt::color1);
    painter.setPen(Qt::red);
    painter.drawPixmap(120, 150, bitmap);
    QImage dense = foto();
    dense.setDevicePixelRatio(2.0);
    painter.drawImage(QPointF(160, 150), dense);
}

void drawStates(QPainter &painter)
{
    painter.save();
    painter.translate(20.5, 10.25);
    painter.setClipRect(QRectF(3.3, 4.4, 90.7, 80.2), Qt::IntersectClip);
    painter.fillRect(QRectF(-50, -50, 300, 300), QColor(255, 220, 120));
    painter.save();
    painter.rotate(20);
    painter.setOpacity(0.5);
    painter.setClipRect(QRectF(10, 10, 60, 30), Qt::IntersectClip);
    painter.fillRect(QRectF(0, 0, 200, 200), Qt::darkBlue);
    painter.setRenderHint(QPainter::Antialiasing, false); // must not harden the clip that comes back
    painter.restore();
    painter.scale(1.25, 0.8);
    painter.drawRect(QRectF(5, 5, 40, 40));
    painter.restore();
    painter.setClipPath(star(), Qt::IntersectClip);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipRegion(QRegion(20, 20, 60, 30).united(QRect(30, 60, 50, 30)), Qt::IntersectClip);
    painter.fillRect(QRectF(0, 0, 200, 200), Qt::green);
    painter.restore();
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.fillRect(QRectF(30, 0, 60, 200), QColor(200, 100, 255));
}

void drawSwitchedClips(QPainter &painter)
{
    painter.save();
    painter.setClipRect(QRectF(13.3, 14.4, 90.7, 80.2));
    painter.setPen(QPen(Qt::red, 3));
    painter.drawLine(QPointF(0, 0), QPointF(150, 150));
    painter.setClipping(false);
    painter.drawLine(QPointF(10, 0), QPointF(160, 150));
    painter.setClipping(true);
    painter.drawLine(QPointF(20, 0), QPointF(170, 150));
    painter.setClipRect(QRectF(40, 60, 100, 50));
    painter.fillRect(QRectF(0, 0, 200, 200), QColor(0, 0, 255, 60));
    painter.restore();
    painter.drawLine(QPointF(30, 0), QPointF(180, 150));
}

void drawOutlines(QPainter &painter)
{
    QFont font(u"Lato"_s);
    font.setPixelSize(17);
    const MvTextOutline word(font, u"Tagfjord Äußeres"_s);
    MvOutlinePainter::fillOutline(painter, {10.3, 30.7}, word, Qt::black);
    painter.save();
    painter.setClipRect(QRectF(15, 30, 60, 40));
    MvOutlinePainter::fillOutline(painter, {10.3, 50.2}, word, QColor(255, 0, 0, 128));
    painter.restore();
    painter.setOpacity(0.7);
    MvOutlinePainter::fillOutlines(painter, {{{10, 80}, word}, {{12, 87}, word}, {{14, 130}, word}}, Qt::darkGreen);
    painter.setWorldMatrixEnabled(false);
    MvOutlinePainter::fillOutline(painter, {3, 180}, word, Qt::blue);
    QVERIFY(!painter.worldMatrixEnabled());
}
} // namespace

class tst_MvPaintRecording : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void replaysPixelForPixel_data();
    void replaysPixelForPixel();
    void keepsToTheTarget();
    void replaysOnVectorTargets_data();
    void replaysOnVectorTargets();
    void clipsShapes_data();
    void clipsShapes();
    void textsAreOneOperation();
    void reportsTheTarget();
    void keepsHints();
    void textBecomesOutlines();
    void items();
};

void tst_MvPaintRecording::replaysPixelForPixel_data()
{
    // clipped: to switch clips off would free the painting from that of the target, too
    const MvRows<Painting, QTransform, bool, double, bool> row;
    const std::pair<const char *, Painting> paintings[] = {
        {"shapes", drawShapes},     {"fills", drawFills},
        {"grounds", drawGrounds},   {"patterns", drawPatterns},
        {"images", drawImages},     {"states", drawStates},
        {"outlines", drawOutlines}, {"switched clips", drawSwitchedClips},
    };
    const std::pair<const char *, QTransform> transforms[] = {
        {"plain", {}},
        {"moved", QTransform::fromTranslate(3.3, -2.6)},
        {"scaled", QTransform::fromScale(1.37, 0.83)},
        {"rotated", QTransform().translate(60, -20).rotate(30)},
        {"upright", QTransform().translate(200, 0).rotate(90)},
    };
    for (const auto &[paintingName, painting] : paintings) {
        for (const auto &[transformName, transform] : transforms) {
            for (const bool antialiased : {true, false}) {
                for (const double pixelRatio : {1.0, 2.0})
                    row(QString::asprintf("%s %s %s %g", paintingName, transformName, antialiased ? "soft" : "hard",
                                          pixelRatio),
                        painting, transform, antialiased, pixelRatio, qstrcmp(paintingName, "switched clips") != 0);
            }
        }
    }
}

void tst_MvPaintRecording::replaysPixelForPixel()
{
    const auto [painting, transform, antialiased, pixelRatio, clipped] =
        MvRows<Painting, QTransform, bool, double, bool>::current();
    const auto painted = [painting = painting, transform = transform, antialiased = antialiased,
                          pixelRatio = pixelRatio, clipped = clipped](bool throughRecording) {
        QImage image = canvas(pixelRatio);
        QPainter painter(&image);
        painter.setRenderHints(hintsOfTarget, antialiased);
        if (clipped)
            painter.setClipRect(QRectF(8, 5, 200, 185));
        painter.setTransform(transform);
        if (throughRecording)
            recorded(painter, painting).replay(painter);
        else
            painting(painter);
        return image;
    };
    const QImage direct = painted(false);
    QVERIFY(differingPixels(direct, canvas(pixelRatio)) > 500);
    QCOMPARE(differingPixels(direct, painted(true)), 0);
}

void tst_MvPaintRecording::keepsToTheTarget()
{
    const MvPaintRecording recording = recorded([](QPainter &painter) {
        painter.setPen(Qt::red);
        painter.setClipRect(QRectF(0, 0, 500, 500)); // replaces the clip of its own painter only
        painter.setOpacity(0.5);
        painter.fillRect(QRectF(0, 0, 500, 500), Qt::black);
    });
    QImage image = canvas();
    QPainter painter(&image);
    painter.setPen(Qt::blue);
    painter.setBrush(Qt::green);
    painter.setOpacity(0.5);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.translate(50, 40);
    painter.setClipRect(QRectF(0, 0, 30, 20));
    recording.replay(painter);

    QCOMPARE(painter.pen().color(), QColor(Qt::blue));
    QCOMPARE(painter.brush().color(), QColor(Qt::green));
    QCOMPARE(painter.opacity(), 0.5);
    QCOMPARE(painter.renderHints(), QPainter::RenderHints());
    QCOMPARE(painter.transform(), QTransform::fromTranslate(50, 40));
    QCOMPARE(painter.clipBoundingRect(), QRectF(0, 0, 30, 20));
    painter.end();
    QCOMPARE(differingPixels(image, canvas()), 30 * 20);
    QVERIFY(qAbs(qRed(image.pixel(60, 50)) - 0xf0 * 3 / 4) <= 2); // a quarter of black

    recording.replay(painter); // ended: nothing happens
    MvPaintRecording().replay(painter);
}

void tst_MvPaintRecording::replaysOnVectorTargets_data()
{
    const MvRows<Painting> row; // painting
    row("shapes", Painting(drawShapes));
    row("fills", Painting(drawFills));
    row("outlines", Painting(drawOutlines));
}

void tst_MvPaintRecording::replaysOnVectorTargets()
{
    const auto [painting] = MvRows<Painting>::current();
    const MvPaintRecording recording = recorded(painting);
    const auto rendered = [](const QByteArray &drawing) {
        QImage image = canvas();
        QPainter painter(&image);
        QSvgRenderer(drawing).render(&painter, QRectF(0, 0, 240, 200));
        return image;
    };
    const QByteArray direct = svg(painting);
    const QByteArray replayed = svg([&recording](QPainter &painter) { recording.replay(painter); });
    QCOMPARE(replayed.count("<path"), direct.count("<path"));
    QCOMPARE(differingPixels(rendered(replayed), rendered(direct)), 0);

    // a recorder is such a target, too
    const MvPaintRecording again = recorded([&recording](QPainter &painter) { recording.replay(painter); });
    QCOMPARE(again.describe(), recording.describe());
}

void tst_MvPaintRecording::clipsShapes_data()
{
    const MvRows<Painting> row; // painting
    row("shapes", Painting(drawShapes));
    row("fills", Painting(drawFills));
    row("patterns", Painting(drawPatterns));
    row("images", Painting(drawImages));
    row("states", Painting(drawStates));
    row("outlines", Painting(drawOutlines));
    row("switched clips", Painting(drawSwitchedClips));
    row("a coloured glyph", Painting([](QPainter &painter) {
            QFont font(u"Lato"_s);
            font.setPixelSize(60);
            painter.setClipRect(QRectF(40, 40, 50, 50));
            MvOutlinePainter::fillOutline(painter, {45, 100}, MvTextOutline(font, u"A\U0001F382"_s), Qt::black);
        }));
}

// what a target without clips shows of it is what others show
void tst_MvPaintRecording::clipsShapes()
{
    const auto [painting] = MvRows<Painting>::current();
    const QRectF window(31.5, 17.25, 150.25, 140.5);
    const MvPaintRecording recording = recorded(painting);
    const MvPaintRecording clipped = recording.clipped(window);
    for (const Item &item : clipped.items())
        QVERIFY2(item.clip.isNull(), qPrintable(clipped.describe()));
    const auto painted = [&](const MvPaintRecording &what, bool isClipped) {
        QImage image = canvas();
        QPainter painter(&image);
        painter.setRenderHints(hintsOfTarget);
        if (isClipped)
            painter.setClipRect(window);
        what.replay(painter);
        return image;
    };
    const QImage expected = painted(recording, true);
    const QImage actual = painted(clipped, false);
    int strayed = 0;
    int unlike = 0; // edges and thin lines, which become shapes, are smoothed otherwise
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const QRgb a = actual.pixel(x, y);
            const QRgb b = expected.pixel(x, y);
            const int difference =
                qMax(qAbs(qRed(a) - qRed(b)), qMax(qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))));
            const bool isBeyond = !window.toAlignedRect().contains(x, y);
            strayed += isBeyond && a != canvas().pixel(x, y) ? 1 : 0;
            unlike += difference > 128 ? 1 : 0;
        }
    }
    QCOMPARE(strayed, 0);
    QVERIFY2(unlike < 60, qPrintable(QString::number(unlike)));
}

void tst_MvPaintRecording::textsAreOneOperation()
{
    QFont font(u"Lato"_s);
    font.setPixelSize(20);
    const MvTextOutline outline(font, u"Illustration"_s);
    QVERIFY(outline.groups().size() > 8);
    const Painting twice = [&outline, &font](QPainter &painter) {
        MvOutlinePainter::fillOutline(painter, {10, 30}, outline, Qt::black);
        MvOutlinePainter::fillOutlines(painter, {{{10, 60}, outline}, {{10, 90}, outline}}, Qt::black);
        MvOutlinePainter::fillOutline(painter, {10, 90}, MvTextOutline(font, u"  "_s), Qt::black);
    };
    const MvPaintRecording recording = recorded(twice);
    QCOMPARE(recording.operationCount(), 2);
    const auto items = recording.items();
    QCOMPARE(items.size(), 3);
    QCOMPARE(items[2].text, outline.text());
    QCOMPARE(items[2].baseline, QPointF(10, 90));
    QCOMPARE(svg(twice).count("<path"), 2); // whole, where nothing is gained by parts
}

void tst_MvPaintRecording::reportsTheTarget()
{
    QImage image = canvas(2.0);
    image.setDotsPerMeterY(11811); // 300 dpi
    const MvPaintRecorder recorder(&image);
    QCOMPARE(recorder.logicalDpiX(), 150);
    QCOMPARE(recorder.logicalDpiY(), 300);
    QCOMPARE(recorder.width(), image.width());
    QCOMPARE(recorder.height(), image.height());
    QCOMPARE(recorder.devicePixelRatioF(), 1.0);
    QCOMPARE(MvPaintRecorder(nullptr).logicalDpiX(), 96);

    QFont font(u"Lato"_s);
    font.setPointSizeF(12);
    const MvPaintRecording recording = recorded([&font](QPainter &painter) {
        painter.setFont(font);
        QCOMPARE(QFontInfo(painter.font()).pixelSize(), 25); // 12 pt at 150 dpi
    });
    QVERIFY(recording.isEmpty());
}

void tst_MvPaintRecording::keepsHints()
{
    const auto custom = QPainter::RenderHints::fromInt(0x800000);
    const auto screen = QPainter::RenderHints::fromInt(0x800);
    QImage image = canvas();
    QPainter target(&image);
    target.setRenderHints(custom);
    const MvPaintRecording recording = recorded(target, [&](QPainter &painter) {
        QVERIFY((painter.renderHints() & custom) == custom);
        painter.setRenderHints(screen);
        painter.fillRect(QRectF(0, 0, 1, 1), Qt::red);
    });
    struct Probe : QPaintEngine
    {
        Probe()
            : QPaintEngine(AllFeatures)
        {}
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return true; }
        Type type() const override { return User; }
        void updateState(const QPaintEngineState &now) override { hints = now.renderHints(); }
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        void drawRects(const QRectF *, int) override { seen = hints; }
        QPainter::RenderHints hints;
        QPainter::RenderHints seen;
    };
    struct Device : QPaintDevice
    {
        QPaintEngine *paintEngine() const override { return &probe; }
        int metric(PaintDeviceMetric) const override { return 1; }
        mutable Probe probe;
    } device;
    QPainter painter(&device);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    recording.replay(painter);
    QCOMPARE(device.probe.seen, QPainter::TextAntialiasing | custom | screen);
}

void tst_MvPaintRecording::textBecomesOutlines()
{
    QFont font(u"Lato"_s);
    font.setPixelSize(20);
    const MvPaintRecording recording = recorded([&font](QPainter &painter) {
        painter.setFont(font);
        painter.setPen(Qt::darkRed);
        painter.drawText(QPointF(30.5, 60.25), u"Mai"_s);
        painter.translate(0, 80);
        QTextDocument document;
        document.setDefaultFont(font);
        document.setHtml(u"<p>Ein <b>fettes</b> Wort</p>"_s);
        document.drawContents(&painter);
    });
    const auto items = recording.items(MvPaintRecording::Item::Text);
    QStringList texts;
    for (const auto &item : items)
        texts << item.text;
    QCOMPARE(texts, QStringList({u"Mai"_s, u"Ein "_s, u"fettes"_s, u" Wort"_s}));
    QCOMPARE(items[0].baseline, QPointF(30.5, 60.25));
    QCOMPARE(items[0].fill, QColor(Qt::darkRed));
    QVERIFY(items[0].bounds.top() > 40 && items[0].bounds.bottom() < 62);
    QVERIFY(items[2].font.bold() && items[2].bounds.top() > 80);
    QCOMPARE(recording.items().size(), 4);
}

void tst_MvPaintRecording::items()
{
    const MvPaintRecording recording = recorded([](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::red);
        painter.save();
        painter.setClipRect(QRectF(0, 0, 50, 50));
        painter.translate(10, 0);
        painter.setClipRect(QRectF(0, 10, 100, 100), Qt::IntersectClip);
        const QRectF two[] = {QRectF(0, 0, 10, 10), QRectF(20, 0, 10, 10)};
        painter.drawRects(two, 2);
        painter.restore();
        painter.setPen(QPen(Qt::black, 0));
        painter.drawLine(QPointF(30, 20), QPointF(10, 20));
    });
    const auto items = recording.items();
    QCOMPARE(items.size(), 3);
    QCOMPARE(items[1].bounds, QRectF(30, 0, 10, 10));
    QCOMPARE(items[1].clip, QRectF(10, 10, 40, 40));
    QVERIFY(!items[1].stroke.isValid());
    QCOMPARE(items[2].bounds, QRectF(10, 20, 20, 0));
    QCOMPARE(items[2].line, QLineF(30, 20, 10, 20));
    QVERIFY(items[2].clip.isNull());
    QVERIFY(!items[2].fill.isValid());
}

MV_TEST_MAIN(tst_MvPaintRecording)
#include "tst_MvPaintRecording.moc"
