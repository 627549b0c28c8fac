// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCalendar/MvUnfittingText.h"
#include "MvProject/MvPrintedFoto.h"

#include <QCoreApplication>
#include <QList>

class MvCalendarDocument;
struct MvPageFindings;
struct MvRenderingSources;

/// Something that will not print well: a text without room or with characters that no font has, or a photo of too low
/// resolution; never both.
struct MvPrintNote
{
    Q_DECLARE_TR_FUNCTIONS(MvPrintNote)

public:
    int page = 0; // counted from 0
    MvUnfittingText text;
    MvPrintedFoto foto;

    bool isFoto() const { return !foto.path.isEmpty(); }
    /// It is room that a text lacks.
    bool isAboutRoom() const { return !isFoto() && text.missingGlyphs.isEmpty(); }
    /// For a person, on one line: "14.05.27: Name".
    QString toString() const;

    /// Those of a page, texts first. GUI thread.
    static QList<MvPrintNote> ofPage(const MvCalendarDocument &document, int page, const MvRenderingSources &sources);
    /// The same of a page that has been painted or recorded already.
    static QList<MvPrintNote> ofPage(const MvCalendarDocument &document, int page, const MvPageFindings &findings);

    bool operator==(const MvPrintNote &) const = default;
};
