// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include <QFileInfo>
#include <QString>

class QDomElement;

/// Where in a file a schema stands, for warnings about it. A default one is nowhere.
struct MVCALENDAR_EXPORT MvSchemaPlace
{
    QFileInfo file;
    int line = 0; // counted from 1; 0: unknown
    int column = 0;

    MvSchemaPlace() = default;
    MvSchemaPlace(const QFileInfo &inFile, const QDomElement &element);

    /// Logs one line for a person: place, as far as known, and message.
    void warn(const QString &message) const;
};
