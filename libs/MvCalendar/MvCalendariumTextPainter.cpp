#include "MvCalendar/MvCalendariumTextPainter.h"

#include "MvCalendar/MvLineBreaker.h"
#include "MvCore/MvStringHelper.h"
#include "MvModelBase/MvHyphenator.h"
#include "MvModelBase/MvOutlinePainter.h"
#include "MvModelBase/MvPrintableText.h"
#include "MvModelBase/MvTextOutlineCache.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar ellipsis(u'…');

constexpr qsizetype firstLook = 128;   // code units of a text that are measured before the rest is looked at
constexpr qsizetype mostInLine = 2000; // more than a line of the largest sheet has room for

MvTextOutline outlineOf(const QFont &font, const QString &text)
{
    const QString line = MvPrintableText::shapeable(MvStringHelper::beginning(text, mostInLine));
    return MvTextOutlineCache::instance().outline(font, MvHyphenator::withoutSoftHyphens(line));
}

/// The ends of the graphemes of a text, from its start.
QList<qsizetype> graphemeEnds(const QString &text)
{
    QList<qsizetype> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    while (finder.toNextBoundary() > 0)
        ends.append(finder.position());
    return ends;
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

} // namespace

int MvCalendariumTextPainter::advance(const QFont &font, const QString &text)
{
    return static_cast<int>(std::lround(MvLineBreaker::advance(font, text)));
}

bool MvCalendariumTextPainter::isTextToWide(int maxWidth, const QFont &font, const QString &text)
{
    return MvLineBreaker::isTooWide(maxWidth, font, text);
}

bool MvCalendariumTextPainter::isAnyTextToWide(int maxWidth, const QFont &font, const QStringList &texts)
{
    return std::any_of(texts.cbegin(), texts.cend(),
                       [&](const QString &text) { return isTextToWide(maxWidth, font, text); });
}

QStringList MvCalendariumTextPainter::breakLines(int maxWidth, const QFont &font, const QStringList &texts)
{
    return MvLineBreaker(maxWidth, font).lines(texts);
}

QStringList MvCalendariumTextPainter::fitLines(int maxWidth, int maxLines, const QFont &font, const QStringList &texts,
                                               bool *isCut)
{
    MvLineBreaker breaker(maxWidth, font);
    breaker.setMostLines(std::max(0, maxLines) + 1);
    QStringList lines = breaker.lines(texts);
    *isCut = lines.size() > maxLines;
    if (!*isCut)
        return lines;
    lines.resize(std::max(0, maxLines));
    if (!lines.isEmpty())
        lines.last() = elided(maxWidth, font, lines.constLast() + ellipsis);
    return lines;
}

QString MvCalendariumTextPainter::elided(int maxWidth, const QFont &font, const QString &text)
{
    if (!isTextToWide(maxWidth, font, text))
        return text;
    const auto shortened = [](const QString &kept) {
        qsizetype end = kept.size();
        while (end > 0 && kept.at(end - 1) == u' ')
            --end;
        return kept.first(end) + ellipsis;
    };
    QString kept = text.endsWith(ellipsis) ? text.chopped(1) : text;
    for (qsizetype length = firstLook; length < kept.size(); length *= 2) {
        const QString start = MvStringHelper::beginning(kept, length);
        if (isTextToWide(maxWidth, font, shortened(start)))
            kept = start;
    }
    const QList<qsizetype> ends = graphemeEnds(kept);
    const auto tooLong = std::partition_point(ends.cbegin(), ends.cend(), [&](qsizetype end) {
        return !isTextToWide(maxWidth, font, shortened(kept.first(end)));
    });
    return shortened(kept.first(tooLong == ends.cbegin() ? 0 : *std::prev(tooLong)));
}

QRectF MvCalendariumTextPainter::boundingRect(const QFont &font, const QRectF &rect, int flags, const QString &text)
{
    return aligned(rect, flags, MvLineBreaker::advance(font, text), QFontMetricsF(font).height());
}

void MvCalendariumTextPainter::drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text)
{
    const QFontMetricsF metrics(painter.font());
    const MvTextOutline outline = outlineOf(painter.font(), text);
    const QRectF box = aligned(rect, flags, outline.advance(), metrics.height());
    MvOutlinePainter::fillOutline(painter, {box.x(), box.y() + metrics.ascent()}, outline, painter.pen().color());
}

void MvCalendariumTextPainter::drawTexts(QPainter &painter, const QRectF &rect, int flags, const QStringList &lines)
{
    const QFontMetricsF metrics(painter.font());
    QList<MvPlacedOutline> block;
    double width = 0.0;
    for (const QString &line : lines) {
        block.append({{}, outlineOf(painter.font(), line)});
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
    MvOutlinePainter::fillOutlines(painter, block, painter.pen().color());
}
