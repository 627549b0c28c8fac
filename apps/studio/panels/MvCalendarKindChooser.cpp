// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvCalendarKindChooser.h"

#include "pages/MvPageThumbnail.h"

#include "MvCalendar/MvRenderingSources.h"
#include "MvProject/MvCalendarDocument.h"
#include "panels/MvCalendarDraft.h"

using namespace Qt::StringLiterals;

MvCalendarKindChooser::MvCalendarKindChooser(const QSize &pictureSize, QWidget *parent)
    : MvPictureList(pictureSize, &MvCalendarKindChooser::makePage, parent)
{
    setObjectName(u"calendarKinds"_s);
    setAccessibleName(tr("Art des Kalenders"));
    // in the order of MvCalendarKind
    addPicture(u"photos"_s, tr("Fotokalender"), tr("Titelblatt, für jeden Monat Fotos, Rückseite"));
    addPicture(u"planner"_s, tr("Planer"), tr("Raster, Liste oder ganzes Jahr, mit Platz zum Eintragen"));
    addPicture(u"birthdays"_s, tr("Geburtstagskalender"),
               tr("Neben jedem Monat die Menschen, die Geburtstag haben, mit ihren Fotos"));
    renew();
}

QImage MvCalendarKindChooser::makePage(int row, const QSize &sheet, double ratio)
{
    MvCalendarDraft draft;
    draft.kind = kindOf(row);
    draft.wanted.hasCover = draft.wanted.hasBack = false;
    draft.layout = MvCalendariumLayoutSchemaID(u"FAMILY_PLANNER"_s);
    const MvCalendarDocument document = draft.make();
    if (document.pages().isEmpty())
        return {};
    return MvPageThumbnail::make(document.pages().constFirst(), document.format(), document.context(), sheet, ratio,
                                 nullptr, {}, MvPageThumbnail::Empty::Sample);
}
