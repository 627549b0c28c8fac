// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvXML/MvShippedXML.h"

#include <algorithm>
#include <cctype>

using namespace Qt::StringLiterals;

namespace {
constexpr int usualAttributes = 4;
}

MvXMLElement MvShippedXML::next()
{
    for (qsizetype at = m_text.indexOf('<', m_at); at >= 0; at = m_text.indexOf('<', m_at)) {
        m_at = at;
        const QByteArrayView rest = m_text.sliced(at);
        if (rest.startsWith("<!--"))
            skip("-->");
        else if (rest.startsWith("<?"))
            skip("?>");
        else
            return rest.startsWith("</") ? MvXMLElement() : element();
    }
    return {};
}

MvXMLElement MvShippedXML::element()
{
    MvXMLElement element;
    ++m_at; // "<"
    element.name = name();
    element.attributes.reserve(usualAttributes);
    for (;;) {
        const char c = here();
        if (c == '>' || c == '/' || c == '\0') {
            skip(">");
            if (c != '>')
                return element;
            break;
        }
        if (std::isspace(static_cast<unsigned char>(c))) {
            ++m_at;
            continue;
        }
        const QString attribute = name();
        element.attributes.append({attribute, value()});
    }
    for (MvXMLElement child = next(); !child.isNull(); child = next())
        element.children.append(std::move(child));
    skip(">");
    return element;
}

QString MvShippedXML::name()
{
    const qsizetype from = m_at;
    for (char c = here(); static_cast<unsigned char>(c) > ' ' && c != '=' && c != '>' && c != '/'; c = here())
        ++m_at;
    const QByteArrayView bytes = m_text.sliced(from, m_at - from);
    const auto known =
        std::find_if(m_names.cbegin(), m_names.cend(), [bytes](const auto &name) { return name.first == bytes; });
    return known != m_names.cend() ? known->second : m_names.emplace_back(bytes, QString::fromUtf8(bytes)).second;
}

QString MvShippedXML::value()
{
    skip("=");
    const char quote = here();
    const qsizetype from = std::min(m_at + 1, m_text.size());
    m_at = from;
    skip(QByteArrayView(&quote, 1));
    QString value = QString::fromUtf8(m_text.sliced(from, std::max<qsizetype>(0, m_at - 1 - from)));
    if (value.contains(u'&')) {
        value.replace("&lt;"_L1, "<"_L1).replace("&gt;"_L1, ">"_L1).replace("&quot;"_L1, "\""_L1);
        value.replace("&apos;"_L1, "'"_L1).replace("&amp;"_L1, "&"_L1);
    }
    return value;
}
