// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPageTextPainter.h"

#include "MvCalendar/MvCalendariumWords.h"
#include "MvCore/MvMath.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPaint/MvGlyphCoverage.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPaintMark.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvProject/MvFotoVeil.h"
#include "MvProject/MvPageInks.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double floorPoints = 6.5;
constexpr double veilPadding = 0.35; // around a text on a veil, of its size,
constexpr double mostPadding = 0.12; // but no more of its frame's height

double pointsToUnits(double points)
{
    return MvMath::point2pixel(points, MvMath::tenthMillimetresPerInch);
}

/// Where the lines of a text stand in a rectangle.
QList<MvPlacedOutline> placed(const QRectF &rect, Qt::Alignment alignment, const MvFittedText &text)
{
    const QFontMetricsF metrics(text.font);
    const double height = metrics.height() * double(text.lines.size());
    double top = rect.top();
    if (alignment.testFlag(Qt::AlignVCenter))
        top += (rect.height() - height) / 2.0;
    else if (alignment.testFlag(Qt::AlignBottom))
        top = rect.bottom() - height;
    QList<MvPlacedOutline> lines;
    for (const QString &line : text.lines) {
        const MvTextOutline outline =
            MvTextOutlineCache::instance().outline(text.font, MvPrintableText::shapeable(line));
        double left = rect.left();
        if (alignment.testFlag(Qt::AlignHCenter))
            left += (rect.width() - outline.advance()) / 2.0;
        else if (alignment.testFlag(Qt::AlignRight))
            left = rect.right() - outline.advance();
        lines.append({{left, top + metrics.ascent()}, outline});
        top += metrics.height();
    }
    return lines;
}

/// What the lines take of the rectangle.
QRectF blockOf(const QList<MvPlacedOutline> &lines, const QFont &font)
{
    const QFontMetricsF metrics(font);
    QRectF block;
    for (const MvPlacedOutline &line : lines) {
        const QPointF top(line.baseline.x(), line.baseline.y() - metrics.ascent());
        block |= QRectF(top, QSizeF(line.outline.advance(), metrics.height()));
    }
    return block;
}

} // namespace

void MvPageTextPainter::paint(QPainter &painter, int number, const MvFotoVeil *veil, MvPageFindings &found) const
{
    const MvPageElement &element = m_elements[number];
    const MvTextElement &text = *element.text();
    const QStringList lines = this->lines(text);
    if (lines.isEmpty() || element.rect().isEmpty())
        return;
    const QFont wanted = font(text);
    const double padding =
        veil ? std::min(veilPadding * wanted.pixelSize(), mostPadding * element.rect().height()) : 0.0;
    const QRectF room = element.rect().adjusted(padding, padding, -padding, -padding);
    const MvTextFitter fitter(wanted, std::min(double(wanted.pixelSize()), pointsToUnits(floorPoints)),
                              MvHyphenator(m_page.contentConfig().language()));
    const MvFittedText fitted = fitter.fit(room.size(), lines);
    const QList<MvPlacedOutline> outlines = placed(room, text.alignment(), fitted);
    const QColor color = MvPageInks(m_page).of(text);
    if (veil)
        veil->paint(painter,
                    blockOf(outlines, fitted.font).adjusted(-padding, -padding, padding, padding) & element.rect(),
                    {color});
    const QString whole = lines.join(u'\n');
    const MvPaintMarking mark(painter, MvPaintMark::Kind::Paragraph, number, 0, {whole});
    for (const MvPlacedOutline &line : outlines)
        MvOutlinePainter::fillOutline(painter, line.baseline, line.outline, color);
    if (fitted.isCut)
        found.elements.append({number, whole, element.rect()});
    if (const QString missing = MvGlyphCoverage::missingCharacters(fitted.font, whole); !missing.isEmpty())
        found.elements.append({number, whole, element.rect(), missing});
}

QStringList MvPageTextPainter::lines(const MvTextElement &text) const
{
    static const QRegularExpression placeholder(u"\\{[a-z]+\\}"_s);
    QString whole;
    qsizetype end = 0;
    const QString pattern = text.text();
    for (auto match = placeholder.globalMatch(pattern); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        whole += pattern.mid(end, found.capturedStart() - end) + filled(found.captured(), text);
        end = found.capturedEnd();
    }
    whole += pattern.mid(end);
    if (text.hasCapitals())
        whole = m_page.contentConfig().language().toQLocale().toUpper(whole);
    QStringList lines;
    for (const QString &line : whole.split(u'\n'))
        lines.append(MvPrintableText::onOneLine(line));
    while (!lines.isEmpty() && lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

QFont MvPageTextPainter::font(const MvTextElement &text) const
{
    const MvCalendariumAppearance &look = m_page.appearance();
    QFont font = look.font(look.type().mostImportantCalendarCell(), MvSpaceMagnitude(), 1);
    if (!text.family().isEmpty())
        font.setFamilies({text.family()});
    const double factor = MvSpaceMagnitude(MAGNITUDE_A4).lengthFactor(m_format.magnitude());
    const double points = std::max(text.points() * factor, std::min(text.points(), floorPoints));
    font.setPixelSize(std::max(1, int(std::lround(pointsToUnits(points)))));
    font.setWeight(text.weight());
    font.setItalic(text.isItalic());
    font.setCapitalization(QFont::MixedCase);
    font.setLetterSpacing(QFont::PercentageSpacing, 100.0);
    if (text.letterSpacing() != 0.0)
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.pixelSize() * text.letterSpacing() / 100.0);
    MvFontSupply::provide(font);
    return font;
}

/// What is no placeholder stays as it was written.
QString MvPageTextPainter::filled(const QString &placeholder, const MvTextElement &text) const
{
    if (placeholder == u"{title}")
        return m_context.title;
    if (placeholder == u"{author}")
        return m_context.author;
    if (placeholder == u"{month}")
        return month();
    if (placeholder == u"{year}")
        return years();
    if (placeholder == u"{caption}")
        return captionOf(text.fotoSlot());
    if (placeholder == u"{photos}")
        return captions().join(u" · "_s);
    return placeholder;
}

QString MvPageTextPainter::captionOf(const QString &slot) const
{
    for (const MvPageElement &element : m_elements) {
        if (!element.foto() || element.foto()->isEmpty())
            continue;
        if (slot.isEmpty() ? !element.foto()->caption().isEmpty() : element.slot() == slot)
            return element.foto()->caption();
    }
    return {};
}

QStringList MvPageTextPainter::captions() const
{
    QStringList captions;
    for (const MvPageElement &element : m_elements) {
        if (element.foto() && !element.foto()->isEmpty() && !element.foto()->caption().isEmpty())
            captions.append(element.foto()->caption());
    }
    return captions;
}

QString MvPageTextPainter::month() const
{
    return MvCalendariumWords(m_page.contentConfig().language()).monthLong(m_page.contentConfig().month());
}

/// Of a cover and a back those of the calendar, "2026/27" where it has two.
QString MvPageTextPainter::years() const
{
    const bool isMonth = m_page.kind() == MvPageKind::Month || m_page.kind() == MvPageKind::Free;
    const MvCalendariumContentConfig &content = m_page.contentConfig();
    const QDate first = isMonth || !m_context.range.isValid() ? content.date() : m_context.range.start();
    const QDate last = isMonth ? first.addMonths(m_page.monthCount() - 1) : m_context.range.end();
    if (!last.isValid() || first.year() == last.year())
        return QString::number(first.year());
    constexpr int century = 100;
    const bool isNext = last.year() == first.year() + 1 && last.year() % century != 0;
    return isNext ? u"%1/%2"_s.arg(first.year()).arg(last.year() % century, 2, 10, QChar(u'0'))
                  : u"%1–%2"_s.arg(first.year()).arg(last.year());
}
