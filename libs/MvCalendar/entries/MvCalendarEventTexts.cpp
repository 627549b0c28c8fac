// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventTexts.h"

#include <QDomElement>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString usualNames[] = {u"Name"_s, u"DateTime"_s, u"Recurrent"_s, u"Image"_s, u"UUID"_s, u"LastChanged"_s};

/// The name as a string; for those that every entry has, one and the same.
template <class View>
QString nameOf(View name)
{
    const auto *const known = std::find(std::begin(usualNames), std::end(usualNames), name);
    return known != std::end(usualNames) ? *known : name.toString();
}

bool isUsual(const QString &name)
{
    return std::find(std::begin(usualNames), std::end(usualNames), name) != std::end(usualNames);
}

} // namespace

MvCalendarEventTexts::MvCalendarEventTexts(const QDomElement &element)
{
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        add(child.tagName(), child.text());
}

MvCalendarEventTexts::MvCalendarEventTexts(QXmlStreamReader &reader)
{
    while (reader.readNextStartElement()) {
        const QString name = nameOf(reader.qualifiedName());
        add(name, reader.readElementText(QXmlStreamReader::IncludeChildElements));
    }
}

void MvCalendarEventTexts::add(QLatin1StringView name, const QString &text)
{
    add(nameOf(name), text);
}

void MvCalendarEventTexts::add(const QString &name, const QString &text)
{
    if (contains(name))
        return;
    m_texts.append({name, text});
    m_hasExtras = m_hasExtras || !isUsual(name);
}

const QString *MvCalendarEventTexts::find(const QString &name) const
{
    const auto found =
        std::find_if(m_texts.cbegin(), m_texts.cend(), [&name](const auto &text) { return text.first == name; });
    return found != m_texts.cend() ? &found->second : nullptr;
}

QString MvCalendarEventTexts::text(const QString &name) const
{
    const QString *text = find(name);
    return text ? *text : QString();
}
