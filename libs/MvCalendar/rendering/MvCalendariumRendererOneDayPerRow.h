// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumRenderer.h"

#include <optional>

class MvCalendariumCellPainter;
struct MvDayColumn;

/// The month as a list: one row per day with its number, the weekday's name where that is configured, and one to ten
/// free columns to write in; the first one takes the day's texts, others those of the group that heads them, as it
/// writes and colours them. A line above carries the headings of the columns, a strip on the left the calendar weeks.
/// The whole row is the room of its day.
class MVCALENDAR_EXPORT MvCalendariumRendererOneDayPerRow : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    using MvCalendariumRenderer::MvCalendariumRenderer;

    /// Calendar weeks are not announced, although they can be drawn.
    MvCalendariumDisplayAbilities abilities() const override;
    /// Of a month of 31 days with a top line, whatever the month and its headings.
    QSize minimumSizeHint() const override;
    /// A row is as high as its number's line, and the free columns have the larger part of the width.
    bool hasRoom(const QSizeF &room) const override;
    bool rendersMonthInformation() const override;
    /// Whether a heading is wider than its column.
    bool thereIsToMuchText(const QRectF &rect) const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    bool hasOneHeaderPerDay() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    Qt::Edge spanEdge(const QDate &date) const override;

    /// The width of the weekday names as the layout asks for them, long or short, 0 where there are none; the name is
    /// historical.
    double panedHeadWidth() const;
    double planedWeekOfYearWidth() const;
    double planedNormalCellWidth() const;
    /// The planned width of a cell; 0 for types that have no column. The rectangle makes a difference for the names of
    /// weekdays alone: a narrow or low one has the short names.
    double widthOfCell(const QRectF &rect, const MvCalendarCellType &type) const;
    /// The free columns, 1 to 10.
    int numberEmptyOfColumns() const;
    /// There is a top line: for two headings or more, or for one that is not "1", which older calendars have for
    /// "no heading".
    bool hasTopHeader() const;
    /// The height of the cell, and that of the top line: the month's rows and the top line are equally high.
    QPair<double, double> heightOfCell(const QRectF &rect, const MvCalendarCellType &type, const QDate &date) const;
    /// The width of everything left of the free columns.
    double offsetOfLeftHeader(const QRectF &rect) const;
    double widthOfOneColumn(const QRectF &rect, int count) const;
    double widthOfCalendarWeek(const QRectF &rect) const;

protected:
    /// The top line and the dividing lines of the columns; gives its height in whole units.
    int renderHeadline(QPainter &painter, const QRectF &rect, const QDate &date);
    /// All headings, in type of one size, also those beyond the last column.
    void renderHead(QPainter &painter, int columns, double height, const QRectF &rect);
    void renderWeekday(QPainter &painter, const QDate &date, double y, double x, const QRectF &rect, double width);
    void renderColumn(QPainter &painter, const QRectF &rect, const QDate &date, double y, double x, int columns);
    /// The strip of the week that ends with the date, from weekTop to the bottom of the row at y.
    void renderCalendarWeek(QPainter &painter, const QDate &date, const QRectF &rect, double y, double weekTop);

private:
    QStringList headings() const;
    QList<MvDayColumn> columnsOf(const QDate &date, int columns, const MvCalendariumCellPainter &cells) const;
    double headWidth(bool shortNames) const;
    bool hasShortNames(const QRectF &rect) const;
    bool areHighEnoughForLongNames(const QRectF &rect) const;
    double rowHeight(const QRectF &rect, const QDate &date) const;
    double baseline(const QRectF &row, const QDate &date) const;
    std::optional<double> textBaseline(const QRectF &row, const QDate &date) const;
    void drawOnBaseline(QPainter &painter, const QRectF &cell, const MvCalendarCellTypeConfig &config,
                        const QString &text, int flags, const QDate &date);
    void renderDay(QPainter &painter, const QRectF &rect, const QDate &date, double y);
    void renderColumnLines(QPainter &painter, const QRectF &rect, int columns);
    QString weekText(const QDate &date, double width) const;
};
