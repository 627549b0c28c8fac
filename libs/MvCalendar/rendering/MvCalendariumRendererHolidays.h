// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumRenderer.h"

/// The holidays of the page's month as one running text, without a grid: "1.5: Tag der Arbeit, 18.5-29.5: Ferien".
/// Days in a row that carry the same name are one item, with its true ends even where they lie outside the month.
///
/// It shows what cells would show: official holidays and vacations, then personal entries, as far as the page's
/// features switch them on. It reports no date rectangles.
class MVCALENDAR_EXPORT MvCalendariumRendererHolidays : public MvCalendariumRenderer
{
    Q_OBJECT

public:
    using MvCalendariumRenderer::MvCalendariumRenderer;

    MvCalendariumDisplayAbilities abilities() const override;
    bool rendersMonthInformation() const override;
    QList<MvCalendarCellType> usedCellTypes() const override;
    void renderBase(QPainter &painter, const QRectF &rect) override;

    /// The month's items as one paragraph of HTML; an empty paragraph in a month without holidays.
    QString createHolidayDescription();
    /// One item, in plain text.
    QString describe(const QDate &from, const QDate &to, const QString &text) const;

private:
    struct Event
    {
        QDate first;
        QDate last;
        QString text;
    };

    QStringList texts(const QDate &date) const;
    QList<Event> eventsOfMonth() const;
    void completeAcrossMonth(QList<Event> &events) const;
    QStringList items() const;
};
