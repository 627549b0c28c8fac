// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfBoxes.h"

#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvPageSource.h"

#include <QColorSpace>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

using namespace Qt::StringLiterals;

namespace {

QPDFObjectHandle unicode(const QString &text)
{
    return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

/// From the page's system (tenths of a millimetre, downwards, origin at the trimmed corner) to that of the PDF.
QPDFObjectHandle box(const QRectF &rect, const QRectF &media)
{
    constexpr double scale = MvPdfBoxes::pointsPerTenthMillimetre;
    return QPDFObjectHandle::newFromRectangle(
        QPDFObjectHandle::Rectangle((rect.left() - media.left()) * scale, (media.bottom() - rect.bottom()) * scale,
                                    (rect.right() - media.left()) * scale, (media.bottom() - rect.top()) * scale));
}

void setBoxes(QPDFObjectHandle page, const MvPageFormat &format)
{
    const QRectF media = format.mediaRect();
    page.replaceKey("/MediaBox", box(media, media));
    page.replaceKey("/CropBox", box(media, media));
    page.replaceKey("/BleedBox", box(media, media));
    page.replaceKey("/TrimBox", box(format.trimRect(), media));
}

/// Declares that the file's colours are sRGB.
void setOutputIntent(QPDF &pdf)
{
    const QByteArray profile = QColorSpace(QColorSpace::SRgb).iccProfile();
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&pdf, profile.toStdString());
    stream.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(3));
    stream.getDict().replaceKey("/Alternate", QPDFObjectHandle::newName("/DeviceRGB"));

    QPDFObjectHandle intent = QPDFObjectHandle::newDictionary();
    intent.replaceKey("/Type", QPDFObjectHandle::newName("/OutputIntent"));
    intent.replaceKey("/S", QPDFObjectHandle::newName("/GTS_PDFA1"));
    intent.replaceKey("/OutputConditionIdentifier", QPDFObjectHandle::newString("sRGB IEC61966-2.1"));
    intent.replaceKey("/DestOutputProfile", stream);
    QPDFObjectHandle intents = QPDFObjectHandle::newArray();
    intents.appendItem(intent);
    pdf.getRoot().replaceKey("/OutputIntents", intents);
}

/// The date for reproducible builds (SOURCE_DATE_EPOCH) in the form of a PDF; empty when it is not set.
QString reproducibleDate()
{
    bool isGiven = false;
    const qint64 seconds = qEnvironmentVariable("SOURCE_DATE_EPOCH").toLongLong(&isGiven);
    const QDateTime date = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return isGiven && date.isValid() ? date.toString(u"'D:'yyyyMMddHHmmss'Z'"_s) : QString();
}

void setMetadata(QPDF &pdf, const MvPageSource &source)
{
    QPDFObjectHandle info = pdf.getTrailer().getKey("/Info");
    if (info.isDictionary() && !source.author.isEmpty())
        info.replaceKey("/Author", unicode(source.author));
    if (const QString date = reproducibleDate(); info.isDictionary() && !date.isEmpty())
        info.replaceKey("/CreationDate", QPDFObjectHandle::newString(date.toStdString()));

    const QString author = source.author.isEmpty()
                               ? QString()
                               : u"<dc:creator><rdf:Seq><rdf:li>%1</rdf:li></rdf:Seq></dc:creator>"_s.arg(
                                     MvPrintableText::onOneLine(source.author).toHtmlEscaped());
    const QString packet =
        u"<?xpacket begin=\"\ufeff\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
        "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"><dc:format>application/pdf</dc:format>"
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>%2"
        "<xmp:CreatorTool>MvCalendar</xmp:CreatorTool></rdf:Description></rdf:RDF></x:xmpmeta>\n"
        "<?xpacket end=\"w\"?>"_s.arg(MvPrintableText::onOneLine(source.title).toHtmlEscaped(), author);
    QPDFObjectHandle stream = QPDFObjectHandle::newStream(&pdf, packet.toStdString());
    stream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    pdf.getRoot().replaceKey("/Metadata", stream);

    QPDFObjectHandle preferences = QPDFObjectHandle::newDictionary();
    preferences.replaceKey("/DisplayDocTitle", QPDFObjectHandle::newBool(true));
    preferences.replaceKey("/PrintScaling",
                           QPDFObjectHandle::newName("/None")); // a calendar is printed in its true size
    pdf.getRoot().replaceKey("/ViewerPreferences", preferences);
    pdf.getRoot().replaceKey("/Lang", QPDFObjectHandle::newString(source.language.toStdString()));
}

} // namespace

MvOutcome MvPdfBoxes::finish(const QString &rawFile, const MvPageSource &source,
                             const std::function<MvOutcome(const QByteArray &)> &take)
{
    try {
        QPDF pdf;
        pdf.setSuppressWarnings(true);
        pdf.setAttemptRecovery(false); // a cut file is an error, not something to guess at
        pdf.processFile(QFile::encodeName(rawFile).constData());
        const std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(pdf).getAllPages();
        if (pages.size() != size_t(source.pages.size()) || pdf.anyWarnings())
            return {QCoreApplication::translate("MvPdfBoxes", "Die Zwischendatei ist unvollständig"), {}};
        for (const QPDFPageObjectHelper &page : pages)
            setBoxes(page.getObjectHandle(), source.format);
        setOutputIntent(pdf);
        setMetadata(pdf, source);

        QPDFWriter writer(pdf);
        writer.setOutputMemory();
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setDeterministicID(true);
        writer.write();
        const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
        return take(
            QByteArray::fromRawData(reinterpret_cast<const char *>(buffer->getBuffer()), qsizetype(buffer->getSize())));
    } catch (const std::exception &exception) {
        return {QString::fromLocal8Bit(exception.what()), {}};
    }
}
