// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvInitializer.h"
#include "MvPaint/MvGlyphCoverage.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QFile>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QtEndian>

#include <array>
#include <functional>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
QFont lato(int pixels)
{
    QFont font(u"Lato"_s);
    font.setPixelSize(pixels);
    return font;
}

/// Lato by the name of Latu, with an M that stands elsewhere than its points say: its bearing is another one.
QByteArray latu()
{
    QFile file(MvDirectoryConfig::instance().resource(u"fonts/Lato-Regular.ttf"_s).filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray font = file.readAll();
    const auto at = [&font](qsizetype place) { return font.data() + place; };
    const qsizetype entry = font.indexOf("hmtx"); // of the list of tables: four letters, check, place, length
    const quint32 m = QRawFont(font, 20).glyphIndexesForString(u"M"_s).value(0);
    char *bearing = at(qFromBigEndian<quint32>(at(entry + 8)) + 4 * m + 2);
    qToBigEndian<qint16>(qint16(qFromBigEndian<qint16>(bearing) + 500), bearing);
    return font.replace("Lato", "Latu").replace(QByteArray("\0L\0a\0t\0o", 8), QByteArray("\0L\0a\0t\0u", 8));
}

QImage canvas()
{
    QImage image(700, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

QImage filled(const QTransform &transform, const std::function<void(QPainter &)> &fill)
{
    QImage image = canvas();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(transform);
    fill(painter);
    painter.end();
    return image;
}
} // namespace

class tst_MvTextOutlineCache : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void groups_data();
    void groups();
    void lettersAreThoseOfTheTextEngine_data();
    void lettersAreThoseOfTheTextEngine();
    void partsGiveThePixelsOfTheWhole_data();
    void partsGiveThePixelsOfTheWhole();
    void linesAreOneShape_data();
    void linesAreOneShape();
    void keepsByFontAndText();
    void keepsResolutionsApart();
    void advancesAreThoseOfTheOutlines();
    void isBounded();
    void forgetsWhenFontsChange();
    void servesThreads();
    void emojiArePictures();
    void postScriptFontsAreOutlines();
    void missingCharacters_data();
    void missingCharacters();
};

void tst_MvTextOutlineCache::groups_data()
{
    const MvRows<QString, int> row; // text, groups
    row("nothing", QString(), 0);
    row("blanks", u"   "_s, 0);
    row("one box each", u"Mai 2026"_s, 7);
}

void tst_MvTextOutlineCache::groups()
{
    const auto [text, groups] = MvRows<QString, int>::current();
    const MvTextOutline outline(MvBoxFont::font(100), text);
    QCOMPARE(outline.isEmpty(), outline.groups().isEmpty());
    QCOMPARE(outline.isEmpty(), outline.path().elementCount() == 0); // threads that ask for it change a mere start
    for (const MvTextOutline::Glyph &glyph : outline.glyphs())
        QVERIFY(glyph.path.elementCount() != 1);
    QCOMPARE(int(outline.groups().size()), groups);
    QCOMPARE(outline.advance(), 50.0 * double(text.size()));
    for (int i = 0; i < outline.groups().size(); ++i) {
        const auto &group = outline.groups()[i];
        const int character = i < 3 ? i : i + 1;
        QCOMPARE(group.left, 50.0 * character + 7.5);
        QCOMPARE(group.right, 50.0 * character + 42.5);
        QCOMPARE(group.top, -70.0);
        QCOMPARE(group.bottom, 0.0);
    }

    // holes and accents stay with their letters, and no group reaches into the next
    const MvTextOutline letters(lato(40), u"Äoi%"_s);
    QVERIFY(letters.groups().size() >= 4);
    int elements = 0;
    for (int i = 0; i < letters.groups().size(); ++i) {
        elements += letters.groups()[i].path.elementCount();
        QVERIFY(i == 0 || letters.groups()[i - 1].right < letters.groups()[i].left);
    }
    QCOMPARE(elements, letters.elementCount());
}

void tst_MvTextOutlineCache::lettersAreThoseOfTheTextEngine_data()
{
    MvInitializer::instance().setup(MvInitializerOption::WithoutWidgets); // which brings the fonts
    QVERIFY(QFontDatabase::addApplicationFontFromData(latu()) >= 0);
    const MvRows<QString, bool, bool> row; // family, isBold, isItalic
    // not all have all faces
    for (const char *family : {"Lato", "Latu", "Quicksand", "GFS Didot", "Inter", "Vollkorn"}) {
        for (const int style : {0, 1, 2, 3})
            row(QString::asprintf("%s %d", family, style), QString::fromLatin1(family), (style % 2 == 1), (style >= 2));
    }
}

void tst_MvTextOutlineCache::lettersAreThoseOfTheTextEngine()
{
    const auto [family, isBold, isItalic] = MvRows<QString, bool, bool>::current();
    QFont font(family);
    font.setPixelSize(43);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(isBold);
    font.setItalic(isItalic);
    for (const QString &text : {u"."_s, u"Ü"_s, u"%"_s, u"Mittwoch"_s}) { // a dot decides for all that follow
        QPainterPath expected;
        expected.addText(0.0, 0.0, font, text);
        const QRectF wanted = expected.controlPointRect();
        const QRectF is = MvTextOutline(font, text).bounds();
        const QPointF off[] = {is.topLeft() - wanted.topLeft(), is.bottomRight() - wanted.bottomRight()};
        QVERIFY2(off[0].manhattanLength() < 0.1 && off[1].manhattanLength() < 0.1, qPrintable(text));
    }
}

void tst_MvTextOutlineCache::partsGiveThePixelsOfTheWhole_data()
{
    const MvRows<QString, int, QTransform, QColor> row; // text, pixels, transform, color
    const QString texts[] = {u"Donnerstag, Christi Himmelfahrt"_s, u"fjÄÖÜ% AVATo '26"_s, u"|||||iiiillll....::::"_s};
    const std::pair<const char *, QTransform> transforms[] = {
        {"plain", {}},
        {"shrunk", QTransform::fromScale(0.31, 0.47)},
        {"page units", QTransform::fromScale(300.0 / 254.0, 300.0 / 254.0)},
        {"upside down", QTransform::fromScale(1.1, -1).translate(0, -240)},
        {"mirrored", QTransform::fromScale(-1, 1).translate(-650, 0)},
        {"rotated", QTransform().rotate(12)},
        {"upright", QTransform().translate(300, 0).rotate(90)},
    };
    for (const QString &text : texts) {
        for (const int pixels : {7, 12, 31}) {
            for (const auto &[name, transform] : transforms) {
                for (const QColor &color : {QColor(Qt::black), QColor(200, 30, 60, 120)})
                    row(QString::asprintf("%s %d %s %d", qPrintable(text.left(6)), pixels, name, color.alpha()), text,
                        pixels, transform, color);
            }
        }
    }
}

void tst_MvTextOutlineCache::partsGiveThePixelsOfTheWhole()
{
    const auto [text, pixels, transform, color] = MvRows<QString, int, QTransform, QColor>::current();
    const MvTextOutline outline(lato(pixels), text);
    for (const double shift : {0.0, 0.125, 0.37, 0.66}) {
        const QPointF baseline(20 + shift, 100.25 + shift);
        const QImage parts = filled(transform, [&, color = color](QPainter &painter) {
            MvOutlinePainter::fillOutline(painter, baseline, outline, color);
        });
        const QImage whole = filled(transform, [&, color = color](QPainter &painter) {
            painter.translate(baseline);
            painter.fillPath(outline.path(), color);
        });
        QVERIFY(whole != canvas());
        QVERIFY(parts == whole);
    }
}

void tst_MvTextOutlineCache::linesAreOneShape_data()
{
    const MvRows<double> row; // spacing
    row("apart", 40.0);
    row("in one pixel row", 31.2);
    row("overlapping", 11.7);
}

void tst_MvTextOutlineCache::linesAreOneShape()
{
    const auto [spacing] = MvRows<double>::current();
    const QColor color(0, 60, 200, 90);
    QList<MvPlacedOutline> lines;
    QPainterPath path;
    for (const QString &text : {u"Tag der"_s, QString(), u"Ärgernis"_s, u"Jäger"_s}) {
        const QPointF baseline(20 + 3 * double(lines.size()), 50 + spacing * double(lines.size()));
        lines.append({baseline, MvTextOutline(lato(31), text)});
        path.addPath(lines.last().outline.path().translated(baseline));
    }
    path.setFillRule(Qt::WindingFill);
    const QImage outlines =
        filled({}, [&](QPainter &painter) { MvOutlinePainter::fillOutlines(painter, lines, color); });
    const QImage whole = filled({}, [&](QPainter &painter) { painter.fillPath(path, color); });
    QVERIFY(outlines == whole);
}

void tst_MvTextOutlineCache::keepsByFontAndText()
{
    MvTextOutlineCache cache;
    const MvTextOutline first = cache.outline(lato(20), u"Mai"_s);
    const QPointF firstElement = first.path().elementAt(0);
    QCOMPARE(firstElement, QPointF(MvTextOutline(lato(20), u"Mai"_s).path().elementAt(0)));
    QCOMPARE(&cache.outline(lato(20), u"Mai"_s).path(), &first.path()); // shared

    QFont spaced = lato(20);
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    QFont bold = lato(20);
    bold.setBold(true);
    for (const QFont &font : {lato(21), spaced, bold, MvBoxFont::font(20)})
        QVERIFY(cache.outline(font, u"Mai"_s).path() != first.path());
    QCOMPARE(cache.outline(lato(20), u"Mai "_s).path(), first.path()); // but not the same advance
    QCOMPARE(cache.outlineCount(), 6);
}

void tst_MvTextOutlineCache::keepsResolutionsApart()
{
    MvTextOutlineCache cache;
    QFont font(u"MvBox"_s);
    font.setPointSizeF(30); // 30, 60 and 125 pixels: their boxes come out even
    font.setHintingPreference(QFont::PreferNoHinting);
    MvBoxFont::family();
    for (const int dpi : {72, 144, 300}) {
        QImage image = canvas();
        image.setDotsPerMeterX(qRound(dpi / 0.0254));
        image.setDotsPerMeterY(qRound(dpi / 0.0254));
        QPainter painter(&image);
        painter.setFont(font);
        QCOMPARE(cache.outline(painter.font(), u"12"_s).bounds().height(), 0.7 * 30 * dpi / 72);
    }
}

void tst_MvTextOutlineCache::advancesAreThoseOfTheOutlines()
{
    MvTextOutlineCache cache;
    QFont spaced = lato(23);
    spaced.setLetterSpacing(QFont::AbsoluteSpacing, 1.5);
    for (const QFont &font : {lato(23), lato(46), spaced, MvBoxFont::font(20)}) {
        for (const QString &text : {u"Christi Himmelfahrt"_s, u"AVATo…"_s, u" "_s, QString()}) {
            QCOMPARE(cache.advance(font, text), MvTextOutline(font, text).advance());
            QCOMPARE(cache.advance(font, text), MvTextOutline(font, text).advance()); // from the cache
        }
    }
    QCOMPARE(cache.outlineCount(), 0);
}

void tst_MvTextOutlineCache::isBounded()
{
    MvTextOutlineCache cache(2000);
    const auto day = [](int number) { return QString::number(number); };
    for (int number = 1; number <= 1000; ++number) {
        cache.outline(lato(20), day(number));
        cache.outline(lato(20), u"Januar"_s); // asked for all the time: stays
    }
    QVERIFY(cache.elementCount() <= 2000 && cache.elementCount() > 1000);
    const int count = cache.outlineCount();
    cache.outline(lato(20), u"Januar"_s);
    QCOMPARE(cache.outlineCount(), count);
    for (int number = 0; number < 1000; ++number)
        cache.outline(lato(20), QString(number, u' ')); // no elements, yet not for free
    QVERIFY(cache.outlineCount() < 200);

    cache.setMaximumElements(0);
    QCOMPARE(cache.outlineCount(), 0);
    QVERIFY(!cache.outline(lato(20), u"Januar"_s).isEmpty()); // not kept, but given
    QCOMPARE(cache.outlineCount(), 0);
}

void tst_MvTextOutlineCache::forgetsWhenFontsChange()
{
    MvTextOutlineCache &cache = MvTextOutlineCache::instance();
    cache.outline(lato(20), u"Mai"_s);
    QVERIFY(cache.outlineCount() > 0);
    Q_EMIT qGuiApp->fontDatabaseChanged();
    QCOMPARE(cache.outlineCount(), 0);
}

void tst_MvTextOutlineCache::servesThreads()
{
    constexpr int threadCount = 4;
    MvTextOutlineCache cache(3000); // small: outlines go while others use them
    std::array<QImage, threadCount> images;
    const auto paintPages = [&cache](QImage &image) {
        for (int round = 0; round < 20; ++round) {
            image = canvas();
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            for (int day = 1; day <= 31; ++day) {
                const MvTextOutline outline = cache.outline(lato(20), QStringLiteral("%1. Mai").arg(day));
                MvOutlinePainter::fillOutline(painter, QPoint(day % 6 * 100, 30 + day / 6 * 40), outline, Qt::black);
            }
        }
    };
    {
        std::vector<std::jthread> threads;
        threads.reserve(images.size());
        for (QImage &image : images)
            threads.emplace_back([&] { paintPages(image); });
    }
    for (const QImage &image : images)
        QVERIFY(image == images[0]);
    QVERIFY(images[0] != canvas());
}

void tst_MvTextOutlineCache::emojiArePictures()
{
    if (!QFontDatabase::families().contains(u"Noto Color Emoji"_s))
        QSKIP("no emoji without their font");
    for (const int pixels : {30, 50, 30}) { // one size must not spoil the measures of another
        const MvTextOutline outline(lato(pixels), u"A\U0001F382\U0001F389"_s);
        QCOMPARE(outline.pictures().size(), 2);
        const QRectF cake = outline.pictures().at(0).rect;
        const QRectF party = outline.pictures().at(1).rect;
        QVERIFY(cake.left() > MvTextOutline(lato(pixels), u"A"_s).bounds().right());
        QVERIFY(cake.right() < party.left() && cake.width() > 0.5 * pixels && party.right() <= outline.advance());
        QVERIFY(outline.bounds().contains(cake) && !outline.isEmpty());

        const QImage image = filled(QTransform::fromTranslate(50, 100), [&outline](QPainter &painter) {
            MvOutlinePainter::fillOutline(painter, {}, outline, Qt::black);
        });
        int colored = 0;
        for (int x = 50 + int(cake.left()); x < 50 + int(cake.right()); ++x)
            colored += image.pixelColor(x, 100 - pixels / 4).hsvSaturation() > 40 ? 1 : 0;
        QVERIFY(colored > cake.width() / 3);
    }
}

/// They have outlines, too, though not in tables.
void tst_MvTextOutlineCache::postScriptFontsAreOutlines()
{
    QFont font(u"Nimbus Sans"_s);
    font.setPixelSize(40);
    if (const QRawFont raw = QRawFont::fromFont(font);
        raw.familyName() != font.family() || !raw.fontTable("head").isEmpty())
        QSKIP("no such font on this computer");
    QCOMPARE(MvTextOutline(font, u"Mai 2027"_s).glyphs().size(), 8);
}

void tst_MvTextOutlineCache::missingCharacters_data()
{
    const MvRows<QString, QString> row; // text, missing
    row("none", u"Jörg\u00a0– „Süß“ Žižek"_s, QString());
    row("each once", u"x\U000F1234y\U00101234\U000F1234"_s, u"\U000F1234\U00101234"_s);
    row("never seen", u"a\u200d\ufe0f\u0301\u00ad\u3164\t"_s, QString());
}

void tst_MvTextOutlineCache::missingCharacters()
{
    const auto [text, missing] = MvRows<QString, QString>::current();
    QCOMPARE(MvGlyphCoverage::missingCharacters(lato(20), text), missing);
}

MV_TEST_MAIN(tst_MvTextOutlineCache)
#include "tst_MvTextOutlineCache.moc"
