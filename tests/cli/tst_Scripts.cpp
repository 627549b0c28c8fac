// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProgramTest.h"
#include "MvRows.h"

#include <QImage>

using namespace Qt::StringLiterals;

/// What scripts and shells rely on: standard output, placeholders, settings that always hold, completion.
class tst_Scripts : public MvProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void standardOutput_data();
    void standardOutput();
    void leavesNothingBehind();
    void samePicturesByAnyNumberOfJobs();
    void keepsWhatIsThere();
    void saysAsMuchAsWanted();
    void settings_data();
    void settings();
    void completes_data() { MvRows<QString, QStringList>().read(u"completions"_s); }
    void completes();
    void completesElsewhere_data();
    void completesElsewhere();
    void forPressAndDesk_data() { MvRows<QString, int, QByteArray>().read(u"press-and-desk-calls"_s); }
    void forPressAndDesk();
};

void tst_Scripts::standardOutput_data()
{
    const MvRows<QString, QByteArray> row; // arguments; begin: of the file, or of the error
    row("a calendar", u"--year 2027 -o -"_s, QByteArray("%PDF-"));
    row("one picture", u"--year 2027 --pages 3 --dpi 20 -o - -f png"_s, QByteArray("\x89PNG"));
    row("another kind", u"--year 2027 --pages 3 --dpi 20 -fjpg -o -"_s, QByteArray("\xff\xd8"));
    row("to be read", u"--year 2027 -f html -o -"_s, QByteArray("<!DOCTYPE html>\n<html lang=\"de-DE\">"));
    row("several pictures", u"--year 2027 -f png -o -"_s, QByteArray("mvcalendar: -o -: 12 Seiten"));
    row("beside a file", u"-o - -o k.pdf"_s, QByteArray("mvcalendar: -o - steht allein"));
    row("beside a report", u"-o - --report json"_s, QByteArray("mvcalendar: --output und --report"));
    row("a kind for a file", u"-f png -o k.pdf"_s, QByteArray("mvcalendar: --format sagt, was -o -"));
}

void tst_Scripts::standardOutput()
{
    const auto [arguments, begin] = MvRows<QString, QByteArray>::current();
    const Call call = run(u"render "_s + arguments);
    const bool isError = begin.startsWith("mvcalendar");
    QVERIFY2((isError ? call.err : call.out).startsWith(begin), call.err + call.out.left(100));
    QCOMPARE(call.exitCode, isError ? 2 : 0);
    QCOMPARE(isError ? call.out : call.err, QByteArray());
    QCOMPARE(files(), QStringList());
}

/// Whoever reads the standard output goes away, or the call is ended; a signal ends it as usual.
void tst_Scripts::leavesNothingBehind()
{
    const QString call = u"cd %1; TMPDIR=. %2 render --year 2027 -o - "_s.arg(path({}), QStringLiteral(MV_PROGRAM));
    for (const QString &end :
         {u"| head -c 1"_s, u"& until ls mvcalendar-*; do :; done >&2; kill -TERM $!; wait $!; echo -n $?"_s})
        QCOMPARE(outputOf(u"bash"_s, {u"-c"_s, call + end}).right(3), end.startsWith(u'|') ? "%" : "143");
    QCOMPARE(files().filter(u"mvcalendar"_s), QStringList());
}

void tst_Scripts::samePicturesByAnyNumberOfJobs()
{
    const QString calendar = u"render --country AT --region Tirol --year 2027 --dpi 40 "_s;
    const Call fifth = run(calendar + u"-j1 -o a-%r-%m.png -o a.svg --pages 5 -o a%%-%r.pdf"_s);
    QCOMPARE(fifth.err + fifth.out, QByteArray("a-7-05.png\na.svg\na%-7.pdf\n"));
    QCOMPARE(run(calendar + u"-j1 -o a-%r-%m.png"_s).exitCode, 0);
    QCOMPARE(run(calendar + u"--jobs 7 -o b-%r-%m.png -o b-%n.svg"_s).exitCode, 0);
    QVERIFY(files().contains(u"a%-7.pdf"_s));
    for (int month = 1; month <= 12; ++month) {
        const QString name = u"-7-%1.png"_s.arg(month, 2, 10, QChar(u'0'));
        QCOMPARE(contentOf(path(u'a' + name)), contentOf(path(u'b' + name)));
        QCOMPARE(QImage(path(u'a' + name)).size(), QSize(468, 331));
    }
    QCOMPARE(contentOf(u"a.svg"_s), contentOf(u"b-05.svg"_s));
}

void tst_Scripts::keepsWhatIsThere()
{
    put(u"k-02.png"_s, "mine");
    const Call refused = run(u"render --year 2027 --dpi 20 --no-overwrite -o k-%m.png"_s);
    QCOMPARE(refused.exitCode, 1);
    QCOMPARE(refused.err, QByteArray("mvcalendar: k-02.png gibt es schon; --overwrite ersetzt es\n"));
    QCOMPARE(files(), QStringList{u"k-02.png"_s});
    QCOMPARE(contentOf(u"k-02.png"_s), QByteArray("mine"));
    QCOMPARE(run(u"render --year 2027 --dpi 20 --overwrite -o k-%m.png"_s).exitCode, 0);
    QVERIFY(contentOf(u"k-02.png"_s) != "mine");
}

void tst_Scripts::saysAsMuchAsWanted()
{
    const QString calendar = u"render --country US --vacations --year 2027 --pages 1-2 -o k.pdf"_s;
    QVERIFY(!run(calendar).err.isEmpty()); // a hint: no vacations known
    const Call quiet = run(calendar + u" -q"_s);
    QCOMPARE(quiet.out + quiet.err, QByteArray());
    QCOMPARE(quiet.exitCode, 0);
    QVERIFY(run(calendar + u" -v"_s).err.contains("k.pdf: Seite 2 von 2\n"));
    QCOMPARE(run(calendar + u" -v -q"_s).exitCode, 2);
}

void tst_Scripts::settings_data()
{
    const MvRows<QByteArray, QString, QByteArray> row; // settings; arguments; said: the file, or the error
    const QByteArray own = "# mine\ncountry = \"AT\"\nregion=Tirol\n[holidays]\nregion = Wien\n[render]\njobs = 1\n";
    const QString file = u" -o k-%r.pdf"_s;
    row("as the file says", own, file, "k-7.pdf\n");
    row("the call comes first", own, u"-r Wien"_s + file, "k-9.pdf\n");
    row("a region goes with its country", own, u"-c CH"_s + file, "k-CH.pdf\n");
    row("for a command alone", "[holidays]\ncountry = AT\n", file, "k-DE.pdf\n");
    row("not wanted", own, u"--no-config"_s + file, "k-DE.pdf\n");
    row("a theme is nothing without photos", "theme = SEA\nlayout = MONTH_ONLY\n", file, "k-DE.pdf\n");
    row("what is nothing together", "quiet\n\nverbose\n", file, "schließen einander aus (set.conf, Zeile 1)");
    row("a value that makes no sense", "\npage = A99\n", file, "--page „A99“");
    row("... and its place", "\npage = A99\n", file, "(set.conf, Zeile 2)");
    row("no such option", "contry = AT", file, "set.conf, Zeile 1: „contry“ gibt es hier nicht");
    row("what only a call can say", "[render]\noutput = k.pdf", file, "set.conf, Zeile 2: „output“ gibt es hier nicht");
    row("no such command", "[rendr]\n", file, "set.conf, Zeile 1: [rendr] ist kein Abschnitt");
    row("an option of another command", "[themes]\ncountry = AT\n", file, "k-DE.pdf\n");
    row("no value", "country\n", file, "set.conf, Zeile 1: nach --country fehlt der Wert");
    row("a switch with a value", "vacations = no\n", file, "set.conf, Zeile 1: --vacations nimmt keinen Wert");
    row("no file", {}, file, "set.conf: ");
}

void tst_Scripts::settings()
{
    const auto [settings, arguments, said] = MvRows<QByteArray, QString, QByteArray>::current();
    if (!settings.isEmpty())
        put(u"set.conf"_s, settings);
    const Call call = run(u"render --year 2027 --months 1 "_s + arguments, {{u"MVCALENDAR_CONFIG"_s, u"set.conf"_s}});
    const bool isFile = said.startsWith("k-");
    QVERIFY2((isFile ? call.out : call.err).contains(said), call.out + call.err);
    QCOMPARE(call.exitCode, isFile ? 0 : 2);
}

/// As bash asks.
void tst_Scripts::completes()
{
    const auto [line, offered] = MvRows<QString, QStringList>::current();
    const QString program = QFileInfo(QStringLiteral(MV_PROGRAM)).path();
    const QString script =
        u"PATH=%1:$PATH; . %2/mvcalendar.bash; COMP_WORDS=(%3); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
        "_mvcalendar; printf '%s\\n' \"${COMPREPLY[@]}\""_s.arg(program, QStringLiteral(MV_COMPLETION), line);
    const QByteArray out = outputOf(u"bash"_s, {u"-c"_s, script});
    QCOMPARE(QString::fromUtf8(out).split(u'\n', Qt::SkipEmptyParts), offered);
}

void tst_Scripts::completesElsewhere_data()
{
    const MvRows<QString, QString> row; // shell; script: %1: the line
    const QString scripts = QStringLiteral(MV_COMPLETION);
    row("fish", u"fish"_s, u"source "_s + scripts + u"/mvcalendar.fish; complete -C '%1'"_s);
    row("zsh", u"zsh"_s,
        u"_files() { ls }; _describe() { print -l -- ${(P)2} }; words=(${(z):-%1x}); "
        "words[-1]=${words[-1]%x}; CURRENT=$#words; complete() { . "_s +
            scripts + u"/_mvcalendar }; complete"_s);
}

/// With what it is beside each, and with files where one is expected alone.
void tst_Scripts::completesElsewhere()
{
    const auto [shell, script] = MvRows<QString, QString>::current();
    if (QStandardPaths::findExecutable(shell).isEmpty())
        QSKIP("the shell is not installed");
    put(u"k.pdf"_s, {});
    const QString program = QFileInfo(QStringLiteral(MV_PROGRAM)).path();
    for (const auto &[line, offered] : {std::pair(u"mvcalendar render --press "_s, "fogra39 fogra29 gracol"),
                                        {u"mvcalendar render --press=fogra2"_s, "--press=fogra29"},
                                        {u"mvcalendar render -o "_s, "k.pdf"},
                                        {u"mvcalendar render -l YEAR_P"_s, "YEAR_PLANNER:Jahresplaner"}}) {
        const QByteArray out = outputOf(
            u"env"_s, {u"-C"_s, path({}), u"PATH=%1:/usr/bin:/bin"_s.arg(program), shell, u"-c"_s, script.arg(line)});
        QStringList found = QString::fromUtf8(out).replace(u'\t', u':').split(u'\n', Qt::SkipEmptyParts);
        QStringList expected = QString::fromLatin1(offered).split(u' ');
        found.sort();
        expected.sort();
        QCOMPARE(found, expected);
    }
}

void tst_Scripts::forPressAndDesk()
{
    const auto [arguments, exitCode, said] = MvRows<QString, int, QByteArray>::current();
    const Call call = run(u"render --year 2027 --months 1 "_s + arguments);
    QCOMPARE(call.exitCode, exitCode);
    QVERIFY2((call.err + call.out).contains(said), call.err + call.out);
}

MV_TEST_MAIN(tst_Scripts)
#include "tst_Scripts.moc"
