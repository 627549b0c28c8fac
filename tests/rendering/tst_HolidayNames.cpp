// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPrintedPage.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// day cells no larger than this are too small for texts, and show the number alone
constexpr double leastWidth = 155.0;
constexpr double leastHeight = 60.0;

const QStringList papers{u"A5"_s, u"A4 landscape"_s, u"A3"_s, u"A5 landscape"_s, u"A4"_s, u"A3 landscape"_s};
const QStringList largePapers{u"A2"_s, u"A2 landscape"_s}; // of the planner, which has a year of texts on its page

bool writesTexts(const MvPrintedPage &page, const QRectF &cell)
{
    const MvCalendariumType type = page.page().appearance().type();
    const bool hasNumbersInCells = type == CALENDAR_ONE_WEEK_PER_ROW || type == CALENDAR_TWO_WEEKS ||
                                   type == CALENDAR_ONE_COLUMN_PER_WEEK || type == CALENDAR_ONE_ROW;
    return !hasNumbersInCells || (cell.width() > leastWidth && cell.height() > leastHeight);
}

/// Every region, and the whole country where there are none.
QList<MvPageChoice> places()
{
    QList<MvPageChoice> places;
    MvPageChoice choice;
    choice.place = u"none"_s;
    choice.entries = MvPageChoice::None;
    for (const MvLocale &locale : MvCalendariumHolidayCalculator::instance().availableLanguages()) {
        choice.language = locale;
        const QStringList regions = MvCalendariumHolidayCalculator::instance().availableProvinces(locale);
        for (const QString &region : regions.isEmpty() ? QStringList{QString()} : regions) {
            choice.region = region;
            places.append(choice);
        }
    }
    return places;
}

} // namespace

/// The names of all holidays and vacations of all regions stand whole on the usual papers: by day a sample of the
/// months, by night all of 2027.
class tst_HolidayNames : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void areWhole_data();
    void areWhole();
};

void tst_HolidayNames::areWhole_data()
{
    const MvRows<QString> row; // layout
    for (const QString &layout : MvPageChoice::layouts())
        row(layout, layout);
}

void tst_HolidayNames::areWhole()
{
    auto [layout] = MvRows<QString>::current();
    const bool isNight = !qEnvironmentVariableIsEmpty("MV_NIGHTLY");
    int turn = 0;
    int names = 0;
    QMap<QString, QStringList> lost; // by paper
    for (MvPageChoice choice : places()) {
        choice.layout = layout;
        for (const QString &paper : layout == u"YEAR_PLANNER"_s ? largePapers : papers) {
            choice.paper = paper;
            for (choice.month = QDate(2027, 1, 1); choice.month.year() == 2027;
                 choice.month = choice.month.addMonths(1)) {
                if (++turn % 97 != 0 && !isNight)
                    continue;
                const MvPrintedPage page(choice, QString());
                for (const QStringList &texts : page.dayTexts)
                    names += int(texts.size());
                for (const MvUnfittingText &report : page.unfitting) {
                    const QStringList texts = page.dayTexts.value(report.date);
                    if (writesTexts(page, report.rect) &&
                        std::any_of(texts.begin(), texts.end(),
                                    [&](const QString &t) { return report.text.contains(t); }))
                        lost[paper].append(choice.describe() + u": "_s + report.text);
                }
                if (page.page().monthCount() > 1)
                    break;
            }
        }
    }
    for (auto it = lost.cbegin(); it != lost.cend(); ++it)
        std::fputs(
            qPrintable(u"%1 on %2: %3 lost, such as %4\n"_s.arg(layout, it.key()).arg(it->size()).arg(it->first())),
            stdout);
    std::fputs(qPrintable(u"%1: %2 names\n"_s.arg(layout).arg(names)), stdout);
    QVERIFY2(lost.isEmpty(), "see above");
}

MV_TEST_MAIN(tst_HolidayNames)
#include "tst_HolidayNames.moc"
