// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QColor>
#include <QFont>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

class MvTextFitter;
class QPainter;

/// One line of text that stays inside its cell: a title, a heading, a number. Made to fit first, then placed, then
/// drawn. Lengths are page units.
class MVCALENDAR_EXPORT MvCalendariumCellLine
{
public:
    /// A part of the text in a colour of its own.
    struct Run
    {
        qsizetype length; // characters
        QColor color;

        bool operator==(const Run &) const = default;
    };

    /// The text in the fitter's font, or in a smaller one down to the fitter's floor, so that it is no wider than the
    /// room and what is seen of it no higher. What is too wide even so ends in an ellipsis; what is too high is empty.
    MvCalendariumCellLine(const MvTextFitter &fitter, const QSizeF &room, const QString &text);

    const QString &text() const { return m_text; }
    const QFont &font() const { return m_font; }
    /// Shortened, or left out altogether.
    bool isCut() const { return m_isCut; }
    /// There is nothing to draw.
    bool isEmpty() const { return m_text.isEmpty(); }

    /// Places the line in the rectangle by its advance and its line height, as the flags of Qt::Alignment say.
    void align(const QRectF &rect, int flags);
    /// Brings what is seen of the text into the middle, whatever room blanks and spaces between letters take.
    void centre(const QRectF &rect);
    void setBaseline(double y) { m_start.setY(y); }
    double baseline() const { return m_start.y(); }
    void moveBy(double right, double down) { m_start += QPointF(right, down); }
    /// Moves the line as far as it must so that nothing of it is seen outside the rectangle.
    void keepInside(const QRectF &rect);

    /// Where the text is seen.
    QRectF ink() const { return m_ink.translated(m_start); }
    void draw(QPainter &painter, const QColor &color) const;
    /// Each part of the text in its colour, where it stands in the whole line.
    void draw(QPainter &painter, const QList<Run> &runs) const;

private:
    void setFont(const QFont &font);

    QString m_text;
    QFont m_font;
    QRectF m_ink;    // with the baseline starting at (0, 0)
    QPointF m_start; // of the baseline
    bool m_isCut = false;
};
