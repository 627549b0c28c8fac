// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvCore/MvTypedDate.h"

using namespace Qt::StringLiterals;

/// How fields take what is typed into them is shown with the day editor; here stands what depends on language and
/// today.
class tst_MvTypedDate : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void dates_data();
    void dates();
    void faults();
};

namespace {

const QDate today(2026, 11, 21);

} // namespace

void tst_MvTypedDate::dates_data()
{
    const MvRows<QString, QStringList> row; // text, dates
    row.read(u"typed-dates"_s);
    row("other digits, a mark of direction", u"\u200e24\u2013\u0661\u0662\u2013\uff11\uff19\uff15\uff10"_s,
        QStringList(3, u"1950-12-24"_s));
}

void tst_MvTypedDate::dates()
{
    auto [text, dates] = MvRows<QString, QStringList>::current();
    for (const QString &locale : {u"de_DE"_s, u"en_GB"_s, u"en_US"_s}) {
        const MvTypedDate typed(text, QLocale(locale), today, 2027);
        QCOMPARE(typed.isValid() ? typed.date().toString(Qt::ISODate) : u"-"_s, dates.takeFirst());
        QCOMPARE(typed.error().isEmpty(), typed.isValid());
    }
}

void tst_MvTypedDate::faults()
{
    using Fault = MvTypedDate::Fault;
    const QList<std::pair<Fault, QString>> groups{
        {Fault::Empty, u" \t"_s},
        {Fault::Unreadable,
         u"morgen|24|19500|12.1950|Dezember 1950|24.12.5|24.12.1950.3|.24.12.1950|24.-12.1950|24:12:1950|"
         "24. Foo 1950|Mai Juni 3|24.12.1950 x|"_s +
             QString(100000, u'1')},
        {Fault::NoSuchDay, u"31.04.1950|29.02.1900|29.2.|00.12.1950|1.13.1950"_s},
        {Fault::TooEarly, u"24.11.1219|31.12.1582|24.12.950"_s},
        {Fault::TooLate, u"22.11.2146|24.12.19500"_s},
        {Fault::ReservedYear, u"1.1.1604"_s},
    };
    for (const auto &[fault, texts] : groups) {
        for (const QString &text : texts.split(u'|')) {
            const MvTypedDate typed(text, QLocale(QLocale::German, QLocale::Germany), today, 2027);
            QVERIFY2(typed.fault() == fault && !typed.date().isValid(), qPrintable(text.left(30)));
            QVERIFY(typed.error().contains(u"24.12.1950"_s) && typed.error().size() < 90);
            QVERIFY(typed.error().contains(text.trimmed().left(8)));
        }
    }
}

MV_TEST_MAIN(tst_MvTypedDate)
#include "tst_MvTypedDate.moc"
