// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include "MvCalendar/MvLayoutCatalogue.h"
#include "MvCalendar/MvSchemaFileCheck.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvModelBase/MvShippedFonts.h"
#include "MvXML/MvXMLLoader.h"

#include <QRandomGenerator>

#include <algorithm>

template class MvSingleton<MvCalendariumLayoutSchemaRegistry>;

using namespace Qt::StringLiterals;

namespace {

const QString areaTag = u"calendararea"_s;
const QString defaultId = u"MONTH_GRID_CLASSIC"_s;

MvUserSchemaFile::Area areaOf(const MvCalendariumLayoutSchema &schema)
{
    QDomDocument document;
    QDomElement area = document.createElement(areaTag);
    document.appendChild(area);
    schema.write(area);
    return {schema.ID().toString(), area};
}

/// One that is left out would not be written back.
std::optional<MvUserSchemaFile::Area> readArea(const QDomElement &element)
{
    const MvCalendariumLayoutSchema schema(element);
    const bool isKept = schema.isValid() && schema.isUserSchema() && MvSchemaFileCheck::isKnownKind(element);
    return isKept ? std::optional(areaOf(schema)) : std::nullopt;
}

void giveFreshId(MvUserSchemaFile::Area &area)
{
    const MvCalendariumLayoutSchemaID id(u"USER_"_s + QString::number(QRandomGenerator::system()->generate()));
    id.write(area.element);
    area.id = id.toString();
}

} // namespace

MvCalendariumLayoutSchemaRegistry::MvCalendariumLayoutSchemaRegistry()
    : m_userFile(MvLayoutCatalogue::userFileName(), u"calendarlayout"_s, readArea)
{
    MvShippedFonts::registerAll(); // also for programs that render without having set anything up
    const QDomElement own = m_userFile.read();
    const QFileInfo shippedFile = MvDirectoryConfig::instance().resource(u"schemas/calendar_layout.xml"_s);
    const QDomElement shipped = MvXMLLoader::loadDocumentElement(shippedFile);
    read(own, m_userFile.file());
    read(shipped, shippedFile);
}

void MvCalendariumLayoutSchemaRegistry::read(const QDomElement &element, const QFileInfo &file)
{
    const MvSchemaFileCheck check(file);
    for (QDomElement area = element.firstChildElement(areaTag); !area.isNull();
         area = area.nextSiblingElement(areaTag)) {
        const MvCalendariumLayoutSchema schema(area);
        if (!schema.isValid() || !check.checkLayout(area))
            continue;
        const QString id = schema.ID().toString();
        if (m_byId.contains(id)) {
            m_schemata.removeIf([&id](const MvCalendariumLayoutSchema &known) { return known.ID().toString() == id; });
            m_places.value(id).warn(tr("Das Layout „%1“ bleibt weg, denn seine Kennung %2 hat auch „%3“. Eine andere, "
                                       "die mit USER_ beginnt, bringt es zurück.")
                                        .arg(m_byId.value(id).name(), id, schema.name()));
        }
        m_schemata.append(schema);
        m_byId.insert(id, schema);
        m_places.insert(id, MvSchemaPlace(file, area));
    }
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::findSchema(const MvCalendariumLayoutSchemaID &id) const
{
    return m_byId.value(id.toString());
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::schema(int index) const
{
    return m_schemata.value(index);
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::defaultSchema() const
{
    const MvCalendariumLayoutSchema usual = m_byId.value(defaultId);
    if (usual.isValid())
        return usual;
    const auto shipped =
        std::find_if(m_schemata.cbegin(), m_schemata.cend(), [](const auto &schema) { return !schema.isUserSchema(); });
    return shipped != m_schemata.cend() ? *shipped : m_schemata.value(0);
}

QStringList MvCalendariumLayoutSchemaRegistry::schemaNames() const
{
    QStringList names;
    for (const MvCalendariumLayoutSchema &schema : m_schemata)
        names.append(schema.name());
    return names;
}

bool MvCalendariumLayoutSchemaRegistry::recordUserSchema(const MvCalendariumLayoutSchema &schema)
{
    if (!schema.isUserSchema())
        return false;
    m_schemata.removeIf([&schema](const MvCalendariumLayoutSchema &known) { return known.ID() == schema.ID(); });
    m_schemata.append(schema);
    m_byId.insert(schema.ID().toString(), schema);
    return true;
}

QString MvCalendariumLayoutSchemaRegistry::userSchemaFile()
{
    return MvDirectoryConfig::instance().programDataFile(MvLayoutCatalogue::userFileName()).filePath();
}

bool MvCalendariumLayoutSchemaRegistry::saveUserSchemaFile()
{
    const MvCalendariumLayoutSchemaList users = m_schemata.userSchemaList();
    MvUserSchemaFile::Areas mine;
    for (const MvCalendariumLayoutSchema &schema : users)
        mine.append(areaOf(schema));
    const MvUserSchemaFile::Saved saved = m_userFile.save(mine, giveFreshId);
    m_saveError = saved.error;
    if (!saved.isOk())
        return false;
    for (const MvUserSchemaFile::Area &area : std::as_const(mine)) {
        if (!saved.areas.contains(area)) {
            m_schemata.removeIf(
                [&area](const MvCalendariumLayoutSchema &known) { return known.ID().toString() == area.id; });
            m_byId.remove(area.id);
        }
    }
    for (const MvUserSchemaFile::Area &area : saved.areas) {
        if (!mine.contains(area))
            recordUserSchema(MvCalendariumLayoutSchema(area.element));
    }
    return true;
}
