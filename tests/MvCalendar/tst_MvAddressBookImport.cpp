// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvAddressBookImport.h"
#include "MvFoto/MvImageLoader.h"
#include "MvFreshFolderTest.h"
#include "MvRows.h"
#include "MvTestFiles.h"

using namespace Qt::StringLiterals;

/// Files of cards become entries with photos.
class tst_MvAddressBookImport : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fotos_data();
    void fotos();
    void newOnesAlone();
    void changedBetweenTheSteps();
    void nothingStaysOfWhatIsDropped();

private:
    QFileInfo write(const QByteArray &cards) const;
    static QDir folder() { return MvCalendarEvent::imageDirectory(); }
};

namespace {

QByteArray card(const QByteArray &name, const QByteArray &picture, const QByteArray &rest = "BDAY:19900517")
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name + "\r\nPHOTO;ENCODING=b:" + picture.toBase64() + "\r\n" + rest +
           "\r\nEND:VCARD\r\n";
}

/// As a camera says that is held upright: orientation 6.
QByteArray turned(QByteArray jpeg)
{
    return jpeg.insert(2, QByteArray::fromHex("ffe10022457869660000"
                                              "4d4d002a00000008"
                                              "0001011200030000000100060000"
                                              "00000000"));
}

} // namespace

void tst_MvAddressBookImport::init()
{
    MvFreshFolderTest::init();
    for (const QString &file : folder().entryList(QDir::Files))
        folder().remove(file);
}

QFileInfo tst_MvAddressBookImport::write(const QByteArray &cards) const
{
    put(u"karten.vcf"_s, cards);
    return file(u"karten.vcf"_s);
}

void tst_MvAddressBookImport::fotos_data()
{
    // format: of the photo; empty without one; isKept: byte by byte
    const MvRows<QByteArray, QByteArray, QSize, bool> row;
    row("JPEG", MvTestFiles::fotoBytes({720, 600}, "jpeg"), QByteArray("jpeg"), QSize(720, 600), true);
    row("PNG", MvTestFiles::fotoBytes({60, 1200}, "png"), QByteArray("png"), QSize(60, 1200), true);
    row("turned", turned(MvTestFiles::fotoBytes({400, 300}, "jpeg")), QByteArray("jpeg"), QSize(300, 400), false);
    row("large", MvTestFiles::fotoBytes({2400, 1200}, "jpeg"), QByteArray("jpeg"), QSize(1200, 600), false);
    row("another format", MvTestFiles::fotoBytes({40, 30}, "bmp"), QByteArray("png"), QSize(40, 30), false);
    row("no picture", QByteArray("GIF89a, or so it says"), QByteArray(), QSize(), false);
    row("too large", QByteArray(20'000'000, 'x'), QByteArray(), QSize(), false);
}

void tst_MvAddressBookImport::fotos()
{
    const auto [bytes, format, size, isKept] = MvRows<QByteArray, QByteArray, QSize, bool>::current();
    MvAddressBookImport import({write(card("Anna: Meier/..", bytes, "BDAY:19900517\r\nANNIVERSARY:20100612"))});
    import.readCards();
    import.makeEntries({}, MvVCardDate::Order::Unknown);
    const MvCalendarEventList events = import.takeEvents();
    QCOMPARE(events.size(), 2);
    const QStringList files = folder().entryList(QDir::Files); // one, which both share
    QCOMPARE(files.size(), format.isEmpty() ? 0 : 1);
    QCOMPARE(import.report().unreadablePictures.size(), format.isEmpty() ? 1 : 0);
    QCOMPARE(events.first().foto().isValid(), !format.isEmpty());
    if (format.isEmpty())
        return;
    QFile file(events.last().imagePath().filePath());
    QCOMPARE(folder().absoluteFilePath(files.first()), file.fileName());
    QCOMPARE(MvImageLoader::format(QFileInfo(file)), format);
    QCOMPARE(MvImageLoader::instance().size(QFileInfo(file)), size);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll() == bytes, isKept);
}

void tst_MvAddressBookImport::newOnesAlone()
{
    const QByteArray foto = MvTestFiles::fotoBytes({4, 4}, "png");
    const QFileInfo file = write(card("Anna", foto) + card("Bert", foto) + card("Bert", foto) +
                                 card("Carl", foto, "BDAY:12/04/1985") + card("Ohne", foto, "TEL:1"));
    MvCalendarEventList known;
    for (const auto order : {MvVCardDate::Order::Unknown, MvVCardDate::Order::MonthFirst}) {
        MvAddressBookImport import({file});
        import.readCards();
        QCOMPARE(import.openExample().text(), u"12/04/1985"_s);
        import.makeEntries(known, order);
        const bool isFirst = known.isEmpty();
        QCOMPARE(import.report().found, isFirst ? 2 : 3);
        QCOMPARE(import.report().known, isFirst ? 0 : 2);
        QCOMPARE(import.report().withoutDate, 1);
        QCOMPARE(import.report().notUnderstood, isFirst ? QStringList{u"Carl: 12/04/1985"_s} : QStringList());
        known.append(import.takeEvents());
        QCOMPARE(folder().entryList(QDir::Files).size(), known.size());
    }
    QCOMPARE(known.size(), 3);
    QCOMPARE(known.last().dateTime().date(), QDate(1985, 12, 4));
}

/// Nobody gets the face of another one whose card stands there now.
void tst_MvAddressBookImport::changedBetweenTheSteps()
{
    const QByteArray foto = MvTestFiles::fotoBytes({4, 4}, "png");
    MvAddressBookImport import({write(card("Anna", foto))});
    import.readCards();
    write(card("Bert", foto) + card("Anna", foto));
    import.makeEntries({}, MvVCardDate::Order::Unknown);
    QVERIFY(!import.takeEvents().first().foto().isValid());
}

void tst_MvAddressBookImport::nothingStaysOfWhatIsDropped()
{
    const QFileInfo file = write(card("Anna", MvTestFiles::fotoBytes({4, 4}, "png")));
    {
        MvAddressBookImport import({file});
        import.readCards();
        import.makeEntries({}, MvVCardDate::Order::Unknown);
        QCOMPARE(folder().entryList(QDir::Files).size(), 1);
    }
    QCOMPARE(folder().entryList(QDir::Files).size(), 0);
    MvAddressBookImport cancelled({file});
    cancelled.cancel();
    cancelled.readCards();
    cancelled.makeEntries({}, MvVCardDate::Order::Unknown);
    QVERIFY(cancelled.report().errors.isEmpty());
    QVERIFY(cancelled.takeEvents().isEmpty());
}

MV_TEST_MAIN(tst_MvAddressBookImport)
#include "tst_MvAddressBookImport.moc"
