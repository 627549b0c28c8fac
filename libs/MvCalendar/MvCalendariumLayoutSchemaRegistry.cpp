#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvXML/MvXMLBuilder.h"

template class MvSingleton<MvCalendariumLayoutSchemaRegistry>;

using namespace Qt::StringLiterals;

MvCalendariumLayoutSchemaRegistry::MvCalendariumLayoutSchemaRegistry()
{
    m_schemata.read(QFileInfo(userSchemaFile()));
    m_schemata.read(MvDirectoryConfig::instance().resource(u"schemas/calendar_layout.xml"_s));
    for (const MvCalendariumLayoutSchema &schema : std::as_const(m_schemata))
        m_byId.insert(schema.ID().toString(), schema);
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::findSchema(const MvCalendariumLayoutSchemaID &id) const
{
    return m_byId.value(id.toString());
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::schema(int index) const
{
    return m_schemata.value(index);
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
    return MvDirectoryConfig::instance().programDataFile(u"000-user-calendar-layout.xml"_s).filePath();
}

bool MvCalendariumLayoutSchemaRegistry::saveUserSchemaFile() const
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendarlayout"_s);
    m_schemata.userSchemaList().write(root);
    return MvXMLBuilder::saveUTF8(document, QFileInfo(userSchemaFile()));
}
