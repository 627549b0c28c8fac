#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvGeneralSettings.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDebug>

template class MvSingleton<MvCalendariumColorSchemaRegistry>;

using namespace Qt::StringLiterals;

namespace {
const QString areaTag = u"calendararea"_s;

MvUserSchemaFile::Area areaOf(const MvCalendariumColorSchema &schema, const MvCalendariumColorSchemaID &id,
                              const MvLocalizedText &name)
{
    QDomDocument document;
    QDomElement area = document.createElement(areaTag);
    document.appendChild(area);
    schema.write(area, id);
    name.write(area, u"name"_s);
    return {id.toString(), area};
}

std::optional<MvUserSchemaFile::Area> readArea(const QDomElement &element)
{
    MvCalendariumColorSchemaID id;
    id.read(element);
    if (!id.isUserSchema())
        return std::nullopt;
    MvLocalizedText name;
    name.read(element, u"name"_s);
    return areaOf(MvCalendariumColorSchema(element), id, name);
}

} // namespace

MvCalendariumColorSchemaRegistry::MvCalendariumColorSchemaRegistry()
    : m_userFile(userSchemaFileName(), u"calendarschema"_s, readArea)
{}

std::unique_ptr<MvCalendariumColorSchemaRegistry> MvCalendariumColorSchemaRegistry::createTemporaryRegistry()
{
    return std::make_unique<MvCalendariumColorSchemaRegistry>();
}

void MvCalendariumColorSchemaRegistry::setupInstance()
{
    MvCalendariumColorSchema::setIdLookup([this](const MvCalendariumColorSchema &schema) { return id(schema); });
    read(m_userFile.read(), SCHEMA_VISIBILITY_OFFERED);
    readShippedSchemata();
}

void MvCalendariumColorSchemaRegistry::readShippedSchemata()
{
    read(MvDirectoryConfig::instance().resource(u"schemas/calendar_schema.xml"_s), SCHEMA_VISIBILITY_OFFERED);
}

void MvCalendariumColorSchemaRegistry::read(const QFileInfo &file, const MvCalendariumColorSchemaVisibility &visibility)
{
    read(MvXMLLoader::loadDocumentElement(file), visibility);
}

void MvCalendariumColorSchemaRegistry::read(const QDomElement &element,
                                            const MvCalendariumColorSchemaVisibility &visibility)
{
    const QMutexLocker lock(&m_mutex);
    for (QDomElement area = element.firstChildElement(areaTag); !area.isNull(); area = area.nextSiblingElement(areaTag))
        recordRead(area, visibility);
}

void MvCalendariumColorSchemaRegistry::recordRead(const QDomElement &area,
                                                  const MvCalendariumColorSchemaVisibility &visibility)
{
    MvCalendariumColorSchemaID id;
    id.read(area);
    if (!id.isValid())
        return;
    const MvCalendariumColorSchema schema(area);
    if (!m_schemata.insertSchema(schema)) {
        QStringList known;
        for (const MvCalendariumColorSchemaID &knownId : m_ids.values(schema))
            known.prepend(knownId.toString());
        qWarning().noquote() << u"Duplicate schema found, aliassed %1 by %2"_s.arg(known.join(u", "_s), id.toString());
    }
    recordSchemaId(schema, id);
    MvLocalizedText name;
    name.read(area, u"name"_s);
    if (!name.isEmpty())
        m_names.insert(id, name);
    setVisibility(schema, m_visibilities.value(schema) | visibility);
}

MvCalendariumColorSchema MvCalendariumColorSchemaRegistry::findSchema(const MvCalendariumColorSchemaID &id) const
{
    return m_byId.value(id);
}

bool MvCalendariumColorSchemaRegistry::contains(const MvCalendariumColorSchemaID &id) const
{
    return m_byId.contains(id);
}

MvCalendariumColorSchemaID MvCalendariumColorSchemaRegistry::id(const MvCalendariumColorSchema &schema) const
{
    const QList<MvCalendariumColorSchemaID> ids = m_ids.values(schema);
    return ids.isEmpty() ? MvCalendariumColorSchemaID() : ids.constLast();
}

QList<MvCalendariumColorSchemaID> MvCalendariumColorSchemaRegistry::schemaIds() const
{
    QList<MvCalendariumColorSchemaID> ids;
    for (const MvCalendariumColorSchema &schema : m_schemata)
        ids.append(id(schema));
    return ids;
}

QString MvCalendariumColorSchemaRegistry::name(const MvCalendariumColorSchemaID &id) const
{
    const QString text = m_names.value(id).text();
    return text.isEmpty() ? id.toString() : text;
}

MvCalendariumColorSchemaList MvCalendariumColorSchemaRegistry::visibleSchemata() const
{
    MvCalendariumColorSchemaList visible;
    const QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    for (const MvCalendariumColorSchema &schema : filter(m_schemata, SCHEMA_VISIBILITY_OFFERED)) {
        if (!schema.deprecated() && !ignored.contains(id(schema).toString()))
            visible.append(schema);
    }
    return visible;
}

MvCalendariumColorSchemaList
MvCalendariumColorSchemaRegistry::filter(const MvCalendariumColorSchemaList &list,
                                         const MvCalendariumColorSchemaVisibility &visibility) const
{
    MvCalendariumColorSchemaList filtered;
    for (const MvCalendariumColorSchema &schema : list) {
        if (this->visibility(schema).hasAnyOf(visibility))
            filtered.append(schema);
    }
    return filtered;
}

MvCalendariumColorSchemaVisibility
MvCalendariumColorSchemaRegistry::visibility(const MvCalendariumColorSchema &schema) const
{
    return m_visibilities.value(schema, SCHEMA_VISIBILITY_UNKNOWN);
}

void MvCalendariumColorSchemaRegistry::setVisibility(const MvCalendariumColorSchema &schema,
                                                     const MvCalendariumColorSchemaVisibility &visibility)
{
    m_visibilities.insert(schema, visibility);
}

bool MvCalendariumColorSchemaRegistry::isRegistered(const MvCalendariumColorSchema &schema) const
{
    return m_ids.contains(schema);
}

bool MvCalendariumColorSchemaRegistry::isUserSchema(const MvCalendariumColorSchema &schema) const
{
    return id(schema).isUserSchema();
}

MvCalendariumColorSchemaID MvCalendariumColorSchemaRegistry::record(const MvCalendariumColorSchema &schema)
{
    return isRegistered(schema) ? id(schema) : recordSchemaUniquely(schema);
}

void MvCalendariumColorSchemaRegistry::recordSchemaId(const MvCalendariumColorSchema &schema,
                                                      const MvCalendariumColorSchemaID &id)
{
    const auto previous = m_byId.constFind(id);
    if (previous != m_byId.cend()) {
        if (*previous == schema)
            return;
        m_ids.remove(*previous, id);
    }
    m_byId.insert(id, schema);
    m_ids.insert(schema, id);
}

MvCalendariumColorSchemaID
MvCalendariumColorSchemaRegistry::recordSchemaUniquely(const MvCalendariumColorSchema &schema)
{
    const MvCalendariumColorSchemaID id = generateUniqueId();
    m_schemata.insertSchema(schema);
    recordSchemaId(schema, id);
    setVisibility(schema, m_visibilities.value(schema) | MvCalendariumColorSchemaVisibility(SCHEMA_VISIBILITY_OFFERED));
    return id;
}

MvCalendariumColorSchemaID MvCalendariumColorSchemaRegistry::generateUniqueId() const
{
    MvCalendariumColorSchemaID id = MvCalendariumColorSchemaID::create();
    while (contains(id))
        id = MvCalendariumColorSchemaID::create();
    return id;
}

bool MvCalendariumColorSchemaRegistry::checkUserSchemaAndRegister(const MvCalendariumColorSchema &schema)
{
    return schema.isValid() && record(schema).isValid();
}

void MvCalendariumColorSchemaRegistry::remove(const MvCalendariumColorSchema &schema)
{
    for (const MvCalendariumColorSchemaID &id : m_ids.values(schema)) {
        m_byId.remove(id);
        m_names.remove(id);
    }
    m_ids.remove(schema);
    m_visibilities.remove(schema);
    m_schemata.deleteSchema(schema);
}

bool MvCalendariumColorSchemaRegistry::isIgnoredSchema(const MvCalendariumColorSchemaID &id) const
{
    return MvGeneralSettings::instance().idsToIgnore().contains(id.toString());
}

void MvCalendariumColorSchemaRegistry::setIgnoreSchema(const MvCalendariumColorSchemaID &id)
{
    QStringList ids = MvGeneralSettings::instance().idsToIgnore();
    if (!id.isValid() || ids.contains(id.toString()))
        return;
    ids.append(id.toString());
    MvGeneralSettings::instance().setIDsToIgnore(ids);
}

void MvCalendariumColorSchemaRegistry::setIgnoreSchema(const MvCalendariumColorSchema &schema)
{
    setIgnoreSchema(id(schema));
}

void MvCalendariumColorSchemaRegistry::write(QDomElement &element, const MvCalendariumColorSchemaList &list) const
{
    for (const MvCalendariumColorSchema &schema : list) {
        const MvCalendariumColorSchemaID schemaId = id(schema);
        QDomElement area = MvXMLBuilder::buildDomElement(element, areaTag);
        schema.write(area, schemaId);
        m_names.value(schemaId).write(area, u"name"_s);
    }
}

MvUserSchemaFile::Areas MvCalendariumColorSchemaRegistry::userAreas() const
{
    MvUserSchemaFile::Areas areas;
    for (const MvCalendariumColorSchema &schema : m_schemata) {
        const QList<MvCalendariumColorSchemaID> ids = m_ids.values(schema);
        for (auto known = ids.crbegin(); known != ids.crend(); ++known) {
            if (known->isUserSchema())
                areas.append(areaOf(schema, *known, m_names.value(*known)));
        }
    }
    return areas;
}

bool MvCalendariumColorSchemaRegistry::saveSystemUserSchemata()
{
    const MvUserSchemaFile::Areas mine = userAreas();
    const MvUserSchemaFile::Saved saved = m_userFile.save(mine, [this](MvUserSchemaFile::Area &area) {
        const MvCalendariumColorSchemaID id = generateUniqueId();
        id.write(area.element);
        area.id = id.toString();
    });
    m_saveError = saved.error;
    if (saved.isOk())
        adopt(mine, saved.areas);
    return saved.isOk();
}

void MvCalendariumColorSchemaRegistry::adopt(const MvUserSchemaFile::Areas &mine, const MvUserSchemaFile::Areas &saved)
{
    const QMutexLocker lock(&m_mutex);
    for (const MvUserSchemaFile::Area &area : mine) {
        if (!saved.contains(area))
            forgetId(MvCalendariumColorSchemaID(area.id));
    }
    for (const MvUserSchemaFile::Area &area : saved) {
        if (!mine.contains(area))
            recordRead(area.element, SCHEMA_VISIBILITY_OFFERED);
    }
}

/// A schema without any id left is forgotten, too.
void MvCalendariumColorSchemaRegistry::forgetId(const MvCalendariumColorSchemaID &id)
{
    const MvCalendariumColorSchema schema = m_byId.value(id);
    if (m_ids.count(schema) <= 1) {
        remove(schema);
        return;
    }
    m_ids.remove(schema, id);
    m_byId.remove(id);
    m_names.remove(id);
}

QString MvCalendariumColorSchemaRegistry::userSchemaFileName()
{
    return u"000-user-calendar-schema.xml"_s;
}

QFileInfo MvCalendariumColorSchemaRegistry::systemUserSchemaFile()
{
    return MvDirectoryConfig::instance().programDataFile(userSchemaFileName());
}

void MvCalendariumColorSchemaRegistry::resetToFactoryDefaults()
{
    const QMutexLocker lock(&m_mutex);
    QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    ignored.removeIf([this](const QString &text) { return contains(MvCalendariumColorSchemaID(text)); });
    MvGeneralSettings::instance().setIDsToIgnore(ignored);
    clear();
    readShippedSchemata();
}

void MvCalendariumColorSchemaRegistry::clear()
{
    m_schemata.clear();
    m_ids.clear();
    m_byId.clear();
    m_names.clear();
    m_visibilities.clear();
}
