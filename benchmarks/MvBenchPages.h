// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvPaint/MvPaintRecording.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"

#include <QPainter>
#include <QString>

/// What several benchmarks make pages of, and the yardstick beside which they are painted.
namespace MvBenchPages {

/// A layout as it is shipped, in black on white.
inline MvCalendariumAppearance appearance(const QString &layout)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(QStringLiteral("PAPER_WHITE")));
    return appearance;
}

/// Holidays of Bavaria and entries, with vacations or without.
inline MvCalendariumHolidayConfig holidays(bool hasVacations = true)
{
    constexpr int usual = FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_ENTRIES;
    return {MvLocale(QStringLiteral("de_DE")), QStringLiteral("BY"),
            MvCalendariumFeatures(hasVacations ? usual | FEATURE_SCHOOL_VACATIONS : usual)};
}

/// A page's fills, lines and outlines of texts, ready made, painted as a program without recordings would.
inline void paintStraight(QPainter &painter, const QList<MvPaintRecording::Item> &items)
{
    for (const MvPaintRecording::Item &item : items) {
        if (item.kind == MvPaintRecording::Item::Line) {
            painter.setPen(QPen(QBrush(item.stroke), item.strokeWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
            painter.drawLine(item.line);
        } else {
            painter.fillPath(item.shape, item.fill);
        }
    }
}

/// The same with texts in fonts that the target keeps.
inline void paintWithFonts(QPainter &painter, const QList<MvPaintRecording::Item> &items)
{
    for (const MvPaintRecording::Item &item : items) {
        if (item.kind != MvPaintRecording::Item::Text) {
            paintStraight(painter, {item});
            continue;
        }
        painter.save();
        painter.translate(item.baseline);
        painter.rotate(item.angle);
        painter.setFont(item.font);
        painter.setPen(item.fill);
        painter.drawText(QPointF(), item.text);
        painter.restore();
    }
}

} // namespace MvBenchPages
