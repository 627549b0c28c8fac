// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvEaster.h"
#include "MvProductBase/MvHolidayRule.h"

#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

class tst_MvHolidayRule : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void easter_data() { MvRows<QDate, QDate>().read(u"easter"_s); }
    void easter();
    void dates_data() { MvRows<QString, int, QDate>().read(u"holiday-rules"_s); }
    void dates();
    void errors_data() { MvRows<QString, QString>().read(u"holiday-rule-errors"_s); }
    void errors();
};

void tst_MvHolidayRule::easter()
{
    const auto [western, eastern] = MvRows<QDate, QDate>::current();
    QCOMPARE(MvEaster::gregorian(western.year()), western);
    QCOMPARE(MvEaster::orthodox(eastern.year()), eastern);
}

void tst_MvHolidayRule::dates()
{
    const auto [text, year, date] = MvRows<QString, int, QDate>::current();
    const MvHolidayRule::Parsed parsed = MvHolidayRule::parse(text);
    QVERIFY2(parsed.isOk(), qPrintable(parsed.error));
    QCOMPARE(parsed.rule.dateByYear(year), date);
}

void tst_MvHolidayRule::errors()
{
    const auto [text, culprit] = MvRows<QString, QString>::current();
    const QString error = MvHolidayRule::parse(text).error;
    QVERIFY2(!error.isEmpty() && error.contains(culprit), qPrintable(error));
}

MV_TEST_MAIN(tst_MvHolidayRule)
#include "tst_MvHolidayRule.moc"
