// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProgramTest.h"

#include <QImage>

using namespace Qt::StringLiterals;

/// The program makes photo calendars, checks and packs them.
class tst_FotoCalendars : public MvProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void fotoCalendar();
    void chosenPages();
    void validate();
    void pack();
    void ownEntries();

private:
    /// Photos in a folder "fotos" with one below, beside what is none.
    void writeFotos() const;
    QList<QImage> renderProject(const QString &project, const QMap<QString, QString> &environment = {}) const;
};

void tst_FotoCalendars::writeFotos() const
{
    QVERIFY(QDir(m_folder->path()).mkpath(u"fotos/mehr"_s));
    int hue = 20;
    for (const QString &name : {u"fotos/a.jpg"_s, u"fotos/b.png"_s, u"fotos/mehr/a.jpg"_s, u"fotos/übrig.png"_s}) {
        QImage image(300 + hue, 240, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(hue, 200, 200));
        for (int y = 0; y < 120; ++y)
            image.setPixelColor(10 + y, y, Qt::white);
        QVERIFY(image.save(path(name)));
        hue += 80;
    }
    put(u"fotos/liesmich.txt"_s, "no photo");
    put(u"fotos/kaputt.jpg"_s, contentOf(u"fotos/a.jpg"_s).left(200));
}

QList<QImage> tst_FotoCalendars::renderProject(const QString &project, const QMap<QString, QString> &environment) const
{
    const Call call = run(u"render --dpi 40 -o r-%n.png --project "_s + project, environment);
    QList<QImage> pages;
    for (const QByteArray &line : call.outLines())
        pages.append(QImage(path(QString::fromUtf8(line))));
    return pages;
}

/// From a folder to a project and to pages, in two steps or in one.
void tst_FotoCalendars::fotoCalendar()
{
    writeFotos();
    const QString options = u" --photos fotos --theme papier --from 2027-01 --months 2 --title Huber"_s;
    const Call made = run(u"new -o k.mvcalendar"_s + options);
    QCOMPARE(made.out, "k.mvcalendar\n");
    QVERIFY2(made.exitCode == 0 && made.err.contains("kaputt.jpg"), made.err.constData());
    const Call pages = run(u"render --project k.mvcalendar --dpi 40 -o p-%m.png --report json"_s);
    const QJsonObject report = QJsonDocument::fromJson(pages.out).object();
    QCOMPARE(report.value(u"files"_s).toArray(),
             (QJsonArray{u"p-cover.png"_s, u"p-01.png"_s, u"p-02.png"_s, u"p-back.png"_s}));
    QVERIFY(report.value(u"photos"_s).toArray().size() >= 3);
    for (const auto &foto : report.value(u"photos"_s).toArray())
        QVERIFY(foto[u"element"_s].toInt() > 0 && foto[u"ppi"_s].toInt() > 0);

    const Call atOnce = run(u"render --dpi 40 -o d-%m.png"_s + options, {{u"MVCALENDAR_LANGUAGE"_s, u"en"_s}});
    QCOMPARE(atOnce.outLines().size(), 4);
    QSet<QByteArray> looks;
    for (const QString &name : {u"cover"_s, u"01"_s, u"02"_s, u"back"_s}) {
        const QImage page(path(u"p-%1.png"_s.arg(name)));
        QVERIFY(!page.isNull());
        QCOMPARE(page, QImage(path(u"d-%1.png"_s.arg(name))));
        looks.insert(QByteArray(reinterpret_cast<const char *>(page.constBits()), page.sizeInBytes()));
    }
    QCOMPARE(looks.size(), 4);
    QCOMPARE(run(u"render --no-cover --no-back -o m-%m.png --dpi 40"_s + options).outLines().size(), 2);
    QVERIFY(run(u"render --photos fotos/liesmich.txt -o n.pdf"_s).err.contains("keine Fotos"));
    QVERIFY(!files().contains(u"n.pdf"_s));
}

void tst_FotoCalendars::chosenPages()
{
    const QString render = u"render --theme PAPER --from 2027-03 --months 3 --dpi 40 -o s-%m-%n.png --pages "_s;
    for (const auto &[list, names] : {std::pair(u"cover"_s, "s-cover-01.png\n"),
                                      {u"back,2-3"_s, "s-03-02.png\ns-04-03.png\ns-back-05.png\n"},
                                      {u"months,3"_s, "s-03-02.png\ns-04-03.png\ns-05-04.png\n"}})
        QCOMPARE(run(render + list).out, QByteArray(names));
}

/// What is found has its page and an exit code of its own.
void tst_FotoCalendars::validate()
{
    const QByteArray paper = "<calendarproject version='1'><paper width='1480' height='2100'/><page month='2027-02'>"
                             "<calendarium layoutschema='DAY_LIST' colorschema='NIGHT'/><content language='de_DE'/>";
    put(u"gut.mvcalendar"_s, paper + "</page></calendarproject>");
    const Call good = run(u"validate gut.mvcalendar --json"_s);
    QCOMPARE(good.exitCode, 0);
    QCOMPARE(QJsonDocument::fromJson(good.out).array(), QJsonArray());

    writeFotos();
    put(u"grob.mvcalendar"_s, paper + "<photo path='fotos/a.jpg' placement='top'/></page></calendarproject>");
    const Call coarse = run(u"validate --project grob.mvcalendar --json"_s);
    QCOMPARE(coarse.exitCode, 3);
    const QJsonObject finding = QJsonDocument::fromJson(coarse.out)[0].toObject();
    QCOMPARE(finding[u"kind"_s].toString(), u"coarse-photo"_s);
    QCOMPARE(finding[u"severity"_s].toString(), u"strong"_s);
    QCOMPARE(finding[u"page"_s].toInt(), 1);
    QVERIFY(finding[u"ppi"_s].toInt() > 30 && finding[u"ppi"_s].toInt() < 100); // 320 pixels on 10 to 15 cm
    const QByteArray whole = contentOf(u"fotos/a.jpg"_s);
    put(u"fotos/a.jpg"_s, whole.left(whole.size() / 2)); // its head says nothing of that
    const Call cut = run(u"render --project grob.mvcalendar --dpi 40 -o g.png --report json"_s);
    QCOMPARE(QJsonDocument::fromJson(cut.out)[u"missingPhotos"_s].toArray(), QJsonArray{path(u"fotos/a.jpg"_s)});
    const QByteArray hints = run(u"render --project grob.mvcalendar --dpi 40 -o g.png"_s).err;
    QVERIFY2(hints.contains("a.jpg") && hints.contains("nicht vollständig"), hints.constData());
    QVERIFY(QFile::remove(path(u"fotos/a.jpg"_s)));
    const Call missing = run(u"validate grob.mvcalendar"_s);
    QCOMPARE(missing.exitCode, 3);
    QVERIFY2(missing.out.startsWith("! ") && missing.out.contains("a.jpg"), missing.out.constData());
}

/// What is packed is the same calendar where nothing of this computer is.
void tst_FotoCalendars::pack()
{
    writeFotos();
    put(u"e.xml"_s, entriesFile("Gudrun", "1956-01-10").replace("<UUID>", "<Image>fotos/b.png</Image><UUID>"));
    QCOMPARE(run(u"new --photos fotos --from 2027-01 --months 2 --no-cover --no-back --entries e.xml -o k.mvcalendar"_s)
                 .exitCode,
             0);
    const QList<QImage> pages = renderProject(u"k.mvcalendar"_s);
    QCOMPARE(pages.size(), 2);
    for (const QString &target : {u"weg"_s, u"weg.zip"_s}) {
        const Call packed = run(u"pack k.mvcalendar -o "_s + target);
        QVERIFY2(packed.exitCode == 0 && packed.err.isEmpty(), packed.err.constData());
    }
    const Call again = run(u"pack k.mvcalendar -o weg"_s);
    QVERIFY2(again.exitCode == 1 && again.err.contains("nicht leer"), again.err.constData());
    QProcess::execute(u"python3"_s, {u"-m"_s, u"zipfile"_s, u"-e"_s, path(u"weg.zip"_s), path(u"ausgepackt"_s)});

    QVERIFY(QDir(path(u"fotos"_s)).removeRecursively() && QFile::remove(path(u"e.xml"_s)));
    const QMap<QString, QString> elsewhere{{u"HOME"_s, path(u"heim"_s)}, {u"MVCALENDAR_DATA"_s, path(u"heim/daten"_s)}};
    for (const QString &folder : {u"weg/"_s, u"ausgepackt/k/"_s}) {
        const QByteArray project = contentOf(path(folder + u"k.mvcalendar"_s));
        QVERIFY(!project.isEmpty() && !project.contains(m_folder->path().toUtf8()));
        QCOMPARE(QDir(path(folder + u"fotos"_s)).entryList(QDir::Files).size(), 2); // what the pages show
        QCOMPARE(QDir(path(folder + u"eintraege"_s)).entryList(QDir::Files), QStringList{u"b.png"_s});
        QCOMPARE(renderProject(folder + u"k.mvcalendar"_s, elsewhere), pages);
    }
}

/// The same pages wherever the calendar goes, whoever prints it, and with what has become of the user's entries since.
void tst_FotoCalendars::ownEntries()
{
    writeFotos();
    const QByteArray gudrun = entriesFile("Gudrun", "1956-01-10");
    QVERIFY(QDir(m_folder->path()).mkpath(u"daten/calendarEventFotos"_s) && QDir(m_folder->path()).mkpath(u"k"_s));
    QVERIFY(QFile::copy(path(u"fotos/b.png"_s), path(u"daten/calendarEventFotos/g.png"_s)));
    put(u"daten/calendarEvents.xml"_s, QByteArray(gudrun).replace("<UUID>", "<Image>g.png</Image><UUID>"));
    const QMap<QString, QString> user{{u"MVCALENDAR_DATA"_s, path(u"daten"_s)}};
    const Call made =
        run(u"new --photos fotos/a.jpg --from 2027-01 --months 1 --no-cover --no-back --my-entries -o k/k.mvcalendar"_s,
            user);
    QVERIFY2(made.exitCode == 0 && made.err.isEmpty(), made.err.constData());
    const QList<QImage> pages = renderProject(u"k/k.mvcalendar"_s, user);
    QVERIFY(pages.size() == 1 && QDir(path(u"daten/calendarEventFotos"_s)).removeRecursively());
    put(u"daten/calendarEvents.xml"_s, entriesFile("Jemand anders", "1970-01-20"));
    QVERIFY(QDir().rename(path(u"k"_s), path(u"weg"_s)));
    QCOMPARE(renderProject(u"weg/k.mvcalendar"_s, user), pages);
    put(u"e.xml"_s, gudrun); // without her photo
    for (const QString &option : {u"--my-entries"_s, u"--entries e.xml"_s}) {
        QCOMPARE(run(u"render --dpi 40 -o w.png --project weg/k.mvcalendar "_s + option, user).exitCode, 0);
        QVERIFY(QImage(path(u"w.png"_s)) != pages.first());
    }
    QVERIFY(QDir(path(u"weg/eintraege"_s)).removeRecursively());
    const Call missing = run(u"validate weg/k.mvcalendar --json"_s, user);
    const QJsonArray found = QJsonDocument::fromJson(missing.out).array();
    QVERIFY2(missing.exitCode == 3 && !found.isEmpty(), missing.out.constData());
    QCOMPARE(found[0][u"kind"_s].toString(), u"missing-photo"_s);
    QCOMPARE(found[0][u"date"_s].toString(), u"2027-01-10"_s);
}

MV_TEST_MAIN(tst_FotoCalendars)
#include "tst_FotoCalendars.moc"
