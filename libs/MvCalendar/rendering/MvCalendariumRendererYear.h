// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumCellLine.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvSmallMonthGrid.h"
#include "MvCalendar/MvYearArrangement.h"
#include "MvCalendar/MvYearPlanner.h"

/// Twelve months on one page, beginning with the first month of the calendar; a calendar of several years shows those
/// twelve that the page's month belongs to.
///
/// Months are small grids of day numbers (MvYearArrangement). With calendar_render_days_of_week_only_in_front the page
/// is a planner (MvYearPlanner): a column per month, a row per day, with the texts of the days.
class MVCALENDAR_EXPORT MvCalendariumRendererYear : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    /// The smallest font is 5 points unless it is set otherwise.
    explicit MvCalendariumRendererYear(const MvCalendariumAppearance &appearance);

    /// Names of holidays are shown by the planner only.
    MvCalendariumDisplayAbilities abilities() const override;
    /// Of four columns of months, or of the planner with its numbers and weekdays.
    QSize minimumSizeHint() const override;
    /// The days' numbers stand in their cells without touching; everything else makes do with what there is.
    bool hasRoom(const QSizeF &room) const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;
    Qt::Edge spanEdge(const QDate &date) const override;
    QStringList maxmimumWidthCalendarWeekText() const override;
    /// Calendar weeks are configured by the content and by the appearance as well as by the layout.
    bool isConfigured(const MvCalendarRenderingInformation &info) const override;
    /// The parity of the calendar week: the page spans a year.
    bool isEvenWeek(const QDate &date) const override;

    bool isPlanner() const;
    /// The first day of the twelve months.
    QDate firstMonth() const;
    /// The year of the page, as the layout writes years (in full if it does not say). Twelve months in two years give
    /// "2026/27", with calendar_render_all_years both years as they are written, joined by the column headers or "/".
    /// A school year is called one.
    QString yearTitle() const;
    /// The twelve months as the layout writes them, with the year if there is no title to tell it. Where one is too
    /// wide for a cell of the type MONTH, whose size is in page units, all of them are short, or at last numbers.
    QStringList monthNames(const QSizeF &cell) const;
    bool fits(const MvCalendarCellType &type, double cellWidth, const QString &text) const;
    /// The type's font, smaller where one of the texts is larger than a cell of that size, down to the floor of type.
    QFont fittingFont(const MvCalendarCellType &type, const QSizeF &cell, const QStringList &texts) const;
    /// A text as it stands in a cell of the type, with nothing of it seen outside; empty where it has no room whole.
    MvCalendariumCellLine line(const QRectF &cell, const MvCalendarCellType &type, const QString &text,
                               const QFont &font) const;
    /// The share of the rectangle that the title takes; empty without one.
    QRectF titleRect(const QRectF &rect) const;
    /// What is left for the months.
    QRectF monthsRect(const QRectF &rect) const;
    /// What the cells of the small months need.
    MvSmallMonthGrid::Sizes neededGridSizes() const;
    /// The small months in that room: least stretched, but so that numbers can be read, without the calendar weeks if
    /// need be.
    MvYearArrangement arrangement(const QRectF &months) const;
    /// What the parts of the planner need.
    MvYearPlanner::Sizes neededPlannerSizes() const;

private:
    friend class MvYearGridPainter;
    friend class MvYearPlannerPainter;

    double planned(MvCalendarCellTypeEnum type, const MvCalendarRenderingInformation &info) const;
    /// In page units, including the padding.
    double textWidth(const MvCalendarCellType &type, const QStringList &texts) const;
    double lineHeight(const MvCalendarCellType &type) const;
    /// What the paddings of a planner lack between a number and what stands beside it.
    double gapBesideNumber() const;
    void drawTitle(QPainter &painter, const QRectF &title);
    /// Notes what stands for all months and has no room in any.
    void reportMissing(const QString &text, const QRectF &rect) { reportUnfitting(firstMonth(), text, rect); }
};
