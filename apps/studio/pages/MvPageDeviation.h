// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

class MvCalendarDocument;

/// Which pages of months do not look like most of them. Themes change colours by the month and templates by turns: what
/// counts is the layout, the type, how photos are placed and framed, and whether frames were moved by hand.
class MvPageDeviation
{
public:
    /// For each page whether it deviates; covers, free pages and backs never do.
    static QList<bool> of(const MvCalendarDocument &document);
};
