// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"

#include "MvCalendar/MvCalendarEventBytes.h"
#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendarEventLines.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvXML/MvXMLLoader.h"

#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString &rootName = MvCalendarEventBytes::listElement;
const QString &entryName = MvCalendarEventBytes::entryElement;
const QString &groupName = MvCalendarEventBytes::groupElement;

/// How many entries such a file holds, about.
qsizetype expectedIn(const QByteArray &bytes)
{
    constexpr qsizetype usualBytesOfEntry = 320;
    return bytes.size() / usualBytesOfEntry;
}

/// Gathers what a file holds, each equal entry once.
class Gathering
{
public:
    explicit Gathering(qsizetype expected = 0) { m_known.reserve(expected); }

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

/// The elements of a list, of any XML. The reader is at the root element before and at its end afterwards.
class XmlElements
{
public:
    explicit XmlElements(QXmlStreamReader &reader)
        : m_reader(reader)
    {}

    bool next()
    {
        if (m_isOpen)
            m_reader.skipCurrentElement();
        m_isOpen = m_reader.readNextStartElement();
        m_line = int(m_reader.lineNumber());
        return m_isOpen;
    }
    QString element() const { return m_reader.qualifiedName().toString(); }
    int line() const { return m_line; }
    MvCalendarEventTexts texts()
    {
        m_isOpen = false;
        return MvCalendarEventTexts(m_reader);
    }

private:
    QXmlStreamReader &m_reader;
    bool m_isOpen = false; // its texts have not been read
    int m_line = 0;
};

/// Reads the entries of a list.
template <class Elements>
void readEntries(Elements &elements, MvCalendarEventFotoFinder &fotos, MvCalendarEventFile::Content &content,
                 qsizetype expected = 0)
{
    Gathering gathering(expected);
    MvEventGroupList groups;
    while (elements.next()) {
        const QString element = elements.element();
        if (element == groupName) {
            const MvCalendarEventTexts texts = elements.texts();
            const MvEventGroup group = readGroup(texts);
            const QString reason = whyInvalid(group, texts, groups);
            if (reason.isEmpty())
                groups.append(group);
            else
                content.skipped.append({elements.line(), shown(group.name), reason});
            continue;
        }
        if (element != entryName) {
            content.skipped.append({elements.line(), shown(element), MvCalendarEventFile::tr("das ist kein Eintrag")});
            continue;
        }
        const MvCalendarEventTexts texts = elements.texts();
        if (texts.isEmpty())
            continue;
        const MvCalendarEvent event(texts, fotos);
        const QString reason = whyInvalid(event, texts);
        if (reason.isEmpty())
            gathering.add(event);
        else
            content.skipped.append({elements.line(), shown(event.description()), reason});
    }
    content.events = gathering.events();
    content.events.setGroups(groups);
}

/// Reads a list as programs write it; false for any other file.
bool readLines(const QByteArray &bytes, MvCalendarEventFotoFinder &fotos, MvCalendarEventFile::Content &content)
{
    MvCalendarEventLines lines(bytes);
    readEntries(lines, fotos, content, expectedIn(bytes));
    if (!lines.isAtEnd())
        content = {};
    return lines.isAtEnd();
}

/// Reads any file; what is wrong with it stands in the content.
void readXml(const QByteArray &bytes, const QFileInfo &file, MvCalendarEventFotoFinder &fotos,
             MvCalendarEventFile::Content &content)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement() && reader.qualifiedName() != rootName) {
        const MvXMLLoader::Error error = MvXMLLoader::check(bytes, MvXMLLoader::Limits::ofStreams());
        if (error.isError()) {
            content.error = error.describe(file);
            return;
        }
        const QString message = MvCalendarEventFile::tr("Das ist keine Liste von Kalendereinträgen; die Datei beginnt "
                                                        "mit „%1“ statt mit „%2“.");
        content.foreign =
            MvXMLLoader::Error{message.arg(shown(reader.qualifiedName().toString()), rootName)}.describe(file);
        return;
    }
    XmlElements elements(reader);
    readEntries(elements, fotos, content, expectedIn(bytes));
    while (!reader.atEnd()) // what follows the list
        reader.readNext();
    if (const MvXMLLoader::Error error = MvXMLLoader::errorOf(reader, bytes); error.isError()) {
        content = {};
        content.error = error.describe(file);
    }
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

} // namespace

MvCalendarEventFile::Content MvCalendarEventFile::read(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given QFileInfo may have cached an older state
    Content content;
    MvXMLLoader::Error error;
    const QByteArray bytes = MvXMLLoader::loadBytes(present, &error, MvXMLLoader::Limits::ofReaders());
    if (error.isError()) {
        content.error = error.describe(present);
        content.isMissing = !present.exists() && !present.isSymLink();
        return content;
    }
    // not as a document in memory: that is slower, and names of blanks alone would go
    MvCalendarEventFotoFinder fotos(present);
    if (!readLines(bytes, fotos, content))
        readXml(bytes, present, fotos, content);
    if (!content.refusal().isEmpty())
        return content;
    content.isComplete = content.skipped.isEmpty();
    content.note = noteOfForeignFotos(content.events, present);
    if (!content.note.isEmpty())
        qWarning().noquote() << content.note;
    return content;
}

MvCalendarEventFile::Content MvCalendarEventFile::readPart(const QByteArray &list, int line,
                                                           MvCalendarEventFotoFinder fotos)
{
    Content content;
    if (!readLines(list, fotos, content))
        readXml(list, QFileInfo(), fotos, content);
    for (Skipped &skipped : content.skipped)
        skipped.line += line - 1;
    content.isComplete = content.refusal().isEmpty() && content.skipped.isEmpty();
    return content;
}

MvCalendarEventFile::Content MvCalendarEventFile::readWithin(QXmlStreamReader &reader, MvCalendarEventFotoFinder fotos)
{
    Content content;
    XmlElements elements(reader);
    readEntries(elements, fotos, content);
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
    return MvCalendarEventBytes().of(events);
}

QByteArray MvCalendarEventFile::toBytesWithin(const MvCalendarEventList &events, const QDir &folder)
{
    const QString below = folder.absolutePath() + u'/';
    const QByteArray bytes = MvCalendarEventBytes([&below](const QString &path) {
                                 return path.startsWith(below) ? path.mid(below.size()) : path;
                             }).of(events);
    return bytes.mid(bytes.indexOf('<' + rootName.toLatin1()));
}

QString MvCalendarEventFile::elementName()
{
    return rootName;
}
