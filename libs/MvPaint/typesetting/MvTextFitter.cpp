// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextFitter.h"

#include "MvCore/MvMath.h"
#include "MvPaint/MvLineBreaker.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <optional>

namespace {

constexpr double pageDpi = 254.0; // a pixel of the page is a tenth of a millimetre
constexpr double stepPoints = 0.5;
constexpr double leastGrowth = 0.9;     // of a text's width by its size: advances are rounded in each size
constexpr double leastLineHeight = 0.5; // of a font's size: no metrics are made for sizes far beyond the room
constexpr double roundingSlack = 0.01;  // of a line's height: rooms are often computed from it

int lineCount(double height, const QFont &font)
{
    return std::max(0, static_cast<int>(height / QFontMetricsF(font).height() + roundingSlack));
}

QFont resized(const QFont &font, int pixelSize)
{
    QFont smaller = font;
    if (font.letterSpacingType() == QFont::AbsoluteSpacing && font.letterSpacing() != 0.0)
        smaller.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * pixelSize / font.pixelSize());
    smaller.setPixelSize(pixelSize);
    return smaller;
}

/// The width of all the lines together.
double totalAdvance(const QFont &font, const QStringList &lines)
{
    return std::transform_reduce(lines.cbegin(), lines.cend(), 0.0, std::plus(),
                                 [&font](const QString &line) { return MvLineBreaker::advance(font, line); });
}

} // namespace

MvTextFitter::MvTextFitter(const QFont &font, double floor, const MvHyphenator &hyphenator)
    : m_font(font)
    , m_floor(floor)
    , m_hyphenator(hyphenator)
{}

QList<QFont> MvTextFitter::sizes() const
{
    QList<QFont> fonts{m_font};
    const int smallest = std::max(1, static_cast<int>(std::ceil(m_floor)));
    for (double size = m_font.pixelSize(); size > smallest;) {
        size = std::max(double(smallest), size - MvMath::point2pixel(stepPoints, pageDpi));
        fonts.append(resized(m_font, static_cast<int>(std::lround(size))));
    }
    return fonts;
}

MvFittedText MvTextFitter::fit(const QSizeF &room, const QStringList &texts, double widestWord) const
{
    return fit(room, texts, QString(), std::max(static_cast<int>(room.width()), static_cast<int>(widestWord)));
}

MvFittedText MvTextFitter::fitRunning(const QSizeF &room, const QStringList &texts, const QString &separator) const
{
    QStringList said = texts;
    said.removeAll(QString()); // which would leave their separators
    return fit(room, said, separator, static_cast<int>(room.width()));
}

MvFittedText MvTextFitter::fit(const QSizeF &room, const QStringList &texts, const QString &separator,
                               int widestWord) const
{
    const auto lines = [&](const QFont &font, MvLineBreaker::Division division) -> std::optional<QStringList> {
        const int mostLines = lineCount(room.height(), font);
        MvLineBreaker breaker(static_cast<int>(room.width()), font);
        breaker.setWidestWord(widestWord);
        breaker.setSeparator(separator);
        breaker.setMostLines(mostLines + 1);
        breaker.setDivision(division, m_hyphenator);
        const QStringList found = breaker.lines(texts);
        return found.size() <= mostLines && !breaker.hasTooWideWord() ? std::optional(found) : std::nullopt;
    };
    if (const auto asItIs = lines(m_font, MvLineBreaker::NoWords))
        return {m_font, *asItIs, false, {}};
    const QList<QFont> fonts = sizes();
    const QFont &smallest = fonts.constLast();
    const auto atLeast = lines(smallest, MvLineBreaker::AllWords);
    if (!atLeast) // no size between will do
        return cut(room, texts, separator, widestWord);
    const double smallestWidth = totalAdvance(smallest, *atLeast);
    for (const QFont &font : fonts) {
        if (font.pixelSize() * leastLineHeight > room.height())
            continue;
        const double leastWidth = leastGrowth * smallestWidth * font.pixelSize() / smallest.pixelSize();
        if (leastWidth > lineCount(room.height(), font) * double(widestWord))
            continue; // more text than the room's area
        const auto filled = lines(font, MvLineBreaker::AllWords);
        if (!filled)
            continue;
        for (const auto gentler : {MvLineBreaker::NoWords, MvLineBreaker::LongWords}) {
            if (const auto found = lines(font, gentler))
                return {font, *found, false, {}};
        }
        return {font, *filled, false, {}};
    }
    return cut(room, texts, separator, widestWord);
}

/// As much as there is room for in the smallest type.
MvFittedText MvTextFitter::cut(const QSizeF &room, const QStringList &texts, const QString &separator,
                               int widestWord) const
{
    const QFont font = sizes().constLast();
    MvLineBreaker breaker(static_cast<int>(room.width()), font);
    breaker.setWidestWord(widestWord);
    breaker.setSeparator(separator);
    breaker.setMostLines(lineCount(room.height(), font));
    breaker.setDivision(MvLineBreaker::AllWords, m_hyphenator);
    MvFittedText fitted{font, breaker.cutLines(texts), true, {}};
    const QList<qsizetype> cut = breaker.cutTexts();
    for (const qsizetype index : cut)
        fitted.cutTexts.append(texts.at(index));
    return fitted;
}

MvFittedText MvTextFitter::fitLine(double width, const QString &text) const
{
    const int most = static_cast<int>(width);
    if (!MvLineBreaker::isTooWide(most, m_font, text))
        return {m_font, {text}, false, {}};
    const QList<QFont> fonts = sizes();
    const QFont &smallest = fonts.constLast();
    if (MvLineBreaker::isTooWide(most, smallest, text)) { // no size between will do
        const QString line = MvLineBreaker::elided(most, smallest, text);
        if (MvLineBreaker::isTooWide(most, smallest, line)) // there is no room even for an ellipsis
            return {smallest, {}, true, {text}};
        return {smallest, {line}, true, {text}};
    }
    const double growth = leastGrowth * MvLineBreaker::advance(smallest, text) / smallest.pixelSize();
    for (const QFont &font : fonts) {
        if (growth * font.pixelSize() <= most && !MvLineBreaker::isTooWide(most, font, text))
            return {font, {text}, false, {}};
    }
    return {smallest, {text}, false, {}};
}
