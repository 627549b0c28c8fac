// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvLocalizedText.h"

#include "MvCore/MvTranslations.h"
#include "MvXML/MvXMLBuilder.h"

#include <QDomElement>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
const QString fileLanguage = u"de"_s; // of attributes that do not name theirs
}

MvLocalizedText::MvLocalizedText(const QString &text)
{
    if (!text.isEmpty())
        m_texts.insert(fileLanguage, text);
}

void MvLocalizedText::read(const QDomElement &element, const QString &key)
{
    m_texts.clear();
    const QString prefix = key + u'_';
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomAttr attribute = attributes.item(i).toAttr();
        if (attribute.name().startsWith(prefix) && !attribute.value().isEmpty())
            m_texts.insert(attribute.name().mid(prefix.size()), attribute.value());
    }
    const QString text = element.attribute(key);
    if (!text.isEmpty())
        m_texts.insert(fileLanguage, text);
}

void MvLocalizedText::write(QDomElement &element, const QString &key) const
{
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it)
        MvXMLBuilder::addAttribute(element, it.key() == fileLanguage ? key : key + u'_' + it.key(), it.value());
}

QString MvLocalizedText::text() const
{
    return MvTranslations::choose(m_texts);
}

QString MvLocalizedText::text(const QString &language) const
{
    return m_texts.value(language);
}

bool MvLocalizedText::isAnyOf(const QString &text) const
{
    return std::any_of(m_texts.cbegin(), m_texts.cend(),
                       [&text](const QString &own) { return own.compare(text, Qt::CaseInsensitive) == 0; });
}
