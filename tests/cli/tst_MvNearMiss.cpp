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
    void parses_data();
    void parses();
};

void tst_MvNearMiss::finds_data()
{
    const MvRows<QString, QString> row; // typed, found
    row("a letter too few", u"Bayrn"_s, u"Bayern"_s);
    row("a wrong letter, other case", u"SACHSEM"_s, u"Sachsen"_s);
    row("letters swapped", u"Sacshen"_s, u"Sachsen"_s);
    row("the nearest of two", u"Sachsen-Anhlt"_s, u"Sachsen-Anhalt"_s);
    row("how it begins", u"meck"_s, u"Mecklenburg-Vorpommern"_s);
    row("two letters are no beginning", u"me"_s, QString());
    row("nothing like it", u"Atlantis"_s, QString());
    row("nothing", QString(), QString());
    row("much too long", QString(100000, u'B'), QString());
}

void tst_MvNearMiss::finds()
{
    const auto [typed, found] = MvRows<QString, QString>::current();
    const QStringList known{u"Bayern"_s, u"Sachsen"_s, u"Sachsen-Anhalt"_s, u"Mecklenburg-Vorpommern"_s};
    QCOMPARE(MvNearMiss::find(typed, known), found);
    QCOMPARE(MvNearMiss::describe(typed, known).contains(u"meinten Sie"_s), !found.isEmpty());
}

void tst_MvNearMiss::parses_data()
{
    // arguments: blanks part them; output: the values of the repeatable option, parted by blanks; complaint: a word of
    // the error; empty: none
    const MvRows<QString, QString, QString> add;
    const auto row = [&](const char *name, const QString &arguments, const QString &output,
                         const QString &complaint = {}) { add(name, arguments, output, complaint); };
    row("apart and joined", u"-o a --output=b=c"_s, u"a b=c"_s);
    row("a value may begin with a dash", u"-o -x"_s, u"-x"_s);
    row("empty value", u"--output="_s, {});
    row("value missing at the end", u"--output"_s, {}, u"--output"_s);
    row("value missing before an option", u"--output --switch"_s, {}, u"--output"_s);
    row("switch with a value", u"--switch=1"_s, {}, u"keinen Wert"_s);
    row("twice what may stand once", u"--switch --switch"_s, {}, u"zweimal"_s);
    row("unknown", u"--swich"_s, {}, u"„--switch“"_s);
    row("stray word", u"kalender.pdf"_s, {}, u"kalender.pdf"_s);
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
