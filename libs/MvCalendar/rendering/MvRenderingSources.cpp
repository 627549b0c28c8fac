// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvRenderingSources.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvFoto/MvFotoSource.h"

namespace {

/// Decodes at once.
class DefaultFotos : public MvFotoSource
{
public:
    QImage scaled(const QFileInfo &file, const QSize &bounds) override
    {
        return MvFotoAccess::scaled(MvFoto(file), bounds);
    }
};

} // namespace

const MvCalendarEventSource &MvRenderingSources::entriesOrDefault() const
{
    return entries ? *entries : MvCalendarEventRegistry::instance();
}

MvFotoSource &MvRenderingSources::fotosOrDefault() const
{
    static DefaultFotos decoding;
    return fotos ? *fotos : decoding;
}
