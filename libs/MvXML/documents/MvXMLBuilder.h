// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvXML/mvxml_export.h"

#include <QColor>
#include <QDomDocument>
#include <QDomElement>
#include <QFileInfo>
#include <QFont>
#include <QString>

/// Building documents. Texts lose the characters that XML cannot hold, so that what is written can be read.
class MVXML_EXPORT MvXMLBuilder
{
public:
    /// Puts the processing instruction `xml version="1.0" encoding="UTF-8"` at the front of the document.
    static void buildUTF8ProcessingInstructions(QDomDocument &document);
    /// Appends and returns the root element.
    static QDomElement buildRootElement(QDomDocument &document, const QString &name);
    /// Appends an element to the parent, with a text if one is given, and returns it.
    static QDomElement buildDomElement(QDomNode &parent, const QString &name);
    static QDomElement buildDomElement(QDomNode &parent, const QString &name, const QString &text);

    static void addAttribute(QDomElement &element, const QString &name, const QString &value);
    static void addAttribute(QDomElement &element, const QString &name, int value);
    /// The shortest text that reads back to the same number.
    static void addAttribute(QDomElement &element, const QString &name, double value);
    static void addAttribute(QDomElement &element, const QString &name, bool value);
    /// "#RRGGBB" when opaque, "#AARRGGBB" otherwise. An invalid colour is not written.
    static void addAttribute(QDomElement &element, const QString &name, const QColor &value);
    static QString colorText(const QColor &color);

    /// Appends the element "font" that MvXMLParser::readFont() reads to an equal font.
    static QDomElement buildFont(QDomElement &parent, const QFont &font);

    /// Saves the document as UTF-8, indented by 2, through the safe file writer; says whether it is in place. A missing
    /// folder is made. A file in the place that cannot be read is set aside under a dated name first, with a warning.
    static bool saveUTF8(const QDomDocument &document, const QFileInfo &file);
};
