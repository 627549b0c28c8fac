// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvGlyphLine.h"

#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvGlyphOutlines.h"
#include "MvPaint/MvGlyphPictures.h"
#include "MvPaint/MvJoinedPath.h"
#include "MvPaint/MvPrintableText.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace {

constexpr qsizetype longestTurned = 2000; // asking where each character stands takes the square of their number

bool isDecorated(const QFont &font)
{
    return font.underline() || font.overline() || font.strikeOut();
}

/// The text in the letters that the font's capitalisation makes of it, one for one.
QString asShown(QString text, QFont::Capitalization capitalization)
{
    const bool isUpper = capitalization == QFont::AllUppercase || capitalization == QFont::SmallCaps;
    if (!isUpper && capitalization != QFont::AllLowercase)
        return text;
    for (QChar &letter : text)
        letter = isUpper ? letter.toUpper() : letter.toLower();
    return text;
}

/// By how many characters and glyphs to go on until both are the same again.
struct Step
{
    qsizetype characters;
    qsizetype glyphs;
};

std::optional<Step> stepToMatch(const QList<quint32> &characters, qsizetype character, const QList<quint32> &glyphs,
                                qsizetype glyph)
{
    constexpr qsizetype farthest = 6; // longer ligatures are not in use
    for (qsizetype sum = 0; sum <= 2 * farthest; ++sum) {
        for (qsizetype step = std::min(sum, farthest); step >= std::max(qsizetype(0), sum - farthest); --step) {
            const qsizetype c = character + step;
            const qsizetype g = glyph + sum - step;
            const bool isEnd = c == characters.size() && g == glyphs.size();
            if (isEnd || (c < characters.size() && g < glyphs.size() && characters[c] == glyphs[g]))
                return Step{step, sum - step};
        }
    }
    return std::nullopt;
}

/// Stands for letters whose script no font can set: it has no size, and whoever asks for its name crashes.
bool hasNoFont(const QGlyphRun &run)
{
    return run.rawFont().pixelSize() <= 0.0;
}

/// The text engine gives the runs of several fonts in any order.
QList<QGlyphRun> fromLeftToRight(QList<QGlyphRun> runs)
{
    const auto start = [](const QGlyphRun &run) { return run.positions().value(0).x(); };
    std::sort(runs.begin(), runs.end(),
              [&start](const QGlyphRun &a, const QGlyphRun &b) { return start(a) < start(b); });
    return runs;
}

} // namespace

MvGlyphLine::MvGlyphLine(const QFont &font, const QString &text)
    : m_seen(asShown(text, font.capitalization()))
    , m_isTurned(text.size() <= longestTurned && MvPrintableText::isTurned(text))
{
    MvFontSupply::provide(font, text);
    m_path.setFillRule(Qt::WindingFill);
    const bool hasPictures = MvGlyphPictures::mayBeNeeded(font, text);
    if (isDecorated(font) && !hasPictures) {
        m_path.addText(0.0, 0.0, font, text);
        return;
    }
    QTextLayout layout(text, font);
    layout.setCacheEnabled(true);
    if (!hasPictures) {
        QTextOption option;
        option.setUseDesignMetrics(true);
        layout.setTextOption(option);
    }
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return;
    const QList<QGlyphRun> runs = fromLeftToRight(layout.glyphRuns());
    for (const QGlyphRun &run : runs) {
        if (hasNoFont(run))
            addBoxes(run, QRawFont::fromFont(font), line.ascent());
        else if (hasPictures && MvGlyphPictures::hasNoOutlines(run.rawFont()))
            addPictures(run, line.ascent());
        else
            add(run, line.ascent());
    }
    if (m_isTurned)
        assignTurnedCharacters(layout, line.ascent());
    join();
}

void MvGlyphLine::join()
{
    MvJoinedPath joined(
        std::accumulate(m_glyphs.cbegin(), m_glyphs.cend(), 0, [](int count, const MvTextOutline::Glyph &glyph) {
            return count + glyph.path.elementCount();
        }));
    for (const MvTextOutline::Glyph &glyph : std::as_const(m_glyphs))
        joined.add(glyph.path, glyph.origin);
    m_path = joined.path();
}

void MvGlyphLine::add(const QGlyphRun &run, double baseline)
{
    const qsizetype first = m_glyphs.size();
    add(run.rawFont(), run.glyphIndexes(), run.positions(), baseline);
    if (!m_isTurned)
        assignCharacters(run, first);
}

void MvGlyphLine::add(const QRawFont &font, const QList<quint32> &indexes, const QList<QPointF> &positions,
                      double baseline)
{
    MvGlyphOutlines &outlines = MvGlyphOutlines::instance();
    const int face = outlines.faceOf(font);
    const QList<QPointF> advances = font.advancesForGlyphIndexes(indexes, QRawFont::UseDesignMetrics);
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        MvTextOutline::Glyph glyph;
        glyph.face = face;
        glyph.index = indexes[i];
        glyph.em = font.pixelSize();
        glyph.unitsPerEm = static_cast<int>(std::lround(font.unitsPerEm()));
        glyph.advance = advances.value(i).x();
        glyph.origin = positions.at(i) - QPointF(0.0, baseline);
        glyph.path = outlines.outline(face, font, indexes[i]);
        m_glyphs.append(glyph);
    }
}

/// One for each character, as for a character that is missing in its font.
void MvGlyphLine::addBoxes(const QGlyphRun &run, const QRawFont &font, double baseline)
{
    constexpr quint32 box = 0;
    const QList<QPointF> positions = run.positions();
    const qsizetype first = m_glyphs.size();
    add(font, QList<quint32>(positions.size(), box), positions, baseline);
    for (qsizetype i = first; i < m_glyphs.size() && m_nextCharacter < m_seen.size(); ++i) {
        m_glyphs[i].firstCharacter = int(m_nextCharacter++);
        m_glyphs[i].characters = 1;
    }
}

void MvGlyphLine::addPictures(const QGlyphRun &run, double baseline)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
        const MvGlyphPictures::Glyph glyph = MvGlyphPictures::of(font, indexes[i]);
        const QPointF origin = positions.at(i) - QPointF(0.0, baseline);
        const double em = font.pixelSize();
        if (!glyph.image.isNull())
            m_pictures.append({glyph.image, {origin + glyph.rect.topLeft() * em, glyph.rect.size() * em}});
    }
}

void MvGlyphLine::assignCharacters(const QGlyphRun &run, qsizetype first)
{
    const QString rest = m_seen.sliced(m_nextCharacter);
    const QList<quint32> characters = run.rawFont().glyphIndexesForString(rest); // one of each character
    const QList<quint32> glyphs = run.glyphIndexes();
    const auto sizeAt = [&rest](qsizetype at) { // half of a pair is a character, too
        return at + 1 < rest.size() && rest[at].isHighSurrogate() && rest[at + 1].isLowSurrogate() ? 2 : 1;
    };
    qsizetype character = 0; // of the characters
    qsizetype unit = 0;      // of the rest
    qsizetype glyph = 0;
    while (glyph < glyphs.size()) {
        const Step step = stepToMatch(characters, character, glyphs, glyph).value_or(Step{1, 1});
        const qsizetype start = unit;
        const bool isSame = step.characters == 0 && step.glyphs == 0;
        for (qsizetype i = 0; i < (isSame ? 1 : step.characters) && unit < rest.size(); ++i, ++character)
            unit += sizeAt(unit);
        // what has no glyph of its own goes to the one before
        MvTextOutline::Glyph &owner = m_glyphs[std::max(first, first + glyph - (step.glyphs == 0 && !isSame ? 1 : 0))];
        if (owner.characters == 0)
            owner.firstCharacter = int(m_nextCharacter + start);
        owner.characters += int(unit - start);
        glyph += isSame ? 1 : step.glyphs;
    }
    m_nextCharacter += unit;
    shareCharacters(first);
}

/// Of "fff" as a ligature and a letter one may have been given all: a glyph without characters takes one of those of
/// the glyph beside it.
void MvGlyphLine::shareCharacters(qsizetype first)
{
    for (qsizetype i = first; i < m_glyphs.size(); ++i) {
        if (m_glyphs[i].characters > 0)
            continue;
        const bool isFromNext = i + 1 < m_glyphs.size() && m_glyphs[i + 1].characters > 1;
        const qsizetype from = isFromNext ? i + 1 : i - 1;
        if (from < first || m_glyphs[from].characters < 2)
            continue;
        MvTextOutline::Glyph &owner = m_glyphs[from];
        const int taken = isFromNext ? owner.firstCharacter : owner.firstCharacter + owner.characters - 1;
        if (m_seen[taken].isSurrogate() || m_seen[taken].isMark())
            continue;
        m_glyphs[i].firstCharacter = taken;
        m_glyphs[i].characters = 1;
        owner.firstCharacter += isFromNext ? 1 : 0;
        --owner.characters;
    }
}

void MvGlyphLine::assignTurnedCharacters(const QTextLayout &layout, double baseline)
{
    std::stable_sort(m_glyphs.begin(), m_glyphs.end(),
                     [](const auto &a, const auto &b) { return a.origin.x() < b.origin.x(); });
    const int end = int(m_seen.size());
    for (int at = 0, next = 0; at < end; at = next) {
        next = std::max(at + 1, layout.nextCursorPosition(at)); // a letter with its marks
        const QList<qsizetype> places = placesOf(layout.glyphRuns(at, next - at), baseline);
        if (places.isEmpty())
            continue;
        MvTextOutline::Glyph &first = m_glyphs[places.first()];
        if (first.characters > 0) { // a ligature's second letter
            first.characters += next - at;
        } else if (places.size() == next - at) {
            for (const qsizetype place : places) {
                m_glyphs[place].firstCharacter = at++;
                m_glyphs[place].characters = 1;
            }
        } else {
            first.firstCharacter = at;
            first.characters = next - at;
        }
    }
}

QList<qsizetype> MvGlyphLine::placesOf(const QList<QGlyphRun> &runs, double baseline) const
{
    constexpr double near = 0.01; // pixels
    QList<qsizetype> places;
    for (const QGlyphRun &run : runs) {
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            const QPointF place = positions[i] - QPointF(0.0, baseline);
            auto found = std::lower_bound(m_glyphs.cbegin(), m_glyphs.cend(), place.x() - near,
                                          [](const auto &glyph, double x) { return glyph.origin.x() < x; });
            while (found != m_glyphs.cend() && found->index != indexes[i])
                ++found;
            if (found != m_glyphs.cend() && found->origin.x() <= place.x() + near)
                places.append(found - m_glyphs.cbegin());
        }
    }
    return places;
}
