// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvRenderingSources.h"
#include "MvFoto/MvFotoResolution.h"
#include "MvProject/mvproject_export.h"

#include <QDate>
#include <QList>
#include <QRectF>
#include <QString>

class MvCalendarPage;
class MvPageFormat;
struct MvPageContext;
struct MvPageFindings;

/// A photo that a page shows, one of its own or that of an entry in the cell of its day, and how finely it is printed.
struct MVPROJECT_EXPORT MvPrintedFoto
{
    QString path;
    QDate date;                 // of the day in whose cell it stands; invalid for the page's own photos
    QRectF rect;                // in tenths of a millimetre from the trimmed page's corner
    double pixelsPerInch = 0.0; // of the part that is seen
    int element = -1;           // of the frame, see MvCalendarPage::elementsOn(); none: a day's photo, or the ground

    MvFotoResolution::Grade grade() const { return MvFotoResolution::grade(pixelsPerInch); }

    bool operator==(const MvPrintedFoto &) const = default;

    /// The photos of a page whose files can be read: its own first, the ground and
    /// the frames in their order, then those of days by date. GUI thread.
    static QList<MvPrintedFoto> ofPage(const MvCalendarPage &page, const MvPageFormat &format,
                                       const MvPageContext &context, const MvRenderingSources &sources = {});
    /// The same of a page that has been painted or recorded already, by what was found then.
    static QList<MvPrintedFoto> ofPaintedPage(const MvCalendarPage &page, const MvPageFormat &format,
                                              const MvPageFindings &findings, const MvRenderingSources &sources = {});
};
