// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintedPhoto.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProject/MvCalendarPage.h"

#include <algorithm>
#include <utility>

namespace {

MvPrintedPhoto ownPhoto(const MvPhotoFrame &frame, const MvPageFormat &format)
{
    const QRectF rect = frame.rect(format);
    const QSize full = MvFotoAccess::preferredSize(MvFoto(QFileInfo(frame.path())));
    const QSizeF seen = frame.crop(full, rect.size()).size();
    return {frame.path(), {}, rect, MvFotoResolution::pixelsPerInch(seen, rect.size())};
}

} // namespace

QList<MvPrintedPhoto> MvPrintedPhoto::ofPage(const MvCalendarPage &page, const MvPageFormat &format,
                                             const MvDateRange &documentRange, const MvRenderingSources &sources)
{
    MvPageFindings found;
    page.record(format, documentRange, {}, MvRenderingRule(MvRenderingRule::Print), 1.0, sources, &found);
    return ofPaintedPage(page, format, found, sources);
}

QList<MvPrintedPhoto> MvPrintedPhoto::ofPaintedPage(const MvCalendarPage &page, const MvPageFormat &format,
                                                    const MvPageFindings &findings, const MvRenderingSources &sources)
{
    QList<MvPrintedPhoto> photos;
    if (page.photoFrame().isValid())
        photos.append(ownPhoto(page.photoFrame(), format));
    QList<MvPaintedFoto> painted = findings.fotos;
    std::sort(painted.begin(), painted.end(),
              [](const MvPaintedFoto &a, const MvPaintedFoto &b) { return a.date < b.date; });
    const MvCalendarEventSource &entries = sources.entriesOrDefault();
    for (const MvPaintedFoto &foto : std::as_const(painted)) {
        const MvCalendariumContentKey key(page.contentConfig().moveToDay(foto.date), entries.project());
        const MvImageReference file = entries.imageFile(key);
        photos.append({file.path, foto.date, foto.rect, MvFotoResolution::pixelsPerInch(file.size, foto.rect.size())});
    }
    photos.removeIf([](const MvPrintedPhoto &photo) { return photo.pixelsPerInch <= 0.0; });
    return photos;
}
