// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectNotes.h"

#include "MvXML/MvXMLLoader.h"
#include "MvXML/MvXMLParser.h"

void MvProjectNotes::addIfChanged(const QDomElement &place, const QString &attribute, double taken)
{
    const QString text = MvXMLParser::textAttribute(place, attribute);
    bool isNumber = false;
    const double written = text.trimmed().toDouble(&isNumber);
    if (!text.isEmpty() && !(isNumber && written == taken))
        add(place, tr("%1 „%2“ geht nicht; es gilt %3.").arg(attribute, text).arg(taken));
}

int MvProjectNotes::addIfUnknown(const QDomElement &place, const QString &attribute, const QStringList &words)
{
    const QString text = MvXMLParser::textAttribute(place, attribute, words.constFirst());
    const int index = int(words.indexOf(text));
    if (index < 0)
        add(place, tr("%1 „%2“ geht nicht; es gilt „%3“.").arg(attribute, text, words.constFirst()));
    return std::max(0, index);
}

QString MvProjectNotes::placed(const QDomElement &place, const QString &message) const
{
    MvXMLLoader::Error error;
    error.message = message;
    error.line = place.lineNumber();
    error.column = place.columnNumber();
    return error.describe(m_file);
}
