// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProgramTest.h"
#include "MvRows.h"

#include "MvProject/MvPressProfile.h"
#include "batch/MvBatchJob.h"
#include "batch/MvBatchOutputs.h"
#include "batch/MvBatchReport.h"

#include <QImage>

#include <csignal>

using namespace Qt::StringLiterals;

/// Many calendars in one call: what a bad line, a slow or greedy calendar, signals and kills do to the others, and what
/// a second run makes anew.
class tst_Batch : public MvProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("SOURCE_DATE_EPOCH", "1800000000"); } // so that files can be compared
    void outputsThatMeet_data() { MvRows<QStringList, int>().read(u"batch-outputs"_s); }
    void outputsThatMeet();
    void badLines_data();
    void badLines();
    void refusesCalls_data();
    void refusesCalls();
    void writesWhatRenderWrites();
    void makesAnewWhatChanged_data();
    void makesAnewWhatChanged();
    void shardsAreAPartition();
    void greedyCalendar();
    void stoppedAndKilledWorkers();
    void endsInGoodOrder();
    void killedAtAnyMoment();

private:
    static constexpr int many = 24;

    /// A list of small calendars with entries of their own: c-1.pdf and so on.
    void writeList(int count, const QByteArray &options = R"("year":2027,"months":3)") const;
    void start(QProcess &process, const QString &arguments) const;
    QList<QJsonObject> report() const;
    /// The states in the report, each with how many have it: "done 3, failed 1".
    QString states() const;
    /// All calendars of the list are there, with the bytes of an undisturbed run.
    void verifyAll(int count);
    static QList<pid_t> workersOf(const QProcess &process);
    void waitForLines(int count) const;

    const QString m_call = u"batch list.jsonl --jobs 2 --report report.jsonl"_s;
    QMap<QString, QByteArray> m_whole; // of an undisturbed run, by name
};

void tst_Batch::writeList(int count, const QByteArray &options) const
{
    QByteArray list;
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        list += "{\"id\":" + number + ',' + options + ",\"entries\":\"e-" + number + ".xml\",\"output\":\"c-" + number +
                ".pdf\"}\n";
        put(path(u"e-%1.xml"_s.arg(i)), entriesFile("Eva " + number, "1990-01-14"));
    }
    put(u"list.jsonl"_s, list);
}

void tst_Batch::start(QProcess &process, const QString &arguments) const
{
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(MV_PROGRAM), arguments.split(u' '));
    QVERIFY(process.waitForStarted());
}

QList<QJsonObject> tst_Batch::report() const
{
    QList<QJsonObject> lines;
    for (const QByteArray &line : contentOf(u"report.jsonl"_s).split('\n')) {
        if (!line.isEmpty())
            lines.append(QJsonDocument::fromJson(line).object());
    }
    return lines;
}

QString tst_Batch::states() const
{
    QMap<QString, int> counts;
    for (const QJsonObject &line : report())
        ++counts[line.value(u"state"_s).toString()];
    QStringList words;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        words.append(u"%1 %2"_s.arg(count.key()).arg(count.value()));
    return words.join(u", "_s);
}

void tst_Batch::verifyAll(int count)
{
    for (int i = 1; i <= count; ++i) {
        const QString name = u"c-%1.pdf"_s.arg(i);
        const QByteArray content = contentOf(path(name));
        QVERIFY2(content.startsWith("%PDF-") && content.trimmed().endsWith("%%EOF"), qPrintable(name));
        if (!m_whole.contains(name))
            m_whole.insert(name, content);
        QVERIFY2(content == m_whole.value(name), qPrintable(name));
    }
}

QList<pid_t> tst_Batch::workersOf(const QProcess &process)
{
    QList<pid_t> workers;
    for (const QByteArray &pid : outputOf(u"pgrep"_s, {u"-P"_s, QString::number(process.processId())}).split('\n')) {
        if (!pid.isEmpty())
            workers.append(pid.toInt());
    }
    return workers;
}

void tst_Batch::waitForLines(int count) const
{
    QTRY_VERIFY_WITH_TIMEOUT(contentOf(u"report.jsonl"_s).count('\n') >= count, 30'000);
}

void tst_Batch::outputsThatMeet()
{
    const auto [patterns, clashes] = MvRows<QStringList, int>::current();
    for (const bool isReversed : {false, true}) {
        MvBatchOutputs outputs;
        for (int i = 0; i < patterns.size(); ++i)
            outputs.add(i, patterns[isReversed ? patterns.size() - 1 - i : i]);
        QCOMPARE(outputs.clashes().size(), clashes);
    }
}

void tst_Batch::badLines_data()
{
    const MvRows<QByteArray, QByteArray> row; // line; said: after file and line
    row("no JSON", "year: 2027", "kein gültiges JSON ab Zeichen");
    row("no object", "[1]", "jede Zeile muss ein JSON-Objekt sein");
    row("no file", R"({"year":2027})", "es fehlt „output“");
    row("no such option", R"({"yaer":2027,"output":"b.pdf"})", "unbekannte Option --yaer – meinten Sie „--year“?");
    row("a value that is none", R"({"year":{},"output":"b.pdf"})", "„year“: erlaubt sind Text, Zahl");
    row("an id that is none", R"({"id":[1],"output":"b.pdf"})", "„id“: erlaubt sind Text und Zahl");
    row("a switch with a value", R"({"vacations":"yes","output":"b.pdf"})", "--vacations nimmt keinen Wert");
    row("somebody's own", R"({"my-entries":true,"output":"b.pdf"})", "--my-entries gibt es in einem Stapel nicht");
    row("standard output", R"({"id":7,"output":"-"})", " (7): „output“: in einem Stapel sind nur Dateien erlaubt");
    row("found while printing", R"({"layout":"NONE","output":"b.pdf"})", "--layout „NONE“");
    row("no such folder", R"({"output":"x/b.pdf"})", "x/b.pdf: den Ordner x gibt es nicht");
    row("a file twice", R"({"output":["b.pdf","b.pdf"]})", "b.pdf ist zweimal angegeben");
    row("the next one's file", R"({"output":"./a.pdf"})", "./a.pdf schreibt auch Zeile 3");
    row("too long", R"({"title":")" + QByteArray(1 << 21, 'x'), "die Zeile ist länger als 1 MB");
}

void tst_Batch::badLines()
{
    const auto [line, said] = MvRows<QByteArray, QByteArray>::current();
    put(u"list.jsonl"_s, "\n" + line + "\n{\"year\":2027,\"months\":1,\"output\":\"a.pdf\"}\n");
    const Call call = run(m_call + u" -q"_s);
    QCOMPARE(call.exitCode, 1);
    QVERIFY2(call.err.startsWith("mvcalendar: list.jsonl, Zeile 2") && call.err.contains(said), call.err.constData());
    const bool isShared = line.contains("./a.pdf"); // neither is made
    QCOMPARE(QFile::exists(path(u"a.pdf"_s)), !isShared);
    QVERIFY(call.err.contains(isShared ? "2 von 2" : "1 von 2"));
    QCOMPARE(report().size(), 2);
}

void tst_Batch::refusesCalls_data()
{
    const MvRows<QString, int, QByteArray> row; // arguments, exitCode, said
    row("no list", u""_s, 2, QByteArray("es fehlt die Liste"));
    row("a list that is missing", u"none.jsonl"_s, 1, QByteArray("none.jsonl: "));
    row("no such shard", u"list.jsonl --shard 3/2"_s, 2, QByteArray("--shard „3/2“"));
    row("no time", u"list.jsonl --time-limit 0"_s, 2, QByteArray("--time-limit „0“"));
    row("a report that is none", u"list.jsonl --report list.jsonl"_s, 1,
        QByteArray("list.jsonl, Zeile 1: das ist kein Bericht"));
}

void tst_Batch::refusesCalls()
{
    const auto [arguments, exitCode, said] = MvRows<QString, int, QByteArray>::current();
    writeList(1);
    const QByteArray list = contentOf(u"list.jsonl"_s);
    const Call call = run(u"batch "_s + arguments);
    QCOMPARE(call.exitCode, exitCode);
    QVERIFY2(call.err.contains(said), call.err.constData());
    QCOMPARE(contentOf(u"list.jsonl"_s), list);
    QVERIFY(!QFile::exists(path(u"c-1.pdf"_s)));
}

/// Also the third of a worker, after others have warmed it; and switches, lists and numbers as render has them.
void tst_Batch::writesWhatRenderWrites()
{
    put(u"list.jsonl"_s, R"({"output":"x.pdf","year":2028,"layout":"YEAR_PLANNER"}
{"output":"y.pdf","from":"2027-02","months":2,"country":"AT","colors":"NIGHT"}
{"id":12345678901234567,"from":"2027-02","months":2,"vacations":true,"region":"BY","output":["a.pdf","a-%m.png"],"dpi":40}
)");
    const Call call = run(u"batch --jobs 1 -"_s, {}, 0, contentOf(u"list.jsonl"_s));
    QCOMPARE(call.exitCode, 0);
    const QJsonObject told = QJsonDocument::fromJson(call.outLines().value(2)).object();
    QCOMPARE(told.value(u"id"_s), u"12345678901234567"_s);
    QCOMPARE(told.value(u"files"_s).toArray().size(), 3);
    QCOMPARE(told.value(u"pages"_s), 2);
    QVERIFY(told.value(u"peakMemory"_s).toDouble() > 1 && told.value(u"cpuSeconds"_s).toDouble() > 0);
    QCOMPARE(run(u"render --from 2027-02 --months 2 --vacations --region BY -o b.pdf -o b-%m.png --dpi 40"_s).exitCode,
             0);
    const MvBatchJob dateless = MvBatchJob::fromLine(R"({"output":"a.pdf","year":null,"project":null})", 1);
    QVERIFY(dateless.options.value(u"year"_s).toInt() > 2025); // next year it is another one
    for (const QString &end : {u".pdf"_s, u"-02.png"_s, u"-03.png"_s})
        QVERIFY2(contentOf(path(u'a' + end)) == contentOf(path(u'b' + end)), qPrintable(end));
}

void tst_Batch::makesAnewWhatChanged_data()
{
    // file: written with the content between the runs; the report is cut by as much
    const MvRows<QString, QByteArray, QString> row;
    const QByteArray entries = entriesFile("Eva 2", "1990-01-14");
    row("nothing", u"none"_s, QByteArray(), u"skipped 3"_s);
    row("an input", u"e-2.xml"_s, entriesFile("Adam", "1990-01-14"), u"done 1, skipped 2"_s);
    row("an input to the same", u"e-2.xml"_s, entries, u"skipped 3"_s);
    row("an output", u"c-2.pdf"_s, QByteArray("%PDF-"), u"done 1, skipped 2"_s);
    row("a folder", u"album/b.jpg"_s, QByteArray("no photo"), u"done 1, skipped 2"_s);
    row("a profile", u"own.icc"_s, contentOf(MvPressProfile::fileOf(u"fogra29"_s)), u"done 1, skipped 2"_s);
    row("a cut report", u"report.jsonl"_s, QByteArray(20, ' '), u"done 1, skipped 2"_s);
    row("a cut first line", u"report.jsonl"_s, QByteArray(9999, ' '), u"done 3"_s);
}

void tst_Batch::makesAnewWhatChanged()
{
    const auto [file, content, states] = MvRows<QString, QByteArray, QString>::current();
    writeList(3);
    QVERIFY(QFile::copy(MvPressProfile::fileOf(u"fogra39"_s), path(u"own.icc"_s)));
    put(u"list.jsonl"_s, contentOf(u"list.jsonl"_s)
                             .replace(R"("months":3)", R"("months":1)")
                             .replace(R"("id":3,)", R"("press":"own.icc",)")
                             .replace(R"("c-1.pdf")", R"("album/c-1.pdf","photos":["album"])"));
    QVERIFY(QDir(path({})).mkdir(u"album"_s) && QImage(60, 40, QImage::Format_RGB32).save(path(u"album/a.jpg"_s)));
    QCOMPARE(run(m_call).exitCode, 0);
    QCOMPARE(this->states(), u"done 3"_s);
    const QByteArray before = contentOf(u"c-2.pdf"_s);
    const QByteArray report = contentOf(u"report.jsonl"_s);
    put(path(file), file == u"report.jsonl"_s ? report.left(qMax(30, report.size() - content.size())) : content);
    if (file == u"report.jsonl"_s) { // a run that is killed, too, leaves whole lines behind
        QVERIFY(MvBatchReport().open(path(file)).isOk());
        QVERIFY(contentOf(path(file)).endsWith("}\n") || contentOf(path(file)).isEmpty());
    }
    QCOMPARE(run(m_call).exitCode, 0);
    QCOMPARE(this->states(), states);
    QCOMPARE(contentOf(u"c-2.pdf"_s) == before, !content.contains("Adam"));
    QCOMPARE(run(m_call).exitCode, 0);
    QCOMPARE(this->states(), u"skipped 3"_s);
    writeList(3, R"("year":2027,"months":3,"region":"BY")");
    QCOMPARE(run(m_call).exitCode, 0);
    QCOMPARE(this->states(), u"done 3"_s);
}

void tst_Batch::shardsAreAPartition()
{
    writeList(7);
    QStringList made;
    for (const QString &shard : {u"1/3"_s, u"2/3"_s, u"3/3"_s}) {
        const Call call = run(u"batch list.jsonl --jobs 1 --shard "_s + shard);
        QCOMPARE(call.exitCode, 0);
        for (const QByteArray &line : call.outLines())
            made.append(QJsonDocument::fromJson(line).object().value(u"id"_s).toString());
    }
    made.sort();
    QCOMPARE(made, (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s}));
    verifyAll(7);
}

/// One that needs more memory than it may, in the middle of others that do not.
void tst_Batch::greedyCalendar()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("the sanitizer wants more memory than a calendar");
#endif
    writeList(6);
    const QByteArray list = contentOf(u"list.jsonl"_s);
    put(u"list.jsonl"_s, list + R"({"year":2027,"months":1,"page":"A0","dpi":600,"output":"large-%m.png"})" + '\n' +
                             QByteArray(list).replace("c-", "d-"));
    const Call call = run(u"batch list.jsonl -j1 --memory-limit 256 --report report.jsonl"_s);
    QCOMPARE(call.exitCode, 1);
    QVERIFY2(call.err.contains("list.jsonl, Zeile 7 (large-%m.png): "), call.err.constData());
    QCOMPARE(files().filter(u"large"_s), QStringList());
    QCOMPARE(report().value(6).value(u"state"_s).toString() == u"done"_s, false);
    QCOMPARE(files().filter(u".pdf"_s).size(), 12);
    verifyAll(6);
}

void tst_Batch::stoppedAndKilledWorkers()
{
    writeList(many);
    QProcess batch;
    start(batch, m_call + u" --time-limit 3"_s);
    waitForLines(4);
    const QList<pid_t> workers = workersOf(batch);
    QCOMPARE(workers.size(), 2);
    ::kill(workers[0], SIGSTOP); // as one that waits for ever
    ::kill(workers[1], SIGKILL); // somebody else will do what it was at
    QVERIFY(batch.waitForFinished());
    QCOMPARE(batch.exitCode(), 1);
    QCOMPARE(states(), u"done %1, timeout 1"_s.arg(many - 1));
    QVERIFY(batch.readAllStandardError().contains("nicht fertig nach 3 Sekunden"));
    QCOMPARE(run(m_call).exitCode, 0);
    QCOMPARE(states(), u"done 1, skipped %1"_s.arg(many - 1));
    verifyAll(many);
}

void tst_Batch::endsInGoodOrder()
{
    writeList(many);
    QProcess batch;
    start(batch, m_call);
    waitForLines(2);
    QCOMPARE(run(m_call).exitCode, 1); // the report is in use
    batch.terminate();
    QVERIFY(batch.waitForFinished());
    QCOMPARE(batch.exitCode(), 4);
    QVERIFY2(batch.readAllStandardError().contains("derselbe Aufruf macht weiter"), "what to do");
    for (const QString &file : files().filter(u".pdf"_s))
        QVERIFY2(contentOf(path(file)).trimmed().endsWith("%%EOF"), qPrintable(file));
    QVERIFY(report().size() < many);
    QCOMPARE(run(m_call).exitCode, 0);
    QVERIFY2(states().contains(u"skipped"_s), qPrintable(states()));
    verifyAll(many);
}

void tst_Batch::killedAtAnyMoment()
{
    const int rounds = qEnvironmentVariableIsSet("MV_NIGHTLY") ? 100 : 2;
    QRandomGenerator chance(4711);
    writeList(many);
    QCOMPARE(run(m_call).exitCode, 0);
    verifyAll(many);
    int longest = 400; // milliseconds
    for (int round = 0; round < rounds;) {
        for (const QString &file : files().filter(QRegularExpression(u"pdf$|^report"_s)))
            QFile::remove(path(file));
        QProcess batch;
        start(batch, m_call);
        QTest::qWait(chance.bounded(longest));
        if (batch.state() == QProcess::NotRunning) { // it was quicker, and its number is nobody's
            longest = qMax(2, longest / 2);
            continue;
        }
        ++round;
        const QList<pid_t> workers = workersOf(batch);
        const pid_t victim =
            round % 2 == 1 || workers.isEmpty() ? pid_t(batch.processId()) : workers[chance.bounded(workers.size())];
        ::kill(victim, SIGKILL);
        QVERIFY(batch.waitForFinished());
        for (const pid_t worker : workers) // nobody goes on behind the next run
            QTRY_VERIFY(contentOf(u"/proc/%1/cmdline"_s.arg(worker)).isEmpty());
        for (const QString &file : files().filter(u".pdf"_s))
            QVERIFY2(contentOf(path(file)) == m_whole.value(file), qPrintable(file));
        QCOMPARE(run(m_call).exitCode, 0);
        QCOMPARE(report().size(), many);
        verifyAll(many);
    }
}

MV_TEST_MAIN(tst_Batch)
#include "tst_Batch.moc"
