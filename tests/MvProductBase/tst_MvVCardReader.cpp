// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardAddressBook.h"
#include "MvProductBase/MvVCardBirthdays.h"
#include "MvProductBase/MvVCardReader.h"
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// Cards as different programs write them.
class tst_MvVCardReader : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void dates_data();
    void dates();
    void shortYears();
    void orderOfDayAndMonth_data() { MvRows<QStringList, QString, QString>().read(u"days-and-months"_s); }
    void orderOfDayAndMonth();
    void names_data();
    void names();
    void pictures();
    void identity();
    void anniversaries();
    void damagedFiles();
    void countsWhatIsLeftOut();
    void linearTime_data();
    void linearTime();
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
    const MvRows<QByteArray, QDate> row; // line, date
    row.read(u"card-dates"_s);
    row("an empty one follows", QByteArray("BDAY:1990-05-17\r\nBDAY:"), QDate(1990, 5, 17));
}

void tst_MvVCardReader::dates()
{
    const auto [line, date] = MvRows<QByteArray, QDate>::current();
    const MvVCardReader::Content content = MvVCardReader::read(card("FN:Erika\r\n" + line));
    QCOMPARE(content.error, QString());
    if (date.isValid()) {
        QCOMPARE(content.persons.size(), 1);
        QCOMPARE(content.persons.first().birthday(), date);
        QVERIFY(content.notUnderstood.isEmpty());
    } else {
        QCOMPARE(content.persons.size(), 0);
        QCOMPARE(content.notUnderstood, QStringList{u"Erika: "_s + QString::fromUtf8(line.mid(16))});
    }
}

/// A year of two digits lies in the hundred years before today.
void tst_MvVCardReader::shortYears()
{
    const auto read = [](const QString &text) { return MvVCardDate::fromText(text, QDate(2026, 11, 21)).date(); };
    QCOMPARE(read(u"21.11.26"_s), QDate(2026, 11, 21));
    QCOMPARE(read(u"22.11.26"_s), QDate(1926, 11, 22));
    QCOMPARE(read(u"2026-11-22"_s), QDate());
}

void tst_MvVCardReader::orderOfDayAndMonth()
{
    const auto [texts, example, dates] = MvRows<QStringList, QString, QString>::current();
    MvVCardBirthdays birthdays;
    for (const QString &text : texts) {
        MvVCard card;
        card.name = text;
        card.birthday = MvVCardDate::fromText(text);
        if (text == u"-"_s)
            birthdays.beginFile();
        else
            birthdays.add(card);
    }
    QCOMPARE(birthdays.openExample().text(), example);
    QStringList found;
    for (const auto &person : birthdays.result(MvVCardDate::Order::DayFirst).persons)
        found.append(person.date.toString(Qt::ISODate));
    QCOMPARE(found.join(u' '), dates);
    const QString unsettled = example.isEmpty() ? QString() : u"%1: %1"_s.arg(example);
    QCOMPARE(birthdays.result().notUnderstood.contains(unsettled), !example.isEmpty());
}

void tst_MvVCardReader::names_data()
{
    const MvRows<QByteArray, QString> row; // bytes, name
    const QByteArray day = "\r\nBDAY:19900517";
    row("utf-8", card("FN:Jörg Müßig" + day), u"Jörg Müßig"_s);
    row("Latin 1, unannounced", card("FN:J\xf6rg M\xfc\xdfig" + day), u"Jörg Müßig"_s);
    row("announced", card("FN;CHARSET=ISO-8859-1:J\xf6rg" + day, "2.1"), u"Jörg"_s);
    row("quoted-printable with a soft break",
        card("FN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:J=C3=B6rg =\r\nM=C3=BC=C3=9Fig" + day, "2.1"),
        u"Jörg Müßig"_s);
    row("bare parameter of 2.1", card("FN;QUOTED-PRINTABLE:J=F6rg" + day, "2.1"), u"Jörg"_s);
    row("folded within a word", card("FN:Maxi\r\n milian" + day), u"Maximilian"_s);
    row("folded within a letter", card("FN:J\xc3\r\n \xb6rg" + day, "4.0"), u"Jörg"_s);
    row("folded at a blank", card("FN:Anna\r\n Maria" + day, "2.1"), u"Anna Maria"_s);
    row("escapes", card("FN:Meier\\, Anna\\; Dr." + day), u"Meier, Anna; Dr."_s);
    row("name in parts", card("N:Meier;Anna;Maria;Dr.;" + day), u"Anna Maria Meier"_s);
    row("an organisation", card("FN:\r\nN:;;;;\r\nORG:Verein" + day), u"Verein"_s);
    row("colon in a quoted parameter", card("FN;LABEL=\"a:b;c\":Anna" + day), u"Anna"_s);
    row("line feeds alone", QByteArray(card("FN:Anna" + day)).replace("\r\n", "\n"), u"Anna"_s);
    row("byte order mark", QByteArray("\xef\xbb\xbf" + card("FN:Anna" + day)), u"Anna"_s);
    row("several carriage returns", QByteArray(card("FN:Maxi\r\n milian" + day)).replace("\r\n", "\r\r\n"),
        u"Maximilian"_s);
    row("carriage returns alone", QByteArray(card("FN:Anna" + day)).replace("\r\n", "\r"), u"Anna"_s);
    row("a letter a line", card("FN:A\r\n n\r\n n\r\n a" + day), u"Anna"_s);
    row("folded before the colon", card("FN;X=1\r\n ;Y=2:Anna" + day), u"Anna"_s);
    row("open quotation mark", card("FN;X=\"1:Anna" + day), u"Anna"_s);
    row("soft break, then a blank", card("FN;ENCODING=QUOTED-PRINTABLE:Anna=\r\n Maria" + day, "2.1"), u"Anna Maria"_s);
    const QString text = QString::fromUtf8(card("FN:Jörg" + day));
    const auto wide = [&](QStringConverter::Encoding encoding, QStringConverter::Flag mark) {
        QStringEncoder encoder(encoding, mark);
        return QByteArray(encoder(text));
    };
    row("UTF-16", wide(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom), u"Jörg"_s);
    row("UTF-16, no mark", wide(QStringConverter::Utf16BE, QStringConverter::Flag::Default), u"Jörg"_s);
    row("UTF-32", wide(QStringConverter::Utf32LE, QStringConverter::Flag::WriteBom), u"Jörg"_s);
    row("2.1 after 3.0", card("FN:Bert") + card("FN:Anna\r\n Maria" + day, "2.1"), u"Anna Maria"_s);
    row("3.0 after 2.1", card("FN:Bert", "2.1") + card("FN:An\r\n na" + day), u"Anna"_s);
    row("end missing before", QByteArray("BEGIN:VCARD\r\nFN:Bert\r\n" + card("FN:Anna" + day)), u"Anna"_s);
    row("a card in the card", card("FN:Anna\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:Bert\r\nEND:VCARD" + day, "2.1"), u"Anna"_s);
}

void tst_MvVCardReader::names()
{
    const auto [bytes, name] = MvRows<QByteArray, QString>::current();
    const MvVCardReader::Content content = MvVCardReader::read(bytes);
    QCOMPARE(content.persons.size(), 1);
    QCOMPARE(content.persons.first().name(), name);
}

void tst_MvVCardReader::pictures()
{
    const QByteArray code = MvTestFiles::fotoBytes({6, 4}, "png").toBase64();
    const QByteArray folded = code.left(40) + "\r\n " + code.mid(40);
    const QByteArray unindented = code.left(40) + "\r\n" + code.mid(40) + "\r\n";
    const QByteArray rest = "\r\nFN:Anna\r\nBDAY:19900517";
    for (const QByteArray &bytes :
         {card("PHOTO;ENCODING=b;TYPE=PNG:" + folded + rest), card("PHOTO;PNG;BASE64:" + unindented + rest, "2.1"),
          card("PHOTO:data:image/png;base64," + folded + rest, "4.0")}) {
        const MvVCardReader::Content content = MvVCardReader::read(bytes);
        QCOMPARE(content.persons.size(), 1);
        QCOMPARE(content.persons.first().image().size(), QSize(6, 4));
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
    QVERIFY(MvVCardReader::read(QFileInfo(u"/"_s)).error.contains(u"Ordner"_s));
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"pipe.vcf"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QVERIFY(MvVCardReader::read(QFileInfo(pipe)).error.contains(u"keine gewöhnliche Datei"_s));
    QByteArray cut = card("FN:Anna\r\nBDAY:19900517");
    cut.truncate(cut.indexOf("END"));
    QCOMPARE(MvVCardReader::read(cut).persons.size(), 1);
}

void tst_MvVCardReader::countsWhatIsLeftOut()
{
    const QByteArray broken = "\r\nPHOTO;ENCODING=b:AAAA";
    const auto content =
        MvVCardReader::read(card("FN:Anna\r\nBDAY:19900517" + broken) + card("FN:Bert") + card("FN:Carl\r\nBDAY:") +
                            card("BDAY:19900517") + card("ANNIVERSARY:20100612") +
                            card("FN:Dora\r\nBDAY:19900230\r\nANNIVERSARY:20100612") + card("FN:Emil" + broken) +
                            card("FN:Fritz\r\nBDAY:19900517\r\nUID:1") + card("FN:Gerda\r\nBDAY:19900517\r\nUID:1"));
    QCOMPARE(content.cardCount, 9);
    QCOMPARE(content.withoutDate, 3);
    QCOMPARE(content.withoutName, 2);
    QCOMPARE(content.notUnderstood, QStringList{u"Dora: 19900230"_s});
    QCOMPARE(content.unreadablePictures, QStringList{u"Anna"_s});
    QStringList names;
    for (const MvSimplePerson &person : content.persons)
        names.append(person.name());
    QCOMPARE(names.join(u' '), u"Anna Dora (Jahrestag) Fritz Gerda"_s);
}

void tst_MvVCardReader::linearTime_data()
{
    const MvRows<QByteArray, QByteArray> row; // begin, again
    row("parameters", QByteArray("BDAY"), QByteArray(";X"));
    row("parameters of a picture", QByteArray("PHOTO"), QByteArray(";X=Y"));
    row("words of a parameter", QByteArray("PHOTO;X"), QByteArray(","));
    row("quotation marks", QByteArray("FN"), QByteArray(";\""));
    row("picture's lines, no line feed", QByteArray("PHOTO;ENCODING=b:"), QByteArray("\rAAAA"));
    row("a byte a line", QByteArray("NOTE:"), QByteArray("\r\n x"));
    row("head, a byte a line", QByteArray("NOTE"), QByteArray("\r\n x"));
    row("soft breaks", QByteArray("NOTE;QUOTED-PRINTABLE:"), QByteArray("=\r\n"));
    row("carriage returns", QByteArray(), QByteArray("\r"));
    row("cards in cards", QByteArray(), QByteArray("AGENT:\r\nBEGIN:VCARD\r\n"));
    row("components", QByteArray("N:"), QByteArray(";"));
    row("zeros", QByteArray(), QByteArray(1, '\0'));
}

/// Ten megabytes of it, which took minutes where every byte was looked at once more for each that came before. What
/// follows in the next card is read.
void tst_MvVCardReader::linearTime()
{
    const auto [begin, again] = MvRows<QByteArray, QByteArray>::current();
    const QByteArray bytes = "BEGIN:VCARD\r\n" + begin + again.repeated(10'000'000 / again.size());
    const auto content = MvVCardReader::read(bytes + "\r\nEND:VCARD\r\n" + card("FN:Anna\r\nBDAY:19900517"));
    const bool isInnerCard = again.startsWith("AGENT");
    QCOMPARE(content.persons.size(), isInnerCard ? 0 : 1);
}

void tst_MvVCardReader::addressBook()
{
    const QTemporaryDir folder;
    MvVCardAddressBook book;
    QList<QFileInfo> files{QFileInfo(folder.filePath(u"fehlt.vcf"_s))};
    for (const QString &name : {u"a.vcf"_s, u"b.vcf"_s}) {
        files.append(QFileInfo(folder.filePath(name)));
        QVERIFY(MvTestFiles::write(files.last().filePath(), card("FN:Anna\r\nBDAY:19900517")));
    }
    book.setFiles(files);
    QCOMPARE(book.addressBookContacts().size(), 1);
    QVERIFY(book.lastError().contains(u"fehlt.vcf"_s));
}

MV_TEST_MAIN(tst_MvVCardReader)
#include "tst_MvVCardReader.moc"
