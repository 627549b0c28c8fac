// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumRenderer.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumCellPainter.h"
#include "MvCalendar/MvCalendariumHolidayCache.h"
#include "MvCalendar/MvDayTextPlacement.h"
#include "MvCalendar/MvHtmlTableSkeleton.h"
#include "MvCore/MvMath.h"
#include "MvCore/MvStringHelper.h"
#include "MvPaint/MvGlyphCoverage.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvPaint/MvPrintableText.h"
#include "MvPaint/MvTextPainter.h"
#include "MvProductBase/MvCalendarWeekHeadlineOption.h"
#include "MvProductBase/MvCalendarWeekTextOption.h"
#include "MvProductBase/MvCalendariumContentKey.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString sampleDayNumber = u"22"_s; // the widest one

constexpr double topLineWidth = 20.0;
constexpr double borderAllowance = 1.0;

constexpr double smallestPoints = 6.5; // of what people read on paper
constexpr double pageDpi = 254.0;      // a pixel of the page is a tenth of a millimetre

double floorOfType(const QFont &onPaper)
{
    return std::min(MvMath::point2pixel(smallestPoints, pageDpi), double(onPaper.pixelSize()));
}

/// Not smaller than the floor, which is rounded up since fonts have whole pixels.
QFont scaled(QFont font, double factor, double floor)
{
    const int size = std::max(static_cast<int>(font.pixelSize() * factor), static_cast<int>(std::ceil(floor)));
    if (font.letterSpacingType() == QFont::AbsoluteSpacing)
        font.setLetterSpacing(QFont::AbsoluteSpacing, font.letterSpacing() * size / font.pixelSize());
    font.setPixelSize(size);
    return font;
}

} // namespace

MvCalendariumRenderer::MvCalendariumRenderer(const MvCalendariumAppearance &appearance)
    : m_content(MvDateRange::createDefaultCalendarStart(), MvCalendariumHolidayConfig())
    , m_appearance(appearance)
    , m_dateRange(MvDateRange::createDefaultCalendarDateRange())
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

bool MvCalendariumRenderer::thereIsToMuchText(const QRectF &) const
{
    return false;
}

bool MvCalendariumRenderer::hasOneHeaderPerDay() const
{
    return false;
}

QStringList MvCalendariumRenderer::maxmimumWidthCalendarWeekText() const
{
    return {calendarWeekText(QDate(2222, 12, 24))}; // week 52, the widest number
}

bool MvCalendariumRenderer::shouldIPaintTheBorder(const MvCalendarCellTypeConfig &config) const
{
    return m_appearance.shouldIPaintTheBorder(config.colorConfig());
}

bool MvCalendariumRenderer::isConfigured(const MvCalendarRenderingInformation &info) const
{
    return renderingInformation().hasAnyOf(info);
}

bool MvCalendariumRenderer::areCalendarWeeksRequested() const
{
    return m_content.hasFeatures(FEATURE_CALENDAR_WEEKS) || m_appearance.overriddenShowCalendarWeek();
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

void MvCalendariumRenderer::setScale(double fonts, double paddings)
{
    m_fontScale = fonts;
    m_paddingScale = paddings;
}

void MvCalendariumRenderer::render(QPainter &painter, const QRectF &rect)
{
    Q_EMIT rectForDatesRestart(startDate(), rect);
    m_unfittingTexts.clear();
    m_devicePixelsPerUnit = std::sqrt(std::abs(painter.deviceTransform().determinant()));

    MvPaintRecorder recorder(painter); // has the resolution of the target, so that nothing needs to be scaled
    QPainter recordingPainter(&recorder);
    recordingPainter.setRenderHints(painter.renderHints());
    const QRectF clip = painter.clipBoundingRect();
    if (clip.width() > 0.0 && clip.height() > 0.0)
        recordingPainter.setClipRect(clip, Qt::ReplaceClip);
    renderBase(recordingPainter, rect);
    recordingPainter.end();

    paintFills(painter);
    m_fills.clear();
    recorder.recording().replay(painter);
}

void MvCalendariumRenderer::paintFills(QPainter &painter)
{
    QList<unsigned int> colors = m_fills.keys();
    std::sort(colors.begin(), colors.end()); // the same page always gives the same file
    for (const unsigned int color : std::as_const(colors))
        painter.fillPath(m_fills.value(color), QColor::fromRgba(color));
}

void MvCalendariumRenderer::addFill(const QRectF &rect, const QColor &color)
{
    QPainterPath &fill = m_fills[color.rgba()];
    fill.setFillRule(Qt::WindingFill); // cells that overlap fill what they share, too
    fill.addRect(rect);
}

// ---- dates

QDate MvCalendariumRenderer::startDate() const
{
    return m_content.date();
}

QDate MvCalendariumRenderer::startDateOfCalendar() const
{
    const QDate moved = m_dateRange.start().addMonths(m_appearance.offsetMonth());
    return QDate(moved.year(), moved.month(), 1);
}

QDate MvCalendariumRenderer::endDateOfCalendar() const
{
    return m_dateRange.end().addMonths(m_appearance.offsetMonth());
}

int MvCalendariumRenderer::numberOfWeeks(const QDate &month) const
{
    constexpr int most = 6;
    if (!month.isValid() || !isConfigured(calendar_render_no_empty_weeks))
        return most;
    const int daysBefore = QDate(month.year(), month.month(), 1).dayOfWeek() - 1; // in the first row
    return (daysBefore + month.daysInMonth() + 6) / 7;
}

QDate MvCalendariumRenderer::mondayOfWeekWithDay(const QDate &day)
{
    return day.addDays(1 - day.dayOfWeek());
}

bool MvCalendariumRenderer::isEvenCalendarWeek(const QDate &date)
{
    return date.weekNumber() % 2 == 0;
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

QSet<MvCalendariumHolidayType> MvCalendariumRenderer::tags(const QDate &date) const
{
    return MvCalendariumHolidayCache::instance().tags(contentFor(date));
}

bool MvCalendariumRenderer::hasHoliday(const QDate &date, const MvCalendariumFeatures &features) const
{
    return m_content.hasFeatures(features) && tags(date).contains(HOLIDAY_TYPE_PUBLIC);
}

// a vacation never recolours a weekend
bool MvCalendariumRenderer::hasVacationColors(const QDate &date) const
{
    return date.dayOfWeek() <= 5 && m_content.hasFeatures(FEATURE_SCHOOL_VACATIONS) &&
           tags(date).contains(HOLIDAY_TYPE_SCHOOL_VACATION);
}

MvCalendarCellType MvCalendariumRenderer::headCellType(const QDate &date, const MvCalendariumFeatures &features) const
{
    if (hasHoliday(date, features))
        return CALENDAR_CELL_TYPE_HEAD_HOLIDAY;
    return hasVacationColors(date) ? MvCalendarCellType(CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION)
                                   : headCellTypeWeekDay(date.dayOfWeek());
}

MvCalendarCellType MvCalendariumRenderer::contentCellType(const QDate &date,
                                                          const MvCalendariumFeatures &features) const
{
    if (hasHoliday(date, features))
        return CALENDAR_CELL_TYPE_HOLIDAY;
    return hasVacationColors(date) ? MvCalendarCellType(CALENDAR_CELL_TYPE_SCHOOL_VACATION)
                                   : contentCellTypeWeekDay(date.dayOfWeek());
}

MvCalendarCellType MvCalendariumRenderer::headCellTypeWeekDay(int dayOfWeek)
{
    while (dayOfWeek > 7)
        dayOfWeek -= 7;
    if (dayOfWeek == 6)
        return CALENDAR_CELL_TYPE_HEAD_SATURDAY;
    return dayOfWeek == 7 ? CALENDAR_CELL_TYPE_HEAD_SUNDAY : CALENDAR_CELL_TYPE_HEAD_WEEKDAY;
}

MvCalendarCellType MvCalendariumRenderer::contentCellTypeWeekDay(int dayOfWeek)
{
    while (dayOfWeek > 7)
        dayOfWeek -= 7;
    if (dayOfWeek == 6)
        return CALENDAR_CELL_TYPE_SATURDAY;
    return dayOfWeek == 7 ? CALENDAR_CELL_TYPE_SUNDAY : CALENDAR_CELL_TYPE_WEEKDAY;
}

MvCalendarCellTypeConfig MvCalendariumRenderer::headCellTypeConfig(const QDate &date) const
{
    return {headCellType(date, FEATURE_HOLIDAYS), headCellType(date, FEATURE_HOLIDAY_COLORS)};
}

MvCalendarCellTypeConfig MvCalendariumRenderer::contentCellTypeConfig(const QDate &date) const
{
    return {contentCellType(date, FEATURE_HOLIDAYS), contentCellType(date, FEATURE_HOLIDAY_COLORS)};
}

double MvCalendariumRenderer::max3(double a, double b, double c)
{
    return std::max({a, b, c});
}

// ---- fonts and measuring

QFont MvCalendariumRenderer::font(const MvCalendarCellType &type) const
{
    const QFont font = m_appearance.font(type, m_productSize, m_minimumFontSize);
    return m_fontScale == 1.0 ? font : scaled(font, m_fontScale, smallestPixelSize(type));
}

QFont MvCalendariumRenderer::fontHolidays(const MvCalendarCellType &type) const
{
    const QFont font = m_appearance.fontHolidays(type, m_productSize, m_minimumFontSize);
    // where larger numbers than the layout's become smaller again, texts stay as they are
    const double enlarged = 1.0 + 0.01 * std::max(0, m_appearance.fontSettings().fontSizePercentage());
    const double scale = std::min(1.0, m_fontScale * enlarged);
    return scale == 1.0 ? font : scaled(font, scale, smallestHolidayPixelSize(type));
}

QFontMetrics MvCalendariumRenderer::fontMetrics(const MvCalendarCellType &type) const
{
    if (m_fontScale == 1.0)
        return m_appearance.fontMetrics(type, m_productSize, m_minimumFontSize);
    return QFontMetrics(font(type));
}

double MvCalendariumRenderer::smallestPixelSize(const MvCalendarCellType &type) const
{
    return floorOfType(m_appearance.font(type, m_productSize, m_minimumFontSize));
}

double MvCalendariumRenderer::smallestHolidayPixelSize(const MvCalendarCellType &type) const
{
    return floorOfType(m_appearance.fontHolidays(type, m_productSize, m_minimumFontSize));
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
    if (text.isEmpty())
        return {0.0, 0.0};
    const QFontMetricsF metrics = calculateFontMetrics(font(type), device);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

QSizeF MvCalendariumRenderer::maximumSizeOfStrings(const MvCalendarCellType &type, const QStringList &texts) const
{
    const QFont cellFont = font(type);
    int width = 0;
    for (const QString &text : texts)
        width = std::max(width, MvTextPainter::advance(cellFont, text));
    return {MvMath::referencePixel2tenthMillimetre(width),
            MvMath::referencePixel2tenthMillimetre(fontMetrics(type).height())};
}

double MvCalendariumRenderer::minimumHeightOfCellType(const MvCalendarCellType &type, bool rotated) const
{
    double height = 0.0;
    if (type == CALENDAR_CELL_TYPE_WEEK_OF_YEAR) {
        const QSizeF size = maximumSizeOfStrings(type, maxmimumWidthCalendarWeekText());
        height = rotated ? size.width() : size.height();
    } else {
        height = MvMath::referencePixel2tenthMillimetre(fontMetrics(type).height());
    }
    return height + paddingDifference(type).height() + borderAllowance;
}

double MvCalendariumRenderer::contentWidthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    const auto widthOf = [this, &type](const QStringList &texts) { return maximumSizeOfStrings(type, texts).width(); };
    switch (type.value()) {
    case CALENDAR_CELL_TYPE_HEAD_WEEKDAY:
        return widthOf(weekdayNames(shortNames));
    case CALENDAR_CELL_TYPE_HEAD_SATURDAY:
        return widthOf({saturdayName(shortNames)});
    case CALENDAR_CELL_TYPE_HEAD_SUNDAY:
        return widthOf({sundayName(shortNames)});
    case CALENDAR_CELL_TYPE_WEEK_OF_YEAR:
        return widthOf(maxmimumWidthCalendarWeekText());
    case CALENDAR_CELL_TYPE_WEEKDAY:
    case CALENDAR_CELL_TYPE_SATURDAY:
    case CALENDAR_CELL_TYPE_SUNDAY:
    case CALENDAR_CELL_TYPE_HOLIDAY:
    case CALENDAR_CELL_TYPE_HEAD_HOLIDAY: // the special heads are measured like day numbers, not like day names
    case CALENDAR_CELL_TYPE_SCHOOL_VACATION:
    case CALENDAR_CELL_TYPE_HEAD_SCHOOL_VACATION:
        return widthOf({sampleDayNumber});
    case CALENDAR_CELL_TYPE_TOPLINE:
        return topLineWidth;
    default:
        return 0.0;
    }
}

double MvCalendariumRenderer::widthOfCellType(const MvCalendarCellType &type, bool shortNames) const
{
    return contentWidthOfCellType(type, shortNames) + paddingDifference(type).width() + borderAllowance;
}

MvRealRange MvCalendariumRenderer::widthRangeOfCellTypes(const MvCalendarCellType &types, bool shortNames) const
{
    MvRealRange range;
    const QList<MvCalendarCellType> singles = types.singleTypes();
    for (const MvCalendarCellType &single : singles) {
        const double width = widthOfCellType(single, shortNames);
        if (range == MvRealRange())
            range = {width, width};
        range.minimum = std::min(range.minimum, width);
        range.maximum = std::max(range.maximum, width);
    }
    return range;
}

double MvCalendariumRenderer::maxHeadWidth() const
{
    return max3(widthOfCellType(CALENDAR_CELL_TYPE_HEAD_WEEKDAY, false),
                widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SATURDAY, false),
                widthOfCellType(CALENDAR_CELL_TYPE_HEAD_SUNDAY, false));
}

double MvCalendariumRenderer::maxContentWidth() const
{
    return max3(widthOfCellType(CALENDAR_CELL_TYPE_WEEKDAY, false), widthOfCellType(CALENDAR_CELL_TYPE_SATURDAY, false),
                widthOfCellType(CALENDAR_CELL_TYPE_SUNDAY, false));
}

QSizeF MvCalendariumRenderer::minimumSizeWeekdays(bool shortNames, QPaintDevice *device) const
{
    QSizeF size(0.0, 0.0);
    for (int day = 1; day <= 7; ++day) {
        const QSizeF daySize = minimumSizeFont(contentCellTypeWeekDay(day), device, dayName(day, shortNames));
        size = size.expandedTo(daySize);
    }
    return size;
}

// ---- words

MvCalendariumWords MvCalendariumRenderer::words() const
{
    return MvCalendariumWords(language());
}

MvLocale MvCalendariumRenderer::language() const
{
    return m_content.language();
}

bool MvCalendariumRenderer::usesShortDayNames() const
{
    return isConfigured(calendar_render_days_of_week_short);
}

QString MvCalendariumRenderer::dayNameFromDate(const QDate &date, bool shortName) const
{
    return stringFromDate(date, shortName ? u"ddd"_s : u"dddd"_s);
}

QString MvCalendariumRenderer::calendarMonth(int month, const MvCalendarRenderingInformation &info) const
{
    return words().month(month, info);
}

QString MvCalendariumRenderer::calendarYear(int year, const MvCalendarRenderingInformation &info)
{
    return MvCalendariumWords::calendarYear(year, info);
}

QString MvCalendariumRenderer::yearName(int year) const
{
    return MvCalendariumWords::yearName(year, renderingInformation());
}

QString MvCalendariumRenderer::calendarMonth(const QDate &date) const
{
    const QDate shown = date.isValid() ? date : startDate();
    return tr("%1 %2", "%1 = Monat, %2 = Jahr. Englische Version wahrscheinlich: '%2 %1'")
        .arg(monthName(shown.month()), yearName(shown.year()));
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

QStringList MvCalendariumRenderer::descriptions(const QDate &date) const
{
    return MvCalendariumHolidayCache::instance().descriptions(contentFor(date));
}

QStringList MvCalendariumRenderer::describeOfficialHolidays(const QDate &date) const
{
    if (!m_appearance.showHolidays())
        return {};
    return MvPrintableText::onOneLineEach(isWithRunningVacations(date) ? descriptionsWithRunningVacations(date)
                                                                       : descriptions(date));
}

// a vacation that began on the page before would be a month of colour without a word
bool MvCalendariumRenderer::isWithRunningVacations(const QDate &date) const
{
    return date == startDate() && m_appearance.type() != CALENDAR_YEAR &&
           m_content.hasFeatures(FEATURE_SCHOOL_VACATIONS);
}

QStringList MvCalendariumRenderer::descriptionsWithRunningVacations(const QDate &date) const
{
    MvCalendariumContentConfig content = m_content.moveToDay(date);
    MvCalendariumHolidayConfig config = content.holidayConfig();
    config.setFeature(FEATURE_VACATION_NAMES_DAILY, true);
    content.setHolidayConfig(config);
    return MvCalendariumHolidayCache::instance().descriptions(MvCalendariumContentKey(content, m_modelInfo));
}

QStringList MvCalendariumRenderer::describePersonalHolidays(const QDate &date) const
{
    return MvPrintableText::onOneLineEach(MvCalendarEventRegistry::instance().descriptions(contentFor(date)));
}

QStringList MvCalendariumRenderer::describeHolidays(const QDate &date) const
{
    QStringList texts;
    if (m_content.hasFeatures(FEATURE_HOLIDAYS))
        texts += describeOfficialHolidays(date);
    if (m_content.hasFeatures(FEATURE_ENTRIES))
        texts += describePersonalHolidays(date);
    return texts;
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
    return m_appearance.cellColor({MvCalendarCellColorRoleEnum::bgcolor, config.colorConfig(), MvParityLogic(even)});
}

QColor MvCalendariumRenderer::fontColor(const MvCalendarCellTypeConfig &config, bool even) const
{
    return m_appearance.cellColor({MvCalendarCellColorRoleEnum::textcolor, config.colorConfig(), MvParityLogic(even)});
}

bool MvCalendariumRenderer::shouldIPaintTheBackground(const MvCalendarCellTypeConfig &config, bool even) const
{
    return m_appearance.shouldIPaintTheBackground(config.colorConfig(), even);
}

void MvCalendariumRenderer::createBorderPen(QPainter &painter) const
{
    painter.setPen(m_appearance.gridConfig().createPen());
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
    return MvCalendarEventRegistry::instance().eventImage(contentFor(date));
}

void MvCalendariumRenderer::reportUnfitting(const QDate &date, const QString &text, const QRectF &rect)
{
    if (MvStringHelper::isVisible(text))
        m_unfittingTexts.append({date, text, rect});
}

void MvCalendariumRenderer::reportMissingGlyphs(const QDate &date, const QStringList &texts, const QFont &font,
                                                const QRectF &rect)
{
    for (const QString &text : texts) {
        if (const QString missing = MvGlyphCoverage::missingCharacters(font, text); !missing.isEmpty())
            m_unfittingTexts.append({date, text, rect, missing});
    }
}
