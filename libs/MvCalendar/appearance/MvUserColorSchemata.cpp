// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUserColorSchemata.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCore/MvGeneralSettings.h"

namespace {

/// A user's schema as it is registered.
struct Kept
{
    MvCalendariumColorSchemaID id;
    MvCalendariumColorSchema schema;
    MvLocalizedText name;

    explicit Kept(const MvCalendariumColorSchemaID &kept)
        : id(kept)
        , schema(MvCalendariumColorSchemaRegistry::instance().findSchema(kept))
        , name(MvCalendariumColorSchemaRegistry::instance().localizedName(kept))
    {}

    void putBack() const
    {
        MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
        registry.recordSchemaId(schema, id);
        registry.setName(id, name);
        registry.setVisibility(schema, SCHEMA_VISIBILITY_OFFERED);
    }
};

QList<Kept> userSchemata()
{
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    QList<Kept> kept;
    for (const MvCalendariumColorSchema &schema : registry.allSchemata()) {
        for (const MvCalendariumColorSchemaID &id : registry.ids(schema)) {
            if (id.isUserSchema())
                kept.append(Kept(id));
        }
    }
    return kept;
}

} // namespace

MvOutcome MvUserColorSchemata::checkName(const QString &name, const MvCalendariumColorSchemaID &own)
{
    const QString text = name.simplified();
    if (text.isEmpty())
        return {tr("Es fehlt ein Name."), {}};
    if (text.size() > longestName)
        return {tr("Der Name ist länger als %1 Zeichen.").arg(longestName), {}};
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    for (const MvCalendariumColorSchema &schema : registry.allSchemata()) {
        for (const MvCalendariumColorSchemaID &id : registry.ids(schema)) {
            if (id != own &&
                (registry.localizedName(id).isAnyOf(text) || id.toString().compare(text, Qt::CaseInsensitive) == 0))
                return {tr("Ein Farbschema „%1“ gibt es schon.").arg(text), {}};
        }
    }
    return {};
}

MvUserColorSchemata::Result MvUserColorSchemata::keep(const MvCalendariumColorSchema &schema, const QString &name)
{
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    const MvCalendariumColorSchemaID known = registry.idWhateverTheGrid(schema);
    if (known.isValid())
        return {{tr("Diese Farben gibt es schon: %1 („%2“).").arg(known.toString(), registry.name(known)), {}}, known};
    if (const MvOutcome named = checkName(name); !named.isOk())
        return {named, {}};
    MvCalendariumColorSchema kept = schema;
    MvBorderConfig grid = schema.gridConfig();
    grid.setIsEnabled(true);
    kept.setGridConfig(grid);
    const MvCalendariumColorSchemaID id = registry.recordSchemaUniquely(kept);
    registry.setName(id, MvLocalizedText(name.simplified()));
    const Result result = save(id);
    if (!result.isOk())
        registry.removeId(id);
    return {result, result.isOk() ? registry.id(kept) : MvCalendariumColorSchemaID()};
}

MvUserColorSchemata::Result MvUserColorSchemata::rename(const MvCalendariumColorSchemaID &id, const QString &name)
{
    if (const MvOutcome named = checkName(name, id); !named.isOk())
        return {named, id};
    const Kept before(id);
    MvCalendariumColorSchemaRegistry::instance().setName(id, MvLocalizedText(name.simplified()));
    const Result result = save(id);
    if (!result.isOk())
        before.putBack();
    return result;
}

MvUserColorSchemata::Result MvUserColorSchemata::remove(const MvCalendariumColorSchemaID &id)
{
    const Kept before(id);
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    registry.removeId(id);
    const Result result = save(id);
    if (result.isOk())
        registry.unsetIgnoreSchema(id); // another schema may be given this id later
    else
        before.putBack();
    return result;
}

MvUserColorSchemata::Result MvUserColorSchemata::reset()
{
    const QList<Kept> before = userSchemata();
    const QStringList hidden = MvGeneralSettings::instance().idsToIgnore();
    MvCalendariumColorSchemaRegistry::instance().resetToFactoryDefaults();
    const Result result = save({});
    if (result.isOk())
        return result;
    MvGeneralSettings::instance().setIDsToIgnore(hidden);
    for (const Kept &kept : before)
        kept.putBack();
    return result;
}

MvUserColorSchemata::Result MvUserColorSchemata::save(const MvCalendariumColorSchemaID &id)
{
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    return {{registry.saveSystemUserSchemata() ? QString() : registry.saveError(), {}}, id};
}
