// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventList.h"
#include "MvCalendar/MvCalendarEventListSource.h"
#include "MvCalendar/MvRenderingSources.h"
#include "MvProductBase/MvCalendariumHolidayConfig.h"
#include "MvProject/MvCalendarDocument.h"
#include "MvProject/MvHtmlExporter.h"
#include "MvProject/MvPageSource.h"
#include "MvRows.h"
#include "MvTest.h"

#include <QDomDocument>

using namespace Qt::StringLiterals;

/// Pages as documents to be read: what a reader and a screen reader find in them.
class tst_MvHtmlExporter : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyDayOnce_data();
    void everyDayOnce();
    void saysWhatThePageSays();
    void daysInTheMiddle();
    void foreignTextsAreText();
};

namespace {

MvCalendarDocument calendarOf(const QString &layout, const QString &language, const QString &region, int months)
{
    MvCalendarDocument document;
    document.setRange({QDate(2027, 1, 1), QDate(2027, 1, 1).addMonths(months).addDays(-1)});
    document.setHolidayConfig(MvCalendariumHolidayConfig(
        MvLocale(language), region,
        MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS | FEATURE_CALENDAR_WEEKS)));
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(layout));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    document.setAppearance(appearance);
    document.setFormat(MvPageFormat::fromName(u"A4"_s));
    return document;
}

/// The document as one of XML, which it is but for its first line and the tags that HTML leaves open.
QDomDocument parsed(const QByteArray &html)
{
    QDomDocument document;
    QString error;
    if (!document.setContent(html.mid(html.indexOf('\n')), &error))
        qWarning() << error;
    return document;
}

QList<QDomElement> all(const QDomNode &parent, const QString &tag)
{
    const QDomNodeList found =
        parent.isDocument() ? parent.toDocument().elementsByTagName(tag) : parent.toElement().elementsByTagName(tag);
    QList<QDomElement> elements;
    for (int i = 0; i < found.size(); ++i)
        elements.append(found.at(i).toElement());
    return elements;
}

} // namespace

void tst_MvHtmlExporter::everyDayOnce_data()
{
    const MvRows<QString, int, int> row; // layout, months, pages
    row("grids", u"MONTH_GRID_CLASSIC"_s, 12, 12);
    row("lists", u"FAMILY_PLANNER"_s, 3, 3);
    row("strips", u"ONE_ROW_STRIP"_s, 2, 2);
    row("month alone", u"MONTH_ONLY"_s, 2, 2);
    row("a year", u"YEAR_PLANNER"_s, 12, 1);
}

void tst_MvHtmlExporter::everyDayOnce()
{
    const auto [layout, months, pages] = MvRows<QString, int, int>::current();
    const MvCalendarDocument calendar = calendarOf(layout, u"de_DE"_s, u"BY"_s, months);
    const QByteArray html = MvHtmlExporter::document(calendar.pageSource());
    QCOMPARE(html, MvHtmlExporter::document(calendar.pageSource()));
    QVERIFY(html.startsWith("<!DOCTYPE html>\n"));
    static const QRegularExpression leftOpen(u"<(?!meta)[^>]*/>"_s); // which HTML reads as an opening tag
    QVERIFY(!QString::fromUtf8(html).contains(leftOpen));

    const QDomDocument document = parsed(html);
    QCOMPARE(all(document, u"section"_s).size(), pages);
    QCOMPARE(all(document, u"table"_s).size(), months);
    QDate expected(2027, 1, 1);
    for (const QDomElement &row : all(document, u"tr"_s)) {
        const QList<QDomElement> cells = all(row, u"td"_s);
        for (int column = 0; column < cells.size(); ++column) {
            const QList<QDomElement> times = all(cells[column], u"time"_s);
            if (times.isEmpty())
                continue;
            QCOMPARE(times.constFirst().attribute(u"datetime"_s), expected.toString(Qt::ISODate));
            QCOMPARE(times.constFirst().text(), QString::number(expected.day()));
            QCOMPARE(column + 1, expected.dayOfWeek());
            expected = expected.addDays(1);
        }
    }
    QCOMPARE(expected, QDate(2027, 1, 1).addMonths(months));
}

void tst_MvHtmlExporter::saysWhatThePageSays()
{
    const MvCalendarDocument calendar = calendarOf(u"MONTH_GRID_CLASSIC"_s, u"fr_CH"_s, u"GE"_s, 12);
    const QDomDocument document = parsed(MvHtmlExporter::document(calendar.pageSource().part({4})));
    QCOMPARE(document.documentElement().attribute(u"lang"_s), u"fr-CH"_s);
    const QDomElement table = all(document, u"table"_s).value(0);
    QCOMPARE(all(table, u"caption"_s).value(0).text(), u"mai 2027"_s);
    QCOMPARE(all(document, u"h2"_s).value(0).attribute(u"id"_s), u"seite-5"_s);
    const QList<QDomElement> heads = all(table, u"th"_s);
    QCOMPARE(heads.value(1).attribute(u"scope"_s), u"col"_s);
    QCOMPARE(all(heads.value(1), u"abbr"_s).value(0).attribute(u"title"_s), u"lundi"_s);
    QCOMPARE(heads.value(8).attribute(u"scope"_s), u"row"_s);
    QCOMPARE(heads.value(8).text(), u"17"_s); // 1 May 2027
    const QDomElement ascension = all(all(table, u"tr"_s).value(2), u"td"_s).value(3);
    QCOMPARE(all(ascension, u"time"_s).value(0).attribute(u"datetime"_s), u"2027-05-06"_s);
    QCOMPARE(all(ascension, u"li"_s).value(0).text(), u"Ascension"_s);
    const QDomElement wednesday = ascension.previousSiblingElement();
    QVERIFY(ascension.attribute(u"class"_s) != wednesday.attribute(u"class"_s)); // a holiday's colours
    const QString style = all(document, u"style"_s).value(0).text();
    QVERIFY(style.contains(u'.' + ascension.attribute(u"class"_s) + u" {"_s));
}

/// Where the page has bars and colours, the table has words: of entries for all, of vacations for those who hear.
void tst_MvHtmlExporter::daysInTheMiddle()
{
    MvCalendarDocument calendar = calendarOf(u"MONTH_GRID_CLASSIC"_s, u"de_DE"_s, u"BY"_s, 1);
    calendar.setFeature(MvCalendariumFeatures(FEATURE_SCHOOL_VACATIONS | FEATURE_ENTRIES), true);
    MvCalendarEvent entry(u"Kur"_s, MvCalendarEvent::startOf({2027, 1, 5}), false, {}, QUuid::createUuid(), {});
    entry.setEndDate({2027, 1, 12});
    MvCalendarEventList entries;
    entries.append(entry);
    MvRenderingSources sources;
    const MvCalendarEventListSource source(entries);
    sources.entries = &source;
    const QList<QDomElement> cells = all(parsed(MvHtmlExporter::document(calendar.pageSource(sources))), u"td"_s);
    const auto words = [&](int day) {
        QStringList found;
        for (const QDomElement &item : all(cells.value(day + 3), u"li"_s)) // 1 January 2027 is a Friday
            found.append(item.text() + item.attribute(u"class"_s));
        return found;
    };
    QCOMPARE(words(5), (QStringList{u"Kur"_s, u"Weihnachtsferienheard"_s}));
    QCOMPARE(words(7), words(5));
    QCOMPARE(words(12), QStringList{u"Kur"_s});
    QCOMPARE(words(13), QStringList());
}

void tst_MvHtmlExporter::foreignTextsAreText()
{
    MvCalendarDocument calendar = calendarOf(u"MONTH_GRID_CLASSIC"_s, u"de_DE"_s, {}, 1);
    const QString title = u"</title><script>alert(1)</script> & \"Söhne\""_s;
    calendar.setTitle(title);
    calendar.setAuthor(title);
    const QByteArray html = MvHtmlExporter::document(calendar.pageSource());
    QVERIFY(!html.contains("<script"));
    const QDomDocument document = parsed(html);
    QCOMPARE(all(document, u"h1"_s).value(0).text(), title);
    QCOMPARE(all(document, u"meta"_s).constLast().attribute(u"content"_s), title);
    QTemporaryDir folder;
    MvPageSource nothing = calendar.pageSource();
    nothing.content = {};
    QVERIFY(!MvHtmlExporter::write(nothing, QFileInfo(folder.filePath(u"k.html"_s))).isOk());
    QVERIFY(!QFileInfo::exists(folder.filePath(u"k.html"_s)));
}

MV_TEST_MAIN(tst_MvHtmlExporter)
#include "tst_MvHtmlExporter.moc"
