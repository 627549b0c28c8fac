// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QRectF>
#include <QString>

/// A text of a day that does not stand whole on the page: it had no room in its cell and was shortened or left out, or
/// no font has all of its characters. Also an entry of several days whose bar is missing in a cell.
struct MvUnfittingText
{
    QDate date;
    QString text;
    QRectF rect;                       // of the cell, in page units
    QString missingGlyphs = QString(); // the characters that no font can show; empty: it is room that the text lacks
    bool isOfHeads = false;            // the names of weekdays, which become shorter and smaller by themselves

    bool operator==(const MvUnfittingText &) const = default;
};
