#include "MvTest.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvModelBase/MvPaintRecorder.h"
#include "MvProject/MvCalendarDocument.h"

#include <QPainter>

#include <limits>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

MvCalendarDocument document(const QString &layout)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    appearance.adoptLayoutSuggestions();
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    MvCalendarDocument document;
    document.setAppearance(appearance);
    document.setRange({QDate(2027, 1, 1), QDate(2027, 12, 31)});
    MvPageFormat format = MvPageFormat::fromName(u"A4"_s);
    document.setFormat(format);
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
    void monthAboveLayoutsWithoutOne_data();
    void monthAboveLayoutsWithoutOne();
    void columnsOfTheFamilyPlanner();
    void titleOfPage_data();
    void titleOfPage();
    void calendarWeeks_data();
    void calendarWeeks();
};

void tst_MvCalendarDocumentLayouts::monthAboveLayoutsWithoutOne_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("month");
    QTest::newRow("planner") << u"FAMILY_PLANNER"_s << u"Mai 2027"_s;
    QTest::newRow("list") << u"DAY_LIST"_s << u"Mai 2027"_s;
    QTest::newRow("birthdays, of any year") << u"BIRTHDAY_LIST"_s << u"Mai"_s;
    QTest::newRow("grid with a title of its own") << u"MONTH_GRID_CLASSIC"_s << u" Mai 2027"_s;
}

void tst_MvCalendarDocumentLayouts::monthAboveLayoutsWithoutOne()
{
    QFETCH(QString, layout);
    QFETCH(QString, month);
    const MvCalendarDocument document = ::document(layout);
    const QList<Item> texts = textsOf(document, 4);
    QVERIFY(texts.size() > 31);
    QCOMPARE(texts.constFirst().text, month);
    const QRectF line = texts.constFirst().bounds;
    for (const Item &text : texts.mid(1)) {
        QVERIFY2(text.bounds.top() > line.bottom(), qPrintable(text.text));
        QVERIFY2(document.format().contentRect().contains(text.bounds), qPrintable(text.text));
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
