// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvPaint/MvTextFitter.h"

#include <QPair>
#include <QRectF>
#include <QStringList>

/// A day's cell of a grid as its texts see it. Lengths are page units.
struct MvDayCell
{
    QRectF rect;                   ///< nothing is seen outside
    QRectF inner;                  ///< less the layout's paddings
    Qt::Alignment numberAlignment; ///< of the day's number
    double numberHeight = 0.0;     ///< of its line
    QRectF numberInk;              ///< where it is seen; null when it is not
};

/// A day's texts with their places.
struct MVCALENDAR_EXPORT MvPlacedTexts
{
    MvFittedText text;
    QRectF room;           ///< the lines are centred in it,
    QStringList top;       ///< these from its top downwards
    QStringList bottom;    ///< and these from its bottom upwards
    bool isBeside = false; ///< beside the number

    /// Where those at the top and those at the bottom are seen.
    QList<QRectF> ink() const;
    /// What they leave of the cell's inner rectangle.
    QRectF rest(const QRectF &inner) const;
};

/// Says where the texts of a day stand in its cell: above and below the number, where the layout leaves them a place.
/// In a low cell, which has room for one line there at most, texts that lack room may stand beside the number instead.
class MVCALENDAR_EXPORT MvDayTextPlacement
{
public:
    /// The fitter is that of the day's texts; it must outlive the placement.
    MvDayTextPlacement(const MvDayCell &cell, const MvTextFitter &fitter);

    /// One text per line at least. What has no room anywhere is left out or cut, which the result says.
    MvPlacedTexts place(const QStringList &texts) const;

    /// The lines that go to the top and to the bottom of a cell, so that they leave the number its place.
    static QPair<QStringList, QStringList> split(const QStringList &lines, Qt::Alignment numberAlignment);

private:
    MvPlacedTexts inUsualPlace(const QStringList &texts) const;
    MvPlacedTexts onOneLine(const QStringList &texts) const;
    MvPlacedTexts besideNumber(const QStringList &texts) const;
    MvPlacedTexts placed(const MvFittedText &text) const;
    bool isClear(const MvPlacedTexts &texts, double gap) const;
    double widestWord() const;
    double usualWidth() const;

    MvDayCell m_cell;
    const MvTextFitter &m_fitter;
};
