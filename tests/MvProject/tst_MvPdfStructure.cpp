// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvEntries.h"
#include "MvExifFixture.h"
#include "MvFreshFolderTest.h"
#include "MvPaint/MvOutlinePainter.h"
#include "MvPaint/MvPaintMark.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPdfExporter.h"
#include "MvProject/MvSheetSettings.h"
#include "MvProjectFixture.h"
#include "MvRows.h"
#include "MvTestFiles.h"

#include "MvCalendar/MvCalendarEventListSource.h"
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include <QPainter>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFNumberTreeObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>

#include <map>
#include <set>

using namespace Qt::StringLiterals;
using MvTestFiles::outputOf;

namespace {

using Kind = MvPaintMark::Kind;
using Object = QPDFObjectHandle;

/// What is marked in the content of a page, and whether everything is.
class Content : public QPDFObjectHandle::ParserCallbacks
{
public:
    /// Without owners nothing of it is read, whatever its numbers.
    explicit Content(bool hasOwners)
        : m_hasOwners(hasOwners)
    {}

    void handleObject(Object object, size_t, size_t) override
    {
        if (!object.isOperator()) {
            m_last = object;
            return;
        }
        static const std::set<std::string> painting{"f", "f*", "S", "sh", "Do", "Tj", "TJ", "B", "B*"};
        const std::string name = object.getOperatorValue();
        if (name == "BDC" || name == "BMC") {
            const bool isPart = m_hasOwners && m_last.isDictionary() && m_last.hasKey("/MCID");
            const bool isDecoration = m_last.isName() && m_last.getName() == "/Artifact";
            m_open.append(isPart || isDecoration);
            if (isPart && m_last.getKey("/MCID").getIntValue() != parts++)
                problems.append(u"numbers do not rise"_s);
        } else if (name == "EMC") {
            m_open.isEmpty() ? problems.append(u"one end too many"_s) : m_open.removeLast();
        } else if (painting.contains(name) && (m_hasOwners ? m_open.count(true) != 1 : !m_open.contains(true))) {
            problems.append(u"%1 is in %2 parts"_s.arg(QString::fromStdString(name)).arg(m_open.count(true)));
        }
    }
    void handleEOF() override
    {
        if (!m_open.isEmpty())
            problems.append(u"an end is missing"_s);
    }

    int parts = 0;
    QStringList problems;

private:
    const bool m_hasOwners;
    Object m_last = Object::newNull();
    QList<bool> m_open;
};

/// The structure of a file and what is wrong with it.
class Structure
{
public:
    explicit Structure(const QString &file)
    {
        m_pdf.processFile(file.toLocal8Bit().constData());
        Object root = m_pdf.getRoot().getKey("/StructTreeRoot");
        if (!m_pdf.getRoot().getKey("/MarkInfo").getKey("/Marked").getBoolValue() || !root.isDictionary()) {
            problems.append(u"no structure"_s);
            return;
        }
        walk(root.getKey("/K"), root);
        QPDFNumberTreeObjectHelper owners(root.getKey("/ParentTree"), m_pdf);
        for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(m_pdf).getAllPages()) {
            Content content(page.getObjectHandle().hasKey("/StructParents"));
            page.parseContents(&content);
            checkOwners(content, page.getObjectHandle(), owners);
        }
    }

    /// Of the elements with the key, in reading order.
    QStringList texts(const std::string &key) const
    {
        QStringList found;
        for (const auto &[place, text] : m_texts) {
            if (place.second == key)
                found.append(text);
        }
        return found;
    }

    QStringList problems;
    QStringList types;
    QStringList boxes; ///< of pictures

private:
    void checkOwners(const Content &content, Object page, QPDFNumberTreeObjectHelper &owners)
    {
        problems += content.problems;
        Object own = Object::newArray();
        if (page.hasKey("/StructParents"))
            owners.findObject(page.getKey("/StructParents").getIntValue(), own);
        if (own.getArrayNItems() != content.parts)
            problems.append(u"owners of %1 parts for %2"_s.arg(own.getArrayNItems()).arg(content.parts));
        for (int part = 0; part < content.parts; ++part) {
            if (m_owners[{page.getObjectID(), part}] != own.getArrayItem(part).getObjectID())
                problems.append(u"part %1 has another owner"_s.arg(part));
        }
    }

    static QString type(Object element)
    {
        return element.hasKey("/S") ? QString::fromStdString(element.getKey("/S").getName()).mid(1) : QString();
    }

    static std::vector<Object> inside(Object element)
    {
        Object inner = element.getKey("/K");
        return inner.isArray() ? inner.getArrayAsVector() : std::vector<Object>{inner};
    }

    void walk(Object element, const Object &around)
    {
        const QString name = type(element);
        const size_t number = size_t(types.size());
        types.append(name);
        check(element, name, type(around));
        if (element.getKey("/P").getObjGen() != around.getObjGen())
            problems.append(name + u" has another parent"_s);
        for (const std::string key : {"/ActualText", "/Alt", "/E", "/T"}) {
            if (element.hasKey(key))
                m_texts[{number, key}] = QString::fromStdString(element.getKey(key).getUTF8Value());
        }
        for (Object part : inside(element)) {
            if (part.isDictionary())
                walk(part, element);
            else if (part.isInteger())
                m_owners[{element.getKey("/Pg").getObjectID(), int(part.getIntValue())}] = element.getObjectID();
        }
    }

    void check(Object element, const QString &name, const QString &around)
    {
        if (name == u"Figure" && (!element.hasKey("/Alt") || !element.getKey("/A").hasKey("/BBox")))
            problems.append(u"a figure without description or place"_s);
        if (name == u"Figure")
            boxes.append(QString::fromStdString(element.getKey("/A").getKey("/BBox").unparse()));
        if (name == u"TH" && !element.getKey("/A").hasKey("/Scope"))
            problems.append(u"a head of nothing"_s);
        const QString expected =
            name.startsWith(u'T') && name.size() == 2 ? name == u"TR" ? u"Table"_s : u"TR"_s : around;
        if (around != expected)
            problems.append(u"%1 in %2"_s.arg(name, around));
        if (name == u"H2" && !types.contains(u"H1"_s))
            problems.append(u"H2 before H1"_s);
        if (name != u"Table")
            return;
        std::set<int> widths;
        for (const Object &row : inside(element)) {
            int width = 0;
            if (type(row) != u"TR")
                continue;
            for (Object cell : inside(row)) {
                Object span = cell.hasKey("/A") ? cell.getKey("/A").getKey("/ColSpan") : Object::newNull();
                width += span.isInteger() ? int(span.getIntValue()) : 1;
            }
            widths.insert(width);
        }
        if (widths.size() != 1)
            problems.append(u"rows of a table differ"_s);
    }

    QPDF m_pdf;
    std::map<std::pair<int, int>, int> m_owners;               // by page and number
    std::map<std::pair<size_t, std::string>, QString> m_texts; // by element and key
};

void paintLine(QPainter &painter, double y, const QString &line)
{
    QFont font(u"Lato"_s);
    font.setPixelSize(50);
    MvOutlinePainter::fillOutline(painter, {50, y}, MvTextOutline(font, line), Qt::black);
}

MvPageSource page(const std::function<void(QPainter &)> &paint)
{
    MvPageSource source;
    source.format = MvPageFormat(QSizeF(1000, 800));
    source.pages.append(QDate(2027, 1, 1));
    source.paint = [paint](QPainter &painter, int) { paint(painter); };
    return source;
}

} // namespace

class tst_MvPdfStructure : public MvFreshFolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsRead_data();
    void everythingIsRead();
    void daysAreReadInOrder_data();
    void daysAreReadInOrder();
    void textsAreWhole_data();
    void textsAreWhole();
    void picturesAreDescribed();
    void promisesWhatItKeeps_data();
    void promisesWhatItKeeps();
    void sheetsAreRead_data();
    void sheetsAreRead();

private:
    QString write(const MvPageSource &pages, const MvSheetSettings &sheets = {}) const;
    QString january(const QString &layout) const;
};

QString tst_MvPdfStructure::write(const MvPageSource &pages, const MvSheetSettings &sheets) const
{
    const QString file = path(u"k.pdf"_s);
    const bool isWritten = MvPdfExporter::write(pages, QFileInfo(file), nullptr, 1, {}, sheets).isOk();
    return isWritten && MvTestFiles::isSoundPdf(file) ? file : QString();
}

/// With weeks, a photo, on the 12th two texts and a photo, and from the 19th on a bar of three days.
QString tst_MvPdfStructure::january(const QString &layout) const
{
    MvProjectFixture::writeFoto(path(u"foto.png"_s), {300, 200});
    MvCalendarDocument calendar = MvProjectFixture::document(layout, 1);
    calendar.setHolidayConfig(MvCalendariumHolidayConfig(
        MvLocale(u"de_DE"_s), u"BY"_s,
        MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_ENTRIES | FEATURE_SCHOOL_VACATIONS | FEATURE_CALENDAR_WEEKS)));
    calendar.setFormat(MvPageFormat(QSizeF(6000, 3000))); // with room for texts beside a photo
    MvProjectFixture::setFoto(calendar, 0, MvFotoFrame(path(u"foto.png"_s), MvFotoFrame::Placement::Left));
    MvCalendarEvent journey = MvEntries::entry(u"Reise"_s, {2027, 1, 19}, {}, false);
    journey.setEndDate({2027, 1, 21});
    const MvCalendarEventList list{
        journey, MvEntries::entry(u"Do"_s, {2027, 1, 7}),
        MvEntries::entry(u"Oma Gertrud"_s, {2027, 1, 12}, MvFoto(QFileInfo(path(u"foto.png"_s)))),
        MvEntries::entry(u"Donaudampfschifffahrtsgesellschaftsversammlung mit Wahl"_s, {2027, 1, 12})};
    const MvCalendarEventListSource entries(list);
    MvRenderingSources sources;
    sources.entries = &entries;
    return write(calendar.pageSource(sources));
}

void tst_MvPdfStructure::everythingIsRead_data()
{
    const MvRows<QString> row; // layout
    for (const MvCalendariumLayoutSchema &layout : MvCalendariumLayoutSchemaRegistry::instance().schemata())
        row(layout.ID().toString(), layout.ID().toString());
}

/// Whatever the layout: all that is painted is read or is decoration, in tables whose rows are alike, beneath headings.
void tst_MvPdfStructure::everythingIsRead()
{
    const auto [layout] = MvRows<QString>::current();
    const Structure structure(january(layout));
    QCOMPARE(structure.problems.join(u'\n'), QString());
    QCOMPARE(structure.types.first(2), (QStringList{u"Document"_s, u"Sect"_s}));
    QVERIFY(structure.texts("/Alt").contains(u"Foto"_s));
}

void tst_MvPdfStructure::daysAreReadInOrder_data()
{
    const MvRows<QString, QString> row; // layout, pattern
    const QString heading = u"Sect Januar 2027 H1 Januar 2027 .*"_s;
    row("grid", u"MONTH_GRID_CLASSIC"_s,
        heading +
            u"Table .*TR TH 53( TD){5} 1 P Neujahr.* TD 2 TD 3 TR TH 1 TD 4 .* TD 19 P Reise TD 20 Figure TD 21 Figure TD 22 .* TD 31$"_s);
    row("list", u"DAY_LIST"_s,
        u"TR TH 1 Fr\\w* TD P Neujahr.* TR TH 2 .* TR TH 7 Do\\w* TD P Do TR TH 8 .* TD Figure .*TH 31 So"_s);
    row("strip", u"ONE_ROW_STRIP"_s,
        heading + u"Table .*TR TH Fr 1 TD .*TR TH Sa 2 TD .*TR TH Do 7 TD .*TR TH So 31 TD"_s);
    row("columns of weeks", u"WEEK_COLUMNS_COMPACT"_s,
        u"TR TD( TH \\w+){7} TR TH 53( TD){5} 01 TD 02 TD 03 TR TH 1 TD 04"_s);
    row("a year", u"YEAR_GRID"_s,
        u"H1 2027 .*Caption Januar TR .* TD 31 .*Caption Februar TR .*Caption Dezember .* TD 31"_s);
    row("no days", u"MONTH_LINE"_s, u"H1 Januar 2027 Figure$"_s);
}

/// As a reader of tags tells them, without attributes and quotation marks.
void tst_MvPdfStructure::daysAreReadInOrder()
{
    const auto [layout, pattern] = MvRows<QString, QString>::current();
    QStringList words;
    for (QString line : QString::fromUtf8(outputOf(u"pdfinfo"_s, {u"-struct-text"_s, january(layout)})).split(u'\n')) {
        line = line.remove(u" (block)"_s).remove(u'"').simplified();
        if (!line.isEmpty() && !line.startsWith(u'/'))
            words.append(line.endsWith(u':') ? line.chopped(1) : line);
    }
    const QString read = words.join(u' ');
    QVERIFY2(QRegularExpression(pattern).match(read).hasMatch(), qPrintable(read));
}

void tst_MvPdfStructure::textsAreWhole_data()
{
    const MvRows<Kind, QStringList, QStringList, QStringList, int> row; // kind, texts, lines, wholes, paragraphs
    row("as painted", Kind::Cell, {u"3"_s, u"Zahnarzt"_s}, {u"Zahnarzt"_s, u"3"_s}, {}, 1);
    row("divided", Kind::Cell, {u"3"_s, u"Elternsprechtag"_s}, {u"3"_s, u"Elternsprech-"_s, u"tag"_s},
        {u"Elternsprechtag"_s}, 1);
    row("on two lines", Kind::Paragraph, {u"Christi Himmelfahrt"_s}, {u"Christi"_s, u"Himmelfahrt"_s},
        {u"Christi Himmelfahrt"_s}, 0); // the page's heading
    row("shortened", Kind::Cell, {u"3"_s, u"Oma Gertrud"_s, u"Opa"_s}, {u"3"_s, u"Oma Ger…"_s, u"Opa"_s},
        {u"Oma Gertrud"_s}, 2);
    row("other ends than lines", Kind::Cell, {u"3"_s, u"Oma"_s, u"Opa Hans"_s}, {u"3"_s, u"Oma, Opa"_s, u"Hans"_s},
        {u"Oma, Opa Hans"_s}, 1);
    row("a number in a text", Kind::Cell, {u"3"_s, u"3 Könige"_s}, {u"3 Könige"_s, u"3"_s}, {}, 1);
    row("only one has room", Kind::Cell, {u"3"_s, u"Oma"_s, u"Opa"_s}, {u"3"_s, u"Oma"_s, u"…"_s}, {u"Oma"_s}, 1);
    row("head of a column", Kind::ColumnHead, {u"Montag"_s}, {u"M"_s}, {u"Montag"_s}, 0);
    row("head of a row", Kind::RowHead, {u"KW 18"_s}, {u"18"_s}, {u"KW 18"_s}, 0);
    row("pieces of a head", Kind::RowHead, {}, {u"Mo"_s, u"3"_s}, {u"Mo 3"_s}, 0);
}

void tst_MvPdfStructure::textsAreWhole()
{
    const auto [kind, texts, lines, wholes, paragraphs] =
        MvRows<Kind, QStringList, QStringList, QStringList, int>::current();
    const Structure structure(write(page([kind = kind, texts = texts, lines = lines](QPainter &painter) {
        const MvPaintMarking table(painter, Kind::Table);
        const MvPaintMarking mark(painter, kind, 1, 1, texts);
        for (double y = 100; const QString &line : lines)
            paintLine(painter, y += 60, line);
    })));
    QCOMPARE(structure.problems.join(u'\n'), QString());
    QCOMPARE(structure.texts("/ActualText") + structure.texts("/E"), wholes);
    QCOMPARE(int(structure.types.count(u"P"_s)), paragraphs);
}

void tst_MvPdfStructure::picturesAreDescribed()
{
    MvProjectFixture::writeFoto(path(u"foto.png"_s), {300, 200});
    MvCalendarDocument calendar = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 1);
    calendar.setHolidayConfig(MvCalendariumHolidayConfig(MvLocale(u"en_GB"_s), {}, FEATURE_NONE));
    QVERIFY(QImage(path(u"foto.png"_s)).save(path(u"plain.jpg"_s)));
    put(u"noted.jpg"_s, MvExifFixture::inJpeg(contentOf(u"plain.jpg"_s), MvExifFixture::described("Oma im Garten")));
    MvFotoElement foto(path(u"foto.png"_s));
    MvFotoElement named = foto;
    named.setCaption(u"Über den Dächern"_s);
    MvCalendarPage page = calendar.pages()[0];
    page.setElements({{QRectF(100, 100, 300, 200), foto},
                      {QRectF(500, 400, 300, 200), named},
                      {QRectF(900, 700, 300, 200), MvFotoElement(path(u"noted.jpg"_s))}});
    calendar.setPage(0, page);
    const Structure structure(write(calendar.pageSource()));
    QCOMPARE(structure.problems.join(u'\n'), QString());
    QCOMPARE(structure.texts("/Alt"), (QStringList{u"Photo"_s, u"Über den Dächern"_s, u"Oma im Garten"_s}));
}

void tst_MvPdfStructure::promisesWhatItKeeps_data()
{
    const MvRows<QString, QString, bool> row; // text, title, isForEverybody
    row("letters, ligatures", u"Größe der Schifffahrt"_s, u"Kalender"_s, true);
    row("no title", u"Größe"_s, QString(), false);
}

/// The name of the standard stands in a file that holds it.
void tst_MvPdfStructure::promisesWhatItKeeps()
{
    const auto [text, title, isForEverybody] = MvRows<QString, QString, bool>::current();
    MvPageSource source = page([text = text](QPainter &painter) { paintLine(painter, 200, text); });
    source.title = title;
    const QByteArray metadata = outputOf(u"pdfinfo"_s, {u"-meta"_s, write(source)});
    QVERIFY(metadata.contains("dc:title"));
    QCOMPARE(metadata.contains("pdfua/ns/id/\">1<"), isForEverybody);
}

void tst_MvPdfStructure::sheetsAreRead_data()
{
    using Sheets = MvSheetSettings;
    const MvRows<MvSheetSettings, QList<int>> row; // sheets, months
    const QSizeF a4(2100, 2970);
    row("tiles", Sheets{Sheets::Kind::Tiles, {1050, 1480}}, QList<int>{1, 2, 3, 4});
    row("two on a sheet", Sheets{Sheets::Kind::Several, a4}, QList<int>{1, 2, 3, 4});
    row("stacks", Sheets{Sheets::Kind::Several, a4, 50, 0, 2, true}, QList<int>{1, 3, 2, 4});
}

/// Each page once, in the order of the sheets, as it would be read by itself.
void tst_MvPdfStructure::sheetsAreRead()
{
    const auto [sheets, months] = MvRows<MvSheetSettings, QList<int>>::current();
    MvProjectFixture::writeFoto(path(u"foto.png"_s), {300, 200});
    MvCalendarDocument calendar = MvProjectFixture::document(u"MONTH_GRID_CLASSIC"_s, 4);
    calendar.setTitle(u"Kalender"_s);
    for (int month = 0; month < 4; ++month)
        MvProjectFixture::setFoto(calendar, month, MvFotoFrame(path(u"foto.png"_s), MvFotoFrame::Placement::Top));
    const MvPageSource source = calendar.pageSource();
    const Structure pages(write(source));
    const QString file = write(source, sheets);
    const Structure structure(file);
    QCOMPARE(structure.problems.join(u'\n'), QString());
    QStringList names;
    for (const int month : months)
        names.append(source.names[month - 1]);
    QCOMPARE(structure.texts("/T"), names);
    QCOMPARE(structure.types.count(u"TD"_s), pages.types.count(u"TD"_s));
    QCOMPARE(QSet<QString>(structure.boxes.begin(), structure.boxes.end()).size(),
             sheets.kind == MvSheetSettings::Kind::Several ? 2 : 1); // two places on a sheet
    QVERIFY(outputOf(u"pdfinfo"_s, {u"-meta"_s, file}).contains("pdfua/ns/id/\">1<"));
}

MV_TEST_MAIN(tst_MvPdfStructure)
#include "tst_MvPdfStructure.moc"
