// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvPrintedFoto.h"

#include "MvCalendar/MvCalendarEventSource.h"
#include "MvFoto/MvBlankFotoSource.h"
#include "MvFoto/MvFotoAccess.h"
#include "MvProductBase/MvCalendariumContentKey.h"
#include "MvProject/MvCalendarPage.h"

#include <algorithm>
#include <utility>

namespace {

MvPrintedFoto printed(const MvFotoElement &foto, const QRectF &rect, int element)
{
    const QSize full = MvFotoAccess::preferredSize(MvFoto(QFileInfo(foto.path())));
    const QSizeF covered = foto.covered(full, rect.size()).size();
    return {foto.path(), {}, rect, MvFotoResolution::pixelsPerInch(foto.seenSize(full, rect.size()), covered), element};
}

} // namespace

QList<MvPrintedFoto> MvPrintedFoto::ofPage(const MvCalendarPage &page, const MvPageFormat &format,
                                           const MvPageContext &context, const MvRenderingSources &sources)
{
    MvRenderingSources blank = sources;
    if (!blank.fotos)
        blank.fotos = &MvBlankFotoSource::instance();
    MvPageFindings found;
    page.record(format, context, {}, MvRenderingRule(MvRenderingRule::Print), 1.0, blank, &found);
    return ofPaintedPage(page, format, found, sources);
}

QList<MvPrintedFoto> MvPrintedFoto::ofPaintedPage(const MvCalendarPage &page, const MvPageFormat &format,
                                                  const MvPageFindings &findings, const MvRenderingSources &sources)
{
    QList<MvPrintedFoto> fotos;
    if (!page.background().foto().isEmpty())
        fotos.append(printed(page.background().foto(), format.mediaRect(), -1));
    const QList<MvPageElement> elements = page.elementsOn(format);
    for (int number = 0; number < elements.size(); ++number) {
        if (const MvFotoElement *foto = elements[number].foto(); foto && !foto->isEmpty())
            fotos.append(printed(*foto, elements[number].rect(), number));
    }
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
