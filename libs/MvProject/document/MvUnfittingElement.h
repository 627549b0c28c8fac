// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QRectF>
#include <QString>

/// A text on a page, no calendarium's, that does not stand whole in its frame, or of which no font has all characters.
struct MvUnfittingElement
{
    int element = -1;                  ///< its number in MvCalendarPage::elementsOn()
    QString text;                      ///< with its placeholders filled
    QRectF rect;                       ///< of the frame, in page units
    QString missingGlyphs = QString(); ///< empty: it is room that the text lacks

    bool operator==(const MvUnfittingElement &) const = default;
};
