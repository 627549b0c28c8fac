// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/mvcalendar_export.h"

#include "MvModelBase/MvProjectIdentifier.h"

#include <QString>

/// Keeps the lists of documents, each with its document: what a program installs in the registry of a session so that
/// a calendar has entries of its own (MvCalendarEventRegistry::installProjectStore()).
///
/// A list that is kept here no longer goes to the user's file. That then holds the user's own list alone, from which
/// new documents start.
class MVCALENDAR_EXPORT MvCalendarEventProjectStore
{
public:
    MvCalendarEventProjectStore() = default;
    virtual ~MvCalendarEventProjectStore();
    MvCalendarEventProjectStore(const MvCalendarEventProjectStore &) = delete;
    MvCalendarEventProjectStore &operator=(const MvCalendarEventProjectStore &) = delete;

    /// Whether the document's list is kept here.
    virtual bool keeps(const MvProjectIdentifier &project) const = 0;
    /// The photo lies with the document: entries may name it there. Others are copied into the photo folder.
    virtual bool holdsFoto(const QString &path) const = 0;
    /// A list that is kept here has become another one; the registry holds it.
    virtual void listChanged(const MvProjectIdentifier &project) = 0;
};
