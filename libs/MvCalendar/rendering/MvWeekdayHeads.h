// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QRectF>
#include <QSizeF>
#include <QStringList>

class MvCalendariumRenderer;
class QPainter;

/// The weekdays above the columns of days, or beside the days: all seven as long names, short ones or letters, and in
/// one size, whatever room the longest of them has. Made for the cells of a pass, then drawn into each of them.
///
/// The side on which heads and numbers are aligned keeps its padding, the other gives before a name does. Short names
/// become a little smaller before they become letters, letters smaller down to the floor of type; where even these have
/// no room the heads are left out.
class MVCALENDAR_EXPORT MvWeekdayHeads
{
public:
    enum class Form { Long, Short, Letter, None };

    /// For cells of that size, paddings included. `longest`: what the layout asks for. `withSpecialDays`: the heads of
    /// holidays and vacations have types of their own. The renderer must outlive the heads.
    MvWeekdayHeads(const MvCalendariumRenderer &renderer, Form longest, const QSizeF &cell, bool withSpecialDays);

    /// What the weekdays are called in that form, Monday first. Letters are the first ones in which the short names
    /// differ.
    static QStringList names(const MvCalendariumRenderer &renderer, Form form);
    /// The width that the form needs at the size of the layout or, if that is asked for, at the floor of type; without
    /// paddings that only please.
    static double leastWidth(const MvCalendariumRenderer &renderer, Form form, bool withSpecialDays, bool atFloor);

    Form form() const { return m_form; }
    /// 1 is Monday. Empty where the heads are left out.
    QString text(int day) const { return m_names.value(day - 1); }
    /// The size that a type's heads are drawn in, in pixels.
    int pixelSize(const MvCalendarCellType &type) const;

    /// Draws the text of a day into its cell.
    void draw(QPainter &painter, const QRectF &cell, const MvCalendarCellTypeConfig &config, int day, bool even) const;

private:
    bool choose(Form form, double smallestScale);
    /// How much smaller than the layout has them the names must be; 1 where they fit, 0 where they never do.
    double scaleFor(Form form, QRectF *ink) const;

    const MvCalendariumRenderer &m_renderer;
    QList<MvCalendarCellType> m_types;
    QSizeF m_cell;
    Form m_form = Form::None;
    QStringList m_names;
    double m_scale = 1.0;
    QRectF m_ink; // of all names that may be drawn, from the start of their baseline, at the size of the layout
};
