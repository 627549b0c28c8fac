#include "MvCalendar/MvCalendariumRendererHolidays.h"

#include "MvModelBase/MvPrintableText.h"

#include <QPainter>
#include <QTextDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const MvCalendarCellTypeConfig blockCell(CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_WEEKDAY);
const QString itemSeparator = u", "_s;

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
    const QDate start = startDate();
    for (int day = 0; day < start.daysInMonth(); ++day) {
        const QDate date = start.addDays(day);
        const QStringList found = texts(date);
        for (const QString &text : found) {
            const auto run = std::find_if(events.begin(), events.end(), [&](const Event &event) {
                return event.text == text && event.last.addDays(1) == date;
            });
            if (run != events.end())
                run->last = date;
            else
                events.append({date, date, text});
        }
    }
    return events;
}

void MvCalendariumRendererHolidays::completeAcrossMonth(Event &event) const
{
    const auto follow = [this, &event](QDate &end, int direction) {
        for (int day = 0; day < mostDaysBeyond && texts(end.addDays(direction)).contains(event.text); ++day)
            end = end.addDays(direction);
    };
    if (event.first == startDate())
        follow(event.first, -1);
    if (event.last == startDate().addMonths(1).addDays(-1))
        follow(event.last, 1);
}

QStringList MvCalendariumRendererHolidays::items() const
{
    QList<Event> events = eventsOfMonth();
    QStringList items;
    for (Event &event : events) {
        completeAcrossMonth(event);
        items.append(describe(event.first, event.last, event.text));
    }
    return items;
}

QString MvCalendariumRendererHolidays::describe(const QDate &from, const QDate &to, const QString &text) const
{
    const QString format = tr("d.M", "Format of Days: d means day, M means Month, yy means Jear");
    const QString first = stringFromDate(from, format);
    if (to == from)
        return tr("%1: %2").arg(first, text);
    const QString last = stringFromDate(to, format);
    return (to == from.addDays(1) ? tr("%1/%2: %3") : tr("%1-%2: %3")).arg(first, last, text);
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
    if (inner.isEmpty() || !isOpaqueColor(fontColor(blockCell, true)))
        return;

    QTextDocument document;
    document.setDocumentMargin(0.0); // the padding is the margin
    document.setDefaultFont(font(CALENDAR_CELL_TYPE_WEEKDAY));
    document.setPageSize(inner.size());
    fill(document, rect);
    painter.translate(inner.topLeft());
    document.drawContents(&painter);
    painter.translate(-inner.topLeft());
}

void MvCalendariumRendererHolidays::fill(QTextDocument &document, const QRectF &rect)
{
    document.setHtml(html(createHolidayDescription()));
    if (document.pageCount() <= 1)
        return;
    const QStringList all = items();
    const auto fits = [&](qsizetype kept) {
        document.setHtml(html(paragraph(kept > 0 ? all.first(kept).join(itemSeparator) + u" …"_s : QString())));
        return document.pageCount() <= 1;
    };
    qsizetype kept = 0;
    for (qsizetype tooMany = all.size(); tooMany - kept > 1;) {
        const qsizetype middle = (kept + tooMany) / 2;
        (fits(middle) ? kept : tooMany) = middle;
    }
    fits(kept);
    reportUnfitting(startDate(), all.sliced(kept).join(itemSeparator), rect);
}

QString MvCalendariumRendererHolidays::html(const QString &paragraph) const
{
    // a date stays with the first word of its name
    const QString bound = QString(paragraph).replace(u": "_s, u":\u00a0"_s);
    return u"<font color=\"%1\">%2</font>"_s.arg(fontColor(blockCell, true).name(), bound);
}
