// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProgramTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include <QImage>

using namespace Qt::StringLiterals;

/// Runs the program as a person does: what it prints, what it writes, how it ends.
class tst_mvcalendar : public MvProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void refuses_data() { MvRows<QString, int, QStringList>().read(u"refused-calls"_s); }
    void refuses();
    void help();
    void holidays();
    void holidayFormatsAgree();
    void listFormatsAgree();
    void plainCallsSayTheSame();
    void colors();
    void usersSchemataAreNoDefaults();
    void rendersPdf_data();
    void rendersPdf();
    void entries();
    void entriesOfOtherPrograms();
    void entriesAreAddedAndRemoved_data();
    void entriesAreAddedAndRemoved();
    void damagedEntries();
    void skippedEntries();
    void hints_data() { MvRows<QString, QString>().read(u"hints"_s); }
    void hints();
    void reportsTextsWithoutRoom();
    void reportsCoarseFotos();
    void project();
    void brokenOutput();
    void littleMemory();
    void language_data();
    void language();
    void printsTheSameInEveryLanguage();
    void printsTheSameWithOtherFonts();

private:
    QList<QImage> render(const QString &extraArguments = {}) const;
    void forgetUserSchemata() const;

    QDir m_userFolder;
};

void tst_mvcalendar::initTestCase()
{
    m_userFolder = QDir(qEnvironmentVariable("MVCALENDAR_DATA"));
    QVERIFY(m_userFolder.mkpath(u"."_s));
}

void tst_mvcalendar::forgetUserSchemata() const
{
    for (const QString &name : m_userFolder.entryList({u"000-user-*"_s}, QDir::Files | QDir::Hidden))
        QFile::remove(m_userFolder.filePath(name));
}

/// January to March 2027 as small pictures.
QList<QImage> tst_mvcalendar::render(const QString &extraArguments) const
{
    const Call call = run(u"render --from 2027-01 --months 3 --dpi 60 -o p-%m.png "_s + extraArguments);
    QList<QImage> pages;
    for (const QByteArray &line : call.outLines())
        pages.append(QImage(path(QString::fromUtf8(line))));
    return call.exitCode == 0 && call.err.isEmpty() ? pages : QList<QImage>();
}

void tst_mvcalendar::refuses()
{
    const auto [arguments, exitCode, words] = MvRows<QString, int, QStringList>::current();
    const Call call = run(arguments);
    QCOMPARE(call.exitCode, exitCode);
    QCOMPARE(call.out, QByteArray());
    QVERIFY2(call.err.startsWith("mvcalendar: ") && call.err.endsWith('\n'), call.err.constData());
    QCOMPARE(call.err.count('\n'), 1);
    for (const QString &word : words)
        QVERIFY2(QString::fromUtf8(call.err).contains(word), call.err.constData());
    QCOMPARE(files(), QStringList()); // nothing half written
}

void tst_mvcalendar::help()
{
    for (const auto &[arguments, word] : {std::pair(u"--help"_s, u"Rückgabewerte"_s),
                                          {u"render --year x --help"_s, u"--entries DATEI"_s},
                                          {u"help holidays"_s, u"mvcalendar holidays --country DE"_s}}) {
        const Call call = run(arguments);
        QCOMPARE(call.exitCode, 0);
        QCOMPARE(call.err, QByteArray());
        QVERIFY(call.out.contains("Beispiele:"));
        QVERIFY2(QString::fromUtf8(call.out).contains(word), call.out.constData());
    }
}

void tst_mvcalendar::holidays()
{
    for (const auto &[region, row] : // as published by the states' ministries
         {std::pair(u"by-a"_s, "2027-08-08,public,Augsburger"),
          {u"BY"_s, "2027-05-09,observance,Muttertag"},
          {u"Bayern"_s, "2027-09-13,vacation,Sommerferien"}}) {
        const Call call = run(u"holidays --country Deutschland --year 2027 --format csv --region "_s + region);
        QCOMPARE(call.exitCode, 0);
        QVERIFY(call.out.startsWith("date,type,name\n"));
        QVERIFY2(call.out.contains('\n' + QByteArray(row)), call.out.constData());
    }
    QVERIFY(run(u"regions --country Switzerland --language fr"_s).out.contains("Genève"));
}

void tst_mvcalendar::holidayFormatsAgree()
{
    const QString arguments = u"holidays --region SN --year 2026 --to 2027"_s;
    const Call csv = run(arguments + u" --format csv"_s);
    const Call json = run(arguments + u" --format json"_s);
    const QJsonArray array = QJsonDocument::fromJson(json.out).array();
    const QList<QByteArray> lines = csv.outLines().mid(1);
    QCOMPARE(array.size(), lines.size());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QJsonObject holiday = array[i].toObject();
        const QList<QByteArray> fields = lines[i].split(',');
        QCOMPARE(holiday[u"date"_s].toString().toUtf8(), fields.value(0));
        QCOMPARE(holiday[u"type"_s].toString().toUtf8(), fields.value(1));
        QVERIFY(QByteArrayList({"public", "optional", "observance", "vacation"}).contains(fields.value(1)));
        QCOMPARE(holiday[u"name"_s].toString().toUtf8(), fields.mid(2).join(',').replace('"', ""));
        QVERIFY2(!fields.value(2).isEmpty(), lines[i].constData());
    }
    QVERIFY(csv.out.contains("\n2026-11-18,public,") && csv.out.contains("\n2027-11-17,public,")); // Buß- und Bettag
    QVERIFY(std::is_sorted(lines.cbegin(), lines.cend(),
                           [](const QByteArray &a, const QByteArray &b) { return a.left(10) < b.left(10); }));

    const Call text = run(arguments);
    QCOMPARE(text.exitCode, 0);
    QVERIFY(text.out.contains("Mi. 17.11.2027"));
    QVERIFY(text.outLines().size() < lines.size()); // vacations are one line each
}

void tst_mvcalendar::listFormatsAgree()
{
    for (const auto &[command, key] : {std::pair(u"layouts"_s, u"id"_s),
                                       {u"colors"_s, u"id"_s},
                                       {u"regions"_s, u"country"_s},
                                       {u"themes"_s, u"id"_s},
                                       {u"templates"_s, u"id"_s},
                                       {u"templates --kind back"_s, u"id"_s}}) {
        const QJsonArray array = QJsonDocument::fromJson(run(command + u" --format json"_s).out).array();
        QCOMPARE(QJsonDocument::fromJson(run(command + u" --json"_s).out).array(), array);
        const QList<QByteArray> lines = run(command).outLines();
        QVERIFY(array.size() >= 2);
        QCOMPARE(lines.size(), array.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString line = QString::fromUtf8(lines[i]);
            QVERIFY(!line.startsWith(u' ') && !array[i][u"name"_s].toString().isEmpty());
            QCOMPARE(line.section(u' ', 0, 0), array[i][key].toString());
            QVERIFY2(line.contains(u"  "_s + array[i][u"name"_s].toString()), qPrintable(line));
        }
    }
}

/// Calls that are done without the engine say what those with it say.
void tst_mvcalendar::plainCallsSayTheSame()
{
    const auto tidy = qScopeGuard([this] { forgetUserSchemata(); });
    for (const QString &language : {u"de"_s, u"en"_s}) {
        const QMap<QString, QString> environment{{u"MVCALENDAR_LANGUAGE"_s, language}};
        QList<QByteArray> said;
        for (bool isPlain : {true, false}) {
            if (!isPlain)
                put(m_userFolder.filePath(u"000-user-calendar-layout.xml"_s), "<calendarlayout/>");
            for (const QString &call : {u"layouts"_s, u"layouts --json"_s})
                said.append(run(call, environment).out);
        }
        QCOMPARE(said.mid(0, 2), said.mid(2));
        forgetUserSchemata();
    }
    put(u"wrong.conf"_s, "[nothing]\n");
    const QMap<QString, QString> wrong{{u"MVCALENDAR_CONFIG"_s, u"wrong.conf"_s}};
    const Call plain = run(u"regions"_s, wrong);
    QVERIFY(plain.exitCode == 2 && plain.err.contains("render, batch"));
    QCOMPARE(plain.err, run(u"colors"_s, wrong).err);
}

/// Colours of a project become a schema of the user's, which is offered, hidden, shown, renamed and removed.
void tst_mvcalendar::colors()
{
    const auto tidy = qScopeGuard([this] { forgetUserSchemata(); });
    put(u"k.mvcalendar"_s,
        "<calendarproject version='1'><page month='2027-02'><calendarium layoutschema='DAY_LIST' font=''>"
        "<colorschema><celldefault bgcolor='#ffeedd'/></colorschema></calendarium><content language='de_DE'/></page>"
        "</calendarproject>");
    const auto colors = [this](const QString &arguments) { return run(u"colors "_s + arguments); };
    const QByteArray kept = colors(u"--save Sand --from k.mvcalendar"_s).out;
    QVERIFY2(QRegularExpression(u"^USER_\\d+  Sand\n$"_s).match(QString::fromUtf8(kept)).hasMatch(), kept.constData());
    QCOMPARE(colors(u"--save Staub --from k.mvcalendar"_s).exitCode, 1); // the same again
    const QString id = QString::fromUtf8(kept).section(u' ', 0, 0);
    QVERIFY(run(u"colors"_s).out.contains("Sand"));
    for (const QString &arguments : {u"--hide sand"_s, u"--hide WARM_PAPER"_s, u"--rename %1 --to Dunes"_s.arg(id)})
        QCOMPARE(colors(arguments).exitCode, 0);
    QVERIFY(!run(u"colors"_s).out.contains("Dunes"));
    QCOMPARE(colors(u"--hidden"_s).outLines().size(), 2);
    QCOMPARE(colors(u"--show warm_paper"_s).exitCode, 0);
    QCOMPARE(colors(u"--hidden"_s).out, id.toUtf8() + "  Dunes\n");
    QCOMPARE(colors(u"--remove dunes"_s).exitCode, 0);
    QCOMPARE(colors(u"--save Sand --from k.mvcalendar"_s).exitCode, 0);
    QCOMPARE(colors(u"--reset"_s).exitCode, 0);
    QVERIFY(!run(u"colors"_s).out.contains("USER_"));
}

void tst_mvcalendar::usersSchemataAreNoDefaults()
{
    const auto tidy = qScopeGuard([this] { forgetUserSchemata(); });
    const auto page = [this](const QString &options) {
        const Call call = run(u"render --from 2027-03 --months 1 -o p.svg "_s + options);
        return call.exitCode == 0 ? contentOf(u"p.svg"_s) : call.err;
    };
    const QString shipped = u"--colors Nacht --layout Tagesliste"_s;
    const QByteArray plain = page({});
    const QByteArray named = page(shipped);
    put(m_userFolder.filePath(u"000-user-calendar-schema.xml"_s),
        "<s><calendararea colorschema='USER_1' name='Nacht'><celldefault bgcolor='#ff0000'/></calendararea>"
        "<calendararea colorschema='PAPER_WHITE'><celldefault bgcolor='#00ff00'/></calendararea></s>");
    put(m_userFolder.filePath(u"000-user-calendar-layout.xml"_s),
        "<l><calendararea layoutschema='USER_1' name='Tagesliste' type='CALENDAR_YEAR'/></l>");
    QCOMPARE(page({}), plain);
    QCOMPARE(page(shipped), named);
    QVERIFY(page(u"--colors user_1"_s) != plain);
    const QByteArray warning = run(u"colors"_s).err;
    QVERIFY2(warning.count('\n') == 1 && warning.contains("000-user-calendar-schema.xml:1:"), warning.constData());
}

void tst_mvcalendar::rendersPdf_data()
{
    const MvRows<QString, int, QString, QByteArray> add; // arguments; pages; size: as pdfinfo prints it; language
    const auto row = [&](const char *name, const QString &arguments, int pages, const QString &size,
                         const QByteArray &language = "de-DE") {
        add(name, arguments, pages, size + u" pts"_s, language);
    };
    row("a year on A4", u"--year 2027 --landscape"_s, 12, u"841.89 x 595.276"_s);
    row("thirteen months, upright A3", u"--from 2026-08 --months 13 --page A3 --portrait"_s, 13, u"841.89 x 1190.55"_s);
    row("own size with bleed", u"--months 1 --page 300x200 --bleed 3"_s, 1, u"867.402 x 583.937"_s);
    row("another country and layout", u"--country CH --language fr --layout MONTH_ONLY --colors NIGHT"_s, 12,
        u"841.89 x 595.276"_s, "fr-CH");
}

void tst_mvcalendar::rendersPdf()
{
    const auto [arguments, pages, size, language] = MvRows<QString, int, QString, QByteArray>::current();
    const Call call = run(u"render -o k.pdf "_s + arguments);
    QCOMPARE(call.err, QByteArray());
    QCOMPARE(call.exitCode, 0);
    QCOMPARE(call.out, QByteArray("k.pdf\n"));
    QCOMPARE(files(), QStringList{u"k.pdf"_s});

    const QString info = QString::fromUtf8(outputOf(u"pdfinfo"_s, {path(u"k.pdf"_s)}));
    QVERIFY2(info.contains(QRegularExpression(u"Pages: +%1\n"_s.arg(pages))), qPrintable(info));
    QVERIFY2(info.contains(QRegularExpression(u"Page size: +%1"_s.arg(size))), qPrintable(info));
    const QByteArray plain = outputOf(u"qpdf"_s, {u"--qdf"_s, u"--object-streams=disable"_s, path(u"k.pdf"_s), u"-"_s});
    QVERIFY(plain.contains("/Lang (" + language + ')'));
}

void tst_mvcalendar::entries()
{
    const QString own = m_userFolder.filePath(u"calendarEvents.xml"_s);
    const QByteArray ownContent = entriesFile("Oma Erna", "1950-03-10");
    put(own, ownContent);
    put(u"other.xml"_s, entriesFile("Klaus", "1980-02-03"));

    const QList<QImage> blank = render();
    const QList<QImage> mine = render(u"--my-entries"_s);
    const QList<QImage> others = render(u"--entries other.xml"_s);
    QCOMPARE(blank.size(), 3);
    QVERIFY(mine.size() == 3 && mine[0] == blank[0] && mine[1] == blank[1] && mine[2] != blank[2]);
    QVERIFY(others.size() == 3 && others[0] == blank[0] && others[1] != blank[1] && others[2] == blank[2]);

    QCOMPARE(contentOf(own), ownContent);
    QDirIterator written(m_userFolder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (written.hasNext())
        QCOMPARE(written.next(), own);

    put(u"none.xml"_s, "<CalendarEvents/>");
    const Call call = run(u"render --from 2027-03 --months 1 --dpi 60 --entries none.xml -o p.png"_s);
    QCOMPARE(call.exitCode, 0);
    QVERIFY2(call.err.contains("none.xml: keine Einträge") && call.err.count('\n') == 1, call.err.constData());
    QCOMPARE(QImage(path(u"p.png"_s)), blank.value(2)); // the user's own ones do not step in
    QVERIFY(QFile::remove(own));
}

/// By content, whatever the file is called, and from standard input.
void tst_mvcalendar::entriesOfOtherPrograms()
{
    put(u"e.xml"_s, entriesFile("Klaus", "1980-02-03"));
    const QList<QImage> expected = render(u"--entries e.xml"_s);
    const Call exported = run(u"entries export e.xml --format ics"_s);
    QCOMPARE(exported.exitCode, 0);
    const std::pair<const char *, QByteArray> files[] = {
        {"ics", exported.out},
        {"csv", "Name;Geburtstag\nKlaus;03.02.1980\nA;\n"},
        {"vcf", "BEGIN:VCARD\nVERSION:4.0\nFN:Klaus\nBDAY:19800203\nEND:VCARD\n"}};
    for (const auto &[name, content] : files) {
        put(u"einträge"_s, content);
        const QString page = u"render --from 2027-02 --months 1 --dpi 60 -o p.png --entries "_s;
        for (const QString &place : {u"einträge"_s, u"-"_s}) {
            const Call call = run(page + place, {}, 0, place == u"-" ? content : QByteArray());
            QVERIFY2(call.exitCode == 0, call.err.constData());
            QCOMPARE(QImage(path(u"p.png"_s)), expected.value(1));
            QCOMPARE(call.err.contains(": Zeile 3"), QByteArray(name) == "csv");
        }
        const Call listed = run(u"entries list - --json"_s, {}, 0, content);
        const QJsonObject entry = QJsonDocument::fromJson(listed.out).array().at(0).toObject();
        QCOMPARE(entry.value(u"date"_s).toString(), u"1980-02-03"_s);
        QVERIFY(entry.value(u"end"_s).isNull() && entry.value(u"days"_s).toInt() == 1);
    }
    put(u"k.ics"_s, exported.out);
    QCOMPARE(run(u"new --entries k.ics --from 2027-02 --months 1 --no-cover --no-back -o k.mvcalendar"_s).exitCode, 0);
    QVERIFY(QFile::remove(path(u"k.ics"_s)));
    const QByteArray uid = exported.out.mid(exported.out.indexOf("UID:"), 40);
    const QByteArray own = run(u"entries list k.mvcalendar --format ics"_s).out;
    QVERIFY2(own.contains(uid) && own.contains("SUMMARY:Klaus"), own.constData());
    const QByteArray wedding =
        "BEGIN:VCARD\nFN:Anna\nANNIVERSARY:20100612\nEND:VCARD\n"; // named as the calendar speaks
    const QString french = u"new --entries - --country FR --from 2027-06 --months 1 -o f.mvcalendar"_s;
    QCOMPARE(run(french, {}, 0, wedding).exitCode, 0);
    QVERIFY(run(u"entries list f.mvcalendar"_s).out.contains("Anna (anniversaire de mariage)"));
    const QByteArray days =
        run(u"entries export e.xml --holidays --vacations --region BY --year 2027 --format ics"_s).out;
    QVERIFY(days.contains("SUMMARY:Klaus") && days.contains("DTEND;VALUE=DATE:20270914")); // the day after
    QVERIFY(days.contains("CATEGORIES:Schulferien") && !days.contains("DTSTAMP:\r"));
}

void tst_mvcalendar::entriesAreAddedAndRemoved_data()
{
    const MvRows<QString> row; // into
    row("the user's own", QString());
    row("a list, which is new", u" --into liste.xml"_s);
    row("a calendar", u" --into k/k.mvcalendar"_s);
}

void tst_mvcalendar::entriesAreAddedAndRemoved()
{
    const auto [into] = MvRows<QString>::current();
    QVERIFY(QDir().mkpath(path(u"k"_s)));
    put(u"leer.csv"_s, "Name;Datum\n");
    QCOMPARE(run(u"new --entries leer.csv --from 2027-02 --months 1 --no-cover --no-back -o k/k.mvcalendar"_s).exitCode,
             0);
    QVERIFY(MvTestFiles::writeFoto(path(u"rot.png"_s), {40, 30}, Qt::red));
    const auto json = [&, into = into] {
        return QJsonDocument::fromJson(run(u"entries list --json "_s + into.section(u' ', 2)).out).array();
    };
    const Call noList = run(u"entries add Oma 17.05.1941 --into leer.csv"_s);
    QVERIFY(noList.exitCode == 1 && noList.err.contains("leer.csv") && contentOf(u"leer.csv"_s).startsWith("Name"));
    const Call added = run(u"entries add Oma 17.05.1941 --group Familie --group=Nachbarn --photo rot.png"_s + into);
    QVERIFY2(added.exitCode == 0, added.err.constData());
    const Call again = run(u"entries add Oma 17.5.1941 --group Familie --group=Nachbarn"_s + into);
    QCOMPARE(again.out, added.out);
    QVERIFY(again.err.contains("„Oma“"));
    for (const QString &more :
         {u"Oma 18.05.1943"_s, u"Kurs 07.01.2027 --repeat FREQ=WEEKLY;INTERVAL=2 --until 1.4.2027"_s,
          u"Reise 24.07.2027 --end 07.08.2027 --time 9:30 --repeat einmal"_s, u"Schalttag 29.2."_s})
        QCOMPARE(run(u"entries add "_s + more + into).exitCode, 0);
    QJsonArray entries = json();
    QCOMPARE(entries.size(), 5);
    const auto value = [&entries](int entry, const QString &name) { return entries.at(entry).toObject().value(name); };
    QCOMPARE(value(0, u"groups"_s).toArray(), (QJsonArray{u"Familie"_s, u"Nachbarn"_s}));
    QCOMPARE(QImage(value(0, u"photo"_s).toString()).pixelColor(3, 3), QColor(Qt::red));
    QVERIFY(value(0, u"photo"_s).toString() != path(u"rot.png"_s));
    QCOMPARE(value(2, u"rule"_s).toString(), u"FREQ=WEEKLY;INTERVAL=2;UNTIL=20270401"_s);
    QVERIFY(value(3, u"days"_s).toInt() == 15 && !value(3, u"yearly"_s).toBool());
    QCOMPARE(value(4, u"leapDay"_s).toString(), u"february28"_s);

    const Call unclear = run(u"entries remove oma"_s + into);
    QVERIFY(unclear.exitCode == 2 && unclear.err.contains("17.05.1941") && unclear.err.contains("--all"));
    QVERIFY(unclear.err.contains(added.out.trimmed()));
    QCOMPARE(json().size(), 5);
    QCOMPARE(run(u"entries remove Oma 17.05."_s + into).exitCode, 0);
    QCOMPARE(run(u"entries remove "_s + value(2, u"uuid"_s).toString() + into).exitCode, 0);
    entries = json();
    QCOMPARE(entries.size(), 3);
    QCOMPARE(value(0, u"date"_s).toString(), u"1943-05-18"_s);
    QFile::remove(m_userFolder.filePath(u"calendarEvents.xml"_s));
}

void tst_mvcalendar::damagedEntries()
{
    for (const auto &[content, place] : {std::pair(entriesFile("Klaus", "1980-02-03").left(120), u"bad.xml:5:"_s),
                                         {QByteArray(), u"bad.xml: Die Datei ist leer"_s},
                                         {QByteArray("a;b\n1;2\n"), u"bad.xml: Die Tabelle hat keine Spalte"_s},
                                         {QByteArray("<html/>"), u"bad.xml: Das ist keine Liste"_s}}) {
        put(u"bad.xml"_s, content);
        const Call call = run(u"render --entries bad.xml -o k.pdf"_s);
        QCOMPARE(call.exitCode, 1);
        QCOMPARE(call.err.count('\n'), 1);
        QVERIFY2(QString::fromUtf8(call.err).contains(place), call.err.constData());
        QCOMPARE(files(), QStringList{u"bad.xml"_s});

        const QString own = m_userFolder.filePath(u"calendarEvents.xml"_s);
        put(own, content);
        put(own + u'~', entriesFile("Klaus", "1980-02-03"));
        const Call mine = run(u"render --my-entries -o k.pdf"_s);
        QCOMPARE(mine.exitCode, 1);
        const QString lastLine = QString::fromUtf8(mine.err.trimmed().split('\n').last());
        QVERIFY2(lastLine.contains(own) && lastLine.contains(own + u'~'), qPrintable(lastLine));
        QCOMPARE(files(), QStringList{u"bad.xml"_s});
        QVERIFY(QFile::remove(own) && QFile::remove(own + u'~'));
    }
}

void tst_mvcalendar::skippedEntries()
{
    const QString own = m_userFolder.filePath(u"calendarEvents.xml"_s);
    QByteArray content = entriesFile("Klaus", "1980-02-03");
    const QByteArray second = entriesFile("Erna", "1900-02-29");
    content.replace("</DateTime>", "</DateTime><Image>/etc/hostname</Image>"); // a photo that is not opened
    content.replace("</CalendarEvents>", second.mid(second.indexOf("  <CalendarEvent>")));
    for (const auto &[file, option] : {std::pair(path(u"e.xml"_s), u"--entries e.xml"_s), {own, u"--my-entries"_s}}) {
        put(file, content);
        const QString arguments = u"render --months 1 -o k.pdf "_s + option;
        const Call call = run(arguments);
        QCOMPARE(call.exitCode, 0);
        const QString err = QString::fromUtf8(call.err);
        QVERIFY2(err.contains(QFileInfo(file).fileName()) &&
                     err.contains(u"Zeile 9, „Erna“: das Datum „1900-02-29T00:00:00“"_s),
                 qPrintable(err));
        QCOMPARE(err.count(u"/etc/hostname"_s), 1); // however often the file was read
        QCOMPARE(call.err.count('\n'), 2);
        const Call report = run(arguments + u" --report json"_s);
        const QJsonArray skipped = QJsonDocument::fromJson(report.out)[u"skippedEntries"_s].toArray();
        QCOMPARE(skipped.size(), 1);
        QCOMPARE(skipped.first()[u"line"_s].toInt(), 9);
    }
    QVERIFY(QFile::remove(own));
}

void tst_mvcalendar::hints()
{
    const auto [arguments, hint] = MvRows<QString, QString>::current();
    put(u"e.xml"_s, entriesFile("Gudrun", "1956-02-29"));
    QString range = arguments.contains(u"--from"_s) ? u"--months 1"_s : u"--months 1 --from 2027-03"_s;
    if (arguments.contains(u"--year"_s))
        range.clear();
    const Call call = run(u"render -o k.pdf %1 %2"_s.arg(arguments, range));
    QCOMPARE(call.exitCode, 0);
    const QRegularExpression expected(hint.isEmpty() ? u"^$"_s : u"^mvcalendar: k\\.pdf: %1\n$"_s.arg(hint));
    QVERIFY2(expected.match(QString::fromUtf8(call.err)).hasMatch(), call.err.constData());
}

void tst_mvcalendar::reportsCoarseFotos()
{
    QVERIFY(QImage(900, 700, QImage::Format_RGB32).save(path(u"grob.png"_s)));
    put(u"k.mvcalendar"_s,
        "<calendarproject version='1'><paper width='1480' height='2100' bleed='0'/><page month='2027-02'>"
        "<calendarium layoutschema='MONTH_GRID_CLASSIC' colorschema='NIGHT'/><content language='de_DE'/>"
        "<photo path='grob.png' placement='top' share='0.5'/></page></calendarproject>");
    const QString arguments = u"render --project k.mvcalendar -o k.pdf"_s;
    const QString err = QString::fromUtf8(run(arguments).err); // 148 mm are 5.83 inches: 154 pixels each
    QVERIFY2(err.startsWith(u"mvcalendar: k.mvcalendar: 1 Foto "_s) && err.count(u'\n') == 1, qPrintable(err));
    const QJsonDocument report = QJsonDocument::fromJson(run(arguments + u" --report json"_s).out);
    const QJsonObject foto = report[u"photos"_s][0].toObject();
    QCOMPARE(foto.value(u"ppi"_s).toInt(), 154);
    QCOMPARE(foto.value(u"quality"_s).toString(), u"modest"_s);
    QCOMPARE(foto.value(u"path"_s).toString(), path(u"grob.png"_s));
    QVERIFY(foto.value(u"page"_s).toInt() == 1 && foto.value(u"date"_s).isNull());
    QVERIFY(QImage(800, 700, QImage::Format_RGB32).save(path(u"grob.png"_s)));
    const QString poor = QString::fromUtf8(run(arguments).err);
    QVERIFY2(poor.contains(u"nur 137 Pixel je Zoll"_s) && poor.contains(u"grob.png"_s), qPrintable(poor));
}

void tst_mvcalendar::reportsTextsWithoutRoom()
{
    const QByteArray text = QByteArray("Donaudampfschifffahrtsgesellschaftsjubiläum ").repeated(12).trimmed();
    put(u"e.xml"_s, entriesFile(text, "1956-03-10"));
    const QString arguments = u"render --from 2027-02 --months 2 --page A5 --entries e.xml -o k.pdf"_s;
    const Call silent = run(arguments);
    QVERIFY2(silent.err.contains("10.3.2027"), silent.err.constData());
    QCOMPARE(silent.out, QByteArray("k.pdf\n"));

    const Call call = run(arguments + u" --report json"_s);
    QCOMPARE(call.exitCode, 0);
    const QJsonObject report = QJsonDocument::fromJson(call.out).object();
    QCOMPARE(report.value(u"files"_s).toArray(), QJsonArray{u"k.pdf"_s});
    const QJsonArray unfitting = report.value(u"unfitting"_s).toArray();
    QCOMPARE(unfitting.size(), 1);
    const QJsonObject entry = unfitting.first().toObject();
    QCOMPARE(entry.value(u"page"_s).toInt(), 2);
    QCOMPARE(entry.value(u"date"_s).toString(), u"2027-03-10"_s);
    QCOMPARE(entry.value(u"text"_s).toString(), QString::fromUtf8(text));
    QVERIFY(entry.value(u"rect"_s).toObject().value(u"width"_s).toDouble() > 100.0);
    QCOMPARE(run(arguments + u" --report xml"_s).exitCode, 2);

    if (!outputOf(u"fc-list"_s, {u":lang=ml"_s}).isEmpty())
        return;
    put(u"e.xml"_s, entriesFile("\u0d05\u0d2e\u0d4d\u0d2e", "1956-03-10")); // in a script without a font
    const QByteArray err = run(arguments).err;
    QVERIFY2(err.contains("\u0d05\u0d2e") && err.count('\n') == 1, err.constData());
}

void tst_mvcalendar::project()
{
    put(u"k.mvcalendar"_s,
        "<calendarproject version='1' title='Familie'><paper width='1480' height='2100' bleed='30'/>"
        "<page month='2027-02'><calendarium layoutschema='DAY_LIST' colorschema='NIGHT'/>"
        "<content language='de_DE' features='holidays'/><photo path='fehlt.jpg' placement='top'/></page>"
        "<page month='2027-03'><calendarium layoutschema='USER_9' colorschema='NIGHT'/>"
        "<content language='de_DE' features='holidays'/></page></calendarproject>");
    const Call call = run(u"render --project k.mvcalendar --dpi 60 -o s-%m.png"_s);
    QCOMPARE(call.exitCode, 0);
    QCOMPARE(call.out, QByteArray("s-02.png\ns-03.png\n"));
    QVERIFY2(call.err.contains("USER_9") && call.err.contains("fehlt.jpg"), call.err.constData());
    QCOMPARE(QImage(path(u"s-02.png"_s)).size(), QSize(350, 496)); // 148 x 210 mm
    const Call report = run(u"render --project k.mvcalendar --report json -o k.pdf"_s);
    const QJsonArray missing = QJsonDocument::fromJson(report.out).object().value(u"missingPhotos"_s).toArray();
    QCOMPARE(missing, QJsonArray{path(u"fehlt.jpg"_s)});

    put(u"e.xml"_s, entriesFile("Gudrun", "1956-03-10"));
    const Call entries = run(u"render --project k.mvcalendar --entries e.xml --dpi 60 -o e-%m.png"_s);
    QCOMPARE(entries.exitCode, 0);
    QCOMPARE(QImage(path(u"e-02.png"_s)), QImage(path(u"s-02.png"_s)));
    QVERIFY(QImage(path(u"e-03.png"_s)) != QImage(path(u"s-03.png"_s)));
}

void tst_mvcalendar::brokenOutput()
{
    QProcess process;
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QStringLiteral(MV_PROGRAM), {u"layouts"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardError().count('\n'), 1);
}

/// A file that is larger than the memory left is an error as any other.
void tst_mvcalendar::littleMemory()
{
#ifdef __SANITIZE_ADDRESS__
    QSKIP("the sanitizer wants terabytes of addresses");
#endif
    const QString page = u"render --year 2027 --months 1 -o p.pdf"_s;
    // else it depends on what threads begin when
    const QMap<QString, QString> oneArena{{u"MALLOC_ARENA_MAX"_s, u"1"_s}};
    rlim_t enough = 64;
    while (enough < 4096 && run(page, oneArena, enough).exitCode != 0)
        enough += 16;
    put(u"large.xml"_s, entriesFile("Eva", "1990-01-14") + "<!--" + QByteArray(60 << 20, ' ') + "-->");
    QVERIFY(QFile::remove(path(u"p.pdf"_s)));
    const Call call = run(page + u" --entries large.xml"_s, oneArena, enough + 16);
    QCOMPARE(call.exitCode, 1);
    QVERIFY2(call.err.contains("large.xml: Der Arbeitsspeicher reicht"), call.err.constData());
    QVERIFY(!files().contains(u"p.pdf"_s));
}

void tst_mvcalendar::language_data()
{
    const MvRows<QMap<QString, QString>, bool> row; // environment, isEnglish
    using Environment = QMap<QString, QString>;
    row("American", Environment{{u"LC_ALL"_s, u"en_US.UTF-8"_s}}, true);
    row("messages only", Environment{{u"LC_ALL"_s, {}}, {u"LC_MESSAGES"_s, u"en_GB.UTF-8"_s}}, true);
    row("French", Environment{{u"LC_ALL"_s, u"fr_FR.UTF-8"_s}}, false);
    row("Austrian", Environment{{u"LC_ALL"_s, u"de_AT.UTF-8"_s}}, false);
    row("C", Environment{{u"LC_ALL"_s, u"C.UTF-8"_s}, {u"LANGUAGE"_s, u"de"_s}}, true);
    row("POSIX", Environment{{u"LC_ALL"_s, {}}, {u"LC_MESSAGES"_s, {}}, {u"LANG"_s, u"POSIX"_s}}, true);
    row("none", Environment{{u"LC_ALL"_s, {}}, {u"LC_MESSAGES"_s, {}}, {u"LANG"_s, {}}}, true);
    row("the program's own variable", Environment{{u"LC_ALL"_s, u"C"_s}, {u"MVCALENDAR_LANGUAGE"_s, u"de"_s}}, false);
}

void tst_mvcalendar::language()
{
    auto [environment, isEnglish] = MvRows<QMap<QString, QString>, bool>::current();
    if (const QString variable = u"MVCALENDAR_LANGUAGE"_s; !environment.contains(variable))
        environment.insert(variable, {}); // those who call the test have it set
    const Call help = run(u"help render"_s, environment);
    QCOMPARE(help.out.contains("Options:"), isEnglish);
    QCOMPARE(help.out.contains("Optionen:"), !isEnglish);
    QCOMPARE(run(u"rendr"_s, environment).err.contains("did you mean"), isEnglish);
    const Call holidays = run(u"holidays --year 2027"_s, environment);
    QVERIFY2(holidays.out.startsWith(isEnglish ? "Fri 1 Jan 2027 " : "Fr. 01.01.2027 "), holidays.out.constData());
    QCOMPARE(run(u"render --from 2026-08 --months 3 --country GB -o k.pdf"_s, environment).exitCode, 0);
    const QByteArray info = outputOf(u"pdfinfo"_s, {path(u"k.pdf"_s)});
    QVERIFY2(info.contains(" Calendar August 2026 to October 2026\n"), info.constData());
}

/// The language of the program is no business of the calendar's: not on its pages, and not in what files say of it.
void tst_mvcalendar::printsTheSameInEveryLanguage()
{
    for (const QString &layout : {u"DAY_LIST"_s, u"HOLIDAY_BLOCK"_s, u"SCHOOL_YEAR_GRID"_s, u"WEEK_COLUMNS"_s}) {
        QByteArray pages;
        for (const QString &language : {u"de"_s, u"en"_s}) {
            const Call call = run(u"render --from 2027-02 --months 3 --vacations --dpi 20 -o %n.svg -o %n.png -o k.pdf "
                                  "-o k.html --country Deutschland --layout "_s +
                                      layout,
                                  {{u"MVCALENDAR_LANGUAGE"_s, language}, {u"SOURCE_DATE_EPOCH"_s, u"1"_s}});
            QCOMPARE(call.exitCode, 0);
            QByteArray drawn;
            for (const QByteArray &file : call.outLines())
                drawn += contentOf(path(QString::fromUtf8(file)));
            QVERIFY(!drawn.isEmpty());
            QCOMPARE(pages.isEmpty() ? drawn : pages, drawn);
            pages = drawn;
        }
    }
}

// a computer with a Lato of its own that is none, and no other font: what is shipped comes first
void tst_mvcalendar::printsTheSameWithOtherFonts()
{
    put(u"fonts.conf"_s, "<fontconfig><dir>" MV_TEST_DATA "</dir><cachedir>cache</cachedir><match target='scan'>"
                         "<edit name='family' mode='assign'><string>Lato</string></edit></match></fontconfig>");
    for (const QString &layout : {u"MONTH_GRID_CLASSIC"_s, u"MONTH_GRID_SERIF"_s, u"MONTH_ONLY_SERIF"_s}) {
        QByteArrayList pages;
        for (const QMap<QString, QString> &fonts :
             {{}, QMap<QString, QString>{{u"FONTCONFIG_FILE"_s, path(u"fonts.conf"_s)}}}) {
            const Call call = run(u"render --from 2027-03 --months 1 -o p.svg --layout "_s + layout, fonts);
            QCOMPARE(call.err, "");
            pages.append(contentOf(u"p.svg"_s));
        }
        QVERIFY2(pages.first() == pages.last(), qPrintable(layout));
    }
}

MV_TEST_MAIN(tst_mvcalendar)
#include "tst_mvcalendar.moc"
