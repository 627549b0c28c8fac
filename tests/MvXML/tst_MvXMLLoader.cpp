// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"
#include "MvTestFiles.h"

#include "MvXML/MvXMLLoader.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class tst_MvXMLLoader : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void refuses_data();
    void refuses();
    void reads_data();
    void reads();
    void refusesWhatIsNoFile();
    void refusesTooLargeFiles();
    void warnsOnceOfUnreadableFiles();
};

static QByteArray nested(int levels)
{
    return QByteArray("<a>").repeated(levels) + QByteArray("</a>").repeated(levels);
}

/// What a reader of the file's bytes is told, by the checks before or by the end of its reading.
static MvXMLLoader::Error readOnce(const QByteArray &content)
{
    QTemporaryFile file;
    if (!file.open() || file.write(content) != content.size() || !file.flush())
        return {u"not written"_s};
    MvXMLLoader::Error error;
    const MvXMLLoader::Limits limits{content.size(), MvXMLLoader::Limits::ofDocuments().elements, false};
    const QByteArray bytes = MvXMLLoader::loadBytes(QFileInfo(file.fileName()), &error, limits);
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    while (!error.isError() && !reader.atEnd())
        reader.readNext();
    return error.isError() ? error : MvXMLLoader::errorOf(reader, bytes);
}

void tst_MvXMLLoader::refuses_data()
{
    const MvRows<QByteArray, QString, int> add; // bytes; message; line: 0: not asked
    const auto row = [&](const char *name, const QByteArray &bytes, const QString &message, int line = 0) {
        add(name, bytes, message, line);
    };
    const QString entities = u"Entitäten dürfen nicht"_s;
    const QByteArray big(100LL * 1000, 'x');
    row("one entity repeated",
        "<!DOCTYPE a [<!ENTITY e \"" + big + "\">]><a>" + QByteArray("&e;").repeated(168000) + "</a>", entities, 1);
    row("nested entities", "<!DOCTYPE a [\n<!ENTITY b \"1\">\n<!ENTITY c \"&b;&b;\">]><a>&c;</a>", entities, 2);
    row("entity behind a comment mark in a literal",
        "<!DOCTYPE a SYSTEM \"<!--\" [<!ENTITY e \"x\"><!-- -->]><a>&e;</a>", QString());
    row("parameter entity", "<!DOCTYPE a [<!ENTITY % e \"x\"> %e;]><a/>", entities);
    row("external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><a>&e;</a>", entities);
    row("default attribute", "<!DOCTYPE a [<!ATTLIST a b CDATA \"x\">]><a/>", u"Vorgaben für Attribute"_s);
    row("unknown entity", "<a>&auml;</a>", u"kein wohlgeformtes XML"_s, 1);
    row("5,000 levels", nested(5000), u"tiefer als 256"_s, 1);
    row("257 levels", nested(257), u"tiefer als 256"_s);
    row("huge attribute", "<a>\n <b c=\"" + big + "\"/></a>", u"länger als 64 KiB"_s, 2);
    row("tag that never ends", "<a " + big, u"länger als 64 KiB"_s);
    row("quotation mark hides the end", "<a b=\"" + QByteArray(" c='>' ").repeated(20000) + "\"/>",
        u"länger als 64 KiB"_s);
    const auto attributes = [](int count) {
        QByteArray tag = "<b";
        for (int i = 0; i < count; ++i)
            tag += " a" + QByteArray::number(i) + "='\"=>'";
        return "<a>\n" + tag + "/></a>";
    };
    row("513 attributes", attributes(513), u"mehr als 512 Attribute"_s, 2);
    row("thousands of attributes without a blank", attributes(5000).replace("' a", "'a"), u"mehr als 512"_s, 2);
    row("UTF-7", "<?xml version=\"1.0\" encoding=\"UTF-7\"?><a>+ADwAIQ-</a>", QString(), 1);
    row("million elements", "<a>" + QByteArray("<b/>").repeated(1000001) + "</a>", u"zu viele Elemente"_s);
    row("NUL in a text", QByteArray("<a>\n\nx\0y</a>", 13), u"NUL-Zeichen"_s, 3);
    row("NULs alone", QByteArray(4096, '\0'), u"NUL-Zeichen"_s);
    row("cut within a tag", "<a><b>text</b><b", u"endet zu früh"_s);
    row("cut within a text", "<a>\n<b>te", u"endet zu früh"_s, 2);
    row("cut within a comment", "<a><!-- ", u"endet zu früh"_s);
    row("empty", "", u"leer"_s);
    row("blanks", " \n ", u"leer"_s);
    row("not XML", "BEGIN:VCARD\r\n", u"kein wohlgeformtes XML"_s);
    row("Latin-1 that says UTF-8", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>M\xe4rz</a>", u"nicht als UTF-8"_s,
        2);
    row("unknown encoding", "<?xml version=\"1.0\" encoding=\"KLINGON\"?><a/>", QString(), 1);
    row("two roots", "<a/><b/>", u"kein wohlgeformtes XML"_s);
    row("same attribute twice", "<a b=\"1\" b=\"2\"/>", u"kein wohlgeformtes XML"_s);
}

void tst_MvXMLLoader::refuses()
{
    const auto [bytes, message, line] = MvRows<QByteArray, QString, int>::current();
    MvXMLLoader::Error error;
    QVERIFY(MvXMLLoader::parse(bytes, &error).isNull());
    QVERIFY(error.isError());
    QVERIFY2(error.message.contains(message), qPrintable(error.message));
    if (line > 0)
        QCOMPARE(error.line, line);

    // and where nobody reads it twice
    const MvXMLLoader::Error whileReading = readOnce(bytes);
    QVERIFY2(whileReading.message.contains(message) && whileReading.isError(), qPrintable(whileReading.message));
    if (line > 0)
        QCOMPARE(whileReading.line, line);
}

void tst_MvXMLLoader::reads_data()
{
    const MvRows<QByteArray, QString> row; // bytes, text
    const QString text = u"Märchen <für> \"Öl\" \U0001F382"_s;
    const QString xml = u"<a>Märchen &lt;für&gt; \"Öl\" \U0001F382</a>"_s;
    row("UTF-8 without a declaration", xml.toUtf8(), text);
    row("UTF-8 with a mark", "\xef\xbb\xbf" + xml.toUtf8(), text);
    const QString declared = u"\ufeff<?xml version=\"1.0\" encoding=\"UTF-16\"?>"_s + xml;
    row("UTF-16", QByteArray(reinterpret_cast<const char *>(declared.utf16()), declared.size() * 2), text);
    row("UTF-16 without a mark", QByteArray("<\0a\0>\0x\0<\0/\0a\0>\0", 16), u"x"_s);
    row("ISO 8859-1", QByteArray("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>M\xe4rz</a>"), u"März"_s);
    row("256 levels", nested(256).replace("<a></a>", "<a>deep</a>"), u"deep"_s);
    row("comment and data of any length",
        "<a><!-- " + QByteArray(100000, '"') + " --><![CDATA[<!ENTITY " + QByteArray(3, '<') + "]]></a>",
        u"<!ENTITY <<<"_s);
    row("apostrophe in an instruction", "<?note don't?><a>" + QByteArray(100000, 'x') + "</a>", QString(100000, u'x'));
    row("document type without declarations", QByteArray("<!DOCTYPE a><a>x</a>"), u"x"_s);
}

void tst_MvXMLLoader::reads()
{
    const auto [bytes, text] = MvRows<QByteArray, QString>::current();
    MvXMLLoader::Error error;
    const QDomDocument document = MvXMLLoader::parse(bytes, &error);
    QCOMPARE(error.message, QString());
    QCOMPARE(document.documentElement().text(), text);
    QCOMPARE(readOnce(bytes).message, QString());
}

void tst_MvXMLLoader::refusesWhatIsNoFile()
{
    const QTemporaryDir dir;
    const QString pipe = dir.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QStringList paths = {dir.path(), pipe, u"/dev/zero"_s, u":/"_s, dir.filePath(u"missing"_s), QString()};
    for (const QString &path : paths) {
        MvXMLLoader::Error error;
        QVERIFY(MvXMLLoader::loadDocument(QFileInfo(path), &error).isNull());
        QVERIFY2(error.isError(), qPrintable(path));
    }
}

void tst_MvXMLLoader::refusesTooLargeFiles()
{
    const QTemporaryDir dir;
    QFile file(dir.filePath(u"large.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<a>");
    QVERIFY(file.resize(64 * 1024 * 1024 + 1));
    file.close();
    MvXMLLoader::Error error;
    QVERIFY(MvXMLLoader::loadDocument(QFileInfo(file.fileName()), &error).isNull());
    QVERIFY(error.message.contains(u"größer als 64 MiB"_s));
}

void tst_MvXMLLoader::warnsOnceOfUnreadableFiles()
{
    const QTemporaryDir dir;
    QVERIFY(MvXMLLoader::loadDocumentElement(QFileInfo(dir.filePath(u"missing.xml"_s))).isNull()); // silently

    const QString file = dir.filePath(u"cut.xml"_s);
    QVERIFY(MvTestFiles::write(file, "<a>\n<b>"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cut\\.xml:2:\\d+: Die Datei endet zu früh"_s));
    QVERIFY(MvXMLLoader::loadDocumentElement(QFileInfo(file)).isNull());

    QVERIFY(MvTestFiles::write(file, "<a>\n<b></b></a>"));
    QCOMPARE(MvXMLLoader::loadDocumentElement(QFileInfo(file)).tagName(), u"a"_s);
}

MV_TEST_MAIN(tst_MvXMLLoader)
#include "tst_MvXMLLoader.moc"
