// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintedPhoto.h"

#include "MvCalendar/MvCalendarEventRegistry.h"
#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvProject/MvCalendarPage.h"

#include <QMap>

#include <algorithm>

namespace {

MvPrintedPhoto ownPhoto(const MvPhotoFrame &frame, const MvPageFormat &format)
{
    const QRectF rect = frame.rect(format);
    const QSize full = MvFotoAccess::preferredSize(MvFoto(QFileInfo(frame.path())));
    const QSizeF seen = frame.crop(full, rect.size()).size();
    return {frame.path(), {}, rect, MvFotoResolution::pixelsPerInch(seen, rect.size())};
}

bool anyEntryHasPhoto()
{
    const MvCalendarEventList events = MvCalendarEventRegistry::instance().activeEventList();
    return std::any_of(events.begin(), events.end(),
                       [](const MvCalendarEvent &event) { return event.foto().isValid(); });
}

/// The largest image in a cell is its photo; others are signs of a text that are no outlines.
QRectF largestImage(const QList<MvPaintRecording::Item> &images, const QRectF &cell)
{
    QRectF largest;
    for (const MvPaintRecording::Item &image : images) {
        const QRectF &bounds = image.bounds;
        if (cell.contains(bounds.center()) && bounds.width() * bounds.height() > largest.width() * largest.height())
            largest = bounds;
    }
    return largest;
}

QList<MvPrintedPhoto> entryPhotos(const MvCalendarPage &page, const MvPageFormat &format,
                                  const MvDateRange &documentRange)
{
    struct Cell
    {
        MvImageReference photo;
        QRectF rect;
    };
    QMap<QDate, Cell> cells;
    const auto listen = [&](MvCalendariumRenderer &renderer) {
        const auto note = [&cells, &page, project = renderer.modelInfo()](const QDate &date, const QRectF &rect) {
            const MvCalendariumContentKey key(page.contentConfig().moveToDay(date), project);
            const MvImageReference photo = MvCalendarEventRegistry::instance().imageFile(key);
            if (!photo.isEmpty())
                cells.insert(date, {photo, rect});
        };
        QObject::connect(&renderer, &MvCalendariumRenderer::rectForDateFound, &renderer, note);
    };
    const QList<MvPaintRecording::Item> images =
        page.record(format, documentRange, listen, MvRenderingRule(MvRenderingRule::Print))
            .items(MvPaintRecording::Item::Image);

    QList<MvPrintedPhoto> photos;
    for (auto cell = cells.cbegin(); cell != cells.cend(); ++cell) {
        const QRectF rect = largestImage(images, cell->rect);
        const double pixelsPerInch = MvFotoResolution::pixelsPerInch(cell->photo.size, rect.size());
        photos.append({cell->photo.path, cell.key(), rect, pixelsPerInch});
    }
    return photos;
}

} // namespace

QList<MvPrintedPhoto> MvPrintedPhoto::ofPage(const MvCalendarPage &page, const MvPageFormat &format,
                                             const MvDateRange &documentRange)
{
    QList<MvPrintedPhoto> photos;
    if (page.photoFrame().isValid())
        photos.append(ownPhoto(page.photoFrame(), format));
    if (anyEntryHasPhoto()) // else the page need not be recorded
        photos.append(entryPhotos(page, format, documentRange));
    photos.removeIf([](const MvPrintedPhoto &photo) { return photo.pixelsPerInch <= 0.0; });
    return photos;
}
