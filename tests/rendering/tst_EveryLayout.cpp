#include "MvPageFixture.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

using Item = MvPaintRecording::Item;

namespace {

// Two pieces of ink closer than this have met; hairs of neighbouring letters and italics are let be.
constexpr double tolerance = 1.0; // a tenth of a millimetre

const QList<QSizeF> shapes = {{2730, 1780}, {1860, 2650}, {2600, 2600}, {2730, 900}};

MvCalendarEvent entry(const QString &name, const QDate &date)
{
    return MvCalendarEvent(name, date.startOfDay(), true, MvFoto(), QUuid::createUuid(), QDateTime());
}

MvCalendarEventList shortNames()
{
    return {entry(u"Eva"_s, QDate(1990, 2, 14)), entry(u"Max"_s, QDate(1990, 12, 24))};
}

// several long ones on holidays, on weekends, at the ends of months
MvCalendarEventList longNames()
{
    MvCalendarEventList list;
    for (int month = 1; month <= 12; ++month) {
        for (const int day : {1, 6, 15, 25}) {
            const QDate date(1992, month, day);
            list << entry(u"Großtante Wilhelmine Süßmilch-Ölschläger"_s, date);
            if (day == 6)
                list << entry(u"Hochzeitstag von Anna-Katharina und Maximilian"_s, date) << entry(u"Jörg"_s, date);
        }
    }
    return list;
}

/// The layout's page as it prints: with what a layout brings along, and room for its minimum size.
MvPageFixture pageOf(const MvCalendariumLayoutSchema &layout, const QDate &month, const MvLocale &language)
{
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(layout.ID());
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(u"PAPER_WHITE"_s));
    appearance.adaptGridToLayout();
    MvPageFixture page(appearance, month);
    const QString region = language.country() == u"DE"_s ? u"BY"_s : QString();
    const MvCalendariumHolidayConfig config(language, region, MvCalendariumFeatures(1 | 2 | 4 | 8 | 64));
    page.renderer().setCalendarInformation(MvCalendariumContentConfig(month, config),
                                           MvDateRange(month, month.addMonths(12).addDays(-1)));
    page.renderer().setModelInfo(MvCalendarEventRegistry::instance().activeModelId());
    return page;
}

// of what the clip leaves: a word wider than its cell ends at the cell's edge
bool meet(const Item &a, const Item &b)
{
    const auto ink = [](const Item &text) { return text.clip.isNull() ? text.bounds : text.bounds & text.clip; };
    const QRectF common = ink(a) & ink(b);
    return common.width() > tolerance && common.height() > tolerance;
}

QString describe(const Item &text)
{
    return u"\"%1\" at %2,%3 %4x%5"_s.arg(text.text)
        .arg(text.bounds.x())
        .arg(text.bounds.y())
        .arg(text.bounds.width())
        .arg(text.bounds.height());
}

// empty when all is well
QString overlaps(QList<Item> texts)
{
    std::sort(texts.begin(), texts.end(), [](const Item &a, const Item &b) { return a.bounds.top() < b.bounds.top(); });
    for (qsizetype i = 0; i < texts.size(); ++i) {
        for (qsizetype j = i + 1; j < texts.size() && texts.at(j).bounds.top() < texts.at(i).bounds.bottom(); ++j) {
            if (meet(texts.at(i), texts.at(j)))
                return describe(texts.at(i)) + u" meets "_s + describe(texts.at(j));
        }
    }
    return {};
}

// a text may leave its clip only where the renderer says that it had no room
QString clipped(const QList<Item> &texts, const QRectF &target, const QList<MvUnfittingText> &unfitting)
{
    const QRectF allowed = target.adjusted(-tolerance, -tolerance, tolerance, tolerance);
    for (const Item &text : texts) {
        const bool isWhole = text.clip.isNull() ||
                             text.clip.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(text.bounds);
        const bool isReported = std::any_of(unfitting.cbegin(), unfitting.cend(), [&text](const MvUnfittingText &u) {
            return u.rect.intersects(text.bounds);
        });
        if (!(isWhole && allowed.contains(text.bounds)) && !isReported)
            return describe(text);
    }
    return {};
}

} // namespace

/// Every shipped layout, in months of all lengths, on pages of all shapes, with short and long names, in several
/// languages: nothing is clipped, nothing overlaps, every day has its place once.
class tst_EveryLayout : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { MvCalendarEventRegistry::instance().setEvents({}); }

    void prints_data();
    void prints();
};

void tst_EveryLayout::prints_data()
{
    QTest::addColumn<QString>("layout");
    QTest::addColumn<bool>("hasLongNames");
    QTest::addColumn<QString>("language");
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        for (const bool hasLongNames : {false, true}) {
            for (const QString &language : {u"de_DE"_s, u"en_GB"_s, u"fr_FR"_s, u"pt_PT"_s}) {
                QTest::addRow("%s, %s, %s", qPrintable(layout.ID().toString()), hasLongNames ? "long" : "short",
                              qPrintable(language))
                    << layout.ID().toString() << hasLongNames << language;
            }
        }
    }
}

void tst_EveryLayout::prints()
{
    QFETCH(QString, layout);
    QFETCH(bool, hasLongNames);
    QFETCH(QString, language);
    MvCalendarEventRegistry::instance().setEvents(hasLongNames ? longNames() : shortNames());
    const auto schema = MvCalendariumLayoutSchemaRegistry::instance().findSchema(MvCalendariumLayoutSchemaID(layout));
    const bool isOfYears = schema.calendariumType().hasAnyOf(MvCalendariumType(CALENDAR_YEAR | CALENDAR_YEAR_ONLY));
    // 2026 has week 53, 2027 a February of four weeks and months of six, 2028 a leap day
    const QDate end(2028, 3, 1);
    for (QDate month(2026, 3, 1); month < end; month = month.addMonths(isOfYears ? 7 : 1)) {
        MvPageFixture page = pageOf(schema, month, MvLocale(language));
        const QSizeF minimum = page.renderer().minimumSizeHint();
        for (const QSizeF &shape : shapes) {
            const QRectF target(QPointF(120, 200), shape.expandedTo(minimum));
            const MvPaintRecording recording = page.render(target);
            const QList<Item> texts = recording.items(Item::Text);
            const QByteArray where = u"%1 on %2 x %3: "_s.arg(month.toString(u"yyyy-MM"_s))
                                         .arg(target.width())
                                         .arg(target.height())
                                         .toUtf8();
            const QString overlap = overlaps(texts);
            QVERIFY2(overlap.isEmpty(), (where + overlap.toUtf8()).constData());
            const QString clip = clipped(texts, target, page.renderer().unfittingTexts());
            QVERIFY2(clip.isEmpty(), (where + clip.toUtf8()).constData());

            QSet<QDate> dates;
            for (const MvPageFixture::Day &day : std::as_const(page.days)) {
                QVERIFY2(!dates.contains(day.date), where + day.date.toString(Qt::ISODate).toUtf8());
                dates.insert(day.date);
                QVERIFY2(target.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(day.rect), where.constData());
            }
        }
    }
}

MV_TEST_MAIN(tst_EveryLayout)
#include "tst_EveryLayout.moc"
