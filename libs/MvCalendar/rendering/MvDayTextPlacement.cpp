// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvDayTextPlacement.h"

#include "MvPaint/MvTextPainter.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

constexpr double hair = 1.0;        // between a text and the upper and lower edge of its cell, at least
constexpr double air = 0.13;        // of the type's size, between a text and the sides of its cell: half a blank
constexpr double numberGap = 3.0;   // between a text and the number
constexpr double easyGap = 7.0;     // so that the two do not seem to touch
constexpr double besideGap = 10.0;  // between a number and the texts beside it
constexpr double leastColumn = 4.0; // of the type's size, beside a number; in less, texts are whole or not there
constexpr double textGap = 5.0;     // between texts and what else is in the cell

double lineHeight(const QFont &font)
{
    return QFontMetricsF(font).height();
}

qsizetype letters(const QStringList &lines)
{
    qsizetype count = 0;
    for (const QString &line : lines)
        count += line.size();
    return count;
}

/// A word is divided more than once.
bool isInPieces(const QStringList &lines)
{
    const auto isDivided = [](const QString &line) { return line.endsWith(u'-') || line.endsWith(QChar(0x2010)); };
    return std::adjacent_find(lines.cbegin(), lines.cend(), [&](const QString &line, const QString &next) {
               return isDivided(line) && isDivided(next);
           }) != lines.cend();
}

/// Whether the first can be read better.
bool isBetter(const MvFittedText &a, const MvFittedText &b)
{
    if (a.isCut != b.isCut)
        return b.isCut;
    if (a.isCut)
        return letters(a.lines) > letters(b.lines);
    if (isInPieces(a.lines) != isInPieces(b.lines)) // easier to read in smaller type
        return isInPieces(b.lines);
    return a.font.pixelSize() > b.font.pixelSize();
}

} // namespace

QList<QRectF> MvPlacedTexts::ink() const
{
    using Painter = MvTextPainter;
    return {Painter::inkRect(text.font, room, Qt::AlignTop | Qt::AlignHCenter, top),
            Painter::inkRect(text.font, room, Qt::AlignBottom | Qt::AlignHCenter, bottom)};
}

QRectF MvPlacedTexts::rest(const QRectF &inner) const
{
    if (isBeside) {
        QRectF rest = inner;
        if (room.center().x() > inner.center().x())
            rest.setRight(room.left() - textGap);
        else
            rest.setLeft(room.right() + textGap);
        return rest;
    }
    const auto heightOf = [this](const QStringList &lines) {
        return lineHeight(text.font) * double(lines.size()) + textGap;
    };
    if (top.size() + bottom.size() > 1)
        return inner.adjusted(0.0, heightOf(top), 0.0, -heightOf(bottom));
    return inner.adjusted(0.0, top.isEmpty() ? 0.0 : heightOf(top), 0.0, bottom.isEmpty() ? 0.0 : -heightOf(bottom));
}

MvDayTextPlacement::MvDayTextPlacement(const MvDayCell &cell, const MvTextFitter &fitter)
    : m_cell(cell)
    , m_fitter(fitter)
{}

QPair<QStringList, QStringList> MvDayTextPlacement::split(const QStringList &lines, Qt::Alignment numberAlignment)
{
    switch (int(numberAlignment & Qt::AlignVertical_Mask)) {
    case Qt::AlignTop:
        return {{}, lines};
    case Qt::AlignBottom:
        return {lines, {}};
    default:
        return {lines.mid(0, lines.size() / 2), lines.mid(lines.size() / 2)};
    }
}

MvPlacedTexts MvDayTextPlacement::place(const QStringList &texts) const
{
    const double line = lineHeight(m_fitter.font());
    const double height = m_cell.inner.height() - m_cell.numberHeight;
    MvPlacedTexts best = inUsualPlace(texts);
    const auto consider = [&](const MvPlacedTexts &other) {
        const bool isEasier = isClear(other, easyGap) && !isClear(best, easyGap);
        if (isBetter(other.text, best.text) || (isEasier && !isBetter(best.text, other.text)))
            best = other;
    };
    if (height < line)
        consider(onOneLine(texts));
    if (height < 2.0 * line)
        consider(besideNumber(texts));
    return best;
}

/// A word that stands alone may reach into the paddings, but not out of the cell.
double MvDayTextPlacement::widestWord() const
{
    const double middle = m_cell.inner.center().x();
    const double side = std::max(hair, air * m_fitter.font().pixelSize());
    return 2.0 * (std::min(middle - m_cell.rect.left(), m_cell.rect.right() - middle) - side);
}

double MvDayTextPlacement::usualWidth() const
{
    return std::min(m_cell.inner.width(), widestWord());
}

MvPlacedTexts MvDayTextPlacement::placed(const MvFittedText &text) const
{
    const auto [top, bottom] = split(text.lines, m_cell.numberAlignment);
    return {text, m_cell.inner, top, bottom, false};
}

bool MvDayTextPlacement::isClear(const MvPlacedTexts &texts, double gap) const
{
    const QRectF number = m_cell.numberInk.adjusted(-gap, -gap, gap, gap);
    const QList<QRectF> inks = texts.ink();
    return std::all_of(inks.cbegin(), inks.cend(), [&](const QRectF &ink) {
        return ink.isNull() || (m_cell.rect.contains(ink) && (m_cell.numberInk.isNull() || !ink.intersects(number)));
    });
}

MvPlacedTexts MvDayTextPlacement::inUsualPlace(const QStringList &texts) const
{
    double height = m_cell.inner.height() - m_cell.numberHeight;
    for (;;) {
        const MvPlacedTexts found = placed(m_fitter.fit({usualWidth(), height}, texts, widestWord()));
        const auto count = found.text.lines.size();
        if (count == 0 || isClear(found, numberGap))
            return found;
        height = lineHeight(found.text.font) * double(count - 1); // a number in the middle parts the lines unevenly
    }
}

/// A line where the number leaves less room than its height, as far as it does not meet the number.
MvPlacedTexts MvDayTextPlacement::onOneLine(const QStringList &texts) const
{
    const double height = std::min(lineHeight(m_fitter.font()), m_cell.rect.height() - 2.0 * hair);
    MvPlacedTexts found = placed(m_fitter.fit({usualWidth(), height}, texts, widestWord()));
    if (!isClear(found, numberGap))
        found = placed({found.text.font, {}, true, texts});
    return found;
}

MvPlacedTexts MvDayTextPlacement::besideNumber(const QStringList &texts) const
{
    const bool isAtBottom = m_cell.numberAlignment & Qt::AlignBottom;
    QRectF room = m_cell.rect.adjusted(hair, hair, -hair, -hair);
    if (isAtBottom)
        room.setTop(m_cell.inner.top());
    else
        room.setBottom(m_cell.inner.bottom());
    if (m_cell.numberInk.isNull())
        room = m_cell.inner;
    else if (m_cell.numberAlignment & Qt::AlignRight)
        room.setRight(m_cell.numberInk.left() - besideGap);
    else
        room.setLeft(m_cell.numberInk.right() + besideGap);
    MvPlacedTexts found{m_fitter.fit(room.size(), texts), room, {}, {}, true};
    (isAtBottom ? found.top : found.bottom) = found.text.lines;
    const bool isSliver = found.text.isCut && room.width() < leastColumn * found.text.font.pixelSize();
    if (isSliver || !isClear(found, numberGap))
        found = placed({found.text.font, {}, true, texts});
    return found;
}
