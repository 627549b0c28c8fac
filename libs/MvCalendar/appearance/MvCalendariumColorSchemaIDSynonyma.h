// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"
#include "MvCore/MvSingleton.h"

#include <QHash>
#include <QString>

class MvCalendariumColorSchemaIDSynonyma;
class QDomElement;
extern template class MVCALENDAR_EXPORT MvSingleton<MvCalendariumColorSchemaIDSynonyma>;

/// The ids that colour schemas had in earlier times, and their current ones, from "calendar_synonym.xml".
class MVCALENDAR_EXPORT MvCalendariumColorSchemaIDSynonyma : public MvSingleton<MvCalendariumColorSchemaIDSynonyma>
{
public:
    void setupInstance() override;

    /// The current id of an old one; the text itself when it is not known.
    QString renamed(const QString &id) const { return m_currentIds.value(id, id); }

    /// Reads the shipped table.
    void initCalendarSchemaTranslations();
    /// Adds the children "synonym" of the element: attributes "old" and "new".
    void read(const QDomElement &element);

private:
    QHash<QString, QString> m_currentIds; // by old id
};
