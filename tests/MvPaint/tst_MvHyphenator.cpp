// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPaint/MvHyphenator.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvRows.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

class tst_MvHyphenator : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void divides_data();
    void divides();
    void filesOfPatterns_data();
    void filesOfPatterns();
    void usersPatternsComeFirst();
};

namespace {

/// The word with a bar where it may be divided, as the ends of the lines would show it.
QString divided(const MvHyphenator &hyphenator, const QString &word)
{
    QString shown;
    qsizetype from = 0;
    const QList<MvWordBreak> breaks = hyphenator.breaks(word);
    for (const MvWordBreak &at : breaks) {
        shown += word.mid(from, at.end - from) + at.ending + u'|' + at.beginning;
        from = at.next;
    }
    return shown + word.mid(from);
}

QString write(const QDir &folder, const QString &name, const QByteArray &content)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(name));
    return file.fileName();
}

} // namespace

void tst_MvHyphenator::divides_data()
{
    const MvRows<QString, QString, QString> row; // language, word, shown
    row.read(u"hyphenation"_s);
    row("decomposed", u"de_DE"_s, u"Gla\u0308ubigermontag"_s, u"Gla\u0308u-|bi-|ger-|mon-|tag"_s);
    row("soft hyphens rule", u"de_DE"_s, u"Pfingst\u00admontag"_s, u"Pfingst-|montag"_s);
    row("soft hyphens at the ends", u"de_DE"_s, u"\u00adTag\u00ad"_s, u"\u00adTag\u00ad"_s);
    row("no word at all", u"de_DE"_s, QString(10'000, u'x'), QString(10'000, u'x'));
}

void tst_MvHyphenator::divides()
{
    const auto [language, word, shown] = MvRows<QString, QString, QString>::current();
    QCOMPARE(divided(MvHyphenator(MvLocale(language)), word), shown);
}

void tst_MvHyphenator::filesOfPatterns_data()
{
    const MvRows<QByteArray, QString, QString> row; // content, word, shown
    row("a letter comes back", QByteArray("UTF-8\nf1f/ff=f,1,2\n"), u"Schiffahrt"_s, u"Schiff-|fahrt"_s);
    row("in capitals", QByteArray("UTF-8\nf1f/ff=f,1,2\n"), u"SCHIFFAHRT"_s, u"SCHIFF-|FAHRT"_s);
    row("one byte a letter",
        QByteArray("ISO8859-2\n\xf9"
                   "1d\n"),
        u"Neujůdek"_s, u"Neujů-|dek"_s);
    row("a letter that the encoding lacks", QByteArray("ISO8859-2\nu1d\n"), u"Þeujudek"_s, u"Þeujudek"_s);
    row("the file's own minimum", QByteArray("UTF-8\nLEFTHYPHENMIN 4\na1b\n"), u"xabaxabaxa"_s, u"xabaxa-|baxa"_s);
    row("only where a word ends", QByteArray("UTF-8\na1bcd.\n.ab1c\n"), u"abcabcd"_s, u"ab-|ca-|bcd"_s);
    row("letters twice, the last counts", QByteArray("UTF-8\na1bc/q=z,1,2\na2bc\na2cb\na1cb\n"), u"xabcxacbx"_s,
        u"xabcxa-|cbx"_s);
    row("unknown encoding", QByteArray("EBCDIC-17\na1b\n"), u"xabaxab"_s, u"xabaxab"_s);
    row("empty", QByteArray(), u"xabaxab"_s, u"xabaxab"_s);
    row("no patterns at all", QByteArray(5000, '\xff'), u"xabaxab"_s, u"xabaxab"_s);
    row("weights alone, long lines, odd ends", "UTF-8\n1234\n" + QByteArray(300, 'a') + "\n/\n1/=,,\na1b", u"xabax"_s,
        u"xa-|bax"_s);
}

void tst_MvHyphenator::filesOfPatterns()
{
    const auto [content, word, shown] = MvRows<QByteArray, QString, QString>::current();
    const QTemporaryDir folder;
    QCOMPARE(divided(MvHyphenator::fromFile(write(folder.path(), u"hyph.dic"_s, content)), word), shown);
}

void tst_MvHyphenator::usersPatternsComeFirst()
{
    QVERIFY(MvHyphenator::fileFor(MvLocale(u"sv_FI"_s)).contains("/hyph_sv"_L1)); // without patterns of its own
    const QDir folder = MvDirectoryConfig::instance().programDataSubDir(u"hyphenation"_s);
    const QString own = write(folder, u"hyph_sv.dic"_s, "UTF-8\n");
    QCOMPARE(QFileInfo(MvHyphenator::fileFor(MvLocale(u"sv_FI"_s))), QFileInfo(own));
    QCOMPARE(MvHyphenator::fileFor(MvLocale(u"xx_XX"_s)), QString());
}

MV_TEST_MAIN(tst_MvHyphenator)
#include "tst_MvHyphenator.moc"
