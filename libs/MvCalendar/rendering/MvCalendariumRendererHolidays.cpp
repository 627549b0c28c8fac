// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRendererHolidays.h"

#include "MvPaint/MvPaintMark.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"

#include <QHash>
#include <QPainter>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const MvCalendarCellTypeConfig blockCell(CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_WEEKDAY);
const QString itemSeparator = u", "_s;

constexpr double leading = 1.1;     // of a line's height: accents of capitals keep off the descenders above them
constexpr int mostDaysBeyond = 366; // where a run is followed out of the month: an entry of every day has no end

QString paragraph(const QString &plainText)
{
    return u"<p>"_s + plainText.toHtmlEscaped() + u"</p>"_s;
}

} // namespace

MvCalendariumDisplayAbilities MvCalendariumRendererHolidays::abilities() const
{
    return MvCalendariumDisplayAbilities(ABILITY_DISPLAY_VACATIONS | ABILITY_DISPLAY_HOLIDAYS |
                                         ABILITY_DISPLAY_HOLIDAYS_COLORS);
}

bool MvCalendariumRendererHolidays::rendersMonthInformation() const
{
    return false;
}

QList<MvCalendarCellType> MvCalendariumRendererHolidays::usedCellTypes() const
{
    return {CALENDAR_CELL_TYPE_WEEKDAY};
}

// ---- texts

QStringList MvCalendariumRendererHolidays::texts(const QDate &date) const
{
    QStringList found;
    if (calendariumContent().hasFeatures(FEATURE_HOLIDAYS) && appearance().showHolidays()) {
        // in cells a vacation has its name on the first day alone; here every day must tell to which run it belongs
        found = MvPrintableText::onOneLineEach(descriptionsWithRunningVacations(date));
    }
    if (calendariumContent().hasFeatures(FEATURE_ENTRIES))
        found += describePersonalHolidays(date);
    found.removeDuplicates();
    return found;
}

QList<MvCalendariumRendererHolidays::Event> MvCalendariumRendererHolidays::eventsOfMonth() const
{
    QList<Event> events;
    QHash<QString, qsizetype> running; // by text: the event that lasted until the day before
    const QDate start = startDate();
    for (int day = 0; day < start.daysInMonth(); ++day) {
        const QDate date = start.addDays(day);
        QHash<QString, qsizetype> ofDay;
        const QStringList found = texts(date);
        for (const QString &text : found) {
            const qsizetype run = running.value(text, events.size());
            if (run < events.size())
                events[run].last = date;
            else
                events.append({date, date, text});
            ofDay.insert(text, run);
        }
        running = ofDay;
    }
    return events;
}

void MvCalendariumRendererHolidays::completeAcrossMonth(QList<Event> &events) const
{
    const auto follow = [this, &events](QDate Event::*end, const QDate &edge, int direction) {
        QList<Event *> open; // those that go on so far
        for (Event &event : events) {
            if (event.*end == edge)
                open.append(&event);
        }
        for (int day = 1; day <= mostDaysBeyond && !open.isEmpty(); ++day) {
            const QDate date = edge.addDays(qint64(direction) * day);
            const QStringList found = texts(date);
            const QSet<QString> present(found.cbegin(), found.cend());
            open.removeIf([&present](const Event *event) { return !present.contains(event->text); });
            for (Event *event : std::as_const(open))
                event->*end = date;
        }
    };
    follow(&Event::first, startDate(), -1);
    follow(&Event::last, startDate().addMonths(1).addDays(-1), 1);
}

QStringList MvCalendariumRendererHolidays::items() const
{
    QList<Event> events = eventsOfMonth();
    completeAcrossMonth(events);
    QStringList items;
    for (const Event &event : std::as_const(events))
        items.append(describe(event.first, event.last, event.text));
    return items;
}

QString MvCalendariumRendererHolidays::describe(const QDate &from, const QDate &to, const QString &text) const
{
    const MvCalendarWordsRegistry::Patterns patterns = MvCalendarWordsRegistry::instance().patterns(language());
    const QString first = stringFromDate(from, patterns.day);
    if (to == from)
        return patterns.ofDay.arg(first, text);
    const QString last = stringFromDate(to, patterns.day);
    return (to == from.addDays(1) ? patterns.ofTwoDays : patterns.ofDays).arg(first, last, text);
}

QString MvCalendariumRendererHolidays::createHolidayDescription()
{
    return paragraph(items().join(itemSeparator));
}

// ---- painting

void MvCalendariumRendererHolidays::renderBase(QPainter &painter, const QRectF &rect)
{
    drawCellBackground(painter, rect, blockCell, true);
    const QRectF inner = rect.marginsRemoved(padding(CALENDAR_CELL_TYPE_WEEKDAY));
    const QColor color = fontColor(blockCell, true);
    if (inner.isEmpty() || !isOpaqueColor(color))
        return;
    QStringList bound = items();
    bound.replaceInStrings(u": "_s, u":\u00a0"_s); // a date stays with the first word of its name
    const QSizeF room(inner.width(), inner.height() / leading);
    const MvTextFitter fitter = this->fitter(CALENDAR_CELL_TYPE_WEEKDAY);
    MvFittedText fitted = fitter.fitRunning(room, bound, itemSeparator);
    if (fitted.isCut) // but sooner alone than that the name is cut
        fitted = fitter.fitRunning(room, items(), itemSeparator);
    for (const QString &text : fitted.cutTexts)
        reportUnfitting(startDate(), QString(text).replace(u'\u00a0', u' '), rect);
    reportMissingGlyphs(startDate(), bound, fitted.font, rect);

    const MvPaintMarking mark(painter, MvPaintMark::Kind::Paragraph, 0, 0, {items().join(itemSeparator)});
    painter.save();
    painter.setFont(fitted.font);
    painter.setPen(color);
    const double lineHeight = leading * QFontMetricsF(fitted.font).height();
    QRectF line = inner;
    for (const QString &text : fitted.lines) {
        drawText(painter, line, Qt::AlignLeft | Qt::AlignTop, text);
        line.translate(0.0, lineHeight);
    }
    painter.restore();
}
