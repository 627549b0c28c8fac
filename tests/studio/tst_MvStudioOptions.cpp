// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvStudioOptions.h"
#include "MvTest.h"
#include "flows/MvPageRange.h"

using namespace Qt::StringLiterals;

/// What a person types: the command line, and the pages of an export.
class tst_MvStudioOptions : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void commandLine_data();
    void commandLine();
    void pages_data();
    void pages();
};

void tst_MvStudioOptions::commandLine_data()
{
    const MvRows<QStringList, int, QString> row; // arguments; exitCode; message: a part of it
    row("nothing", QStringList(), 0, QString());
    row("all", QStringList{u"--language"_s, u"en"_s, u"--theme=dark"_s, u"a.mvcalendar"_s}, 0, QString());
    row("help", QStringList{u"--help"_s}, 0, u"--language de|en"_s);
    row("version", QStringList{u"-v"_s}, 0, u"mvcalendar-studio "_s);
    row("unknown option", QStringList{u"--foo"_s}, 2, u"„foo“"_s);
    row("unknown language", QStringList{u"--language"_s, u"fr"_s}, 2, u"de, en"_s);
    row("value missing", QStringList{u"--theme"_s}, 2, u"ohne ihren Wert"_s);
    row("two files", QStringList{u"a"_s, u"b"_s}, 2, u"mehr als eine Datei"_s);
}

void tst_MvStudioOptions::commandLine()
{
    const auto [arguments, exitCode, message] = MvRows<QStringList, int, QString>::current();
    const MvStudioOptions options = MvStudioOptions::parse(QStringList{u"mvcalendar-studio"_s} + arguments);
    QCOMPARE(options.exitCode(), exitCode);
    QCOMPARE(options.message().isEmpty(), message.isEmpty());
    QVERIFY2(options.message().contains(message), qPrintable(options.message()));
    if (arguments.size() == 4) {
        QCOMPARE(options.language(), u"en"_s);
        QCOMPARE(options.theme(), u"dark"_s);
        QCOMPARE(options.file(), u"a.mvcalendar"_s);
    }
}

void tst_MvStudioOptions::pages_data()
{
    const MvRows<QString, QList<int>> row; // text; pages: of six; none: an error
    row("all", QString(), QList<int>{0, 1, 2, 3, 4, 5});
    row("mixed, unordered, twice", u" 5, 1 - 3,2"_s, QList<int>{0, 1, 2, 4});
    row("long dash", u"2–3"_s, QList<int>{1, 2});
    row("last", u"6"_s, QList<int>{5});
    row("too high", u"7"_s, QList<int>());
    row("zero", u"0-2"_s, QList<int>());
    row("backwards", u"3-1"_s, QList<int>());
    row("words", u"Mai"_s, QList<int>());
    row("commas alone", u",,"_s, QList<int>());
}

void tst_MvStudioOptions::pages()
{
    const auto [text, numbers] = MvRows<QString, QList<int>>::current();
    const MvPageRange::Pages pages = MvPageRange::parse(text, 6);
    QCOMPARE(pages.numbers, numbers);
    QCOMPARE(pages.isOk(), !pages.numbers.isEmpty());
}

MV_TEST_MAIN(tst_MvStudioOptions)
#include "tst_MvStudioOptions.moc"
