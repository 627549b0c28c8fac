// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"
#include "plain/MvCliArguments.h"
#include "plain/MvNearMiss.h"

using namespace Qt::StringLiterals;

class tst_MvNearMiss : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void parses_data() { MvRows<QString, QString, QString>().read(u"command-line-arguments"_s); }
    void parses();
};

void tst_MvNearMiss::finds_data()
{
    const MvRows<QString, QString> row; // typed, found
    row.read(u"near-misses"_s);
    row("much too long", QString(100000, u'B'), QString());
}

void tst_MvNearMiss::finds()
{
    const auto [typed, found] = MvRows<QString, QString>::current();
    const QStringList known{u"Bayern"_s, u"Sachsen"_s, u"Sachsen-Anhalt"_s, u"Mecklenburg-Vorpommern"_s};
    QCOMPARE(MvNearMiss::find(typed, known), found);
    QCOMPARE(MvNearMiss::describe(typed, known).contains(u"meinten Sie"_s), !found.isEmpty());
}

void tst_MvNearMiss::parses()
{
    const auto [arguments, output, complaint] = MvRows<QString, QString, QString>::current();
    MvCliArguments parsed;
    const QString error =
        parsed.parse(arguments.split(u' '), {{u"output"_s, u"DATEI"_s, {}, true}, {u"switch"_s, {}, {}}}).error;
    QCOMPARE(error.isEmpty(), complaint.isEmpty());
    QVERIFY2(error.contains(complaint), qPrintable(error));
    if (complaint.isEmpty())
        QCOMPARE(parsed.values(u"output"_s), output.split(u' '));
}

MV_TEST_MAIN(tst_MvNearMiss)
#include "tst_MvNearMiss.moc"
