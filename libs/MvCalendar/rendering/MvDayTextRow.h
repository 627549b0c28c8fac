// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvPaint/MvTextFitter.h"

#include <QList>
#include <QRectF>
#include <QStringList>

#include <optional>

class QColor;
class QPainter;

/// The room of a day in a list. Lengths are page units.
struct MvDayRow
{
    QRectF cell;      ///< nothing is seen outside
    QRectF inner;     ///< less the layout's paddings, and what else is in the row
    double leastLeft; ///< texts that would be cut else may begin here
};

/// The texts of a day in a list, one after the other, in as many lines as the row has room for by what is seen of them.
/// What has no room as it is takes up the paddings, then becomes smaller; then the lines come as near to each other as
/// letters allow; at last texts are cut, and those left out whose letters are higher than the row.
class MvDayTextRow
{
public:
    /// One line stands on the baseline, if there is one, or at the bottom; several are in the middle of the row.
    MvDayTextRow(const MvTextFitter &fitter, const MvDayRow &row, const QStringList &texts,
                 std::optional<double> baseline);

    const MvFittedText &text() const { return m_set.text; }
    /// The colours are those of the texts; the other one is for all when there are none.
    void draw(QPainter &painter, const QList<QColor> &colors, const QColor &other) const;

private:
    /// Lines one below the other, the last on the baseline 0.
    struct Set
    {
        MvFittedText text;
        QList<MvCalendariumCellLine> lines;
        QRectF ink;
        QStringList texts = {}; // that stand in the lines; empty: all
    };

    Set fitted(const QRectF &inner, const QRectF &widest) const;
    Set fittedByInk(const QStringList &texts, const QRectF &widest, qsizetype mostLines, bool isTight) const;
    Set withoutHighTexts(const QRectF &widest) const;
    double height() const;
    Set stacked(const MvFittedText &text, const QRectF &widest, bool isTight = false) const;
    void place(const QRectF &room, std::optional<double> baseline);

    MvTextFitter m_fitter;
    MvDayRow m_row;
    QStringList m_texts;
    Set m_set;
};
