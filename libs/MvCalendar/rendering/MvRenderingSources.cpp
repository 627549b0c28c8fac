// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvRenderingSources.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvFoto/MvDirectFotoSource.h"

const MvCalendarEventSource &MvRenderingSources::entriesOrDefault() const
{
    return entries ? *entries : MvCalendarEventRegistry::instance();
}

MvFotoSource &MvRenderingSources::fotosOrDefault() const
{
    return fotos ? *fotos : MvDirectFotoSource::instance();
}
