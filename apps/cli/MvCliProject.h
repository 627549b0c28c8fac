// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCore/MvOutcome.h"
#include "MvProject/MvCalendarDocument.h"

#include <QFileInfo>

#include <optional>

class QTextStream;
class MvCliValues;

/// The project that a call names.
struct MvCliProject : MvOutcome
{
    MvCalendarDocument document;
    QFileInfo file;
    /// The calendar's own list of entries; none where it shows those of the user, or of a file.
    std::optional<MvCalendarEventFile::Content> entries;

    /// Reads the project of "--project"; without one, an error. What could not be taken as it stands gives hints.
    static MvCliProject read(const MvCliValues &values, QTextStream &hints);
    /// A line about a photo whose place stays empty.
    static QString missingFoto(const QString &path);
};
