// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/mvxml_export.h"

#include <QColor>
#include <QDateTime>
#include <QDomElement>
#include <QFont>
#include <QString>

/// Reading values from elements: what is missing or malformed gives the default, silently.
///
/// ...Attribute() reads an attribute of the element, ...Text() the text of its first child element of that name.
class MVXML_EXPORT MvXMLParser
{
public:
    static QString textAttribute(const QDomElement &element, const QString &name, const QString &defaultValue = {});
    static int intAttribute(const QDomElement &element, const QString &name, int defaultValue = 0);
    /// Decimal point, no exponent needed; infinities and "nan" give the default.
    static double doubleAttribute(const QDomElement &element, const QString &name, double defaultValue = 0.0);
    static bool boolAttribute(const QDomElement &element, const QString &name, bool defaultValue = false);
    /// "#RRGGBB", "#AARRGGBB", a colour name or "transparent".
    static QColor colorAttribute(const QDomElement &element, const QString &name, const QColor &defaultValue = {});
    static QColor color(const QString &text, const QColor &defaultValue = {});

    static QString text(const QDomElement &element, const QString &name, const QString &defaultValue = {});
    static bool boolText(const QDomElement &element, const QString &name, bool defaultValue);
    static QDateTime dateTimeText(const QDomElement &element, const QString &name, Qt::DateFormat format,
                                  const QDateTime &defaultValue = {});

    /// A "font" element: attributes "family", "pointsize" (points, may be fractional), "weight" (100 to 900), "italic",
    /// "capitalization" and "letterspacing" (percent of the font's size added between letters). Each missing one keeps
    /// the given font's value.
    static QFont readFont(const QDomElement &element, const QFont &defaultFont);
};
