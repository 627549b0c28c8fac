// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBoxFont.h"
#include "MvPageAudit.h"
#include "MvPairwisePlan.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include <algorithm>
#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 seed = 20270101;
constexpr int mostExamples = 4; // of a kind

/// Everything with everything; months and calendar weeks take turns.
QList<MvPairwisePlan::Case> fullProduct()
{
    const QList<int> sizes = MvPageChoice::factorSizes();
    QList<MvPairwisePlan::Case> cases{{}};
    for (const int size : sizes.first(6)) {
        QList<MvPairwisePlan::Case> longer;
        for (const MvPairwisePlan::Case &values : std::as_const(cases)) {
            for (int value = 0; value < size; ++value)
                longer.append(values + MvPairwisePlan::Case{value});
        }
        cases = longer;
    }
    cases.removeIf([](const auto &values) { return values.at(1) == 0 && values.at(2) != 0; }); // no photo has no share
    for (qsizetype i = 0; i < cases.size(); ++i)
        cases[i] << int(i % sizes.at(6)) << int(i % sizes.at(7));
    return cases;
}

/// The pages of a layout, or the part of them that MV_PAGE_SHARD asks for.
QList<MvPairwisePlan::Case> casesOf(const QString &layout)
{
    const bool isFull = qEnvironmentVariable("MV_PAGE_PLAN") == u"full"_s;
    const QList<MvPairwisePlan::Case> all =
        isFull ? fullProduct()
               : MvPairwisePlan(MvPageChoice::factorSizes(), seed + qChecksum(layout.toLatin1())).cases();
    const QStringList shard = qEnvironmentVariable("MV_PAGE_SHARD", u"1/1"_s).split(u'/');
    QList<MvPairwisePlan::Case> cases;
    for (qsizetype i = shard.constFirst().toInt() - 1; i < all.size(); i += shard.constLast().toInt())
        cases.append(all.at(i));
    std::stable_sort(cases.begin(), cases.end(), [](const auto &a, const auto &b) { return a.at(5) < b.at(5); });
    return cases; // by entries, since setting these takes long
}

} // namespace

/// Every shipped layout as the programs print it: on papers of all sizes, beside photos, in all languages, with small
/// and large fonts, with short, long and many texts. What is printed is whole, what is not is reported.
///
///     tst_EveryPage prints:DAY_LIST     one layout
///     MV_PAGE_FONT=real                 the layouts' own fonts instead of the font of boxes
///     MV_PAGE_ALL=1                     every example of a fault instead of the first ones
///     MV_PAGE_ONLY="A6, photo top"      pages whose description contains the text alone
///     MV_PAGE_PNG=folder                pictures of the pages with faults
///     MV_PAGE_PLAN=full                 all pages instead of all pairs of circumstances
///     MV_PAGE_SHARD=2/8                 the second of eight parts of that
class tst_EveryPage : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void everyPair();
    void prints_data();
    void prints();
    void wasFaulty_data();
    void wasFaulty();
    void growsWithItsPaper_data();
    void growsWithItsPaper();
};

/// The plan holds what it promises.
void tst_EveryPage::everyPair()
{
    const QList<int> sizes{5, 2, 7, 3};
    const MvPairwisePlan plan(sizes, seed);
    QSet<QList<int>> pairs;
    for (const MvPairwisePlan::Case &values : plan.cases()) {
        for (int a = 0; a < sizes.size(); ++a) {
            QVERIFY(values.at(a) >= 0 && values.at(a) < sizes.at(a));
            for (int b = a + 1; b < sizes.size(); ++b)
                pairs.insert({a, values.at(a), b, values.at(b)});
        }
    }
    QCOMPARE(pairs.size(), 5 * 2 + 5 * 7 + 5 * 3 + 2 * 7 + 2 * 3 + 7 * 3);
    QVERIFY2(plan.cases().size() < 45, QByteArray::number(plan.cases().size()));
}

void tst_EveryPage::prints_data()
{
    const MvRows<QString> row; // layout
    for (const QString &layout : MvPageChoice::layouts())
        row(layout, layout);
}

void tst_EveryPage::prints()
{
    const auto [layout] = MvRows<QString>::current();
    const bool showsAll = !qEnvironmentVariableIsEmpty("MV_PAGE_ALL");
    const QString only = qEnvironmentVariable("MV_PAGE_ONLY");
    const QString pictures = qEnvironmentVariable("MV_PAGE_PNG");
    const QString family = qEnvironmentVariable("MV_PAGE_FONT") == u"real"_s ? QString() : MvBoxFont::family();
    QMap<MvPageAudit::Kind, QStringList> faults;
    int pages = 0;
    const QList<MvPairwisePlan::Case> cases = casesOf(layout);
    for (const MvPairwisePlan::Case &values : cases) {
        const MvPageChoice choice = MvPageChoice::of(layout, values);
        // the font of boxes knows no other letters than Latin ones
        const bool isForeign =
            !family.isEmpty() && (choice.language.language() == u"el"_s || choice.language.language() == u"bg"_s);
        if (!choice.describe().contains(only) || isForeign)
            continue;
        ++pages;
        const MvPrintedPage page(choice, family);
        QSet<MvPageAudit::Kind> kinds;
        const QList<MvPageAudit::Fault> found = MvPageAudit::faults(page);
        for (const MvPageAudit::Fault &fault : found) {
            if (!kinds.contains(fault.kind)) // one of a kind for each page
                faults[fault.kind].append(choice.describe() + u": "_s + fault.what);
            kinds.insert(fault.kind);
        }
        if (!kinds.isEmpty() && !pictures.isEmpty())
            page.picture(0.5).save(QDir(pictures).filePath(choice.describe() + u".png"_s));
    }
    QString message;
    for (auto it = faults.cbegin(); it != faults.cend(); ++it) {
        message += u"%1: %2 of %3 pages\n"_s.arg(MvPageAudit::name(it.key())).arg(it->size()).arg(pages);
        for (const QString &line : showsAll ? *it : it->mid(0, mostExamples))
            message += u"    "_s + line + u'\n';
    }
    std::fputs(qPrintable(message), stdout); // longer than what QtTest shows of a failure
    QVERIFY2(faults.isEmpty(), "see above");
}

void tst_EveryPage::wasFaulty_data()
{
    const MvRows<MvPageChoice, bool> add; // choice, isWhole
    const auto row = [&](const char *name, const QString &layout, const QString &paper, const QString &place,
                         double share, int font, const QString &language, const QString &region, const QDate &month,
                         bool isWhole = false) {
        MvPageChoice choice;
        choice.layout = layout;
        choice.paper = paper;
        choice.place = place;
        choice.share = share;
        choice.font = font;
        choice.language = MvLocale(language);
        choice.region = region;
        choice.month = month;
        choice.entries = MvPageChoice::Short;
        add(name, choice, isWhole);
    };
    row("a week where the number of the day has no room", u"YEAR_PLANNER"_s, u"200x200"_s, u"top"_s, 0.55, 200,
        u"lb_LU"_s, {}, {2028, 2, 1});
    row("a strip without its weekdays", u"ONE_ROW_STRIP_SERIF"_s, u"A5 landscape"_s, u"left"_s, 0.55, 100, u"de_DE"_s,
        {}, {2027, 5, 1}, true);
    row("two long names in a row of a list", u"FAMILY_PLANNER"_s, u"A5 landscape"_s, u"none"_s, 0.55, 100, u"fr_CH"_s,
        u"GE"_s, {2027, 12, 1}, true);
    row("weekdays as wide as the page", u"DAY_LIST"_s, u"90x55"_s, u"right"_s, 0.75, 200, u"pl_PL"_s, {}, {2027, 5, 1});
    row("days of one digit, where others have no room", u"MONTH_GRID_LINES"_s, u"90x55"_s, u"left"_s, 0.75, 150,
        u"fi_FI"_s, {}, {2027, 5, 1});
    row("a week as long as its strip", u"DAY_LIST"_s, u"A6 landscape"_s, u"top"_s, 0.65, 100, u"cs_CZ"_s, {},
        {2028, 2, 1});
    row("an accent higher than the room", u"YEAR_PLANNER"_s, u"A5"_s, u"left"_s, 0.45, 150, u"hu_HU"_s, {},
        {2028, 2, 1});
    row("a date that leaves its name no room", u"HOLIDAY_BLOCK"_s, u"A6"_s, u"right"_s, 0.75, 100, u"de_DE"_s, u"BY"_s,
        {2027, 5, 1}, true);
}

/// In the layouts' own fonts, found by the product of all circumstances or by eye.
void tst_EveryPage::wasFaulty()
{
    const auto [choice, isWhole] = MvRows<MvPageChoice, bool>::current();
    const MvPrintedPage page(choice, QString());
    const QList<MvPageAudit::Fault> found = MvPageAudit::faults(page);
    QVERIFY2(found.isEmpty(), qPrintable(found.value(0).what));
    QCOMPARE(page.unfitting.isEmpty(), isWhole);
}

void tst_EveryPage::growsWithItsPaper_data()
{
    const MvRows<QString, QString> row; // layout; form: of the paper
    for (const MvCalendariumLayoutSchema &schema : MvCalendariumLayoutSchemaRegistry::instance().schemata()) {
        for (const QString &form : {u""_s, u" landscape"_s}) {
            if (schema.calendariumType().traits().monthsPerPage() > 1)
                row(schema.ID().toString() + form, schema.ID().toString(), form);
        }
    }
}

/// What a smaller paper has room for is on a larger one, too.
void tst_EveryPage::growsWithItsPaper()
{
    auto [layout, form] = MvRows<QString, QString>::current();
    MvPageChoice choice;
    choice.layout = layout;
    choice.language = MvLocale(u"de_DE"_s);
    choice.region = u"BY"_s;
    choice.month = QDate(2027, 5, 1);
    for (const auto &[place, share] : std::initializer_list<std::pair<QString, double>>{
             {u"none"_s, 0.55}, {u"top"_s, 0.55}, {u"left"_s, 0.45}, {u"left"_s, 0.55}, {u"left"_s, 0.65}}) {
        choice.place = place;
        choice.share = share;
        qsizetype missing = std::numeric_limits<qsizetype>::max();
        for (const QString &size : {u"A5"_s, u"A4"_s, u"A3"_s, u"A2"_s}) {
            choice.paper = size + form;
            const qsizetype present = MvPrintedPage(choice, QString()).unfitting.size();
            QVERIFY2(present <= missing,
                     qPrintable(u"%1: %2 texts missing, %3 on the smaller paper"_s.arg(choice.describe())
                                    .arg(present)
                                    .arg(missing)));
            missing = present;
        }
    }
}

MV_TEST_MAIN(tst_EveryPage)
#include "tst_EveryPage.moc"
