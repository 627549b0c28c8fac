// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRenderer.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvCalendariumDays.h"
#include "MvCalendar/MvCalendariumFindings.h"
#include "MvCalendar/MvCellGrounds.h"
#include "MvCalendar/MvCellMeasures.h"
#include "MvCalendar/MvCellStyles.h"
#include "MvCalendar/MvDayTextPlacement.h"
#include "MvCalendar/MvHtmlTableSkeleton.h"
#include "MvCalendar/MvRenderingProbe.h"
#include "MvCore/MvMath.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProductBase/MvCalendarWeekHeadlineOption.h"
#include "MvProductBase/MvCalendarWeekTextOption.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Days above 7 start again.
int inWeek(int dayOfWeek)
{
    constexpr int days = 7;
    return dayOfWeek > days ? (dayOfWeek - 1) % days + 1 : dayOfWeek;
}

} // namespace

struct MvCalendariumRenderer::Parts
{
    Parts(const MvCalendariumRenderer &renderer, const MvCalendariumAppearance &appearance)
        : styles(appearance)
        , days(renderer)
        , measures(renderer)
    {}

    MvCellStyles styles;
    MvCalendariumDays days;
    MvCellMeasures measures;
    MvCellGrounds grounds; // empty outside render()
    MvCalendariumFindings findings;
};

MvCalendariumRenderer::MvCalendariumRenderer(const MvCalendariumAppearance &appearance)
    : m_content(MvDateRange::createDefaultCalendarStart(), MvCalendariumHolidayConfig())
    , m_dateRange(MvDateRange::createDefaultCalendarDateRange())
    , d(std::make_unique<Parts>(*this, appearance))
{}

MvCalendariumRenderer::~MvCalendariumRenderer() = default;

// ---- what a layout is, by default

QSize MvCalendariumRenderer::minimumSizeHint() const
{
    return {400, 300};
}

bool MvCalendariumRenderer::hasRoom(const QSizeF &room) const
{
    return minimumSizeHint().height() <= room.height();
}

QStringList MvCalendariumRenderer::maxmimumWidthCalendarWeekText() const
{
    return {calendarWeekText(QDate(2222, 12, 24))}; // week 52, the widest number
}

bool MvCalendariumRenderer::shouldIPaintTheBorder(const MvCalendarCellTypeConfig &config) const
{
    return d->styles.hasBorder(config.colorConfig());
}

bool MvCalendariumRenderer::areCalendarWeeksRequested() const
{
    return m_content.hasFeatures(FEATURE_CALENDAR_WEEKS) || appearance().overriddenShowCalendarWeek();
}

bool MvCalendariumRenderer::isConfiguredOrWeeksAskedFor(const MvCalendarRenderingInformation &info) const
{
    return (info.hasAnyOf(calendar_render_week_of_year) && areCalendarWeeksRequested()) ||
           renderingInformation().hasAnyOf(info);
}

QList<MvCalendarCellType> MvCalendariumRenderer::dayCellTypes() const
{
    return {CALENDAR_CELL_TYPE_WEEKDAY, CALENDAR_CELL_TYPE_SATURDAY, CALENDAR_CELL_TYPE_SUNDAY,
            CALENDAR_CELL_TYPE_HOLIDAY, CALENDAR_CELL_TYPE_SCHOOL_VACATION};
}

QList<MvCalendarCellType> MvCalendariumRenderer::dayHeadCellTypes(bool withSpecialDays) const
{
    QList<MvCalendarCellType> types = {CALENDAR_CELL_TYPE_HEAD_WEEKDAY, CALENDAR_CELL_TYPE_HEAD_SATURDAY,
                                       CALENDAR_CELL_TYPE_HEAD_SUNDAY};
    if (withSpecialDays)
        types << CALENDAR_CELL_TYPE_HEAD_HOLIDAY << CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION;
    return types;
}

// ---- configuration and pass

void MvCalendariumRenderer::setCalendarInformation(const MvCalendariumContentConfig &content, const MvDateRange &range)
{
    m_dateRange = MvDateRange(range.start(), range.end());
    m_content = content.moveToDayInMonth(1);
}

void MvCalendariumRenderer::setProductSize(const MvSpaceMagnitude &size)
{
    d->styles.setPaper(size);
}

void MvCalendariumRenderer::setMinimumFontSize(int size)
{
    d->styles.setMinimum(size);
}

void MvCalendariumRenderer::setScale(double fonts, double paddings)
{
    d->styles.setScale(fonts, paddings);
}

void MvCalendariumRenderer::setSources(const MvRenderingSources &sources)
{
    m_sources = sources;
    d->styles.setProbe(sources.probe);
}

const MvCalendariumAppearance &MvCalendariumRenderer::appearance() const
{
    return d->styles.appearance();
}

void MvCalendariumRenderer::render(QPainter &painter, const QRectF &rect)
{
    Q_EMIT rectForDatesRestart(startDate(), rect);
    if (m_sources.probe)
        ++m_sources.probe->passes;
    d->findings.clear();
    m_devicePixelsPerUnit =
        m_pixelsPerUnit > 0.0 ? m_pixelsPerUnit : std::sqrt(std::abs(painter.deviceTransform().determinant()));

    MvPaintRecorder recorder(painter); // has the resolution of the target, so that nothing needs to be scaled
    QPainter recordingPainter(&recorder);
    recordingPainter.setRenderHints(painter.renderHints());
    const QRectF clip = painter.clipBoundingRect();
    if (clip.width() > 0.0 && clip.height() > 0.0)
        recordingPainter.setClipRect(clip, Qt::ReplaceClip);
    d->days.beginPass();
    renderBase(recordingPainter, rect);
    d->days.endPass();
    d->findings.finish();
    recordingPainter.end();

    d->grounds.paint(painter);
    recorder.recording().replay(painter);
}

void MvCalendariumRenderer::addFill(const QRectF &rect, const QColor &color)
{
    d->grounds.add(rect, color);
}

// ---- dates

QDate MvCalendariumRenderer::startDate() const
{
    return m_content.date();
}

QDate MvCalendariumRenderer::startDateOfCalendar() const
{
    const QDate moved = m_dateRange.start().addMonths(appearance().offsetMonth());
    return QDate(moved.year(), moved.month(), 1);
}

QDate MvCalendariumRenderer::endDateOfCalendar() const
{
    return m_dateRange.end().addMonths(appearance().offsetMonth());
}

int MvCalendariumRenderer::numberOfWeeks(const QDate &month) const
{
    constexpr int most = 6;
    if (!month.isValid() || !isConfigured(calendar_render_no_empty_weeks))
        return most;
    const int daysBefore = QDate(month.year(), month.month(), 1).dayOfWeek() - 1; // in the first row
    return (daysBefore + month.daysInMonth() + 6) / 7;
}

bool MvCalendariumRenderer::isEvenWeek(const QDate &date) const
{
    const QDate start = startDate();
    switch (start.month() - date.month()) {
    case 1: // the month before the page
    case -11:
        return isEvenWeek(start);
    case 11: // the month after it
    case -1:
        return isEvenWeek(start.addMonths(1).addDays(-1));
    default:
        return isEvenCalendarWeek(date) != isEvenCalendarWeek(start);
    }
}

// ---- cell types of a date

MvCalendariumContentKey MvCalendariumRenderer::contentFor(const QDate &date) const
{
    return MvCalendariumContentKey(m_content.moveToDay(date), m_modelInfo);
}

MvCalendariumDay MvCalendariumRenderer::day(const QDate &date) const
{
    return d->days.day(date);
}

QSet<MvCalendariumHolidayType> MvCalendariumRenderer::tags(const QDate &date) const
{
    return d->days.tags(date);
}

MvCalendarCellType MvCalendariumRenderer::headCellType(const QDate &date, const MvCalendariumFeatures &features) const
{
    return d->days.headType(date, features);
}

MvCalendarCellType MvCalendariumRenderer::contentCellType(const QDate &date,
                                                          const MvCalendariumFeatures &features) const
{
    return d->days.contentType(date, features);
}

MvCalendarCellType MvCalendariumRenderer::headCellTypeWeekDay(int dayOfWeek)
{
    const int day = inWeek(dayOfWeek);
    if (day == Qt::Saturday)
        return CALENDAR_CELL_TYPE_HEAD_SATURDAY;
    return day == Qt::Sunday ? CALENDAR_CELL_TYPE_HEAD_SUNDAY : CALENDAR_CELL_TYPE_HEAD_WEEKDAY;
}

MvCalendarCellType MvCalendariumRenderer::contentCellTypeWeekDay(int dayOfWeek)
{
    const int day = inWeek(dayOfWeek);
    if (day == Qt::Saturday)
        return CALENDAR_CELL_TYPE_SATURDAY;
    return day == Qt::Sunday ? CALENDAR_CELL_TYPE_SUNDAY : CALENDAR_CELL_TYPE_WEEKDAY;
}

MvCalendarCellTypeConfig MvCalendariumRenderer::headCellTypeConfig(const QDate &date) const
{
    return d->days.headTypes(date);
}

MvCalendarCellTypeConfig MvCalendariumRenderer::contentCellTypeConfig(const QDate &date) const
{
    return d->days.contentTypes(date);
}

// ---- fonts and measuring

QFont MvCalendariumRenderer::font(const MvCalendarCellType &type) const
{
    return d->styles.font(type);
}

QFont MvCalendariumRenderer::fontHolidays(const MvCalendarCellType &type) const
{
    return d->styles.fontHolidays(type);
}

QFontMetrics MvCalendariumRenderer::fontMetrics(const MvCalendarCellType &type) const
{
    return d->styles.fontMetrics(type);
}

QMarginsF MvCalendariumRenderer::padding(const MvCalendarCellType &type) const
{
    return d->styles.padding(type);
}

MvCalendarBorderType MvCalendariumRenderer::borderType(const MvCalendarCellType &type) const
{
    return d->styles.borders(type);
}

double MvCalendariumRenderer::smallestPixelSize(const MvCalendarCellType &type) const
{
    return d->styles.smallestPixelSize(type);
}

double MvCalendariumRenderer::smallestHolidayPixelSize(const MvCalendarCellType &type) const
{
    return d->styles.smallestHolidayPixelSize(type);
}

MvTextFitter MvCalendariumRenderer::fitter(const MvCalendarCellType &type) const
{
    return {font(type), smallestPixelSize(type), MvHyphenator(language())};
}

MvTextFitter MvCalendariumRenderer::holidayFitter(const MvCalendarCellType &type) const
{
    return {fontHolidays(type), smallestHolidayPixelSize(type), MvHyphenator(language())};
}

QFontMetricsF MvCalendariumRenderer::calculateFontMetrics(const QFont &font, QPaintDevice *device)
{
    if (device)
        return QFontMetricsF(font, device);
    QImage printer(1, 1, QImage::Format_Mono);
    printer.setDotsPerMeterX(MvMath::printerResolution2dpm());
    printer.setDotsPerMeterY(MvMath::printerResolution2dpm());
    return QFontMetricsF(font, &printer);
}

QSizeF MvCalendariumRenderer::paddingDifference(const MvCalendarCellType &type) const
{
    const QMarginsF margins = padding(type);
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

QSizeF MvCalendariumRenderer::minimumSizeFont(const MvCalendarCellType &type, QPaintDevice *device,
                                              const QString &text) const
{
    return d->measures.minimumSizeFont(type, device, text);
}

QSizeF MvCalendariumRenderer::maximumSizeOfStrings(const MvCalendarCellType &type, const QStringList &texts) const
{
    return d->measures.maximumSizeOfStrings(type, texts);
}

double MvCalendariumRenderer::minimumHeightOfCellType(const MvCalendarCellType &type, bool rotated) const
{
    return d->measures.minimumHeightOfCellType(type, rotated);
}

double MvCalendariumRenderer::contentWidthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    return d->measures.contentWidthOfCellType(type, shortNames);
}

double MvCalendariumRenderer::widthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    return d->measures.widthOfCellType(type, shortNames);
}

MvRealRange MvCalendariumRenderer::widthRangeOfCellTypes(const MvCalendarCellType &types, bool shortNames) const
{
    return d->measures.widthRangeOfCellTypes(types, shortNames);
}

double MvCalendariumRenderer::maxHeadWidth() const
{
    return d->measures.maxHeadWidth();
}

double MvCalendariumRenderer::maxContentWidth() const
{
    return d->measures.maxContentWidth();
}

QSizeF MvCalendariumRenderer::minimumSizeWeekdays(bool shortNames, QPaintDevice *device) const
{
    return d->measures.minimumSizeWeekdays(shortNames, device);
}

// ---- words

MvCalendariumWords MvCalendariumRenderer::words() const
{
    return MvCalendariumWords(language(), m_sources.language);
}

QString MvCalendariumRenderer::dayNameFromDate(const QDate &date, bool shortName) const
{
    return stringFromDate(date, shortName ? u"ddd"_s : u"dddd"_s);
}

QString MvCalendariumRenderer::calendarMonth(int month, const MvCalendarRenderingInformation &info) const
{
    return words().month(month, info);
}

QString MvCalendariumRenderer::calendarMonth(const QDate &date) const
{
    const QDate shown = date.isValid() ? date : startDate();
    return MvCalendarWordsRegistry::instance()
        .patterns(language())
        .month.arg(monthName(shown.month()), yearName(shown.year()));
}

QString MvCalendariumRenderer::calendarWeekHeadlineText() const
{
    return m_content.calendarWeekHeadlineOption().textInProduct(language());
}

QString MvCalendariumRenderer::calendarWeekText(const QDate &date) const
{
    return m_content.calendarWeekTextOption()
        .textInProduct(language())
        .replace(u"%1"_s, QString::number(date.weekNumber()));
}

// ---- texts of a day

bool MvCalendariumRenderer::isRowStart(const QDate &date) const
{
    return date.day() == 1;
}

/// Away from the number.
Qt::Edge MvCalendariumRenderer::spanEdge(const QDate &date) const
{
    return textAlignment(contentCellType(date, FEATURE_HOLIDAYS)).testFlag(Qt::AlignBottom) ? Qt::TopEdge
                                                                                            : Qt::BottomEdge;
}

const MvCalendariumDays &MvCalendariumRenderer::days() const
{
    return d->days;
}

QStringList MvCalendariumRenderer::descriptions(const QDate &date) const
{
    return d->days.descriptions(date);
}

QStringList MvCalendariumRenderer::describeOfficialHolidays(const QDate &date) const
{
    return d->days.officialTexts(date);
}

QStringList MvCalendariumRenderer::describePersonalHolidays(const QDate &date) const
{
    return d->days.personalTexts(date);
}

QStringList MvCalendariumRenderer::describeHolidays(const QDate &date) const
{
    return d->days.texts(date);
}

QStringList MvCalendariumRenderer::descriptionsWithRunningVacations(const QDate &date) const
{
    return d->days.descriptionsWithRunningVacations(date);
}

QPair<QStringList, QStringList> MvCalendariumRenderer::splitHolidays(const QStringList &texts,
                                                                     const MvCalendarCellType &type) const
{
    return MvDayTextPlacement::split(texts, textAlignment(type));
}

// ---- HTML table

QString MvCalendariumRenderer::tableSkeleton(int spacing, int padding) const
{
    return MvHtmlTableSkeleton::table(spacing, padding);
}

QString MvCalendariumRenderer::rowSkeleton()
{
    return MvHtmlTableSkeleton::row();
}

QString MvCalendariumRenderer::cellSkeleton(int rowSpan, int colSpan, const QColor &color, const QString &width) const
{
    return MvHtmlTableSkeleton::cell(rowSpan, colSpan, color, width);
}

// ---- colours of a cell

QColor MvCalendariumRenderer::backgroundColor(const MvCalendarCellTypeConfig &config, bool even) const
{
    return d->styles.backgroundColor(config.colorConfig(), even);
}

QColor MvCalendariumRenderer::fontColor(const MvCalendarCellTypeConfig &config, bool even) const
{
    return d->styles.fontColor(config.colorConfig(), even);
}

void MvCalendariumRenderer::createBorderPen(QPainter &painter) const
{
    painter.setPen(appearance().gridConfig().createPen());
}

// ---- painting a cell

void MvCalendariumRenderer::drawCellBackground(QPainter &painter, const QRectF &rect,
                                               const MvCalendarCellTypeConfig &config, bool even)
{
    MvCalendariumCellPainter(*this, painter).drawBackground(rect, config, even);
}

void MvCalendariumRenderer::drawCell(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config,
                                     const QString &text, bool even, int flags)
{
    if (!(rect.width() > 0.0) || !(rect.height() > 0.0))
        return;
    drawCellBackground(painter, rect, config, even);
    if (!text.isEmpty())
        drawCellText(painter, rect, config, text, flags, even);
}

void MvCalendariumRenderer::drawCellText(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config,
                                         const QString &text, int flags, bool even)
{
    MvCalendariumCellPainter(*this, painter).drawText(rect, config, text, flags, even);
}

void MvCalendariumRenderer::drawDayNumberCell(QPainter &painter, const QRectF &rect, const QDate &date)
{
    MvCalendariumCellPainter(*this, painter).drawDayNumber(rect, date);
}

bool MvCalendariumRenderer::drawCellHoliday(QPainter &painter, const QRectF &rect, const QDate &date, bool even)
{
    return MvCalendariumCellPainter(*this, painter).drawHoliday(rect, date, even);
}

void MvCalendariumRenderer::drawCellHolidayWide(QPainter &painter, const QRectF &rect, const QDate &date, bool even)
{
    MvCalendariumCellPainter(*this, painter).drawHolidayWide(rect, date, even);
}

bool MvCalendariumRenderer::drawCellHolidayPicture(QPainter &painter, const QDate &date, const QRectF &rect)
{
    return MvCalendariumCellPainter(*this, painter).drawPicture(date, rect);
}

QImage MvCalendariumRenderer::holidayPicture(const QDate &date) const
{
    const MvCalendariumContentKey key = contentFor(date);
    const MvCalendarEventSource &entries = m_sources.entriesOrDefault();
    const QSize full = entries.imageFile(key).size;
    return full.isEmpty() ? QImage() : entries.eventImage(key, full, m_sources.fotosOrDefault());
}

// ---- what a pass finds

const QList<MvUnfittingText> &MvCalendariumRenderer::unfittingTexts() const
{
    return d->findings.unfittingTexts();
}

const QList<MvPaintedFoto> &MvCalendariumRenderer::paintedFotos() const
{
    return d->findings.fotos();
}

void MvCalendariumRenderer::reportUnfitting(const QDate &date, const QString &text, const QRectF &rect)
{
    d->findings.addUnfitting(date, text, rect);
}

void MvCalendariumRenderer::reportMissingHeads(const QString &names, const QRectF &line)
{
    d->findings.addMissingHeads(startDate(), names, line);
}

void MvCalendariumRenderer::reportMissingGlyphs(const QDate &date, const QStringList &texts, const QFont &font,
                                                const QRectF &rect)
{
    d->findings.addMissingGlyphs(date, texts, font, rect);
}

void MvCalendariumRenderer::reportBarWithoutRoom(const QString &text, const QDate &start, const QDate &date,
                                                 const QRectF &rect)
{
    d->findings.addBarWithoutRoom({date, text, rect}, start);
}

void MvCalendariumRenderer::reportFoto(const QDate &date, const QRectF &rect)
{
    d->findings.addFoto({date, rect});
}
