// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"

#include "MvCalendar/MvSchemaFileCheck.h"
#include "MvCalendar/MvShippedSchemata.h"
#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvGeneralSettings.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDebug>

#include <algorithm>

template class MvSingleton<MvCalendariumColorSchemaRegistry>;

using namespace Qt::StringLiterals;

namespace {
const QString areaTag = u"calendararea"_s;
const QString defaultId = u"PAPER_WHITE"_s;

MvShippedSchemata shippedSchemata()
{
    return {u"schemas/calendar_schema.xml"_s, u"colorschema"_s};
}

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
    const QDomElement own = m_userFile.read();
    readFrom(own, SCHEMA_VISIBILITY_OFFERED, m_userFile.file());
    if (own.firstChildElement(areaTag).isNull())
        m_isComplete = false;
    else
        readShippedSchemata();
}

void MvCalendariumColorSchemaRegistry::readShippedSchemata()
{
    const MvShippedSchemata shipped = shippedSchemata();
    readFrom(shipped.all(), SCHEMA_VISIBILITY_OFFERED, shipped.file());
}

MvCalendariumColorSchemaRegistry &MvCalendariumColorSchemaRegistry::complete()
{
    const std::lock_guard lock(m_mutex);
    if (!m_isComplete) {
        m_isComplete = true;
        m_single.clear();
        readShippedSchemata();
    }
    return *this;
}

void MvCalendariumColorSchemaRegistry::read(const QFileInfo &file, const MvCalendariumColorSchemaVisibility &visibility)
{
    readFrom(MvXMLLoader::loadDocumentElement(file), visibility, file);
}

void MvCalendariumColorSchemaRegistry::read(const QDomElement &element,
                                            const MvCalendariumColorSchemaVisibility &visibility)
{
    readFrom(element, visibility, QFileInfo());
}

void MvCalendariumColorSchemaRegistry::readFrom(const QDomElement &element,
                                                const MvCalendariumColorSchemaVisibility &visibility,
                                                const QFileInfo &file)
{
    const std::lock_guard lock(m_mutex);
    for (QDomElement area = element.firstChildElement(areaTag); !area.isNull(); area = area.nextSiblingElement(areaTag))
        recordRead(area, visibility, file);
}

void MvCalendariumColorSchemaRegistry::recordRead(const QDomElement &area,
                                                  const MvCalendariumColorSchemaVisibility &visibility,
                                                  const QFileInfo &file)
{
    MvCalendariumColorSchemaID id;
    id.read(area);
    if (!id.isValid())
        return;
    MvSchemaFileCheck(file).checkColors(area);
    const MvCalendariumColorSchema schema(area);
    if (known().schemata.contains(schema)) {
        qWarning().noquote() << u"Duplicate schema found, aliassed %1 by %2"_s.arg(idTexts(schema).join(u", "_s),
                                                                                   id.toString());
    }
    MvLocalizedText name;
    name.read(area, u"name"_s);
    enter(schema, id, name, MvSchemaPlace(file, area));
    setVisibility(schema, known().visibilities.value(schema) | visibility);
}

void MvCalendariumColorSchemaRegistry::enter(const MvCalendariumColorSchema &schema,
                                             const MvCalendariumColorSchemaID &id, const MvLocalizedText &name,
                                             const MvSchemaPlace &place)
{
    known().schemata.insertSchema(schema);
    const bool isNew = !known().byId.contains(id);
    if (isNew || !(known().byId.value(id) == schema)) {
        if (!isNew)
            takeFromOther(id, name);
        known().byId.insert(id, schema);
        known().ids.insert(schema, id);
    }
    if (!name.isEmpty())
        known().names.insert(id, name);
    known().places.insert(id, place);
}

/// The id goes to a schema with the given name. The one that had it is forgotten when it has no other.
void MvCalendariumColorSchemaRegistry::takeFromOther(const MvCalendariumColorSchemaID &id,
                                                     const MvLocalizedText &winner)
{
    const MvCalendariumColorSchema loser = known().byId.value(id);
    const QString loserName = name(id);
    known().ids.remove(loser, id);
    known().names.remove(id);
    const MvSchemaPlace place = known().places.take(id);
    if (known().ids.contains(loser))
        return;
    known().visibilities.remove(loser);
    known().schemata.deleteSchema(loser);
    place.warn(tr("Das Farbschema „%1“ bleibt weg, denn seine Kennung %2 hat auch „%3“. Eine andere, die mit USER_ "
                  "beginnt, bringt es zurück.")
                   .arg(loserName, id.toString(), winner.isEmpty() ? id.toString() : winner.text()));
}

MvCalendariumColorSchema MvCalendariumColorSchemaRegistry::findSchema(const MvCalendariumColorSchemaID &id) const
{
    {
        const std::lock_guard lock(m_mutex);
        if (!m_isComplete && !m_single.contains(id)) {
            if (const QDomElement area = shippedSchemata().one(id.toString()); !area.isNull())
                m_single.insert(id, MvCalendariumColorSchema(area));
        }
        if (m_single.contains(id))
            return m_single.value(id);
    }
    return known().byId.value(id);
}

bool MvCalendariumColorSchemaRegistry::contains(const MvCalendariumColorSchemaID &id) const
{
    return known().byId.contains(id);
}

MvCalendariumColorSchemaID MvCalendariumColorSchemaRegistry::id(const MvCalendariumColorSchema &schema) const
{
    const QList<MvCalendariumColorSchemaID> all = ids(schema);
    const auto shipped =
        std::find_if(all.cbegin(), all.cend(), [](const MvCalendariumColorSchemaID &id) { return !id.isUserSchema(); });
    return shipped != all.cend() ? *shipped : all.value(0);
}

QList<MvCalendariumColorSchemaID> MvCalendariumColorSchemaRegistry::ids(const MvCalendariumColorSchema &schema) const
{
    const QList<MvCalendariumColorSchemaID> latestFirst = known().ids.values(schema);
    return {latestFirst.crbegin(), latestFirst.crend()};
}

QStringList MvCalendariumColorSchemaRegistry::idTexts(const MvCalendariumColorSchema &schema) const
{
    QStringList texts;
    for (const MvCalendariumColorSchemaID &id : ids(schema))
        texts.append(id.toString());
    return texts;
}

MvCalendariumColorSchemaID
MvCalendariumColorSchemaRegistry::idWhateverTheGrid(const MvCalendariumColorSchema &schema) const
{
    const MvCalendariumColorSchemaID exact = id(schema);
    if (exact.isValid())
        return exact;
    MvCalendariumColorSchema switched = schema;
    MvBorderConfig grid = schema.gridConfig();
    grid.setIsEnabled(!grid.isEnabled());
    switched.setGridConfig(grid);
    return id(switched);
}

MvCalendariumColorSchema MvCalendariumColorSchemaRegistry::defaultSchema() const
{
    const MvCalendariumColorSchemaID usual(defaultId);
    if (contains(usual))
        return findSchema(usual);
    const auto shipped = std::find_if(known().schemata.cbegin(), known().schemata.cend(),
                                      [this](const auto &schema) { return !isUserSchema(schema); });
    return shipped != known().schemata.cend() ? *shipped : known().schemata.value(0);
}

QList<MvCalendariumColorSchemaID> MvCalendariumColorSchemaRegistry::schemaIds() const
{
    QList<MvCalendariumColorSchemaID> ids;
    for (const MvCalendariumColorSchema &schema : known().schemata)
        ids.append(id(schema));
    return ids;
}

QString MvCalendariumColorSchemaRegistry::name(const MvCalendariumColorSchemaID &id) const
{
    const QString text = known().names.value(id).text();
    return text.isEmpty() ? id.toString() : text;
}

void MvCalendariumColorSchemaRegistry::setName(const MvCalendariumColorSchemaID &id, const MvLocalizedText &name)
{
    known().names.insert(id, name);
}

MvCalendariumColorSchemaList MvCalendariumColorSchemaRegistry::visibleSchemata() const
{
    return offeredSchemata(false);
}

MvCalendariumColorSchemaList MvCalendariumColorSchemaRegistry::hiddenSchemata() const
{
    return offeredSchemata(true);
}

MvCalendariumColorSchemaList MvCalendariumColorSchemaRegistry::offeredSchemata(bool hidden) const
{
    MvCalendariumColorSchemaList offered;
    const QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    for (const MvCalendariumColorSchema &schema : filter(known().schemata, SCHEMA_VISIBILITY_OFFERED)) {
        const QStringList texts = idTexts(schema);
        const bool isHidden = std::any_of(texts.cbegin(), texts.cend(),
                                          [&ignored](const QString &text) { return ignored.contains(text); });
        if (!schema.deprecated() && isHidden == hidden)
            offered.append(schema);
    }
    return offered;
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
    return known().visibilities.value(schema, SCHEMA_VISIBILITY_UNKNOWN);
}

void MvCalendariumColorSchemaRegistry::setVisibility(const MvCalendariumColorSchema &schema,
                                                     const MvCalendariumColorSchemaVisibility &visibility)
{
    known().visibilities.insert(schema, visibility);
}

bool MvCalendariumColorSchemaRegistry::isRegistered(const MvCalendariumColorSchema &schema) const
{
    return known().ids.contains(schema);
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
    enter(schema, id, MvLocalizedText(), MvSchemaPlace());
}

MvCalendariumColorSchemaID
MvCalendariumColorSchemaRegistry::recordSchemaUniquely(const MvCalendariumColorSchema &schema)
{
    const MvCalendariumColorSchemaID id = generateUniqueId();
    recordSchemaId(schema, id);
    setVisibility(schema,
                  known().visibilities.value(schema) | MvCalendariumColorSchemaVisibility(SCHEMA_VISIBILITY_OFFERED));
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
    for (const MvCalendariumColorSchemaID &id : known().ids.values(schema)) {
        known().byId.remove(id);
        known().names.remove(id);
        known().places.remove(id);
    }
    known().ids.remove(schema);
    known().visibilities.remove(schema);
    known().schemata.deleteSchema(schema);
}

void MvCalendariumColorSchemaRegistry::removeId(const MvCalendariumColorSchemaID &id)
{
    const MvCalendariumColorSchema schema = known().byId.value(id);
    if (known().ids.count(schema) <= 1) {
        remove(schema);
        return;
    }
    known().ids.remove(schema, id);
    known().byId.remove(id);
    known().names.remove(id);
    known().places.remove(id);
}

bool MvCalendariumColorSchemaRegistry::isIgnoredSchema(const MvCalendariumColorSchemaID &id) const
{
    const QStringList texts = idTexts(known().byId.value(id)) + QStringList{id.toString()};
    const QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    return std::any_of(texts.cbegin(), texts.cend(),
                       [&ignored](const QString &text) { return ignored.contains(text); });
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

void MvCalendariumColorSchemaRegistry::unsetIgnoreSchema(const MvCalendariumColorSchemaID &id)
{
    const QStringList texts = idTexts(known().byId.value(id)) + QStringList{id.toString()};
    QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    if (ignored.removeIf([&texts](const QString &text) { return texts.contains(text); }) > 0)
        MvGeneralSettings::instance().setIDsToIgnore(ignored);
}

void MvCalendariumColorSchemaRegistry::write(QDomElement &element, const MvCalendariumColorSchemaList &list) const
{
    for (const MvCalendariumColorSchema &schema : list) {
        const MvCalendariumColorSchemaID schemaId = id(schema);
        QDomElement area = MvXMLBuilder::buildDomElement(element, areaTag);
        schema.write(area, schemaId);
        known().names.value(schemaId).write(area, u"name"_s);
    }
}

MvUserSchemaFile::Areas MvCalendariumColorSchemaRegistry::userAreas() const
{
    MvUserSchemaFile::Areas areas;
    for (const MvCalendariumColorSchema &schema : known().schemata) {
        for (const MvCalendariumColorSchemaID &each : ids(schema)) {
            if (each.isUserSchema())
                areas.append(areaOf(schema, each, known().names.value(each)));
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
    const std::lock_guard lock(m_mutex);
    for (const MvUserSchemaFile::Area &area : mine) {
        if (!saved.contains(area))
            removeId(MvCalendariumColorSchemaID(area.id));
    }
    for (const MvUserSchemaFile::Area &area : saved) {
        if (!mine.contains(area))
            recordRead(area.element, SCHEMA_VISIBILITY_OFFERED, QFileInfo());
    }
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
    const std::lock_guard lock(m_mutex);
    QStringList ignored = MvGeneralSettings::instance().idsToIgnore();
    ignored.removeIf([this](const QString &text) { return contains(MvCalendariumColorSchemaID(text)); });
    MvGeneralSettings::instance().setIDsToIgnore(ignored);
    clear();
    readShippedSchemata();
}

void MvCalendariumColorSchemaRegistry::clear()
{
    known() = {};
}
