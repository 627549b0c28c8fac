// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProjectFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvCalendarDocument.h"

#include <QPainter>

#include <limits>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

MvCalendarDocument document(const QString &layout)
{
    MvCalendarDocument document;
    document.setAppearance(MvProjectFixture::appearance(layout));
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

class tst_MvCalendarDocumentLayouts : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void monthsOfOneSize_data();
    void monthsOfOneSize();
    void columnsOfTheFamilyPlanner();
    void titleOfPage_data();
    void titleOfPage();
    void calendarWeeks_data();
    void calendarWeeks();
};

void tst_MvCalendarDocumentLayouts::monthsOfOneSize_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<MvPhotoFrame::Placement>("placement");
    QTest::addColumn<int>("percentage");
    QTest::addColumn<bool>("isCentred");
    QTest::newRow("narrow") << u"MONTH_ONLY"_s << MvPhotoFrame::Placement::Left << 0 << true;
    QTest::newRow("large type") << u"MONTH_ONLY"_s << MvPhotoFrame::Placement::Top << 100 << true;
    QTest::newRow("without year") << u"MONTH_ONLY_SERIF"_s << MvPhotoFrame::Placement::Top << 0 << true;
    QTest::newRow("title") << u"MONTH_GRID_SERIF"_s << MvPhotoFrame::Placement::Right << 0 << true;
    QTest::newRow("spaced title") << u"MONTH_GRID_COMPACT"_s << MvPhotoFrame::Placement::Top << 0 << true;
    QTest::newRow("line above columns") << u"WEEK_COLUMNS_COMPACT"_s << MvPhotoFrame::Placement::Left << 0 << false;
}

/// The longest name decides; what is centred is so by what is seen of it.
void tst_MvCalendarDocumentLayouts::monthsOfOneSize()
{
    QFETCH(QString, layout);
    QFETCH(MvPhotoFrame::Placement, placement);
    QFETCH(int, percentage);
    QFETCH(bool, isCentred);
    MvCalendarDocument document = ::document(layout);
    MvCalendariumAppearance appearance = document.appearance();
    appearance.setFontSettings({QString(), percentage, -50, QFont::Normal, QFont::MixedCase, 0.0});
    document.setAppearance(appearance);
    document.setHolidayConfig({MvLocale(u"de_DE"_s), QString(), MvCalendariumFeatures()});
    int size = 0;
    for (int month = 0; month < 12; ++month) {
        MvCalendarPage page = document.pages()[month];
        MvPhotoFrame photo(u"/foto.jpg"_s, placement);
        photo.setShare(0.7);
        page.setPhotoFrame(photo);
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

void tst_MvCalendarDocumentLayouts::columnsOfTheFamilyPlanner()
{
    MvCalendarDocument document = ::document(u"FAMILY_PLANNER"_s);
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

void tst_MvCalendarDocumentLayouts::titleOfPage_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("months");
    QTest::addColumn<int>("monthsAhead");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("titles"); // the first text of each page, the months' blank in front taken off
    const QDate january(2027, 1, 1);
    const QDate august(2026, 8, 1);
    const QString german = u"de_DE"_s;
    QTest::newRow("a year") << u"YEAR_ONLY"_s << january << 12 << 0 << german << QStringList(u"2027"_s);
    QTest::newRow("each school year its own") << u"SCHOOL_YEAR"_s << august << 24 << 0 << german
                                              << QStringList{u"Schuljahr 2026/2027"_s, u"Schuljahr 2027/2028"_s};
    QTest::newRow("as long as the calendar lasts")
        << u"SCHOOL_YEAR"_s << august << 4 << 0 << u"fr_FR"_s << QStringList(u"Année scolaire 2026"_s);
    QTest::newRow("its grid") << u"SCHOOL_YEAR_GRID"_s << august << 24 << 0 << u"en_GB"_s
                              << QStringList{u"School year 2026/27"_s, u"School year 2027/28"_s};
    QTest::newRow("a month ahead") << u"MONTH_GRID_CLASSIC"_s << QDate(2026, 11, 1) << 2 << 1 << german
                                   << QStringList{u"Dezember 2026"_s, u"Januar 2027"_s};
    QTest::newRow("two behind, in the line above")
        << u"DAY_LIST"_s << january << 1 << -2 << german << QStringList(u"November 2026"_s);
    for (const QString &layout : {u"YEAR_ONLY"_s, u"YEAR_GRID"_s}) {
        QTest::addRow("%s: years ahead", qPrintable(layout))
            << layout << january << 12 << 24 << german << QStringList(u"2029"_s);
        QTest::addRow("%s: a year behind", qPrintable(layout))
            << layout << january << 12 << -12 << german << QStringList(u"2026"_s);
        QTest::addRow("%s: no further than a century", qPrintable(layout))
            << layout << january << 12 << std::numeric_limits<int>::max() << german << QStringList(u"2127"_s);
    }
    QTest::newRow("nor back") << u"MONTH_GRID_CLASSIC"_s << january << 1 << std::numeric_limits<int>::min() << german
                              << QStringList(u"Januar 1927"_s);
}

void tst_MvCalendarDocumentLayouts::titleOfPage()
{
    QFETCH(QString, layout);
    QFETCH(QDate, from);
    QFETCH(int, months);
    QFETCH(int, monthsAhead);
    QFETCH(QString, language);
    QFETCH(QStringList, titles);
    MvCalendarDocument document = ::document(layout);
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

void tst_MvCalendarDocumentLayouts::calendarWeeks_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("expected"); // where it is known
    const QHash<QString, QString> known{{u"MONTH_GRID_CLASSIC"_s, u"always"_s}, {u"DAY_LIST"_s, u"always"_s},
                                        {u"MONTH_GRID_COMPACT"_s, u"asked"_s},  {u"WEEK_COLUMNS"_s, u"asked"_s},
                                        {u"FAMILY_PLANNER"_s, u"never"_s},      {u"HOLIDAY_BLOCK"_s, u"never"_s}};
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        const QString id = schema.ID().toString();
        QTest::newRow(qPrintable(id)) << id << known.value(id);
    }
}

/// What the page says of its calendar weeks is what it paints.
void tst_MvCalendarDocumentLayouts::calendarWeeks()
{
    using CalendarWeeks = MvCalendarPage::CalendarWeeks;
    QFETCH(QString, layout);
    QFETCH(QString, expected);
    MvCalendarDocument document = ::document(layout);
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

MV_TEST_MAIN(tst_MvCalendarDocumentLayouts)
#include "tst_MvCalendarDocumentLayouts.moc"
