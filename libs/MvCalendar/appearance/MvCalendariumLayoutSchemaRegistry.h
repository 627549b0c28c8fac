// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumLayoutSchemaList.h"
#include "MvCalendar/MvSchemaPlace.h"
#include "MvCalendar/MvUserSchemaFile.h"
#include "MvCore/MvSingleton.h"

#include <QCoreApplication>
#include <QHash>
#include <QMutex>
#include <QStringList>

class MvCalendariumLayoutSchemaRegistry;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendariumLayoutSchemaRegistry>;

/// All layout schemas of the process: those of the user's file, then the shipped ones, which win where ids are equal.
/// Where the user has none, a shipped one is read when it is asked for, the others when somebody asks for more than
/// one.
class MVCALENDAR_EXPORT MvCalendariumLayoutSchemaRegistry : public MvSingleton<MvCalendariumLayoutSchemaRegistry>
{
    Q_DECLARE_TR_FUNCTIONS(MvCalendariumLayoutSchemaRegistry)

public:
    /// Reads "000-user-calendar-layout.xml" of the user's data folder and the shipped "calendar_layout.xml". A layout
    /// of an unknown kind, or whose id another one has that comes later, is left out with a warning.
    MvCalendariumLayoutSchemaRegistry();

    /// The schema of an id; an invalid one when there is none.
    MvCalendariumLayoutSchema findSchema(const MvCalendariumLayoutSchemaID &id) const;
    /// The schema at a position of the list; an invalid one out of range.
    MvCalendariumLayoutSchema schema(int index) const;
    const MvCalendariumLayoutSchemaList &schemata() const { return known().schemata; }
    /// What new pages begin with and what stands in for unknown layouts: a shipped one, whatever the user has made. An
    /// invalid schema when nothing is shipped.
    MvCalendariumLayoutSchema defaultSchema() const;
    /// The names of all schemas in the order of the list, for choosers.
    QStringList schemaNames() const;

    /// Enters a user's schema, in place of one with the same id; one without a user id is not taken.
    bool recordUserSchema(const MvCalendariumLayoutSchema &schema);

    static QString userSchemaFile();
    /// Saves the user schemas of the list and takes over what other programs have changed in the file since; says
    /// whether it is in place, else saveError() says why. Never waits for another program that writes just now.
    bool saveUserSchemaFile();
    /// Why the last saving failed, for a person; empty when it did not.
    QString saveError() const { return m_saveError; }

private:
    struct Known
    {
        MvCalendariumLayoutSchemaList schemata;
        QHash<QString, MvCalendariumLayoutSchema> byId;
        QHash<QString, MvSchemaPlace> places; // by id
        bool isComplete = false;
    };

    /// All of them.
    Known &known() const;
    void readShipped() const;
    static void read(Known &known, const QDomElement &element, const QFileInfo &file);

    mutable Known m_known;
    mutable QHash<QString, MvCalendariumLayoutSchema> m_single; // shipped ones, until all are known
    mutable QMutex m_mutex;                                     // guards both until then
    MvUserSchemaFile m_userFile;
    QString m_saveError;
};
