// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvDirectoryConfig.h"
#include "MvRows.h"
#include "MvTest.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvCore/MvLocale.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvCore/MvTranslations.h"

using namespace Qt::StringLiterals;

class tst_MvTranslations : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void languageFor_data() { MvRows<QStringList, QString>().read(u"program-languages"_s); }
    void languageFor();
    void environmentDecides();
    void installs();
};

void tst_MvTranslations::languageFor()
{
    const auto [preferred, language] = MvRows<QStringList, QString>::current();
    QCOMPARE(MvTranslations::languageFor(preferred), language);
}

void tst_MvTranslations::environmentDecides()
{
    const auto cleanUp = qScopeGuard([] { qunsetenv("MVCALENDAR_LANGUAGE"); });
    qunsetenv("MVCALENDAR_LANGUAGE");
    QCOMPARE(MvTranslations::systemLanguage(), u"en"_s); // tests run in the C locale
    qputenv("MVCALENDAR_LANGUAGE", "de_AT");
    QCOMPARE(MvTranslations::systemLanguage(), u"de"_s);
    qputenv("MVCALENDAR_LANGUAGE", "tlh");
    QCOMPARE(MvTranslations::systemLanguage(), u"en"_s);
}

void tst_MvTranslations::installs()
{
    const auto text = [] { return MvSafeFileWriter::tr("Die Datei ist schreibgeschützt."); };
    const auto more = [](int count) {
        return QCoreApplication::translate("MvHolidayTableReader", " (und %n weitere Fehler in dieser Datei)", nullptr,
                                           count);
    };
    const QString german = text();
    for (int round = 0; round < 2; ++round) { // there and back, and again
        QVERIFY(MvTranslations::install(u"en"_s));
        QCOMPARE(text(), u"The file is write-protected."_s);
        QCOMPARE(more(1), u" (and 1 more error in this file)"_s);
        QCOMPARE(MvApplicationLocale::instance().locale().language(), QLocale::English);
        QCOMPARE(QLocale().language(), QLocale::English);
        QCOMPARE(MvLocale(u"de_AT"_s).visibleName(), u"Austria"_s);
        QCOMPARE(MvLocale(u"fr_CH"_s).visibleName(), u"Switzerland (French)"_s);
        QVERIFY(!MvTranslations::install(u"tlh"_s));
        QCOMPARE(MvTranslations::language(), u"en"_s);

        QVERIFY(MvTranslations::install(u"de"_s));
        QCOMPARE(text(), german);
        QCOMPARE(MvLocale(u"fr_CH"_s).visibleName(), u"Schweiz (Französisch)"_s);
        QCOMPARE(more(1), u" (und 1 weiterer Fehler in dieser Datei)"_s);
        QCOMPARE(more(3), u" (und 3 weitere Fehler in dieser Datei)"_s);
        QCOMPARE(MvApplicationLocale::instance().locale(), QLocale(QLocale::German, QLocale::Germany));
    }
    QCOMPARE(MvTranslations::nameOf(u"de"_s), u"Deutsch"_s);
    QCOMPARE(MvTranslations::nameOf(u"en"_s), u"English"_s);

    // one more language is one more file
    QVERIFY(MvDirectoryConfig::instance().programDataDir().mkpath(u"i18n"_s));
    const QString dutch = MvDirectoryConfig::instance().programDataFile(u"i18n/mvcalendar_nl.qm"_s).filePath();
    QVERIFY(QFile::copy(MvDirectoryConfig::instance().resource(u"i18n/mvcalendar_en.qm"_s).filePath(), dutch));
    QCOMPARE(MvTranslations::languages(), (QStringList{u"de"_s, u"en"_s, u"nl"_s}));
    QCOMPARE(MvTranslations::nameOf(u"nl"_s), u"Nederlands"_s);
    QVERIFY(MvTranslations::install(u"nl"_s));
    QCOMPARE(MvApplicationLocale::instance().locale().language(), QLocale::Dutch);
    QVERIFY(MvTranslations::install(u"de"_s) && QFile::remove(dutch));
}

MV_TEST_MAIN(tst_MvTranslations)
#include "tst_MvTranslations.moc"
