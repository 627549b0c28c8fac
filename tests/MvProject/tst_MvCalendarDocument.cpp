// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"
#include "MvCalendar/MvRenderingProbe.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvCalendarTitle.h"
#include "MvProject/MvPageSource.h"
#include "MvTest.h"

#include <QImage>
#include <QPainter>

using namespace Qt::StringLiterals;

class tst_MvCalendarDocument : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void titles_data();
    void titles();
    void lacksLeapDay_data();
    void lacksLeapDay();
    void paintsTheMargins_data();
    void paintsTheMargins();
    void littleWork_data();
    void littleWork();
    void withoutSchemasThereIsNothing();

private:
    static MvCalendarDocument document(const QString &colors);
};

MvCalendarDocument tst_MvCalendarDocument::document(const QString &colors)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchema(MvCalendariumLayoutSchemaRegistry::instance().schema(0));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(colors));
    MvCalendarDocument document;
    document.setAppearance(appearance);
    document.setRange(MvDateRange(QDate(2027, 2, 1), QDate(2027, 2, 28)));
    document.setFormat(MvPageFormat::fromName(u"A6"_s));
    return document;
}

void tst_MvCalendarDocument::titles_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QDate>("end"); // of a calendar from August 2026 on
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("pageTitle"); // of the first page
    QTest::newRow("months") << u"MONTH_GRID_CLASSIC"_s << QDate(2026, 10, 31)
                            << u"Kalender August 2026 bis Oktober 2026"_s << u"August 2026"_s;
    QTest::newRow("a month") << u"MONTH_GRID_CLASSIC"_s << QDate(2026, 8, 31) << u"Kalender August 2026"_s
                             << u"August 2026"_s;
    QTest::newRow("a page of twelve months") << u"YEAR_GRID"_s << QDate(2027, 7, 31)
                                             << u"Kalender August 2026 bis Juli 2027"_s << u"Aug. 2026 – Juli 2027"_s;
}

void tst_MvCalendarDocument::titles()
{
    QFETCH(const QString, layout);
    QFETCH(const QDate, end);
    MvCalendarDocument calendar = document(u"NIGHT"_s);
    MvCalendariumAppearance appearance = calendar.appearance();
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    calendar.setAppearance(appearance);
    calendar.setRange(MvDateRange(QDate(2026, 8, 1), end));
    QTEST(calendar.pageSource().title, "title");
    QTEST(MvCalendarTitle::ofPage(calendar.pages().value(0)), "pageTitle");
    calendar.setTitle(u"Familie"_s);
    QCOMPARE(calendar.pageSource().title, u"Familie"_s);
}

void tst_MvCalendarDocument::lacksLeapDay_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<QDate>("start");
    QTest::addColumn<int>("months");
    QTest::addColumn<bool>("isLacking");
    QTest::newRow("February of 28 days") << u"MONTH_GRID_CLASSIC"_s << QDate(2027, 1, 1) << 12 << true;
    QTest::newRow("no February") << u"MONTH_GRID_CLASSIC"_s << QDate(2027, 3, 1) << 10 << false;
    QTest::newRow("leap year among two") << u"MONTH_GRID_CLASSIC"_s << QDate(2027, 1, 1) << 24 << false;
    QTest::newRow("year from May to the next February 29") << u"YEAR_PLANNER"_s << QDate(2027, 5, 1) << 1 << false;
    QTest::newRow("year from May without") << u"YEAR_PLANNER"_s << QDate(2026, 5, 1) << 1 << true;
    QTest::newRow("shows no days") << u"MONTH_ONLY"_s << QDate(2027, 1, 1) << 12 << false;
}

void tst_MvCalendarDocument::lacksLeapDay()
{
    QFETCH(const QString, layout);
    QFETCH(const QDate, start);
    QFETCH(const int, months);
    MvCalendarDocument calendar = document(u"PAPER_WHITE"_s);
    MvCalendariumAppearance appearance = calendar.appearance();
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    calendar.setAppearance(appearance);
    calendar.setRange({start, start.addMonths(months).addDays(-1)});
    QTEST(calendar.lacksLeapDay(), "isLacking");
}

void tst_MvCalendarDocument::paintsTheMargins_data()
{
    QTest::addColumn<QString>("colors");
    QTest::addColumn<QColor>("margin");
    QTest::newRow("dark page") << u"NIGHT"_s << QColor(u"#1A2130"_s);
    QTest::newRow("paper shows through") << u"PAPER_WHITE"_s << QColor(Qt::green);
}

void tst_MvCalendarDocument::paintsTheMargins()
{
    QFETCH(const QString, colors);
    QFETCH(const QColor, margin);
    const MvCalendarDocument calendar = document(colors);
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

void tst_MvCalendarDocument::littleWork_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("passesPerPage"); // the line with the month is one of its own
    QTest::addColumn<int>("daysPerPage");   // and one look more, at a vacation that goes on
    QTest::newRow("weeks in rows") << u"MONTH_GRID_CLASSIC"_s << 1 << 31;
    QTest::newRow("weeks in columns") << u"WEEK_COLUMNS"_s << 2 << 42;
    QTest::newRow("days in rows") << u"FAMILY_PLANNER"_s << 2 << 31;
}

/// Painting must not grow by questions asked twice: a look at each date, a few fonts, one fit for all pages.
void tst_MvCalendarDocument::littleWork()
{
    QFETCH(const QString, layout);
    QFETCH(const int, passesPerPage);
    QFETCH(const int, daysPerPage);
    MvCalendarDocument calendar = document(u"NIGHT"_s);
    calendar.setFormat(MvPageFormat::fromName(u"A4"_s));
    calendar.setRange(MvDateRange(QDate(2027, 1, 1), QDate(2027, 12, 31)));
    calendar.setHolidayConfig({MvLocale(u"de_DE"_s), u"BY"_s, MvCalendariumFeatures(1 | 2 | 8 | 64)});
    MvCalendariumAppearance appearance = calendar.appearance();
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    calendar.setAppearance(appearance);

    MvRenderingProbe probe;
    MvRenderingSources sources;
    sources.probe = &probe;
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    for (int page = 0; page < 12; ++page)
        calendar.paint(painter, page, sources);
    QVERIFY2(probe.passes > 12 * passesPerPage && probe.passes <= 12 * passesPerPage + 12,
             qPrintable(QString::number(probe.passes)));
    QVERIFY2(probe.holidayLookUps >= 365 && probe.holidayLookUps <= 12 * (daysPerPage + 1),
             qPrintable(QString::number(probe.holidayLookUps)));
    QVERIFY2(probe.fonts <= 12 * 20, qPrintable(QString::number(probe.fonts)));

    probe = {};
    for (int page = 0; page < 12; ++page)
        calendar.paint(painter, page, sources);
    QCOMPARE(probe.passes, 12 * passesPerPage); // what fits is known
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
    document(u"NIGHT"_s).paint(painter, 1); // a page that there is not
    painter.end();
    QCOMPARE(image, before);
}

MV_TEST_MAIN(tst_MvCalendarDocument)
#include "tst_MvCalendarDocument.moc"
