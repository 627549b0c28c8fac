// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvTextPainter.h"

#include "MvCore/MvStringHelper.h"
#include "MvPaint/MvHyphenator.h"
#include "MvPaint/MvLineBreaker.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextOutlineCache.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype mostInLine = 2000; // more than a line of the largest sheet has room for

MvTextOutline outlineOf(const QFont &font, const QString &text)
{
    const QString line = MvPrintableText::shapeable(MvStringHelper::beginning(text, mostInLine));
    return MvTextOutlineCache::instance().outline(font, MvHyphenator::withoutSoftHyphens(line));
}

// the alignment rules of QFontMetricsF::boundingRect() for a block of the given size, without its wrapping
QRectF aligned(const QRectF &rect, int flags, double width, double height)
{
    double x = 0.0;
    if (flags & Qt::AlignRight)
        x = rect.width() - width;
    else if (flags & Qt::AlignHCenter)
        x = (rect.width() - width) / 2.0;
    double y = 0.0;
    if (flags & Qt::AlignBottom)
        y = rect.height() - height;
    else if (flags & Qt::AlignVCenter)
        y = (rect.height() - height) / 2.0;
    return {rect.x() + x, rect.y() + y, width, height};
}

MvPlacedOutline placedLine(const QFont &font, const QRectF &rect, int flags, const QString &text)
{
    const QFontMetricsF metrics(font);
    const MvTextOutline outline = outlineOf(font, text);
    const QRectF box = aligned(rect, flags, outline.advance(), metrics.height());
    return {{box.x(), box.y() + metrics.ascent()}, outline};
}

/// Each centred on the widest.
QList<MvPlacedOutline> placedLines(const QFont &font, const QRectF &rect, int flags, const QStringList &lines)
{
    const QFontMetricsF metrics(font);
    QList<MvPlacedOutline> block;
    double width = 0.0;
    for (const QString &line : lines) {
        block.append({{}, outlineOf(font, line)});
        width = std::max(width, block.constLast().outline.advance());
    }
    const QRectF box = aligned(rect, flags, width, metrics.height() * double(lines.size()));
    const auto place = [&box](MvPlacedOutline &line, double y) {
        line.baseline = {std::trunc((box.width() - line.outline.advance()) / 2.0) + box.x(), y};
    };
    if (flags & Qt::AlignBottom) {
        double y = std::trunc(rect.top() + rect.height() - metrics.descent());
        for (auto line = block.rbegin(); line != block.rend(); ++line) {
            place(*line, y);
            y = std::trunc(y - metrics.height());
        }
    } else {
        double y = std::trunc(rect.top() + metrics.ascent());
        for (MvPlacedOutline &line : block) {
            place(line, y);
            y = std::trunc(y + metrics.height());
        }
    }
    return block;
}

} // namespace

int MvTextPainter::advance(const QFont &font, const QString &text)
{
    return static_cast<int>(std::lround(MvLineBreaker::advance(font, text)));
}

bool MvTextPainter::isTextToWide(int maxWidth, const QFont &font, const QString &text)
{
    return MvLineBreaker::isTooWide(maxWidth, font, text);
}

bool MvTextPainter::isAnyTextToWide(int maxWidth, const QFont &font, const QStringList &texts)
{
    return std::any_of(texts.cbegin(), texts.cend(),
                       [&](const QString &text) { return isTextToWide(maxWidth, font, text); });
}

QStringList MvTextPainter::breakLines(int maxWidth, const QFont &font, const QStringList &texts)
{
    return MvLineBreaker(maxWidth, font).lines(texts);
}

QStringList MvTextPainter::fitLines(int maxWidth, int maxLines, const QFont &font, const QStringList &texts,
                                    bool *isCut)
{
    MvLineBreaker breaker(maxWidth, font);
    breaker.setMostLines(std::max(0, maxLines) + 1);
    const QStringList lines = breaker.lines(texts);
    *isCut = lines.size() > maxLines;
    if (!*isCut)
        return lines;
    breaker.setMostLines(maxLines);
    return breaker.cutLines(texts);
}

QString MvTextPainter::elided(int maxWidth, const QFont &font, const QString &text)
{
    return MvLineBreaker::elided(maxWidth, font, text);
}

QRectF MvTextPainter::boundingRect(const QFont &font, const QRectF &rect, int flags, const QString &text)
{
    return aligned(rect, flags, MvLineBreaker::advance(font, text), QFontMetricsF(font).height());
}

QRectF MvTextPainter::inkRect(const QFont &font, const QRectF &rect, int flags, const QStringList &lines)
{
    QRectF ink;
    const QList<MvPlacedOutline> block = lines.size() == 1 ? QList{placedLine(font, rect, flags, lines.constFirst())}
                                                           : placedLines(font, rect, flags, lines);
    for (const MvPlacedOutline &line : block) {
        if (!line.outline.isEmpty())
            ink |= line.bounds();
    }
    return ink;
}

void MvTextPainter::drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text)
{
    const MvPlacedOutline line = placedLine(painter.font(), rect, flags, text);
    MvOutlinePainter::fillOutline(painter, line.baseline, line.outline, painter.pen().color());
}

void MvTextPainter::drawTexts(QPainter &painter, const QRectF &rect, int flags, const QStringList &lines)
{
    MvOutlinePainter::fillOutlines(painter, placedLines(painter.font(), rect, flags, lines), painter.pen().color());
}
