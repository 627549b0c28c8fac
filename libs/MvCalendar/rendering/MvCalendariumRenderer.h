// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarCellTypeConfig.h"
#include "MvCalendar/MvCalendariumAppearance.h"
#include "MvCalendar/MvCalendariumDay.h"
#include "MvCalendar/MvCalendariumDisplayAbilities.h"
#include "MvCalendar/MvCalendariumWords.h"
#include "MvCalendar/MvPaintedFoto.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvCalendar/MvUnfittingText.h"
#include "MvCore/MvRealRange.h"
#include "MvCore/MvSpaceMagnitude.h"
#include "MvModelBase/MvProjectIdentifier.h"
#include "MvPaint/MvTextFitter.h"
#include "MvPaint/MvTextPainter.h"
#include "MvProductBase/MvCalendariumContentConfig.h"
#include "MvProductBase/MvCalendariumFeatures.h"
#include "MvProductBase/MvCalendariumHolidayType.h"
#include "MvProductBase/MvDateRange.h"

#include <QDate>
#include <QFontMetricsF>
#include <QImage>
#include <QObject>
#include <QPair>
#include <QRectF>
#include <QSet>

#include <algorithm>
#include <memory>

class MvCalendariumContentKey;
class MvCalendariumDays;
class QPainter;

/// Draws a calendarium: the base of all layouts. A renderer lives for one page: make it (MvCalendariumRendererFactory),
/// configure it, connect to its signals, render as often as needed. GUI thread.
///
/// A call of render() is a pass: the renderer goes through the dates of its page once, tells each date's rectangle, and
/// paints. It divides its rectangle with numbers before, so that painting only fills in what was decided. Backgrounds
/// are collected by colour and painted beneath everything as one path each, since neighbouring rectangles would show a
/// hairline between them. Texts without room are listed by the pass that found no room for them.
///
/// Lengths are page units, tenths of a millimetre; the painter must be scaled so that its units are page units. Texts
/// are measured at 200 dots per inch.
class MVCALENDAR_EXPORT MvCalendariumRenderer : public QObject
{
    Q_OBJECT

public:
    explicit MvCalendariumRenderer(const MvCalendariumAppearance &appearance);
    ~MvCalendariumRenderer() override;

    // what a layout is
    virtual MvCalendariumDisplayAbilities abilities() const = 0;
    /// The smallest size in page units at which the calendarium is readable.
    virtual QSize minimumSizeHint() const;
    /// Whether everything but the texts of days and the names of weekdays finds its place in so much room, in whatever
    /// month. Where it does not, the caller may try a smaller scale.
    virtual bool hasRoom(const QSizeF &room) const;
    virtual bool rendersMonthInformation() const = 0;
    virtual bool thereIsToMuchText(const QRectF &) const { return false; } // the name is historical
    virtual QList<MvCalendarCellType> usedCellTypes() const = 0;
    virtual bool hasOneHeaderPerDay() const { return false; }
    /// Paints the whole calendarium into the rectangle. Called by render(), which is what callers want.
    virtual void renderBase(QPainter &painter, const QRectF &rect) = 0;
    /// The texts that the column of calendar weeks must hold; the name is historical.
    virtual QStringList maxmimumWidthCalendarWeekText() const;
    virtual bool shouldIPaintTheBorder(const MvCalendarCellTypeConfig &config) const;
    /// Whether any of the given things is rendered.
    virtual bool isConfigured(const MvCalendarRenderingInformation &info) const
    {
        return renderingInformation().hasAnyOf(info);
    }
    virtual QList<MvCalendarCellType> dayCellTypes() const;
    virtual QList<MvCalendarCellType> dayHeadCellTypes(bool withSpecialDays) const;

    // configuration
    /// The page's month (the day of the content date does not matter) with its options, and the range of the whole
    /// calendar.
    void setCalendarInformation(const MvCalendariumContentConfig &content, const MvDateRange &range);
    /// The paper class of the printed product; none (the default) leaves fonts as the layout made them.
    void setProductSize(const MvSpaceMagnitude &size);
    /// Factors to the fonts and paddings of the layout, for a page that leaves the calendarium less room than the
    /// layout was made for; 1 by default. No font becomes smaller than smallestPixelSize().
    void setScale(double fonts, double paddings);
    /// Points; 6 by default.
    void setMinimumFontSize(int size);
    /// The project whose personal entries are shown.
    void setModelInfo(const MvProjectIdentifier &project) { m_modelInfo = project; }
    const MvProjectIdentifier &modelInfo() const { return m_modelInfo; }
    /// Factor for the opacity of cell backgrounds, 0 to 1.
    void setBackgroundAlpha(double alpha) { m_backgroundAlpha = alpha; }
    /// What the passes draw on besides appearance and content; those of the default session unless set.
    void setSources(const MvRenderingSources &sources);
    const MvRenderingSources &sources() const { return m_sources; }
    /// How finely photos are drawn, in pixels of the target per page unit; 0, the default: as the painter is scaled.
    void setPixelsPerUnit(double pixels) { m_pixelsPerUnit = pixels; }

    /// One paint pass: announces a restart, then every date's rectangle; paints backgrounds, then lines and texts.
    void render(QPainter &painter, const QRectF &rect);

    /// The texts that had no room in the last pass, in the order of painting.
    const QList<MvUnfittingText> &unfittingTexts() const;
    /// The photos of days that the last pass drew, in the order of painting.
    const QList<MvPaintedFoto> &paintedFotos() const;

    // dates
    const MvCalendariumAppearance &appearance() const;
    const MvCalendarRenderingInformation &renderingInformation() const { return appearance().renderingInformation(); }
    const MvCalendariumContentConfig &calendariumContent() const { return m_content; }
    /// The first day of the page's month.
    QDate startDate() const;
    /// The first day of the calendar's first month, moved by the appearance's month offset.
    QDate startDateOfCalendar() const;
    /// The calendar's last day, moved by the appearance's month offset.
    QDate endDateOfCalendar() const;
    /// Rows from Monday to Sunday: 4 to 6 where empty weeks are left out, otherwise 6; 6 for an invalid date.
    int numberOfWeeks(const QDate &month) const;
    static QDate mondayOfWeekWithDay(const QDate &day) { return day.addDays(1 - day.dayOfWeek()); }
    static bool isEvenCalendarWeek(const QDate &date) { return date.weekNumber() % 2 == 0; }
    /// Parity relative to the page: the week of startDate() is odd, and rows alternate from there.
    virtual bool isEvenWeek(const QDate &date) const;

    /// Whether a row of the page begins with the day: an entry that lasts longer is named there again. By default the
    /// first of a month.
    virtual bool isRowStart(const QDate &date) const;
    /// The edge of a day's cell along which the bars of such entries run from day to day.
    virtual Qt::Edge spanEdge(const QDate &date) const;

    /// What a pass needs to know of a date. While one runs it is looked up once, whoever asks; so are the answers below
    /// and describeHolidays().
    MvCalendariumDay day(const QDate &date) const;

    // cell types of a date; features: 1 holidays change the inscription, 2 they change the colour
    MvCalendariumContentKey contentFor(const QDate &date) const;
    QSet<MvCalendariumHolidayType> tags(const QDate &date) const;
    MvCalendarCellType headCellType(const QDate &date, const MvCalendariumFeatures &features) const;
    MvCalendarCellType contentCellType(const QDate &date, const MvCalendariumFeatures &features) const;
    /// By weekday alone; 1 is Monday, and days above 7 start again.
    static MvCalendarCellType headCellTypeWeekDay(int dayOfWeek);
    static MvCalendarCellType contentCellTypeWeekDay(int dayOfWeek);
    MvCalendarCellTypeConfig headCellTypeConfig(const QDate &date) const;
    MvCalendarCellTypeConfig contentCellTypeConfig(const QDate &date) const;
    static double max3(double a, double b, double c) { return std::max({a, b, c}); }

    // fonts and layout values
    QFont font(const MvCalendarCellType &type) const;
    QFont fontHolidays(const MvCalendarCellType &type) const;
    QFontMetrics fontMetrics(const MvCalendarCellType &type) const;
    /// Without a device, metrics at the printer's resolution.
    static QFontMetricsF calculateFontMetrics(const QFont &font, QPaintDevice *device);
    Qt::Alignment textAlignment(const MvCalendarCellType &type) const { return appearance().textAlignment(type); }
    int cellBorderWidth(const MvCalendarCellType &type) const { return appearance().cellBorderWidth(type); }
    QMarginsF padding(const MvCalendarCellType &type) const;
    MvCalendarBorderType borderType(const MvCalendarCellType &type) const;
    /// Sum of the horizontal and of the vertical paddings.
    QSizeF paddingDifference(const MvCalendarCellType &type) const;

    // the floor of type: 6.5 points on paper, or less where the layout with the user's percentage has less on this
    // paper
    /// The pixel size below which no text of the type is made smaller.
    double smallestPixelSize(const MvCalendarCellType &type) const;
    /// The same for the texts of days.
    double smallestHolidayPixelSize(const MvCalendarCellType &type) const;
    /// Fits texts in the font of the type, dividing words of the page's language.
    MvTextFitter fitter(const MvCalendarCellType &type) const;
    /// The same for the texts of days.
    MvTextFitter holidayFitter(const MvCalendarCellType &type) const;

    // measuring
    /// In pixels of the device, (0, 0) for an empty text.
    QSizeF minimumSizeFont(const MvCalendarCellType &type, QPaintDevice *device, const QString &text) const;
    QSizeF maximumSizeOfStrings(const MvCalendarCellType &type, const QStringList &texts) const;
    static bool isTextToWide(int maxWidth, const QFont &font, const QString &text)
    {
        return MvTextPainter::isTextToWide(maxWidth, font, text);
    }
    static bool isAnyTextToWide(int maxWidth, const QFont &font, const QStringList &texts)
    {
        return MvTextPainter::isAnyTextToWide(maxWidth, font, texts);
    }
    /// `rotated`: the text of a calendar week runs vertically.
    double minimumHeightOfCellType(const MvCalendarCellType &type, bool rotated) const;
    double contentWidthOfCellType(const MvCalendarCellType &type, bool shortNames) const;
    /// With paddings and an allowance of 1 for the border.
    double widthOfCellType(const MvCalendarCellType &type, bool shortNames) const;
    /// The widths of all single types of the set; (0, 0) for an empty one.
    MvRealRange widthRangeOfCellTypes(const MvCalendarCellType &types, bool shortNames) const;
    double maxHeadWidth() const;
    double maxContentWidth() const;
    /// In pixels of the device, with the fonts of the content cells.
    QSizeF minimumSizeWeekdays(bool shortNames, QPaintDevice *device) const;

    // breaking and drawing texts, see MvTextPainter
    static QStringList manuallyBreakLines(int maxWidth, const QFont &font, const QStringList &texts)
    {
        return MvTextPainter::breakLines(maxWidth, font, texts);
    }
    static void drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text)
    {
        MvTextPainter::drawText(painter, rect, flags, text);
    }
    static void drawTexts(QPainter &painter, const QRectF &rect, int flags, const QStringList &lines)
    {
        MvTextPainter::drawTexts(painter, rect, flags, lines);
    }

    // words in the page's language, see MvCalendariumWords
    MvLocale language() const { return m_content.language(); }
    QString dayName(int day, bool shortName) const { return words().dayName(day, shortName); }
    QString dayName(int day) const { return dayName(day, usesShortDayNames()); }
    QStringList weekdayNames(bool shortNames) const { return words().weekdayNames(shortNames); }
    QStringList weekdayNames() const { return weekdayNames(usesShortDayNames()); }
    QString saturdayName(bool shortName) const { return dayName(6, shortName); }
    QString saturdayName() const { return dayName(6); }
    QString sundayName(bool shortName) const { return dayName(7, shortName); }
    QString sundayName() const { return dayName(7); }
    QString weekShort() const { return words().weekShort(); }
    QString monthShort(int month) const { return words().monthShort(month); }
    QString monthLong(int month) const { return words().monthLong(month); }
    QString stringFromDate(const QDate &date, const QString &format) const { return words().fromDate(date, format); }
    QString dayNameFromDate(const QDate &date, bool shortName) const;
    QString dayNameFromDate(const QDate &date) const { return dayNameFromDate(date, usesShortDayNames()); }
    QString calendarMonth(int month, const MvCalendarRenderingInformation &info) const;
    QString monthName(int month) const { return calendarMonth(month, renderingInformation()); }
    static QString calendarYear(int year, const MvCalendarRenderingInformation &info)
    {
        return MvCalendariumWords::calendarYear(year, info);
    }
    QString yearName(int year) const { return MvCalendariumWords::yearName(year, renderingInformation()); }
    /// Month and year as the layout asks for them; of startDate() when the date is invalid.
    QString calendarMonth(const QDate &date) const;
    QString calendarWeekHeadlineText() const;
    QString calendarWeekText(const QDate &date) const;

    // texts of a day: official holidays, then personal entries, as far as the page shows them. All but descriptions()
    // are on one line each, without those of which nothing would be seen.
    QStringList descriptions(const QDate &date) const;
    /// On the first day of a month's page also the vacations that began before; of a vacation's other days, nothing.
    QStringList describeOfficialHolidays(const QDate &date) const;
    QStringList describePersonalHolidays(const QDate &date) const;
    QStringList describeHolidays(const QDate &date) const;
    /// The texts that go to the top and to the bottom of a cell, so that they leave the day number its place.
    QPair<QStringList, QStringList> splitHolidays(const QStringList &texts, const MvCalendarCellType &type) const;

    // fragments of an HTML table, placeholders left for the caller
    QString tableSkeleton(int spacing, int padding) const;
    static QString rowSkeleton();
    QString cellSkeleton(int rowSpan, int colSpan, const QColor &color, const QString &width) const;

    // colours of a cell
    QColor backgroundColor(const MvCalendarCellTypeConfig &config, bool even) const;
    QColor fontColor(const MvCalendarCellTypeConfig &config, bool even) const;
    bool isOpaqueColor(const QColor &color) const { return appearance().isOpaqueColor(color); }
    bool shouldIPaintTheBackground(const MvCalendarCellTypeConfig &config, bool even) const
    {
        return isOpaqueColor(backgroundColor(config, even));
    }
    void createBorderPen(QPainter &painter) const;

    // painting a cell
    /// The background is collected and filled beneath everything at the end of the pass.
    void drawCellBackground(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config, bool even);
    /// Background, border and text; nothing in an empty rectangle. Flags 0: the layout's alignment.
    void drawCell(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config, const QString &text,
                  bool even, int flags);
    void drawCellText(QPainter &painter, const QRectF &rect, const MvCalendarCellTypeConfig &config,
                      const QString &text, int flags, bool even);
    /// The day with its texts, where there is room for them, and its number, unless a photo takes its place.
    void drawDayNumberCell(QPainter &painter, const QRectF &rect, const QDate &date);
    /// The day's texts and photo in a tall cell; true when a photo was drawn.
    bool drawCellHoliday(QPainter &painter, const QRectF &rect, const QDate &date, bool even);
    /// The day's texts and photo in a wide cell.
    void drawCellHolidayWide(QPainter &painter, const QRectF &rect, const QDate &date, bool even);
    bool drawCellHolidayPicture(QPainter &painter, const QDate &date, const QRectF &rect);
    /// The photo of the day's first entry that has one, in full size; null when there is none.
    QImage holidayPicture(const QDate &date) const;

Q_SIGNALS:
    /// A pass begins: the rectangles of the one before no longer hold.
    void rectForDatesRestart(const QDate &date, QRectF rect);
    /// A day's cell was painted there. Once per day cell and pass.
    void rectForDateFound(const QDate &date, QRectF rect);
    /// All that a person takes for the day, where that is more than its cell: the row of a list, with its number and
    /// all columns; the cell with its head. Once per day and pass, with the cell in it.
    void roomForDateFound(const QDate &date, QRectF room);
    /// By renderers whose title line comes and goes with the content.
    void hasTitleLineMayHaveChanged(bool hasTitleLine);

protected:
    /// Whether the page's content or its appearance asks for calendar weeks, whatever the layout says.
    bool areCalendarWeeksRequested() const;
    /// isConfigured() for layouts whose calendar weeks the content or the appearance can ask for as well.
    bool isConfiguredOrWeeksAskedFor(const MvCalendarRenderingInformation &info) const;
    /// Collects a background; rectangles of one colour are filled as one shape.
    void addFill(const QRectF &rect, const QColor &color);
    /// Notes those of the texts in the font that have characters which no font can show.
    void reportMissingGlyphs(const QDate &date, const QStringList &texts, const QFont &font, const QRectF &rect);
    /// Notes a text of the day whose cell has no room for it, unless nothing of it would be seen.
    void reportUnfitting(const QDate &date, const QString &text, const QRectF &rect);
    /// Notes that the names of weekdays have no room in their line.
    void reportMissingHeads(const QString &names, const QRectF &line);
    /// descriptions() with the vacations that the day lies in, whether or not they begin on it.
    QStringList descriptionsWithRunningVacations(const QDate &date) const;

private:
    friend class MvCalendariumCellPainter;

    const MvCalendariumDays &days() const;
    MvCalendariumWords words() const;
    bool usesShortDayNames() const { return isConfigured(calendar_render_days_of_week_short); }
    void reportFoto(const QDate &date, const QRectF &rect);
    /// Of an entry that begins on the start day, in the cell of the date.
    void reportBarWithoutRoom(const QString &text, const QDate &start, const QDate &date, const QRectF &rect);

    struct Parts;

    MvCalendariumContentConfig m_content;
    MvDateRange m_dateRange;
    double m_backgroundAlpha = 1.0;
    MvProjectIdentifier m_modelInfo;
    MvRenderingSources m_sources;
    double m_pixelsPerUnit = 0.0;
    double m_devicePixelsPerUnit = 1.0; // of the pass that runs, for photos
    const std::unique_ptr<Parts> d;
};
