// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendariumColorSchema.h"
#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvOutcome.h"

#include <QCoreApplication>
#include <QString>

/// What a person does with colour schemas of their own, and with those on offer. Each operation changes the
/// process-wide registry and the user's file, or neither: then it gives the reason. GUI thread.
class MVCALENDAR_EXPORT MvUserColorSchemata
{
    Q_DECLARE_TR_FUNCTIONS(MvUserColorSchemata)

public:
    static constexpr int longestName = 60; // letters

    struct Result : MvOutcome
    {
        MvCalendariumColorSchemaID id;
    };

    /// Whether a schema can be called so. Names and ids are told apart by more than capitals; a schema's present name
    /// is its own.
    static MvOutcome checkName(const QString &name, const MvCalendariumColorSchemaID &own = {});

    /// Keeps colours under a fresh id, with their grid on so that its lines are kept, too. Colours that are registered
    /// are refused.
    static Result keep(const MvCalendariumColorSchema &schema, const QString &name);
    /// Of a user's schema, as is removing.
    static Result rename(const MvCalendariumColorSchemaID &id, const QString &name);
    static Result remove(const MvCalendariumColorSchemaID &id);
    /// Shows everything that is hidden, and removes all schemas of the user.
    static Result reset();

private:
    static Result save(const MvCalendariumColorSchemaID &id);
};
