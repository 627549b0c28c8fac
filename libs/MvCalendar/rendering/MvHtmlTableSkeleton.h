// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QColor;
class QString;

/// Fragments of an HTML table with which a calendarium can be expressed as rich text. The placeholder with the highest
/// number is left for the content.
class MvHtmlTableSkeleton
{
public:
    static QString table(int spacing, int padding);
    /// Without the last bracket of its closing tag, which callers have always added.
    static QString row();
    /// Spans above 1, a valid colour and a width that is not empty become attributes; blanks stand for the others.
    static QString cell(int rowSpan, int colSpan, const QColor &color, const QString &width);
};
