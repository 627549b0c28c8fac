// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/MvSpanBars.h"
#include "MvCalendar/mvcalendar_export.h"

#include <QDate>
#include <QImage>
#include <QRectF>
#include <QStringList>

#include <optional>

class MvCalendariumCellLine;
class MvCalendariumRenderer;
struct MvFittedText;
struct MvPlacedTexts;
class QColor;
class QFont;
class QPainter;

/// What a column of a list shows of a day.
struct MvDayColumn
{
    QStringList texts;
    QList<QColor> colors; ///< of the texts; empty: as the page writes
    MvSpanBars::Bars bars;
};

/// Paints single cells for a renderer, which knows colours, fonts and the texts of the days. See the operations of
/// MvCalendariumRenderer, which call these.
class MvCalendariumCellPainter
{
public:
    /// Both must outlive the cell painter.
    MvCalendariumCellPainter(MvCalendariumRenderer &renderer, QPainter &painter);

    /// Ground and border.
    void drawBackground(const QRectF &rect, const MvCalendarCellTypeConfig &config, bool even);
    void drawGround(const QRectF &rect, const MvCalendarCellTypeConfig &config, bool even);
    void drawText(const QRectF &rect, const MvCalendarCellTypeConfig &config, const QString &text, int flags,
                  bool even);
    /// On one line inside the cell: in smaller type where it must, then shortened or left out and reported for the
    /// date.
    void drawFittingText(const QRectF &rect, const MvCalendarCellTypeConfig &config, const QString &text, int flags,
                         bool even, const QDate &date);
    void drawDayNumber(const QRectF &rect, const QDate &date);
    /// The day without its texts and photo.
    void drawPlainDay(const QRectF &rect, const QDate &date, const QString &number);
    /// True when a photo was drawn.
    bool drawHoliday(const QRectF &rect, const QDate &date, bool even);
    /// Texts stand at the bottom, or their last line on the baseline where one is given.
    void drawHolidayWide(const QRectF &rect, const QDate &date, bool even, std::optional<double> baseline = {});
    /// The same for a column of several: the day's photo is in the first one.
    void drawColumn(const QRectF &rect, const QDate &date, bool even, std::optional<double> baseline,
                    const MvDayColumn &column, bool isFirst);
    /// All that the day has.
    MvDayColumn wholeDay(const QDate &date) const;
    /// Draws the bars of entries that last several days, and gives what they leave of the cell. Those that would meet
    /// the number or take up too much of the cell are left out and reported.
    QRectF drawBars(const QRectF &rect, const QDate &date, bool even, const MvSpanBars::Bars &bars,
                    const QRectF &numberInk = {});
    /// The colours, as they can be read on the ground of the day; none for none.
    QList<QColor> readable(const QList<QColor> &colors, const QDate &date, bool even) const;
    bool drawPicture(const QDate &date, const QRectF &rect);

private:
    /// The number of a day where the layout has it, in smaller type where its cell is too small. Empty, if there is no
    /// room for it even so.
    MvCalendariumCellLine numberLine(const QRectF &rect, const MvCalendarCellType &type, const QString &number) const;
    /// What has no room is reported.
    void drawNumber(const QRectF &rect, const MvCalendarCellTypeConfig &config, const QString &number, bool even,
                    const QDate &date);
    /// Notes the texts of a day whose cell is too small for any, in layouts that show them.
    void reportMissingTexts(const QRectF &rect, const QDate &date);
    void drawBorder(const QRectF &rect, const MvCalendarCellType &type);
    void preparePen(const QFont &font, const QColor &color);
    void drawPlaced(const MvPlacedTexts &texts);
    void drawPlaced(const MvPlacedTexts &texts, const QStringList &written, const QList<QColor> &colors);
    QColor readable(const QColor &color, const QDate &date, bool even) const;
    void reportCut(const QDate &date, const MvFittedText &text, const QRectF &rect);
    /// With a warning, where those are shown, if it will look coarse in print.
    void drawFoto(const QDate &date, const QRectF &rect, const QImage &picture);
    void drawQualityWarning(const QRectF &rect);
    /// The photo in as many pixels as the device has there, so that print is sharp and screens decode little.
    QImage pictureWithin(const QDate &date, const QSizeF &size) const;

    MvCalendariumRenderer &m_renderer;
    QPainter &m_painter;
};
