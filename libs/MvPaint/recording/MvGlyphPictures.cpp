// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvGlyphPictures.h"

#include <QCache>
#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QHash>
#include <QMutex>
#include <QPainter>
#include <QRawFont>
#include <QString>

#include <algorithm>
#include <cmath>

namespace {

// pixels per em of the pictures: 500 dots per inch for texts of days, 200 for titles, and no more than fonts have
constexpr double finePixels = 160.0;
constexpr double largePixels = 320.0;
constexpr int largeFont = 100; // pixels

constexpr int mostGlyphs = 500; // kept
constexpr char16_t firstSymbol = 0x20a0;

using Glyph = MvGlyphPictures::Glyph;

struct Key
{
    QString family;
    quint32 glyph;
    int pixels;

    bool operator==(const Key &) const = default;
    friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.family, key.glyph, key.pixels); }
};

/// The smallest rectangle with everything that is seen in the image.
QRect seen(const QImage &image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) > 0)
                rect |= QRect(x, y, 1, 1);
        }
    }
    return rect;
}

/// The glyph is painted with a scaled painter and cut out of the result: asking the font for its other sizes, or for
/// the bounds of a bitmap, spoils its measures of all texts that follow.
Glyph painted(const QRawFont &font, quint32 index, double pixels)
{
    const double em = font.pixelSize();
    const QPointF origin(em, 2.0 * em);
    QImage image((QSizeF(4.0, 3.0) * pixels).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QGlyphRun run;
    run.setRawFont(font);
    run.setGlyphIndexes({index});
    run.setPositions({QPointF()});
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(pixels / em, pixels / em);
    painter.drawGlyphRun(origin, run);
    painter.end();
    const QRect rect = seen(image);
    if (rect.isEmpty())
        return {};
    return {image.copy(rect), {QPointF(rect.topLeft()) / pixels - origin / em, QSizeF(rect.size()) / pixels}};
}

} // namespace

Glyph MvGlyphPictures::of(const QRawFont &font, quint32 index)
{
    const double pixels = font.pixelSize() < largeFont ? finePixels : largePixels;
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

bool MvGlyphPictures::hasNoOutlines(const QRawFont &font)
{
    static QMutex mutex;
    static QHash<QString, bool> known;
    const QMutexLocker lock(&mutex);
    const QString name = font.familyName() + font.styleName();
    if (const auto found = known.constFind(name); found != known.cend())
        return *found;
    // "loca" says where the outlines of "glyf" are, and is far smaller to copy
    bool isBitmap =
        font.fontTable("loca").isEmpty() && font.fontTable("CFF ").isEmpty() && font.fontTable("CFF2").isEmpty();
    if (isBitmap && font.fontTable("head").isEmpty()) // a file without tables, such as those of PostScript's fonts
        isBitmap = !QFontDatabase::isSmoothlyScalable(font.familyName(), font.styleName());
    return *known.insert(name, isBitmap);
}

bool MvGlyphPictures::mayBeNeeded(const QFont &font, const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() >= firstSymbol; }) ||
           hasNoOutlines(QRawFont::fromFont(font));
}
