#include "MvCore/MvVCardAddressBook.h"
#include "MvCore/MvVCardReader.h"
#include "MvTest.h"

using namespace Qt::StringLiterals;

/// Cards as different programs write them.
class tst_MvVCardReader : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void dates_data();
    void dates();
    void names_data();
    void names();
    void pictures();
    void identity();
    void anniversaries();
    void damagedFiles();
    void addressBook();
};

namespace {

QByteArray card(const QByteArray &lines, const QByteArray &version = "3.0")
{
    return "BEGIN:VCARD\r\nVERSION:" + version + "\r\n" + lines + "\r\nEND:VCARD\r\n";
}

} // namespace

void tst_MvVCardReader::dates_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QDate>("date");
    QTest::newRow("with dashes") << QByteArray("BDAY:1990-05-17") << QDate(1990, 5, 17);
    QTest::newRow("compact") << QByteArray("BDAY:19900517") << QDate(1990, 5, 17);
    QTest::newRow("typed") << QByteArray("BDAY;VALUE=date:1990-05-17") << QDate(1990, 5, 17);
    QTest::newRow("date and time") << QByteArray("BDAY:1990-05-17T23:00:00Z") << QDate(1990, 5, 17);
    QTest::newRow("compact with time") << QByteArray("BDAY:19900517T000000") << QDate(1990, 5, 17);
    QTest::newRow("no year") << QByteArray("BDAY:--0214") << QDate(1604, 2, 14);
    QTest::newRow("no year, dashes") << QByteArray("BDAY:--02-14") << QDate(1604, 2, 14);
    QTest::newRow("leap day without a year") << QByteArray("BDAY:--0229") << QDate(1604, 2, 29);
    QTest::newRow("year to be left out") << QByteArray("BDAY;X-APPLE-OMIT-YEAR=1604:1604-06-20") << QDate(1604, 6, 20);
    QTest::newRow("another year to be left out")
        << QByteArray("BDAY;X-APPLE-OMIT-YEAR=1904:1904-06-20") << QDate(1604, 6, 20);
    QTest::newRow("a real birthday in that year") << QByteArray("BDAY:1904-06-20") << QDate(1904, 6, 20);
    QTest::newRow("grouped, small letters") << QByteArray("item1.bday:1990-05-17") << QDate(1990, 5, 17);
    QTest::newRow("German") << QByteArray("BDAY:17.05.1990") << QDate(1990, 5, 17);
    QTest::newRow("empty") << QByteArray("BDAY:") << QDate();
    QTest::newRow("no day") << QByteArray("BDAY:1990-05") << QDate();
    QTest::newRow("no such day") << QByteArray("BDAY:1990-02-30") << QDate();
    QTest::newRow("a text") << QByteArray("BDAY;VALUE=text:around 1800") << QDate();
}

void tst_MvVCardReader::dates()
{
    QFETCH(QByteArray, line);
    QFETCH(QDate, date);
    const MvVCardReader::Content content = MvVCardReader::read(card("FN:Erika\r\n" + line));
    QCOMPARE(content.error, QString());
    QCOMPARE(content.cardCount, 1);
    QCOMPARE(content.persons.size(), date.isValid() ? 1 : 0);
    if (date.isValid())
        QCOMPARE(content.persons.first().birthday(), date);
}

void tst_MvVCardReader::names_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    const QByteArray day = "\r\nBDAY:19900517";
    QTest::newRow("utf-8") << card("FN:Jörg Müßig" + day) << u"Jörg Müßig"_s;
    QTest::newRow("Latin 1, unannounced") << card("FN:J\xf6rg M\xfc\xdfig" + day) << u"Jörg Müßig"_s;
    QTest::newRow("announced") << card("FN;CHARSET=ISO-8859-1:J\xf6rg" + day, "2.1") << u"Jörg"_s;
    QTest::newRow("quoted-printable with a soft break")
        << card("FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:J=C3=B6rg =\r\nM=C3=BC=C3=9Fig" + day, "2.1")
        << u"Jörg Müßig"_s;
    QTest::newRow("bare parameter of 2.1") << card("FN;QUOTED-PRINTABLE:J=F6rg" + day, "2.1") << u"Jörg"_s;
    QTest::newRow("folded within a word") << card("FN:Maxi\r\n milian" + day) << u"Maximilian"_s;
    QTest::newRow("folded within a letter") << card("FN:J\xc3\r\n \xb6rg" + day, "4.0") << u"Jörg"_s;
    QTest::newRow("folded at a blank") << card("FN:Anna\r\n Maria" + day, "2.1") << u"Anna Maria"_s;
    QTest::newRow("escapes") << card("FN:Meier\\, Anna\\; Dr." + day) << u"Meier, Anna; Dr."_s;
    QTest::newRow("name in parts") << card("N:Meier;Anna;Maria;Dr.;" + day) << u"Anna Maria Meier"_s;
    QTest::newRow("an organisation") << card("FN:\r\nN:;;;;\r\nORG:Verein" + day) << u"Verein"_s;
    QTest::newRow("colon in a quoted parameter") << card("FN;LABEL=\"a:b;c\":Anna" + day) << u"Anna"_s;
    QTest::newRow("line feeds alone") << QByteArray(card("FN:Anna" + day)).replace("\r\n", "\n") << u"Anna"_s;
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf" + card("FN:Anna" + day)) << u"Anna"_s;
    QTest::newRow("a card in the card") << card("FN:Anna\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:Bert\r\nEND:VCARD" + day, "2.1")
                                        << u"Anna"_s;
}

void tst_MvVCardReader::names()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const MvVCardReader::Content content = MvVCardReader::read(bytes);
    QCOMPARE(content.persons.size(), 1);
    QCOMPARE(content.persons.first().name(), name);
}

void tst_MvVCardReader::pictures()
{
    QImage picture(6, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(picture.save(&buffer, "PNG"));
    const QByteArray code = png.toBase64();
    const QByteArray folded = code.left(40) + "\r\n " + code.mid(40);
    const QByteArray unindented = code.left(40) + "\r\n" + code.mid(40) + "\r\n";
    const QByteArray rest = "\r\nFN:Anna\r\nBDAY:19900517";
    for (const QByteArray &bytes :
         {card("PHOTO;ENCODING=b;TYPE=PNG:" + folded + rest), card("PHOTO;PNG;BASE64:" + unindented + rest, "2.1"),
          card("PHOTO:data:image/png;base64," + folded + rest, "4.0")}) {
        const MvVCardReader::Content content = MvVCardReader::read(bytes);
        QCOMPARE(content.persons.size(), 1);
        QCOMPARE(content.persons.first().image().size(), picture.size());
    }
    const auto elsewhere = MvVCardReader::read(card("PHOTO;VALUE=uri:file:///etc/hostname" + rest));
    QVERIFY(elsewhere.persons.first().image().isNull());
}

void tst_MvVCardReader::identity()
{
    const QByteArray anna = card("FN:Anna\r\nBDAY:19900517\r\nUID:urn:uuid:4fbe8971-0bc3-424c-9c26-36c3e1eff6b1");
    QCOMPARE(MvVCardReader::read(anna).persons.first().uuid(), QUuid(u"4fbe8971-0bc3-424c-9c26-36c3e1eff6b1"_s));
    const QByteArray others = card("FN:Bert\r\nBDAY:19900517") + card("FN:Carl\r\nBDAY:--0517\r\nUID:42@example.org");
    const MvSimplePersonList once = MvVCardReader::read(others + others).persons;
    QCOMPARE(once.size(), 2);
    QVERIFY(!once.at(0).uuid().isNull());
    QVERIFY(once.at(0).uuid() != once.at(1).uuid());
    QCOMPARE(MvVCardReader::read(others).persons.at(1).uuid(), once.at(1).uuid());
}

void tst_MvVCardReader::anniversaries()
{
    const QByteArray grouped = "item2.X-ABDATE:2010-06-12\r\nitem2.X-ABLabel:_$!<Anniversary>!$_";
    for (const QByteArray &line : {QByteArray("ANNIVERSARY:20100612"), grouped}) {
        const MvSimplePersonList persons = MvVCardReader::read(card("FN:Anna\r\nBDAY:19900517\r\n" + line)).persons;
        QCOMPARE(persons.size(), 2);
        QCOMPARE(persons.at(1).name(), u"Anna (Jahrestag)"_s);
        QCOMPARE(persons.at(1).birthday(), QDate(2010, 6, 12));
        QVERIFY(persons.at(0).uuid() != persons.at(1).uuid());
    }
}

void tst_MvVCardReader::damagedFiles()
{
    QVERIFY(!MvVCardReader::read(QByteArray()).error.isEmpty());
    QVERIFY(!MvVCardReader::read(QByteArray("<html>:</html>\n\0x:y", 20)).error.isEmpty());
    QVERIFY(MvVCardReader::read(QFileInfo(u"/nirgends/karten.vcf"_s)).error.contains(u"/nirgends/karten.vcf"_s));
    QByteArray cut = card("FN:Anna\r\nBDAY:19900517");
    cut.truncate(cut.indexOf("END"));
    QCOMPARE(MvVCardReader::read(cut).persons.size(), 1);
}

void tst_MvVCardReader::addressBook()
{
    const QTemporaryDir folder;
    MvVCardAddressBook book;
    QList<QFileInfo> files{QFileInfo(folder.filePath(u"fehlt.vcf"_s))};
    for (const QString &name : {u"a.vcf"_s, u"b.vcf"_s}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(card("FN:Anna\r\nBDAY:19900517"));
        files.append(QFileInfo(file.fileName()));
    }
    book.setFiles(files);
    QCOMPARE(book.addressBookContacts().size(), 1);
    QVERIFY(book.lastError().contains(u"fehlt.vcf"_s));
}

MV_TEST_MAIN(tst_MvVCardReader)
#include "tst_MvVCardReader.moc"
