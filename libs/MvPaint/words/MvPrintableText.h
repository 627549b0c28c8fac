// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvPaint/mvpaint_export.h"

#include <QString>
#include <QStringList>

/// What a page prints of a text that may hold anything: names come from people, address books and files.
class MVPAINT_EXPORT MvPrintableText
{
public:
    /// The text on one line: line breaks, tabs, controls and blanks become single blanks, none at the ends. Blanks that
    /// do not break stay. Halves of surrogate pairs become U+FFFD, of accents and format characters in a row the first
    /// 30 are kept. Empty when nothing of it would be seen.
    static QString onOneLine(const QString &text);
    /// The text on one line for a list, a menu or a message: what is longer than so many code units ends in an
    /// ellipsis.
    static QString inShort(const QString &text, qsizetype length = 500);
    /// Each text on one line; those of which nothing would be seen are left out.
    static QStringList onOneLineEach(const QStringList &texts);

    /// The text, character by character fit for shaping: controls and line breaks become blanks, halves of surrogate
    /// pairs and what is no character U+FFFD. Length and blanks stay.
    static QString shapeable(const QString &text);
    /// Whether letters of the text are written from right to left.
    static bool isTurned(const QString &text);
};
