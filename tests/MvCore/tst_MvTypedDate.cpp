// SPDX-License-Identifier: LGPL-2.1-or-later
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
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("de_DE"); // empty: no date
    QTest::addColumn<QString>("en_GB");
    QTest::addColumn<QString>("en_US");
    const auto row = [](const char *text, const char *german, const char *british, const char *american) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(german) << QString::fromUtf8(british)
                            << QString::fromUtf8(american);
    };
    const auto everywhere = [&row](const char *text, const char *date) { row(text, date, date, date); };
    row("05/03/1962", "1962-03-05", "1962-03-05", "1962-05-03");
    row("05031962", "1962-03-05", "1962-03-05", "1962-05-03");
    row("12/24/1950", "", "", "1950-12-24");
    everywhere("05.03.1962", "1962-03-05");
    everywhere("24/12/1950", "1950-12-24");
    everywhere("12.24.1950", "");
    everywhere("20121224", "2012-12-24");
    everywhere("December 24th, 1950", "1950-12-24");
    everywhere("So., den 24. Dez. '50", "1950-12-24");
    everywhere("1. Jänner 2027", "2027-01-01");
    everywhere("1950-12-24T00:00:00+01:00", "1950-12-24");
    everywhere("\u200e24\u2013\u0661\u0662\u2013\uff11\uff19\uff15\uff10",
               "1950-12-24");             // other digits, a mark of direction
    everywhere("24.12.28", "2028-12-24"); // the latest year of two digits
    everywhere("24.12.29", "1929-12-24");
    everywhere("01.01.1583", "1583-01-01");
    everywhere("21.11.2146", "2146-11-21");
}

void tst_MvTypedDate::dates()
{
    QFETCH(const QString, text);
    for (const char *locale : {"de_DE", "en_GB", "en_US"}) {
        const MvTypedDate typed(text, QLocale(QString::fromLatin1(locale)), today, 2027);
        QTEST(typed.date().toString(Qt::ISODate), locale);
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
