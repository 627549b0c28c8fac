#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include "MvCore/MvDirectoryConfig.h"

#include <QRandomGenerator>

template class MvSingleton<MvCalendariumLayoutSchemaRegistry>;

using namespace Qt::StringLiterals;

namespace {

const QString userFileName = u"000-user-calendar-layout.xml"_s;

MvUserSchemaFile::Area areaOf(const MvCalendariumLayoutSchema &schema)
{
    QDomDocument document;
    QDomElement area = document.createElement(u"calendararea"_s);
    document.appendChild(area);
    schema.write(area);
    return {schema.ID().toString(), area};
}

std::optional<MvUserSchemaFile::Area> readArea(const QDomElement &element)
{
    const MvCalendariumLayoutSchema schema(element);
    return schema.isValid() && schema.isUserSchema() ? std::optional(areaOf(schema)) : std::nullopt;
}

void giveFreshId(MvUserSchemaFile::Area &area)
{
    const MvCalendariumLayoutSchemaID id(u"USER_"_s + QString::number(QRandomGenerator::system()->generate()));
    id.write(area.element);
    area.id = id.toString();
}

} // namespace

MvCalendariumLayoutSchemaRegistry::MvCalendariumLayoutSchemaRegistry()
    : m_userFile(userFileName, u"calendarlayout"_s, readArea)
{
    m_schemata.read(m_userFile.read());
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
    return MvDirectoryConfig::instance().programDataFile(userFileName).filePath();
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
