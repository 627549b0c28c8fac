// SPDX-License-Identifier: LGPL-2.1-or-later
#include "common/MvPrintNote.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvPaint/MvPrintableText.h"
#include "MvProject/MvCalendarDocument.h"

#include <QFileInfo>

#include <cmath>

namespace {

constexpr int longestName = 60;

} // namespace

QString MvPrintNote::toString() const
{
    const QDate date = isFoto() ? foto.date : text.date;
    const QString place = date.isValid() ? MvApplicationLocale::instance().locale().toString(date, QLocale::ShortFormat)
                                         : tr("Seite %1").arg(page + 1);
    if (isFoto())
        return tr("%1: Foto „%2“ druckt grob, mit nur %3 Bildpunkten je Zoll")
            .arg(place, MvPrintableText::inShort(QFileInfo(foto.path).fileName(), longestName))
            .arg(std::lround(foto.pixelsPerInch));
    const QString name = MvPrintableText::inShort(text.text, longestName);
    return isAboutRoom() ? tr("%1: %2").arg(place, name)
                         : tr("%1: „%2“ – keine Schrift hat %3").arg(place, name, text.missingGlyphs);
}

QList<MvPrintNote> MvPrintNote::ofPage(const MvCalendarDocument &document, int page, const MvRenderingSources &sources)
{
    MvPageFindings found;
    if (page >= 0 && page < document.pages().size() && document.isValid())
        document.pages().at(page).record(document.format(), document.context(), {},
                                         MvRenderingRule(MvRenderingRule::Print), 1.0, sources, &found);
    return ofPage(document, page, found);
}

QList<MvPrintNote> MvPrintNote::ofPage(const MvCalendarDocument &document, int page, const MvPageFindings &findings)
{
    QList<MvPrintNote> notes;
    if (page < 0 || page >= document.pages().size())
        return notes;
    for (const MvUnfittingText &text : findings.unfitting)
        notes.append({page, text, {}});
    for (const MvPrintedFoto &foto :
         MvPrintedFoto::ofPaintedPage(document.pages().at(page), document.format(), findings)) {
        if (foto.grade() == MvFotoResolution::Grade::Poor)
            notes.append({page, {}, foto});
    }
    return notes;
}
