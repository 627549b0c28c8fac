// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCliArguments.h"
#include "MvNearMiss.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

class tst_MvNearMiss : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void parses_data();
    void parses();
};

void tst_MvNearMiss::finds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    QTest::newRow("a letter too few") << u"Bayrn"_s << u"Bayern"_s;
    QTest::newRow("a wrong letter, other case") << u"SACHSEM"_s << u"Sachsen"_s;
    QTest::newRow("letters swapped") << u"Sacshen"_s << u"Sachsen"_s;
    QTest::newRow("the nearest of two") << u"Sachsen-Anhlt"_s << u"Sachsen-Anhalt"_s;
    QTest::newRow("how it begins") << u"meck"_s << u"Mecklenburg-Vorpommern"_s;
    QTest::newRow("two letters are no beginning") << u"me"_s << QString();
    QTest::newRow("nothing like it") << u"Atlantis"_s << QString();
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("much too long") << QString(100000, u'B') << QString();
}

void tst_MvNearMiss::finds()
{
    QFETCH(const QString, typed);
    QFETCH(const QString, found);
    const QStringList known{u"Bayern"_s, u"Sachsen"_s, u"Sachsen-Anhalt"_s, u"Mecklenburg-Vorpommern"_s};
    QCOMPARE(MvNearMiss::find(typed, known), found);
    QCOMPARE(MvNearMiss::describe(typed, known).contains(u"meinten Sie"_s), !found.isEmpty());
}

void tst_MvNearMiss::parses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("output"); // the values of the repeatable option
    QTest::addColumn<QString>("complaint");  // a word of the error; empty: none
    QTest::newRow("apart and joined") << QStringList{u"-o"_s, u"a"_s, u"--output=b=c"_s}
                                      << QStringList{u"a"_s, u"b=c"_s} << QString();
    QTest::newRow("a value may begin with a dash")
        << QStringList{u"-o"_s, u"-x"_s} << QStringList{u"-x"_s} << QString();
    QTest::newRow("empty value") << QStringList{u"--output="_s} << QStringList{QString()} << QString();
    QTest::newRow("value missing at the end") << QStringList{u"--output"_s} << QStringList() << u"--output"_s;
    QTest::newRow("value missing before an option")
        << QStringList{u"--output"_s, u"--switch"_s} << QStringList() << u"--output"_s;
    QTest::newRow("switch with a value") << QStringList{u"--switch=1"_s} << QStringList() << u"keinen Wert"_s;
    QTest::newRow("twice what may stand once")
        << QStringList{u"--switch"_s, u"--switch"_s} << QStringList() << u"zweimal"_s;
    QTest::newRow("unknown") << QStringList{u"--swich"_s} << QStringList() << u"„--switch“"_s;
    QTest::newRow("stray word") << QStringList{u"kalender.pdf"_s} << QStringList() << u"kalender.pdf"_s;
}

void tst_MvNearMiss::parses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, output);
    QFETCH(const QString, complaint);
    MvCliArguments parsed;
    const QString error = parsed.parse(arguments, {{u"output"_s, u"DATEI"_s, {}, true}, {u"switch"_s, {}, {}}}).error;
    QCOMPARE(error.isEmpty(), complaint.isEmpty());
    QVERIFY2(error.contains(complaint), qPrintable(error));
    if (complaint.isEmpty())
        QCOMPARE(parsed.values(u"output"_s), output);
}

MV_TEST_MAIN(tst_MvNearMiss)
#include "tst_MvNearMiss.moc"
