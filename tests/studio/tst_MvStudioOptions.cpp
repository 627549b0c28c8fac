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
    void commandLine_data() { MvRows<QStringList, int, QString>().read(u"studio-arguments"_s); }
    void commandLine();
    void pages_data() { MvRows<QString, QString>().read(u"page-ranges"_s); }
    void pages();
};

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

void tst_MvStudioOptions::pages()
{
    const auto [text, numbers] = MvRows<QString, QString>::current();
    const MvPageRange::Pages pages = MvPageRange::parse(text, 6);
    QStringList found;
    for (const int number : pages.numbers)
        found.append(QString::number(number));
    QCOMPARE(found.join(u' '), numbers);
    QCOMPARE(pages.isOk(), !pages.numbers.isEmpty());
}

MV_TEST_MAIN(tst_MvStudioOptions)
#include "tst_MvStudioOptions.moc"
