// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchemaList.h"
#include "MvCalendar/MvCalendariumColorSchemaVisibility.h"
#include "MvCalendar/MvSchemaPlace.h"
#include "MvCalendar/MvUserSchemaFile.h"
#include "MvCore/MvSingleton.h"
#include "MvXML/MvLocalizedText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QMultiHash>

#include <memory>
#include <mutex>

class MvCalendariumColorSchemaRegistry;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendariumColorSchemaRegistry>;

/// All colour schemas of the process: those of the user's file first, then the shipped ones. A schema may be known
/// under several ids. Reading is serialised; everything else belongs to the GUI thread.
///
/// A user's schema never stands before a shipped one: where both have equal colours, the shipped id is the main one;
/// where both have one id, the shipped schema keeps it. Where the user has none, a shipped one is read when it is asked
/// for, the others when somebody asks for more than one.
class MVCALENDAR_EXPORT MvCalendariumColorSchemaRegistry : public MvSingleton<MvCalendariumColorSchemaRegistry>
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendariumColorSchemaRegistry)

public:
    /// An empty registry; only the process-wide one reads files by itself.
    MvCalendariumColorSchemaRegistry();
    ~MvCalendariumColorSchemaRegistry() override = default;

    /// An empty registry of its own, for temporary use.
    static std::unique_ptr<MvCalendariumColorSchemaRegistry> createTemporaryRegistry();

    void setupInstance() override;

    /// Adds the schemas of a file, or of the children "calendararea" of an element. An element without id is skipped; a
    /// schema equal to a known one only adds its id, with a warning. A file that cannot be loaded adds nothing.
    void read(const QFileInfo &file, const MvCalendariumColorSchemaVisibility &visibility);
    void read(const QDomElement &element, const MvCalendariumColorSchemaVisibility &visibility);

    /// The schema of an id; an invalid one when there is none.
    MvCalendariumColorSchema findSchema(const MvCalendariumColorSchemaID &id) const;
    bool contains(const MvCalendariumColorSchemaID &id) const;
    /// The schema's main id: the first that is no user's, else the first; an invalid one when it is not registered.
    MvCalendariumColorSchemaID id(const MvCalendariumColorSchema &schema) const;
    /// All ids of the schema, in the order in which it got them.
    QList<MvCalendariumColorSchemaID> ids(const MvCalendariumColorSchema &schema) const;
    /// The main id of the registered schema with these colours and lines, whether or not they have the grid on; an
    /// invalid one when there is none.
    MvCalendariumColorSchemaID idWhateverTheGrid(const MvCalendariumColorSchema &schema) const;
    /// The main id of each schema, in the order of the list.
    QList<MvCalendariumColorSchemaID> schemaIds() const;
    /// What new pages begin with and what stands in for unknown schemas: a shipped one, whatever the user has made or
    /// hidden. An invalid schema when nothing is shipped.
    MvCalendariumColorSchema defaultSchema() const;
    /// The name shown to users, in the program's language; the id where a file gives none. Attributes "name",
    /// "name_en".
    QString name(const MvCalendariumColorSchemaID &id) const;
    MvLocalizedText localizedName(const MvCalendariumColorSchemaID &id) const { return known().names.value(id); }
    void setName(const MvCalendariumColorSchemaID &id, const MvLocalizedText &name);
    MvCalendariumColorSchemaList allSchemata() const { return known().schemata; }
    /// What choosers offer: neither deprecated nor hidden by the user.
    MvCalendariumColorSchemaList visibleSchemata() const;
    /// What they would offer, had the user not hidden it.
    MvCalendariumColorSchemaList hiddenSchemata() const;
    /// The schemas of the list whose visibility shares a bit with the given one.
    MvCalendariumColorSchemaList filter(const MvCalendariumColorSchemaList &list,
                                        const MvCalendariumColorSchemaVisibility &visibility) const;

    /// SCHEMA_VISIBILITY_UNKNOWN for a schema that is not registered.
    MvCalendariumColorSchemaVisibility visibility(const MvCalendariumColorSchema &schema) const;
    void setVisibility(const MvCalendariumColorSchema &schema, const MvCalendariumColorSchemaVisibility &visibility);
    bool isRegistered(const MvCalendariumColorSchema &schema) const;
    bool isUserSchema(const MvCalendariumColorSchema &schema) const;

    /// Enters a schema as a user's, under a fresh id, unless an equal one is registered; gives its id.
    MvCalendariumColorSchemaID record(const MvCalendariumColorSchema &schema);
    /// Adds an id for a schema, which is entered if need be. An id moves to the schema that got it last; one that has
    /// none left is forgotten, with a warning.
    void recordSchemaId(const MvCalendariumColorSchema &schema, const MvCalendariumColorSchemaID &id);
    /// Enters the schema under a fresh user id even if it is known under others; gives the new id.
    MvCalendariumColorSchemaID recordSchemaUniquely(const MvCalendariumColorSchema &schema);
    /// A user id that no schema has.
    MvCalendariumColorSchemaID generateUniqueId() const;
    /// Registers a valid schema that is not known yet; says whether it is registered now.
    bool checkUserSchemaAndRegister(const MvCalendariumColorSchema &schema);
    /// Forgets the schema and its ids.
    void remove(const MvCalendariumColorSchema &schema);
    /// Forgets one id, and the schema if it has no other.
    void removeId(const MvCalendariumColorSchemaID &id);

    /// Schemas that the user has hidden, under any of their ids; kept in the general settings.
    bool isIgnoredSchema(const MvCalendariumColorSchemaID &id) const;
    void setIgnoreSchema(const MvCalendariumColorSchemaID &id);
    void setIgnoreSchema(const MvCalendariumColorSchema &schema);
    /// Shows a hidden schema again.
    void unsetIgnoreSchema(const MvCalendariumColorSchemaID &id);

    /// Appends one "calendararea" per schema.
    void write(QDomElement &element, const MvCalendariumColorSchemaList &list) const;
    /// Saves the user schemas to the user's file and takes over what other programs have changed there since; says
    /// whether it is in place, else saveError() says why. Never waits for another program that writes just now.
    bool saveSystemUserSchemata();
    /// Why the last saving failed, for a person; empty when it did not.
    QString saveError() const { return m_saveError; }
    static QString userSchemaFileName();
    static QFileInfo systemUserSchemaFile();

    /// Forgets everything, shows hidden schemas again and reads the shipped schemas alone.
    void resetToFactoryDefaults();

private:
    void clear();
    void readShippedSchemata();
    void readFrom(const QDomElement &element, const MvCalendariumColorSchemaVisibility &visibility,
                  const QFileInfo &file);
    void recordRead(const QDomElement &area, const MvCalendariumColorSchemaVisibility &visibility,
                    const QFileInfo &file);
    void enter(const MvCalendariumColorSchema &schema, const MvCalendariumColorSchemaID &id,
               const MvLocalizedText &name, const MvSchemaPlace &place);
    void takeFromOther(const MvCalendariumColorSchemaID &id, const MvLocalizedText &winner);
    MvCalendariumColorSchemaList offeredSchemata(bool hidden) const;
    QStringList idTexts(const MvCalendariumColorSchema &schema) const;
    MvUserSchemaFile::Areas userAreas() const;
    void adopt(const MvUserSchemaFile::Areas &mine, const MvUserSchemaFile::Areas &saved);

    struct Known
    {
        MvCalendariumColorSchemaList schemata;
        QMultiHash<MvCalendariumColorSchema, MvCalendariumColorSchemaID> ids; // values(): latest first
        QHash<MvCalendariumColorSchemaID, MvCalendariumColorSchema> byId;
        QHash<MvCalendariumColorSchemaID, MvLocalizedText> names;
        QHash<MvCalendariumColorSchemaID, MvSchemaPlace> places;
        QHash<MvCalendariumColorSchema, MvCalendariumColorSchemaVisibility> visibilities;
    };

    /// All of them.
    Known &known() { return complete().m_known; }
    const Known &known() const { return const_cast<MvCalendariumColorSchemaRegistry *>(this)->complete().m_known; }
    MvCalendariumColorSchemaRegistry &complete();

    Known m_known;
    bool m_isComplete = true;                                                     // what ships is read
    mutable QHash<MvCalendariumColorSchemaID, MvCalendariumColorSchema> m_single; // shipped ones, until it is
    MvUserSchemaFile m_userFile;
    QString m_saveError;
    mutable std::recursive_mutex m_mutex;
};
