// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/mvxml_export.h"

#include <QFont>
#include <QString>

/// Words of the file formats that stand for values of Qt's enumerations, in both directions.
class MVXML_EXPORT MvXMLKeywords
{
public:
    /// "AlignLeft|AlignTop" and the like ("," separates as well); unknown words count for nothing, and a text without
    /// any known word gives Qt::AlignCenter.
    static Qt::Alignment alignment(const QString &text);
    /// The words of alignment() joined by "|"; "AlignCenter" for both centred directions.
    static QString alignmentText(Qt::Alignment alignment);

    /// Qt's own key names ("SmallCaps", "Bold"); an unknown one gives mixed case and normal weight.
    static QFont::Capitalization capitalization(const QString &text);
    static QString capitalizationText(QFont::Capitalization capitalization);
    static QFont::Weight weight(const QString &text);
    static QString weightText(QFont::Weight weight);
};
