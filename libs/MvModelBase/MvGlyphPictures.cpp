#include "MvModelBase/MvGlyphPictures.h"

#include <QCache>
#include <QGlyphRun>
#include <QMutex>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

// pixels per em of the pictures: 500 dots per inch for texts of days, 200 for titles, and no more than fonts have
constexpr double finePixels = 160.0;
constexpr double largePixels = 320.0;
constexpr int largeFont = 100; // pixels

constexpr int mostGlyphs = 500; // kept
constexpr char16_t firstSymbol = 0x20a0;

struct Glyph
{
    QImage image; // null: nothing is seen of it
    QRectF rect;  // in ems from the glyph's origin
};

struct Key
{
    QString family;
    quint32 glyph;
    int pixels;

    bool operator==(const Key &) const = default;
    friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.family, key.glyph, key.pixels); }
};

Glyph painted(QRawFont font, quint32 index, double pixels)
{
    font.setPixelSize(pixels);
    const QRectF rect = font.boundingRect(index);
    if (rect.isEmpty())
        return {};
    QImage image(rect.size().toSize() + QSize(1, 1), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({index});
    run.setPositions({QPointF()});
    QPainter painter(&image);
    painter.drawGlyphRun(-rect.topLeft(), run);
    painter.end();
    return {image, QRectF(rect.topLeft() / pixels, QSizeF(image.size()) / pixels)};
}

/// Painted once per font, glyph and size.
Glyph pictureOf(const QRawFont &font, quint32 index, double pixels)
{
    static QMutex mutex;
    static QCache<Key, Glyph> known(mostGlyphs);
    const Key key{font.familyName() + font.styleName(), index, static_cast<int>(pixels)};
    const QMutexLocker lock(&mutex);
    if (const Glyph *glyph = known.object(key))
        return *glyph;
    const Glyph fresh = painted(font, index, pixels);
    known.insert(key, new Glyph(fresh));
    return fresh;
}

} // namespace

QList<MvTextOutline::Picture> MvGlyphPictures::of(const QFont &font, const QString &text, bool hasNoOutline)
{
    const auto mayBePicture = [](QChar c) { return c.unicode() >= firstSymbol; };
    const bool isBlank = std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSpace(); });
    if (isBlank || (!hasNoOutline && std::none_of(text.cbegin(), text.cend(), mayBePicture)))
        return {};
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();

    QList<MvTextOutline::Picture> pictures;
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs) {
        const QRawFont raw = run.rawFont();
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            if (indexes.at(i) == 0 || !raw.pathForGlyph(indexes.at(i)).isEmpty())
                continue;
            const Glyph glyph = pictureOf(raw, indexes.at(i), raw.pixelSize() < largeFont ? finePixels : largePixels);
            if (glyph.image.isNull())
                continue;
            const double em = raw.pixelSize();
            const QPointF origin = positions.at(i) - QPointF(0.0, line.ascent());
            pictures.append({glyph.image, {origin + glyph.rect.topLeft() * em, glyph.rect.size() * em}});
        }
    }
    return pictures;
}
