// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvShippedSchemata.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvXML/MvXMLLoader.h"

using namespace Qt::StringLiterals;

MvShippedSchemata::MvShippedSchemata(const QString &file, const QString &idAttribute)
    : m_file(MvDirectoryConfig::instance().resource(file))
    , m_idAttribute(idAttribute.toUtf8())
{}

QDomElement MvShippedSchemata::all() const
{
    return MvXMLLoader::loadDocumentElement(m_file);
}

QDomElement MvShippedSchemata::one(const QString &id) const
{
    if (!MvXMLFile::isEmbedded(m_file))
        return {};
    const QByteArray bytes = MvXMLFile::loadBytes(m_file);
    const qsizetype named = bytes.indexOf(' ' + m_idAttribute + "=\"" + id.toUtf8() + '"');
    const QByteArray last("</calendararea>");
    const qsizetype end = named < 0 ? named : bytes.indexOf(last, named);
    if (end < 0)
        return {};
    const qsizetype start = bytes.lastIndexOf("<calendararea", named);
    QDomDocument document;
    document.setContent(bytes.sliced(start, end + last.size() - start));
    const QDomElement area = document.documentElement();
    return area.attribute(QString::fromUtf8(m_idAttribute)) == id ? area : QDomElement(); // ids come from files, too
}
