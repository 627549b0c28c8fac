// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventLines.h"

#include "MvCalendar/MvCalendarEventBytes.h"
#include "MvCalendar/MvCalendarEventTexts.h"

#include <algorithm>
#include <array>

namespace {

constexpr QByteArrayView declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
constexpr QByteArrayView listName = "CalendarEvents";
constexpr QByteArrayView entryName = "CalendarEvent";
constexpr QByteArrayView groupName = "CalendarEventGroup";
constexpr qsizetype longestName = 64;

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Characters that an XML reader refuses or leaves out: control characters, the end of character data, byte order
/// marks and the two that are none. `before` is what of the text stands before them.
bool isPeculiar(QByteArrayView before, QByteArrayView rest)
{
    const auto c = uchar(rest.front());
    if (c < ' ')
        return c != '\n' && c != '\t';
    if (c == '>')
        return before.endsWith("]]");
    return c == 0xEF &&
           (rest.startsWith("\xEF\xBB\xBF") || rest.startsWith("\xEF\xBF\xBE") || rest.startsWith("\xEF\xBF\xBF"));
}

/// Replaces the references that every XML file knows, and the one that programs write; false when there is another.
bool resolve(QByteArrayView text, QByteArray &resolved)
{
    struct Reference
    {
        QByteArrayView name;
        char character = 0;
    };
    static constexpr std::array<Reference, 6> known{
        {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}, {"&#xd;", '\r'}}};
    while (!text.isEmpty()) {
        const qsizetype place = text.indexOf('&');
        resolved += place < 0 ? text : text.first(place);
        if (place < 0)
            break;
        text = text.sliced(place);
        const auto *const found = std::find_if(known.begin(), known.end(), [&text](const Reference &reference) {
            return text.startsWith(reference.name);
        });
        if (found == known.end())
            return false;
        resolved += found->character;
        text = text.sliced(found->name.size());
    }
    return true;
}

} // namespace

MvCalendarEventLines::MvCalendarEventLines(QByteArrayView bytes)
    : m_bytes(bytes)
{
    take(declaration);
    skipBlanks();
    if (!bytes.isValidUtf8() || !take("<") || takeName() != listName || !take(">"))
        giveUp();
}

bool MvCalendarEventLines::next()
{
    if (m_hasGivenUp || m_isAtEnd)
        return false;
    skipBlanks();
    if (take("</")) {
        if (!takeEnd(listName))
            return giveUp();
        skipBlanks();
        m_isAtEnd = m_at == m_bytes.size();
        return m_isAtEnd ? false : giveUp();
    }
    if (!take("<"))
        return giveUp();
    const QByteArrayView name = takeName();
    if ((name != entryName && name != groupName) || !take(">"))
        return giveUp();
    m_element = name == entryName ? &MvCalendarEventBytes::entryElement : &MvCalendarEventBytes::groupElement;
    m_elementLine = m_line;
    return true;
}

MvCalendarEventTexts MvCalendarEventLines::texts()
{
    MvCalendarEventTexts texts;
    const QByteArrayView element = m_element == &MvCalendarEventBytes::entryElement ? entryName : groupName;
    while (!m_hasGivenUp) {
        skipBlanks();
        if (take("</")) {
            if (!takeEnd(element))
                giveUp();
            break;
        }
        if (!take("<")) {
            giveUp();
            break;
        }
        const QByteArrayView name = takeName();
        QString text;
        if (!take("/>") && !(take(">") && takeText(text) && take("</") && takeEnd(name)))
            giveUp();
        else
            texts.add(QLatin1StringView(name), text);
    }
    return texts;
}

bool MvCalendarEventLines::giveUp()
{
    m_hasGivenUp = true;
    return false;
}

bool MvCalendarEventLines::take(QByteArrayView expected)
{
    if (!m_bytes.sliced(m_at).startsWith(expected))
        return false;
    m_at += expected.size();
    return true;
}

bool MvCalendarEventLines::takeEnd(QByteArrayView name)
{
    return take(name) && take(">");
}

/// The name of an element; empty, which no element has, when there is none or an unusual one.
QByteArrayView MvCalendarEventLines::takeName()
{
    const QByteArrayView rest = m_bytes.sliced(m_at, std::min(m_bytes.size() - m_at, longestName));
    const auto length = std::find_if_not(rest.begin(), rest.end(), isLetter) - rest.begin();
    if (length == 0)
        giveUp();
    m_at += length;
    return rest.first(length);
}

bool MvCalendarEventLines::takeText(QString &text)
{
    const QByteArrayView rest = m_bytes.sliced(m_at);
    bool hasReferences = false;
    qsizetype length = 0;
    for (; length < rest.size() && rest.at(length) != '<'; ++length) {
        if (isPeculiar(rest.first(length), rest.sliced(length)))
            return false;
        hasReferences = hasReferences || rest.at(length) == '&';
        m_line += rest.at(length) == '\n' ? 1 : 0;
    }
    m_at += length;
    QByteArray resolved;
    if (hasReferences && !resolve(rest.first(length), resolved))
        return false;
    text = hasReferences ? QString::fromUtf8(resolved) : QString::fromUtf8(rest.first(length));
    return true;
}

void MvCalendarEventLines::skipBlanks()
{
    for (; m_at < m_bytes.size(); ++m_at) {
        const char c = m_bytes.at(m_at);
        if (c != ' ' && c != '\n' && c != '\t')
            break;
        m_line += c == '\n' ? 1 : 0;
    }
}
