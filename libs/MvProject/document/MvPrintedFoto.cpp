// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintedFoto.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProject/MvCalendarPage.h"

#include <algorithm>
#include <utility>

namespace {

MvPrintedFoto ownFoto(const MvFotoFrame &frame, const MvPageFormat &format)
{
    const QRectF rect = frame.rect(format);
    const QSize full = MvFotoAccess::preferredSize(MvFoto(QFileInfo(frame.path())));
    const QSizeF seen = frame.crop(full, rect.size()).size();
    return {frame.path(), {}, rect, MvFotoResolution::pixelsPerInch(seen, rect.size())};
}

} // namespace

QList<MvPrintedFoto> MvPrintedFoto::ofPage(const MvCalendarPage &page, const MvPageFormat &format,
                                           const MvDateRange &documentRange, const MvRenderingSources &sources)
{
    MvPageFindings found;
    page.record(format, documentRange, {}, MvRenderingRule(MvRenderingRule::Print), 1.0, sources, &found);
    return ofPaintedPage(page, format, found, sources);
}

QList<MvPrintedFoto> MvPrintedFoto::ofPaintedPage(const MvCalendarPage &page, const MvPageFormat &format,
                                                  const MvPageFindings &findings, const MvRenderingSources &sources)
{
    QList<MvPrintedFoto> fotos;
    if (page.fotoFrame().isValid())
        fotos.append(ownFoto(page.fotoFrame(), format));
    QList<MvPaintedFoto> painted = findings.fotos;
    std::sort(painted.begin(), painted.end(),
              [](const MvPaintedFoto &a, const MvPaintedFoto &b) { return a.date < b.date; });
    const MvCalendarEventSource &entries = sources.entriesOrDefault();
    for (const MvPaintedFoto &foto : std::as_const(painted)) {
        const MvCalendariumContentKey key(page.contentConfig().moveToDay(foto.date), entries.project());
        const MvImageReference file = entries.imageFile(key);
        fotos.append({file.path, foto.date, foto.rect, MvFotoResolution::pixelsPerInch(file.size, foto.rect.size())});
    }
    fotos.removeIf([](const MvPrintedFoto &foto) { return foto.pixelsPerInch <= 0.0; });
    return fotos;
}
