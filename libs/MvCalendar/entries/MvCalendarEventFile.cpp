// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"

#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDomDocument>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString rootName = u"CalendarEvents"_s;
const QString entryName = u"CalendarEvent"_s;
const QString groupName = u"CalendarEventGroup"_s;
const QString imageName = u"Image"_s;

/// Gathers what a file holds, each equal entry once.
class Gathering
{
public:
    void add(const MvCalendarEvent &event)
    {
        if (!event.isValid())
            return;
        const qsizetype before = m_known.size();
        m_known.insert(event);
        if (m_known.size() > before)
            m_events.append(event);
    }

    MvCalendarEventList events() const { return m_events; }

private:
    MvCalendarEventList m_events;
    QSet<MvCalendarEvent> m_known;
};

/// A text of a file as part of a message.
QString shown(const QString &text)
{
    constexpr qsizetype longest = 60;
    const QString simple = text.simplified();
    return simple.size() > longest ? simple.left(longest) + u'…' : simple;
}

QString whyInvalid(const MvCalendarEvent &event, const MvCalendarEventTexts &texts)
{
    const QString date = shown(texts.text(u"DateTime"_s));
    QStringList reasons;
    if (event.isValid())
        return MvCalendarEvent::whyUnreadable(texts);
    if (event.description().isEmpty())
        reasons.append(MvCalendarEventFile::tr("der Name fehlt"));
    if (!event.dateTime().isValid())
        reasons.append(date.isEmpty() ? MvCalendarEventFile::tr("das Datum fehlt")
                                      : MvCalendarEventFile::tr("das Datum „%1“ ist nicht zu lesen").arg(date));
    return reasons.join(u", "_s);
}

MvEventGroup readGroup(const MvCalendarEventTexts &texts)
{
    MvEventGroup group;
    group.id = texts.text(u"Id"_s).trimmed();
    group.name = texts.text(u"Name"_s).simplified();
    group.color = QColor(texts.text(u"Color"_s).trimmed());
    group.symbol = texts.text(u"Symbol"_s).trimmed();
    group.entryText = texts.text(u"EntryText"_s).trimmed();
    return group;
}

QString whyInvalid(const MvEventGroup &group, const MvCalendarEventTexts &texts, const MvEventGroupList &known)
{
    const QString color = shown(texts.text(u"Color"_s));
    if (!group.isValid())
        return MvCalendarEventFile::tr("der Gruppe fehlt Kennung oder Name");
    if (known.find(group.id))
        return MvCalendarEventFile::tr("die Gruppe „%1“ steht zweimal da").arg(shown(group.id));
    return group.color.isValid() || color.isEmpty()
               ? QString()
               : MvCalendarEventFile::tr("die Farbe „%1“ ist nicht zu lesen").arg(color);
}

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

/// Reads the entries of a list. The reader is at the root element before and at its end afterwards.
void readEntries(QXmlStreamReader &reader, MvCalendarEventFotoFinder &fotos, MvCalendarEventFile::Content &content)
{
    Gathering gathering;
    MvEventGroupList groups;
    while (reader.readNextStartElement()) {
        const int line = int(reader.lineNumber());
        const QString element = reader.qualifiedName().toString();
        if (element == groupName) {
            const MvCalendarEventTexts texts(reader);
            const MvEventGroup group = readGroup(texts);
            const QString reason = whyInvalid(group, texts, groups);
            if (reason.isEmpty())
                groups.append(group);
            else
                content.skipped.append({line, shown(group.name), reason});
            continue;
        }
        if (element != entryName) {
            reader.skipCurrentElement();
            content.skipped.append({line, shown(element), MvCalendarEventFile::tr("das ist kein Eintrag")});
            continue;
        }
        const MvCalendarEventTexts texts(reader);
        if (texts.isEmpty())
            continue;
        const MvCalendarEvent event(texts, fotos);
        const QString reason = whyInvalid(event, texts);
        if (reason.isEmpty())
            gathering.add(event);
        else
            content.skipped.append({line, shown(event.description()), reason});
    }
    content.events = gathering.events();
    content.events.setGroups(groups);
}

QString noteOfForeignFotos(const MvCalendarEventList &events, const QFileInfo &file)
{
    QStringList paths;
    for (const MvCalendarEvent &event : events) {
        if (event.foto().isValid() && !event.foto().mayBeOpened())
            paths.append(event.foto().localFilePath());
    }
    if (paths.isEmpty())
        return {};
    const QString note = MvCalendarEventFile::tr("%1: %n Fotos liegen außerhalb der erlaubten Ordner und werden nicht "
                                                 "geladen, zuerst %2",
                                                 nullptr, int(paths.size()));
    return note.arg(file.filePath(), paths.first());
}

/// What a file has for the path of a photo.
using PathText = std::function<QString(const QString &path)>;

/// A list with only this entry or group; an empty list without texts.
QByteArray documentOf(const QString &name, const QList<std::pair<QString, QString>> &texts)
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, rootName);
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

constexpr qsizetype usualBytesOfEntry = 320;

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

QByteArray bytesOf(const MvCalendarEventList &events, const PathText &pathText)
{
    const QByteArray frame = documentOf({}, {});
    const qsizetype root = frame.lastIndexOf('<'); // "<CalendarEvents/>"
    const QByteArray begin = frame.first(root) + '<' + rootName.toLatin1() + ">\n";
    QByteArray bytes = begin;
    bytes.reserve(bytes.size() + events.size() * usualBytesOfEntry);
    const auto append = [&bytes](const QString &name, const QList<std::pair<QString, QString>> &texts) {
        if (!appendPlain(bytes, name, texts))
            bytes += entryIn(documentOf(name, texts));
    };
    for (const MvEventGroup &group : events.groups()) {
        if (group.isValid())
            append(groupName, textsOf(group));
    }
    for (const MvCalendarEvent &event : events) {
        if (!event.isValid())
            continue;
        QList<std::pair<QString, QString>> texts = event.fileTexts();
        for (auto &[name, text] : texts) {
            if (pathText && name == imageName)
                text = pathText(text);
        }
        append(entryName, texts);
    }
    return bytes.size() == begin.size() ? frame : bytes + "</" + rootName.toLatin1() + ">\n";
}

} // namespace

MvCalendarEventFile::Content MvCalendarEventFile::read(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given QFileInfo may have cached an older state
    Content content;
    MvXMLLoader::Error error;
    const QByteArray bytes = MvXMLLoader::loadBytes(present, &error, MvXMLLoader::Limits::ofStreams());
    if (error.isError()) {
        content.error = error.describe(present);
        content.isMissing = !present.exists() && !present.isSymLink();
        return content;
    }
    // as a stream: faster than a document in memory, and names of blanks alone stay
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement() && reader.qualifiedName() != rootName) {
        content.foreign = MvXMLLoader::Error{tr("Das ist keine Liste von Kalendereinträgen; die Datei beginnt mit „%1“ "
                                                "statt mit „%2“.")
                                                 .arg(shown(reader.qualifiedName().toString()), rootName)}
                              .describe(present);
        return content;
    }
    MvCalendarEventFotoFinder fotos(present);
    readEntries(reader, fotos, content);
    if (reader.hasError())
        content.error =
            MvXMLLoader::Error{reader.errorString(), int(reader.lineNumber()), int(reader.columnNumber()) + 1}.describe(
                present);
    content.isComplete = content.isRead() && content.skipped.isEmpty();
    content.note = noteOfForeignFotos(content.events, present);
    if (!content.note.isEmpty())
        qWarning().noquote() << content.note;
    return content;
}

MvCalendarEventFile::Content MvCalendarEventFile::readWithin(QXmlStreamReader &reader, MvCalendarEventFotoFinder fotos)
{
    Content content;
    readEntries(reader, fotos, content);
    content.isComplete = content.skipped.isEmpty();
    return content;
}

QString MvCalendarEventFile::Skipped::describe() const
{
    return name.isEmpty() ? MvCalendarEventFile::tr("Zeile %1: %2").arg(line).arg(reason)
                          : MvCalendarEventFile::tr("Zeile %1, „%2“: %3").arg(QString::number(line), name, reason);
}

QString MvCalendarEventFile::describe(const QList<Skipped> &skipped, int most)
{
    QStringList lines;
    for (const Skipped &one : skipped.mid(0, most))
        lines.append(one.describe());
    if (skipped.size() > most)
        lines.append(MvCalendarEventFile::tr("… und %n weitere", nullptr, int(skipped.size()) - most));
    return lines.join(u'\n');
}

MvCalendarEventList MvCalendarEventFile::readElement(const QDomElement &element)
{
    Gathering gathering;
    for (QDomElement child = element.firstChildElement(entryName); !child.isNull();
         child = child.nextSiblingElement(entryName))
        gathering.add(MvCalendarEvent(child));
    MvCalendarEventList events = gathering.events();
    for (QDomElement child = element.firstChildElement(groupName); !child.isNull();
         child = child.nextSiblingElement(groupName))
        events.groups().put(readGroup(MvCalendarEventTexts(child)));
    return events;
}

QByteArray MvCalendarEventFile::toBytes(const MvCalendarEventList &events)
{
    return bytesOf(events, {});
}

QByteArray MvCalendarEventFile::toBytesWithin(const MvCalendarEventList &events, const QDir &folder)
{
    const QString below = folder.absolutePath() + u'/';
    const QByteArray bytes = bytesOf(
        events, [&below](const QString &path) { return path.startsWith(below) ? path.mid(below.size()) : path; });
    return bytes.mid(bytes.indexOf('<' + rootName.toLatin1()));
}

QString MvCalendarEventFile::elementName()
{
    return rootName;
}
