// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvRenderingProbe.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvPageSource.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTest.h"

#include <QImage>
#include <QPainter>

#include <limits>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

/// The months of 2027 on A4.
MvCalendarDocument documentOf(const QString &layout, const QString &colors = u"PAPER_WHITE"_s)
{
    MvCalendarDocument document;
    document.setAppearance(MvProjectFixture::appearance(layout, colors));
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    document.setFormat(MvPageFormat::fromName(u"A4"_s));
    return document;
}

QList<Item> textsOf(const MvCalendarDocument &document, int page)
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    document.paint(painter, page);
    painter.end();
    return recorder.recording().items(Item::Text);
}

} // namespace

class tst_MvCalendarDocument : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void titles_data();
    void titles();
    void lacksLeapDay();
    void paintsTheMargins();
    void littleWork_data();
    void littleWork();
    void withoutSchemasThereIsNothing();
    void monthsOfOneSize_data();
    void monthsOfOneSize();
    void columnsOfTheFamilyPlanner();
    void titleOfPage_data();
    void titleOfPage();
    void calendarWeeks_data();
    void calendarWeeks();
};

void tst_MvCalendarDocument::titles_data()
{
    // end: of a calendar from August 2026 on; pageTitle: of the first page
    const MvRows<QString, QDate, QString, QString> row;
    row("months", u"DAY_LIST"_s, {2026, 10, 31}, u"Kalender August 2026 bis Oktober 2026"_s, u"August 2026"_s);
    row("a month", u"DAY_LIST"_s, {2026, 8, 31}, u"Kalender August 2026"_s, u"August 2026"_s);
    row("a page of twelve months", u"YEAR_GRID"_s, {2027, 7, 31}, u"Kalender August 2026 bis Juli 2027"_s,
        u"Aug. 2026 – Juli 2027"_s);
}

void tst_MvCalendarDocument::titles()
{
    const auto [layout, end, title, pageTitle] = MvRows<QString, QDate, QString, QString>::current();
    MvCalendarDocument calendar = documentOf(layout);
    calendar.setRange(MvDateRange(QDate(2026, 8, 1), end));
    QCOMPARE(calendar.pageSource().title, title);
    QCOMPARE(calendar.pageSource().names.value(0), pageTitle);
    QCOMPARE(MvCalendarTitle::ofPage(calendar.pages().value(0)), pageTitle);
    calendar.setTitle(u"Familie"_s);
    QCOMPARE(calendar.pageSource().title, u"Familie"_s);
}

void tst_MvCalendarDocument::lacksLeapDay()
{
    const auto lacks = [](const QString &layout, const QDate &start, int months) {
        MvCalendarDocument calendar = documentOf(layout);
        calendar.setRange({start, start.addMonths(months).addDays(-1)});
        return calendar.lacksLeapDay();
    };
    QVERIFY(lacks(u"MONTH_GRID_CLASSIC"_s, {2027, 1, 1}, 12));
    QVERIFY(!lacks(u"MONTH_GRID_CLASSIC"_s, {2027, 3, 1}, 10)); // no February
    QVERIFY(!lacks(u"MONTH_GRID_CLASSIC"_s, {2027, 1, 1}, 24));
    QVERIFY(!lacks(u"YEAR_PLANNER"_s, {2027, 5, 1}, 1)); // a whole year, up to the next February 29
    QVERIFY(lacks(u"YEAR_PLANNER"_s, {2026, 5, 1}, 1));
    QVERIFY(!lacks(u"MONTH_ONLY"_s, {2027, 1, 1}, 12)); // shows no days
}

void tst_MvCalendarDocument::paintsTheMargins()
{
    for (const auto &[colors, margin] :
         {std::pair(u"NIGHT"_s, QColor(u"#1A2130"_s)), {u"PAPER_WHITE"_s, QColor(Qt::green)}}) { // paper shows through
        MvCalendarDocument calendar = documentOf(u"MONTH_GRID_CLASSIC"_s, colors);
        calendar.setFormat(MvPageFormat::fromName(u"A6"_s));
        QImage image(106, 149, QImage::Format_RGB32); // a pixel per millimetre
        image.fill(Qt::green);
        QPainter painter(&image);
        const MvPageSource source = calendar.pageSource();
        source.paintPage(painter, 0, {}, 0.1);
        painter.end();

        const QRect content =
            QRectF(calendar.format().contentRect().topLeft() / 10, calendar.format().contentRect().size() / 10)
                .toAlignedRect()
                .adjusted(-1, -1, 1, 1);
        bool isPaintedInside = false;
        for (int y = 0; y < 148; ++y) {
            for (int x = 0; x < 105; ++x) {
                if (content.contains(x, y))
                    isPaintedInside |= image.pixelColor(x, y) != margin;
                else
                    QCOMPARE(image.pixelColor(x, y), margin);
            }
        }
        QVERIFY(isPaintedInside);
    }
}

void tst_MvCalendarDocument::littleWork_data()
{
    const MvRows<QString, bool> row; // layout, isNarrow
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString id = layout.ID().toString();
        row(id, id, false);
        row(id + u" beside a photo"_s, id, true);
    }
}

/// Painting must not grow by questions asked twice: a look at each date, a few fonts, one fit for all pages.
void tst_MvCalendarDocument::littleWork()
{
    const auto [layout, isNarrow] = MvRows<QString, bool>::current();
    MvCalendarDocument calendar = documentOf(layout);
    calendar.setHolidayConfig({MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 8 | 64)});
    const int pages = int(calendar.pages().size());
    if (isNarrow) { // where little finds its place at any size
        calendar.setFormat(MvPageFormat::fromName(u"A6"_s));
        MvFotoFrame foto(u"/nowhere.jpg"_s, MvFotoFrame::Placement::Left);
        foto.setShare(MvFotoFrame::maximumShare);
        for (int page = 0; page < pages; ++page)
            MvProjectFixture::setFoto(calendar, page, foto);
    }
    MvRenderingProbe probe;
    MvRenderingSources sources;
    sources.probe = &probe;
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    const auto paint = [&] {
        probe = {};
        for (int page = 0; page < pages; ++page)
            calendar.paint(painter, page, sources);
    };
    paint();
    QVERIFY(probe.passes > 0 && probe.passes <= 26); // the line with the month is a pass of its own
    QVERIFY(probe.holidayLookUps <= 26);
    QVERIFY(probe.days <= 12 * 48); // with those of other months in the same weeks
    QVERIFY(probe.fonts <= 12 * (isNarrow ? 30 : 20));
    paint();
    QVERIFY(probe.passes <= 2 * pages); // what fits is known
}

void tst_MvCalendarDocument::withoutSchemasThereIsNothing()
{
    const MvCalendarDocument empty;
    QVERIFY(!empty.isValid());
    QVERIFY(!empty.pageSource().check().isOk());
    QImage image(50, 50, QImage::Format_RGB32);
    image.fill(Qt::green);
    const QImage before = image;
    QPainter painter(&image);
    empty.paint(painter, 0);
    documentOf(u"DAY_LIST"_s, u"NIGHT"_s).paint(painter, 12); // a page that there is not
    painter.end();
    QCOMPARE(image, before);
}

void tst_MvCalendarDocument::monthsOfOneSize_data()
{
    const MvRows<QString, MvFotoFrame::Placement, int, bool> row; // layout, placement, percentage, isCentred
    row("narrow", u"MONTH_ONLY"_s, MvFotoFrame::Placement::Left, 0, true);
    row("large type", u"MONTH_ONLY"_s, MvFotoFrame::Placement::Top, 100, true);
    row("without year", u"MONTH_ONLY_SERIF"_s, MvFotoFrame::Placement::Top, 0, true);
    row("title", u"MONTH_GRID_SERIF"_s, MvFotoFrame::Placement::Right, 0, true);
    row("spaced title", u"MONTH_GRID_COMPACT"_s, MvFotoFrame::Placement::Top, 0, true);
    row("line above columns", u"WEEK_COLUMNS_COMPACT"_s, MvFotoFrame::Placement::Left, 0, false);
}

/// The longest name decides; what is centred is so by what is seen of it.
void tst_MvCalendarDocument::monthsOfOneSize()
{
    const auto [layout, placement, percentage, isCentred] =
        MvRows<QString, MvFotoFrame::Placement, int, bool>::current();
    MvCalendarDocument document = documentOf(layout);
    MvCalendariumAppearance appearance = document.appearance();
    appearance.setFontSettings({QString(), percentage, -50, QFont::Normal, QFont::MixedCase, 0.0});
    document.setAppearance(appearance);
    document.setHolidayConfig({MvLocale(u"de_DE"_s), QString(), MvCalendariumFeatures()});
    int size = 0;
    for (int month = 0; month < 12; ++month) {
        MvCalendarPage page = document.pages()[month];
        MvFotoFrame foto(u"/foto.jpg"_s, placement);
        foto.setShare(0.7);
        page.setFotoFrame(foto);
        document.setPage(month, page);
        const Item title = textsOf(document, month).constFirst();
        const QRectF room = page.calendariumRect(document.format());
        QVERIFY2(room.contains(title.bounds), qPrintable(title.text));
        QCOMPARE(page.unfittingTexts(document.format(), document.range()).size(), 0);
        QCOMPARE(title.font.pixelSize(), month == 0 ? title.font.pixelSize() : size);
        size = title.font.pixelSize();
        if (isCentred)
            QVERIFY2(qAbs(title.bounds.center().x() - room.center().x()) < 0.5, qPrintable(title.text));
    }
}

void tst_MvCalendarDocument::columnsOfTheFamilyPlanner()
{
    MvCalendarDocument document = documentOf(u"FAMILY_PLANNER"_s);
    QCOMPARE(document.appearance().columnHeadersList().size(), 4);
    QVERIFY(document.appearance().fontSettings().fontSizePercentageHolidays() > -50);
    QStringList words;
    for (const Item &text : textsOf(document, 0))
        words.append(text.text);
    for (const QString &header : document.appearance().columnHeadersList())
        QCOMPARE(words.count(header), 1);

    // headings that nobody has changed speak the page's language
    const auto headingsIn = [&document](const QString &language) {
        document.setHolidayConfig({MvLocale(language), QString(), MvCalendariumFeatures()});
        QStringList found;
        for (const Item &text : textsOf(document, 0)) {
            if (text.font.bold() && !text.text.trimmed().toInt())
                found.append(text.text);
        }
        return found;
    };
    QVERIFY(headingsIn(u"fr_FR"_s).join(u' ').contains(u"Maman Papa Enfant 1 Enfant 2"_s));
    QVERIFY(headingsIn(u"en_US"_s).join(u' ').contains(u"Mom Dad Child 1 Child 2"_s));
    MvCalendariumAppearance changed = document.appearance();
    changed.setColumnHeaders(u"Mama$$Papa$$Lena$$Kind 2"_s);
    document.setAppearance(changed);
    QVERIFY(headingsIn(u"fr_FR"_s).join(u' ').contains(u"Mama Papa Lena Kind 2"_s));

    // setting a layout alone keeps what the page has
    MvCalendariumAppearance kept = document.appearance();
    kept.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(u"DAY_LIST"_s));
    QCOMPARE(kept.columnHeadersList(), document.appearance().columnHeadersList());
    kept.adoptLayoutSuggestions();
    QVERIFY(kept.columnHeadersList().isEmpty());
}

void tst_MvCalendarDocument::titleOfPage_data()
{
    // titles: the first text of each page, the months' blank in front taken off
    const MvRows<QString, QDate, int, int, QString, QStringList> row;
    const QDate january(2027, 1, 1);
    const QDate august(2026, 8, 1);
    const QString german = u"de_DE"_s;
    row("a year", u"YEAR_ONLY"_s, january, 12, 0, german, {u"2027"_s});
    row("each school year its own", u"SCHOOL_YEAR"_s, august, 24, 0, german,
        {u"Schuljahr 2026/2027"_s, u"Schuljahr 2027/2028"_s});
    row("while the calendar lasts", u"SCHOOL_YEAR"_s, august, 4, 0, u"fr_FR"_s, {u"Année scolaire 2026"_s});
    row("its grid", u"SCHOOL_YEAR_GRID"_s, august, 24, 0, u"en_GB"_s,
        {u"School year 2026/27"_s, u"School year 2027/28"_s});
    row("a month ahead", u"MONTH_GRID_CLASSIC"_s, {2026, 11, 1}, 2, 1, german, {u"Dezember 2026"_s, u"Januar 2027"_s});
    row("two behind, in the line above", u"DAY_LIST"_s, january, 1, -2, german, {u"November 2026"_s});
    const int most = std::numeric_limits<int>::max();
    for (const char *layout : {"YEAR_ONLY", "YEAR_GRID"})
        for (const auto &[ahead, year] : {std::pair(24, u"2029"_s), {-12, u"2026"_s}, {most, u"2127"_s}}) // a century
            row(qPrintable(u"%1, %2 ahead"_s.arg(QLatin1StringView(layout)).arg(ahead)), QString::fromLatin1(layout),
                january, 12, ahead, german, {year});
    row("nor back", u"MONTH_GRID_CLASSIC"_s, january, 1, std::numeric_limits<int>::min(), german, {u"Januar 1927"_s});
}

void tst_MvCalendarDocument::titleOfPage()
{
    const auto [layout, from, months, monthsAhead, language, titles] =
        MvRows<QString, QDate, int, int, QString, QStringList>::current();
    MvCalendarDocument document = documentOf(layout);
    MvCalendariumAppearance appearance = document.appearance();
    appearance.setOffsetMonth(monthsAhead);
    document.setAppearance(appearance);
    document.setRange({from, from.addMonths(months).addDays(-1)});
    document.setHolidayConfig(MvCalendariumHolidayConfig(MvLocale(language), {}, FEATURE_NONE));
    QStringList printed;
    for (int page = 0; page < document.pages().size(); ++page)
        printed.append(textsOf(document, page).constFirst().text.trimmed());
    QCOMPARE(printed, titles);
}

void tst_MvCalendarDocument::calendarWeeks_data()
{
    const MvRows<QString, QString> row; // layout; expected: where it is known
    const QHash<QString, QString> known{{u"MONTH_GRID_CLASSIC"_s, u"always"_s}, {u"DAY_LIST"_s, u"always"_s},
                                        {u"MONTH_GRID_COMPACT"_s, u"asked"_s},  {u"WEEK_COLUMNS"_s, u"asked"_s},
                                        {u"FAMILY_PLANNER"_s, u"never"_s},      {u"HOLIDAY_BLOCK"_s, u"never"_s}};
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString id = schema.ID().toString();
        row(id, id, known.value(id));
    }
}

/// What the page says of its calendar weeks is what it paints.
void tst_MvCalendarDocument::calendarWeeks()
{
    using CalendarWeeks = MvCalendarPage::CalendarWeeks;
    const auto [layout, expected] = MvRows<QString, QString>::current();
    MvCalendarDocument document = documentOf(layout);
    const auto textsWhen = [&document](bool asked) {
        MvCalendariumHolidayConfig holidays = document.holidayConfig();
        holidays.setFeature(FEATURE_CALENDAR_WEEKS, asked);
        document.setHolidayConfig(holidays);
        QStringList texts;
        for (const Item &item : textsOf(document, 0))
            texts.append(item.text);
        return texts;
    };
    const bool isChoice = textsWhen(true) != textsWhen(false);
    const CalendarWeeks weeks = document.pages().constFirst().calendarWeeks();
    QCOMPARE(weeks == CalendarWeeks::AsAsked, isChoice);
    const QString name = weeks == CalendarWeeks::AsAsked  ? u"asked"_s
                         : weeks == CalendarWeeks::Always ? u"always"_s
                                                          : u"never"_s;
    if (!expected.isEmpty())
        QCOMPARE(name, expected);
}

MV_TEST_MAIN(tst_MvCalendarDocument)
#include "tst_MvCalendarDocument.moc"
