#include "MvTest.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvModelBase/MvPaintRecorder.h"
#include "MvProject/MvCalendarDocument.h"

#include <QPainter>

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
    void pagesOfWholeYears();
    void calendarWeeks_data();
    void calendarWeeks();
};

void tst_MvCalendarDocumentLayouts::monthAboveLayoutsWithoutOne_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QString>("month");
    QTest::newRow("planner") << u"FAMILY_PLANNER"_s << u"Mai 2027"_s;
    QTest::newRow("list") << u"DAY_LIST"_s << u"Mai 2027"_s;
    QTest::newRow("birthdays, of any year") << u"BIRTHDAY_LIST"_s << u"Mai "_s;
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

void tst_MvCalendarDocumentLayouts::pagesOfWholeYears()
{
    const MvCalendarDocument year = document(u"YEAR_ONLY"_s);
    QCOMPARE(year.pageDates(), QList<QDate>{QDate(2027, 1, 1)});
    const QList<Item> texts = textsOf(year, 0);
    QCOMPARE(texts.size(), 1); // no month above it
    QCOMPARE(texts.constFirst().text, u"2027"_s);
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
