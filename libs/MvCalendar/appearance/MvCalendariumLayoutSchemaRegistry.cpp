// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumLayoutSchemaRegistry.h"

#include "MvCalendar/MvLayoutCatalogue.h"
#include "MvCalendar/MvSchemaFileCheck.h"
#include "MvCalendar/MvShippedSchemata.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvModelBase/MvFontSupply.h"

#include <QRandomGenerator>

#include <algorithm>

template class MvSingleton<MvCalendariumLayoutSchemaRegistry>;

using namespace Qt::StringLiterals;

namespace {

const QString areaTag = u"calendararea"_s;
const QString defaultId = u"MONTH_GRID_CLASSIC"_s;

MvShippedSchemata shippedSchemata()
{
    return {u"schemas/calendar_layout.xml"_s, u"layoutschema"_s};
}

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
    MvFontSupply::start(); // also for programs that render without having set anything up
    const QDomElement own = m_userFile.read();
    if (own.firstChildElement(areaTag).isNull())
        return;
    read(m_known, own, m_userFile.file());
    readShipped();
}

MvCalendariumLayoutSchemaRegistry::Known &MvCalendariumLayoutSchemaRegistry::known() const
{
    const QMutexLocker lock(&m_mutex);
    if (!m_known.isComplete)
        readShipped();
    return m_known;
}

void MvCalendariumLayoutSchemaRegistry::readShipped() const
{
    const MvShippedSchemata shipped = shippedSchemata();
    read(m_known, shipped.all(), shipped.file());
    m_known.isComplete = true;
    m_single.clear();
}

void MvCalendariumLayoutSchemaRegistry::read(Known &known, const QDomElement &element, const QFileInfo &file)
{
    const MvSchemaFileCheck check(file);
    for (QDomElement area = element.firstChildElement(areaTag); !area.isNull();
         area = area.nextSiblingElement(areaTag)) {
        const MvCalendariumLayoutSchema schema(area);
        if (!schema.isValid() || !check.checkLayout(area))
            continue;
        const QString id = schema.ID().toString();
        if (known.byId.contains(id)) {
            known.schemata.removeIf(
                [&id](const MvCalendariumLayoutSchema &other) { return other.ID().toString() == id; });
            known.places.value(id).warn(
                tr("Das Layout „%1“ bleibt weg, denn seine Kennung %2 hat auch „%3“. Eine andere, "
                   "die mit USER_ beginnt, bringt es zurück.")
                    .arg(known.byId.value(id).name(), id, schema.name()));
        }
        known.schemata.append(schema);
        known.byId.insert(id, schema);
        known.places.insert(id, MvSchemaPlace(file, area));
    }
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::findSchema(const MvCalendariumLayoutSchemaID &id) const
{
    const QString key = id.toString();
    {
        const QMutexLocker lock(&m_mutex);
        if (!m_known.isComplete && !m_single.contains(key)) {
            if (const QDomElement area = shippedSchemata().one(key); !area.isNull())
                m_single.insert(key, MvCalendariumLayoutSchema(area));
        }
        if (m_single.contains(key))
            return m_single.value(key);
    }
    return known().byId.value(key);
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::schema(int index) const
{
    return known().schemata.value(index);
}

MvCalendariumLayoutSchema MvCalendariumLayoutSchemaRegistry::defaultSchema() const
{
    const MvCalendariumLayoutSchema usual = known().byId.value(defaultId);
    if (usual.isValid())
        return usual;
    const auto shipped = std::find_if(known().schemata.cbegin(), known().schemata.cend(),
                                      [](const auto &schema) { return !schema.isUserSchema(); });
    return shipped != known().schemata.cend() ? *shipped : known().schemata.value(0);
}

QStringList MvCalendariumLayoutSchemaRegistry::schemaNames() const
{
    QStringList names;
    for (const MvCalendariumLayoutSchema &schema : known().schemata)
        names.append(schema.name());
    return names;
}

bool MvCalendariumLayoutSchemaRegistry::recordUserSchema(const MvCalendariumLayoutSchema &schema)
{
    if (!schema.isUserSchema())
        return false;
    known().schemata.removeIf([&schema](const MvCalendariumLayoutSchema &each) { return each.ID() == schema.ID(); });
    known().schemata.append(schema);
    known().byId.insert(schema.ID().toString(), schema);
    return true;
}

QString MvCalendariumLayoutSchemaRegistry::userSchemaFile()
{
    return MvDirectoryConfig::instance().programDataFile(MvLayoutCatalogue::userFileName()).filePath();
}

bool MvCalendariumLayoutSchemaRegistry::saveUserSchemaFile()
{
    const MvCalendariumLayoutSchemaList users = known().schemata.userSchemaList();
    MvUserSchemaFile::Areas mine;
    for (const MvCalendariumLayoutSchema &schema : users)
        mine.append(areaOf(schema));
    const MvUserSchemaFile::Saved saved = m_userFile.save(mine, giveFreshId);
    m_saveError = saved.error;
    if (!saved.isOk())
        return false;
    for (const MvUserSchemaFile::Area &area : std::as_const(mine)) {
        if (!saved.areas.contains(area)) {
            known().schemata.removeIf(
                [&area](const MvCalendariumLayoutSchema &each) { return each.ID().toString() == area.id; });
            known().byId.remove(area.id);
        }
    }
    for (const MvUserSchemaFile::Area &area : saved.areas) {
        if (!mine.contains(area))
            recordUserSchema(MvCalendariumLayoutSchema(area.element));
    }
    return true;
}
