// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumCellLine.h"

#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextOutlineCache.h"
#include "MvPaint/MvTextPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double roundingSlack = 1.0; // advances are compared in whole units

QFont resized(const QFont &font, int pixelSize)
{
    QFont smaller = font;
    smaller.setPixelSize(pixelSize);
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        smaller.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * pixelSize / font.pixelSize());
    return smaller;
}

} // namespace

MvCalendariumCellLine::MvCalendariumCellLine(const MvTextFitter &fitter, const QSizeF &room, const QString &text)
{
    const MvFittedText fitted = fitter.fitLine(room.width(), text);
    m_isCut = fitted.isCut;
    m_text = fitted.lines.value(0);
    if (m_text.trimmed() == u"…")
        m_text.clear(); // an ellipsis alone tells a reader nothing
    setFont(fitted.font);
    const int smallest = std::max(1, static_cast<int>(std::ceil(fitter.floor())));
    while (m_ink.height() > room.height() && m_font.pixelSize() > smallest) {
        const int size = static_cast<int>(m_font.pixelSize() * room.height() / m_ink.height());
        setFont(resized(m_font, std::clamp(size, smallest, m_font.pixelSize() - 1)));
    }
    if (m_ink.height() > room.height() || m_ink.width() > room.width() + roundingSlack) {
        m_isCut = true; // there is no room even for an ellipsis
        m_text.clear();
    }
}

void MvCalendariumCellLine::setFont(const QFont &font)
{
    m_font = font;
    m_ink = MvTextOutlineCache::instance().outline(font, MvPrintableText::shapeable(m_text)).bounds();
}

void MvCalendariumCellLine::align(const QRectF &rect, int flags)
{
    const QRectF box = MvTextPainter::boundingRect(m_font, rect, flags, m_text);
    m_start = {box.left(), box.top() + QFontMetricsF(m_font).ascent()};
}

void MvCalendariumCellLine::centre(const QRectF &rect)
{
    m_start.setX(rect.center().x() - m_ink.center().x());
}

void MvCalendariumCellLine::keepInside(const QRectF &rect)
{
    const QRectF seen = ink();
    m_start.rx() += std::max(0.0, rect.left() - seen.left()) - std::max(0.0, seen.right() - rect.right());
    m_start.ry() += std::max(0.0, rect.top() - seen.top()) - std::max(0.0, seen.bottom() - rect.bottom());
}

void MvCalendariumCellLine::draw(QPainter &painter, const QList<Run> &runs) const
{
    MvCalendariumCellLine part = *this;
    qsizetype start = 0;
    for (const Run &run : runs) {
        const double before = MvTextOutlineCache::instance().outline(m_font, m_text.left(start)).advance();
        part.m_text = m_text.mid(start, run.length);
        part.m_start.setX(m_start.x() + before);
        part.draw(painter, run.color);
        start += run.length;
    }
}

void MvCalendariumCellLine::draw(QPainter &painter, const QColor &color) const
{
    if (isEmpty())
        return;
    painter.save();
    painter.setFont(m_font);
    painter.setPen(QPen(QBrush(color), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const QPointF top(m_start.x(), m_start.y() - QFontMetricsF(m_font).ascent());
    MvTextPainter::drawText(painter, QRectF(top, QSizeF()), Qt::AlignLeft | Qt::AlignTop, m_text);
    painter.restore();
}
