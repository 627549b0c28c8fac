// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvPaintedFoto.h"
#include "MvCalendar/MvUnfittingText.h"

#include <QList>
#include <QStringList>

class QFont;

/// What a pass of a renderer finds that callers are told: texts and bars without room, characters that no font has, and
/// the photos that it drew.
class MvCalendariumFindings
{
public:
    void clear() { *this = {}; }

    /// Unless nothing of the text would be seen.
    void addUnfitting(const QDate &date, const QString &text, const QRectF &rect);
    void addMissingHeads(const QDate &month, const QString &names, const QRectF &rect);
    /// Those of the texts in the font that have characters which no font can show.
    void addMissingGlyphs(const QDate &date, const QStringList &texts, const QFont &font, const QRectF &rect);
    /// A bar that a cell does not show; it is that of an entry which begins on the start day.
    void addBarWithoutRoom(const MvUnfittingText &text, const QDate &start);
    void addFoto(const MvPaintedFoto &foto) { m_fotos.append(foto); }
    /// The pass is over: an entry whose bar is missing somewhere is told once, unless its text is told anyway.
    void finish();

    /// In the order of painting.
    const QList<MvUnfittingText> &unfittingTexts() const { return m_unfitting; }
    const QList<MvPaintedFoto> &fotos() const { return m_fotos; }

private:
    struct Missing
    {
        QDate start; // of the entry
        MvUnfittingText text;
    };

    QList<MvUnfittingText> m_unfitting;
    QList<Missing> m_missingBars;
    QList<MvPaintedFoto> m_fotos;
};
