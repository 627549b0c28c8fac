// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPageChoice.h"

#include "MvCalendar/MvUnfittingText.h"
#include "MvPaint/MvPaintRecording.h"
#include "MvProject/MvCalendarPage.h"

#include <QMap>
#include <QStringList>

class MvCalendariumRenderer;

/// A page as the programs print it, recorded, with what it says of itself. The active entries become those of the
/// choice.
class MvPrintedPage
{
public:
    /// The family of all fonts; empty for those of the layouts. Photos of entries are recorded for that resolution.
    MvPrintedPage(const MvPageChoice &choice, const QString &family, double pixelsPerUnit = 1.0);

    const MvPageChoice &choice() const { return m_choice; }
    const MvPageFormat &format() const { return m_format; }
    const MvCalendarPage &page() const { return m_page; }
    MvDateRange range() const;

    struct Day
    {
        QDate date;
        QRectF rect;
    };
    /// The days that were reported, in the order of painting.
    QList<Day> days;
    QList<MvPaintRecording::Item> items;
    QList<MvUnfittingText> unfitting;

    // what the page is to show
    QMap<QDate, QStringList> dayTexts; ///< of all days of its months, in layouts that write them
    bool showsDays = false;
    QStringList words;               ///< that must be somewhere: the month or the year, names of columns
    QList<QList<QStringList>> heads; ///< sets of names, each in the forms that are allowed, from long to short
    double textFloor = 0.0;          ///< pixels of type that a day's texts may not fall below
    double headFloor = 0.0;          ///< the same for everything else

    /// The whole page as text: all that is painted for print, the days that answer a click, and what had no room.
    QString describe() const;
    /// The whole page with its photo, for a person to look at.
    QImage picture(double pixelsPerUnit) const;

private:
    void expect(const MvCalendariumRenderer &renderer);
    void expectHeads(const MvCalendariumRenderer &renderer);
    void measureFloors();

    MvPageChoice m_choice;
    MvPageFormat m_format;
    MvCalendarPage m_page;
};
