// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventBytes.h"

#include "MvXML/MvXMLBuilder.h"

#include <QDomDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

const QString MvCalendarEventBytes::listElement = u"CalendarEvents"_s;
const QString MvCalendarEventBytes::entryElement = u"CalendarEvent"_s;
const QString MvCalendarEventBytes::groupElement = u"CalendarEventGroup"_s;

namespace {

const QString imageName = u"Image"_s;
constexpr qsizetype usualBytesOfEntry = 320;

/// The texts of a group in a file; what is empty is not there.
QList<std::pair<QString, QString>> textsOf(const MvEventGroup &group)
{
    QList<std::pair<QString, QString>> texts = {
        {u"Id"_s, group.id},
        {u"Name"_s, group.name},
        {u"Color"_s, group.color.isValid() ? group.color.name(QColor::HexRgb) : QString()},
        {u"Symbol"_s, group.symbol},
        {u"EntryText"_s, group.entryText},
    };
    texts.removeIf([](const auto &text) { return text.second.isEmpty(); });
    return texts;
}

/// A list with only this entry or group; an empty list without texts.
QByteArray documentOf(const QString &name, const QList<std::pair<QString, QString>> &texts)
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, MvCalendarEventBytes::listElement);
    if (!texts.isEmpty()) {
        QDomElement element = MvXMLBuilder::buildDomElement(root, name);
        for (const auto &[child, text] : texts)
            MvXMLBuilder::buildDomElement(element, child, text);
    }
    return document.toByteArray(2);
}

/// The lines of the entry in such a list.
QByteArray entryIn(const QByteArray &document)
{
    const qsizetype begin = document.indexOf('\n', document.indexOf('\n') + 1) + 1; // after the second line
    return document.mid(begin, document.lastIndexOf("</") - begin);
}

/// Whether the text needs no escaping.
bool isPlain(const QString &text)
{
    const auto isOrdinary = [](QChar c) {
        return c >= u' ' && !c.isSurrogate() && c < u'\xfffe' && c != u'<' && c != u'>' && c != u'&' && c != u'"';
    };
    return std::all_of(text.cbegin(), text.cend(), isOrdinary) && (text.isEmpty() || !text.trimmed().isEmpty());
}

/// The lines of an entry as a document would write them, at a fraction of the time; false, and nothing appended, when
/// its texts are not as plain as nearly all are.
bool appendPlain(QByteArray &bytes, const QString &element, const QList<std::pair<QString, QString>> &texts)
{
    if (!std::all_of(texts.cbegin(), texts.cend(), [](const auto &text) { return isPlain(text.second); }))
        return false;
    const QByteArray entry = element.toLatin1();
    bytes.append("  <").append(entry).append(">\n");
    for (const auto &[name, text] : texts) {
        const QByteArray child = name.toLatin1();
        bytes.append("    <").append(child);
        if (text.isEmpty())
            bytes.append("/>\n");
        else
            bytes.append('>').append(text.toUtf8()).append("</").append(child).append(">\n");
    }
    bytes.append("  </").append(entry).append(">\n");
    return true;
}

/// Both have the same text in a file. The offset of local times is a matter of the time zone's rules: it takes long.
bool isSameText(const QDateTime &a, const QDateTime &b)
{
    return a.timeSpec() == b.timeSpec() && a.date() == b.date() && a.time() == b.time() &&
           (a.timeSpec() != Qt::OffsetFromUTC || a.offsetFromUtc() == b.offsetFromUtc());
}

bool isSameInFile(const MvCalendarEvent &a, const MvCalendarEvent &b)
{
    return a.uuid() == b.uuid() && isSameText(a.lastChanged(), b.lastChanged()) &&
           isSameText(a.dateTime(), b.dateTime()) && a == b && a.foto().localFilePath() == b.foto().localFilePath();
}

} // namespace

MvCalendarEventBytes::MvCalendarEventBytes(const PathText &pathText)
    : m_pathText(pathText)
{}

void MvCalendarEventBytes::append(QByteArray &bytes, const QString &name,
                                  const QList<std::pair<QString, QString>> &texts) const
{
    if (!appendPlain(bytes, name, texts))
        bytes += entryIn(documentOf(name, texts));
}

void MvCalendarEventBytes::append(QByteArray &bytes, const MvCalendarEvent &event) const
{
    if (!event.isValid())
        return;
    QList<std::pair<QString, QString>> texts = event.fileTexts();
    for (auto &[name, text] : texts) {
        if (m_pathText && name == imageName)
            text = m_pathText(text);
    }
    append(bytes, entryElement, texts);
}

qsizetype MvCalendarEventBytes::find(const MvCalendarEvent &event, qsizetype expected)
{
    const auto isAt = [&](qsizetype place) {
        return place >= 0 && place < m_events.size() && isSameInFile(m_events.at(place), event);
    };
    if (isAt(expected))
        return expected;
    if (m_index.isEmpty()) {
        for (qsizetype i = 0; i < m_events.size(); ++i)
            m_index.insert(m_events.at(i).uuid(), i);
    }
    const qsizetype place = m_index.value(event.uuid(), -1);
    return isAt(place) ? place : -1;
}

QByteArray MvCalendarEventBytes::of(const MvCalendarEventList &events)
{
    const QByteArray frame = documentOf({}, {});
    const qsizetype root = frame.lastIndexOf('<'); // "<CalendarEvents/>"
    const QByteArray begin = frame.first(root) + '<' + listElement.toLatin1() + ">\n";
    QByteArray bytes = begin;
    bytes.reserve(std::max(m_bytes.size(), events.size() * usualBytesOfEntry) + usualBytesOfEntry);
    for (const MvEventGroup &group : events.groups()) {
        if (group.isValid())
            append(bytes, groupElement, textsOf(group));
    }
    QList<qsizetype> places{bytes.size()};
    places.reserve(events.size() + 1);
    qsizetype expected = 0;
    for (const MvCalendarEvent &event : events) {
        const qsizetype before = find(event, expected);
        if (before < 0)
            append(bytes, event);
        else
            bytes += QByteArrayView(m_bytes).sliced(m_places.at(before), m_places.at(before + 1) - m_places.at(before));
        expected = (before < 0 ? expected : before) + 1;
        places.append(bytes.size());
    }
    bytes = bytes.size() == begin.size() ? frame : bytes + "</" + listElement.toLatin1() + ">\n";
    m_events = events;
    m_places = places;
    m_index.clear();
    m_bytes = bytes;
    return bytes;
}
