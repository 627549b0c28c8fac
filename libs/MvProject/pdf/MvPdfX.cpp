// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPdfX.h"

#include "MvProject/MvPdfFile.h"
#include "MvProject/MvPdfSyntax.h"
#include "MvProject/MvPressProfile.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

const QString version = u"PDF/X-4"_s;

} // namespace

int MvPdfX::addOutputIntent(MvPdfFile &file, const MvPressProfile &profile)
{
    const int content = file.addStream("/N 4/Alternate/DeviceCMYK", profile.content());
    const QByteArray registry =
        profile.isRegistered() ? "/RegistryName" + MvPdfSyntax::text(u"http://www.color.org"_s) : QByteArray();
    return file.add("<</Type/OutputIntent/S/GTS_PDFX/OutputConditionIdentifier" +
                    MvPdfSyntax::text(profile.condition()) + "/Info" + MvPdfSyntax::text(profile.description()) +
                    registry + "/DestOutputProfile " + MvPdfSyntax::reference(content) + ">>");
}

QByteArray MvPdfX::information(const QDateTime &date)
{
    return "/ModDate" + MvPdfSyntax::string(date.toString(u"'D:'yyyyMMddHHmmss'Z'"_s).toLatin1()) +
           "/Producer(MvCalendar)/Trapped/False/GTS_PDFXVersion" + MvPdfSyntax::text(version);
}

QString MvPdfX::metadata(const QDateTime &date, const QByteArray &hashOfPages)
{
    const QUuid space(0x6d766361, 0x6c65, 0x6e64, 0x61, 0x72, 0x70, 0x72, 0x65, 0x73, 0x73, 0x00);
    const QByteArray content = hashOfPages + date.toString(Qt::ISODate).toLatin1();
    return u"<rdf:Description rdf:about=\"\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\" "
           "xmlns:pdfxid=\"http://www.npes.org/pdfx/ns/id/\" xmlns:xmpMM=\"http://ns.adobe.com/xap/1.0/mm/\" "
           "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"><pdfxid:GTS_PDFXVersion>%1</pdfxid:GTS_PDFXVersion>"
           "<pdf:Producer>MvCalendar</pdf:Producer><pdf:Trapped>False</pdf:Trapped><xmp:ModifyDate>%2</xmp:ModifyDate>"
           "<xmp:MetadataDate>%2</xmp:MetadataDate><xmpMM:DocumentID>uuid:%3</xmpMM:DocumentID>"
           "<xmpMM:RenditionClass>default</xmpMM:RenditionClass><xmpMM:VersionID>1</xmpMM:VersionID>"
           "</rdf:Description>"_s.arg(version, date.toString(Qt::ISODate),
                                      QUuid::createUuidV5(space, content).toString(QUuid::WithoutBraces));
}
