// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/mvproject_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QRectF>
#include <QString>

/// Something that would print badly, and where: one line of MvPrintCheck. A value.
struct MVPROJECT_EXPORT MvPrintFinding
{
    Q_DECLARE_TR_FUNCTIONS(MvPrintFinding)

public:
    enum class Kind {
        MissingFoto,       ///< its file is not there
        UnreadableFoto,    ///< its file holds no photo that can be read
        CoarseFoto,        ///< too few pixels for its size on paper
        EmptyFrame,        ///< of a template, without a photo
        CutText,           ///< has no room
        MissingGlyphs,     ///< no font has some of its characters
        InBinding,         ///< stands where spiral or hanger are
        OutsideSafeMargin, ///< stands so near to the edge that it may be cut
    };
    enum class Severity {
        Hint,   ///< who looks closely sees it
        Strong, ///< everybody does, or something is not there
    };

    Kind kind = Kind::CoarseFoto;
    Severity severity = Severity::Hint;
    int page = 0;               ///< counted from 0
    int element = -1;           ///< see MvCalendarPage::elementsOn(); none: the ground, or something in a day's cell
    QDate date = QDate();       ///< of the day in whose cell it is; else invalid
    QRectF rect = QRectF();     ///< in tenths of a millimetre from the trimmed page's corner
    QString path = QString();   ///< of the photo
    double pixelsPerInch = 0.0; ///< of a photo that is too coarse
    QString place = QString();  ///< "Titelblatt", "Mai 2027", "14.05.27", for a person
    QString text = QString();   ///< what it is, in words: a sentence without its full stop

    /// A word for files and scripts: "missing-photo", "coarse-photo", "cut-text", …
    QString kindName() const;
    /// For a person, on one line: place and text.
    QString toString() const { return tr("%1: %2").arg(place, text); }

    bool operator==(const MvPrintFinding &) const = default;
};
