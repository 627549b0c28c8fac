// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfDocument.h"

#include "MvPaint/MvPaintRecording.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProductBase/MvCalendarWordsRegistry.h"
#include "MvProject/MvPdfMadeUpBleed.h"
#include "MvProject/MvPdfMarks.h"
#include "MvProject/MvPdfPageElements.h"
#include "MvProject/MvPdfPagePainter.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPdfX.h"
#include "MvProject/MvPressColors.h"
#include "MvProject/MvPressSheet.h"

#include <QColorSpace>

using namespace Qt::StringLiterals;

namespace {

/// Of the coordinates to a point: whole ones are right to 0.002 mm.
constexpr double unitsPerPoint = 100.0;
constexpr double pointsPerInch = 72.0;
constexpr double unitsPerTenthMillimetre = MvPdfDocument::pointsPerTenthMillimetre * unitsPerPoint;

/// From the page's system to that of the PDF.
QByteArray box(const QRectF &rect, const QRectF &media)
{
    constexpr double scale = MvPdfDocument::pointsPerTenthMillimetre;
    QByteArray numbers;
    MvPdfSyntax::append(numbers, QPointF(rect.left() - media.left(), media.bottom() - rect.bottom()) * scale, 4);
    MvPdfSyntax::append(numbers, QPointF(rect.right() - media.left(), media.bottom() - rect.top()) * scale, 4);
    return '[' + numbers + ']';
}

QString element(const QString &pattern, const QString &text)
{
    return text.isEmpty() ? QString() : pattern.arg(text.toHtmlEscaped());
}

} // namespace

QDateTime MvPdfDocument::dateOfFile()
{
    bool isGiven = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    const QDateTime date = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return isGiven && date.isValid() ? date : QDateTime::currentDateTimeUtc();
}

MvPdfDocument::MvPdfDocument(const Description &description, const MvPressSettings &press)
    : m_description{MvPrintableText::onOneLine(description.title), MvPrintableText::onOneLine(description.author),
                    description.language}
    , m_press(press)
    , m_pressColors(press.isForPress() ? new MvPressColors(press.profile) : nullptr)
    , m_pageTree(m_file.reserve())
{
    if (press.isForPress())
        m_file.setLeastVersion("1.6");
}

MvPdfDocument::~MvPdfDocument() = default;

void MvPdfDocument::addPage(const Page &page, const MvPaintRecording &recording, double dotsPerInch)
{
    const double scale = pointsPerInch * unitsPerPoint / dotsPerInch;
    const QSizeF dots = page.media.size() * (unitsPerTenthMillimetre / scale);
    const MvPressSheet sheet(m_press, page.trim, page.media, page.binding);
    const QRectF paper = m_press.isForPress() ? sheet.sheet() : page.media;
    const double above = paper.bottom() - page.media.bottom(); // of the PDF's origin
    const QTransform toUnits = QTransform::fromScale(scale, -scale) *
                               QTransform::fromTranslate((page.media.left() - paper.left()) * unitsPerTenthMillimetre,
                                                         (page.media.height() + above) * unitsPerTenthMillimetre);
    MvPdfPageParts parts(recording.data());
    MvPdfPagePainter painter({m_file, m_fonts, m_images, m_pressColors.get()}, toUnits, QRectF(QPointF(), dots), parts);
    if (m_press.isForPress())
        painter.setContent(startOfSheet(sheet, page, recording, toUnits));
    painter.paint(recording);
    const MvPdfContent painted =
        m_press.isForPress() ? endOfSheet(sheet, page, painter, recording, toUnits) : MvPdfContent(painter.content());
    const QString name = MvPrintableText::onOneLine(page.name);
    m_pages.append(addPageObject(page, painted, parts));
    if (!name.isEmpty())
        m_bookmarks.append({name, m_pages.last()});
}

/// With its structure.
int MvPdfDocument::addPageObject(const Page &page, const MvPdfContent &painted, const MvPdfPageParts &parts)
{
    const MvPressSheet sheet(m_press, page.trim, page.media, page.binding);
    const QRectF paper = m_press.isForPress() ? sheet.sheet() : page.media;
    const QRectF bleed = m_press.isForPress() ? sheet.bleed() : page.media;
    const QString photo = MvCalendarWordsRegistry::instance().photo(MvLocale(m_description.language));
    const QString name = MvPrintableText::onOneLine(page.name);
    const int object = m_file.reserve();
    const int inStructure =
        m_structure.addPage(object, MvPdfPageElements(parts, unitsPerPoint, photo).section(name), parts.contentCount());

    const QByteArray unit = MvPdfSyntax::number(1.0 / unitsPerPoint);
    const QByteArray commands = unit + " 0 0 " + unit + " 0 0 cm\n" + painted.bytes();
    if (m_press.isForPress())
        m_hash.addData(commands);
    const int content = m_file.addStream({}, commands);
    const QByteArray media = box(paper, paper);
    const QByteArray colors = m_press.isForPress() ? "/DeviceCMYK" : "/DeviceRGB";
    m_file.set(object, "<</Type/Page/Parent " + MvPdfSyntax::reference(m_pageTree) + "/MediaBox" + media + "/CropBox" +
                           media + "/BleedBox" + box(bleed, paper) + "/TrimBox" + box(page.trim, paper) +
                           (painted.isTranslucent() ? "/Group<</S/Transparency/CS" + colors + ">>" : "") +
                           "/Contents " + MvPdfSyntax::reference(content) + "/Resources" + painted.resources() +
                           "/Tabs/S/StructParents " + QByteArray::number(inStructure) + ">>");
    return object;
}

/// From the page's system to the units of its sheet.
QTransform MvPdfDocument::unitsOn(const MvPressSheet &sheet)
{
    constexpr double scale = unitsPerTenthMillimetre;
    return {scale, 0.0, 0.0, -scale, -sheet.sheet().left() * scale, sheet.sheet().bottom() * scale};
}

/// What lies beneath the page: the bleed that it lacks; then everything is cut to what is painted of it.
MvPdfContent MvPdfDocument::startOfSheet(const MvPressSheet &sheet, const Page &page, const MvPaintRecording &recording,
                                         const QTransform &dotsToUnits)
{
    MvPdfContent content(m_pressColors.get());
    if (sheet.missingBleed() > 0.0) {
        madeUpBleed(sheet).paint(content, recording, dotsToUnits);
    }
    content.save();
    content.addRect(unitsOn(sheet).mapRect(page.media));
    content.finishPath("W n");
    return content;
}

MvPdfMadeUpBleed MvPdfDocument::madeUpBleed(const MvPressSheet &sheet)
{
    return {{m_file, m_fonts, m_images, m_pressColors.get()}, sheet, m_press.bleedKind, unitsOn(sheet)};
}

MvPdfContent MvPdfDocument::endOfSheet(const MvPressSheet &sheet, const Page &page, const MvPdfPagePainter &painter,
                                       const MvPaintRecording &recording, const QTransform &dotsToUnits)
{
    const QTransform toUnits = unitsOn(sheet);
    const MvPdfPagePainter::Ink ink = painter.mostInk();
    m_inks.append({int(m_pages.size()), ink.percent, toUnits.inverted().map(ink.place)});
    MvPdfContent content = painter.content();
    if (sheet.missingBleed() <= 0.0 && sheet.bleed() != sheet.trim())
        madeUpBleed(sheet).paintBesidePictures(content, recording, dotsToUnits);
    content.restore();
    content.append("/Artifact BMC\n");
    MvPdfMarks::paint(content, sheet, toUnits, m_file);
    MvPdfMarks::paintSlug(content, sheet, page.slug, toUnits, m_fonts);
    content.append("EMC\n");
    return content;
}

int MvPdfDocument::addBookmarks()
{
    const int root = m_file.reserve();
    QList<int> items;
    for (qsizetype i = 0; i < m_bookmarks.size(); ++i)
        items.append(m_file.reserve());
    for (qsizetype i = 0; i < items.size(); ++i) {
        QByteArray value = "<</Title" + MvPdfSyntax::text(m_bookmarks[i].name) + "/Parent " +
                           MvPdfSyntax::reference(root) + "/Dest[" + MvPdfSyntax::reference(m_bookmarks[i].page) +
                           "/Fit]";
        if (i > 0)
            value += "/Prev " + MvPdfSyntax::reference(items[i - 1]);
        if (i + 1 < items.size())
            value += "/Next " + MvPdfSyntax::reference(items[i + 1]);
        m_file.set(items[i], value + ">>");
    }
    m_file.set(root, "<</Type/Outlines/First " + MvPdfSyntax::reference(items.first()) + "/Last " +
                         MvPdfSyntax::reference(items.last()) + "/Count " + QByteArray::number(items.size()) + ">>");
    return root;
}

/// Declares that the file's colours are sRGB, or which press they are for.
int MvPdfDocument::addOutputIntent()
{
    if (m_press.isForPress())
        return MvPdfX::addOutputIntent(m_file, m_press.profile);
    const int profile = m_file.addStream("/N 3/Alternate/DeviceRGB", QColorSpace(QColorSpace::SRgb).iccProfile());
    return m_file.add("<</Type/OutputIntent/S/GTS_PDFA1/OutputConditionIdentifier(sRGB IEC61966-2.1)"
                      "/DestOutputProfile " +
                      MvPdfSyntax::reference(profile) + ">>");
}

/// Whether all can be read aloud: each letter is known, and in which language (ISO 14289-1).
bool MvPdfDocument::isForEverybody() const
{
    return !m_description.title.isEmpty() && !m_description.language.isEmpty() && m_fonts.areLettersKnown();
}

/// For programs that sort and search files; the same is said in the older form beside it.
int MvPdfDocument::addMetadata()
{
    const QDateTime date = dateOfFile();
    const QByteArray author = m_description.author.isEmpty() ? "" : "/Author" + MvPdfSyntax::text(m_description.author);
    m_file.setInformation("<</Title" + MvPdfSyntax::text(m_description.title) + author +
                          "/Creator(MvCalendar)/CreationDate" +
                          MvPdfSyntax::string(date.toString(u"'D:'yyyyMMddHHmmss'Z'"_s).toLatin1()) +
                          (m_press.isForPress() ? MvPdfX::information(date) : QByteArray()) + ">>");
    const QString packet =
        u"<?xpacket begin=\"\ufeff\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
        "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"><dc:format>application/pdf</dc:format>"
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">"_s +
        m_description.title.toHtmlEscaped() + u"</rdf:li></rdf:Alt></dc:title>"_s +
        element(u"<dc:creator><rdf:Seq><rdf:li>%1</rdf:li></rdf:Seq></dc:creator>"_s, m_description.author) +
        (isForEverybody() ? u"<pdfuaid:part xmlns:pdfuaid=\"http://www.aiim.org/pdfua/ns/id/\">1</pdfuaid:part>"_s
                          : QString()) +
        element(u"<dc:language><rdf:Bag><rdf:li>%1</rdf:li></rdf:Bag></dc:language>"_s, m_description.language) +
        u"<xmp:CreatorTool>MvCalendar</xmp:CreatorTool><xmp:CreateDate>"_s + date.toString(Qt::ISODate) +
        u"</xmp:CreateDate></rdf:Description>"_s +
        (m_press.isForPress() ? MvPdfX::metadata(date, m_hash.result()) : QString()) +
        u"</rdf:RDF></x:xmpmeta>\n<?xpacket end=\"w\"?>"_s;
    return m_file.addStream("/Type/Metadata/Subtype/XML", packet.toUtf8());
}

MvOutcome MvPdfDocument::write(QFile &file)
{
    m_fonts.finish();
    QByteArray kids;
    for (const int page : std::as_const(m_pages))
        kids += MvPdfSyntax::reference(page) + ' ';
    m_file.set(m_pageTree, "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(m_pages.size()) + ">>");
    const QByteArray bookmarks = m_bookmarks.isEmpty() ? "" : "/Outlines " + MvPdfSyntax::reference(addBookmarks());
    const QByteArray structure = m_structure.finish();
    // a calendar is printed in its true size
    m_file.setCatalog("<</Type/Catalog/Pages " + MvPdfSyntax::reference(m_pageTree) + bookmarks + "/OutputIntents[" +
                      MvPdfSyntax::reference(addOutputIntent()) + "]/Metadata " +
                      MvPdfSyntax::reference(addMetadata()) + structure + "/Lang" +
                      MvPdfSyntax::text(m_description.language) +
                      "/ViewerPreferences<</DisplayDocTitle true/PrintScaling/None>>>>");
    return m_file.write(file);
}
