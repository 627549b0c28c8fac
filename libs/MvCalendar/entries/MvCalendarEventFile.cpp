// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvCalendarEventFile.h"

#include "MvCalendar/MvCalendarEventBytes.h"
#include "MvCalendar/MvCalendarEventFotoFinder.h"
#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvXML/MvXMLLoader.h"

#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString &rootName = MvCalendarEventBytes::listElement;
const QString &entryName = MvCalendarEventBytes::entryElement;
const QString &groupName = MvCalendarEventBytes::groupElement;

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

/// Reads the entries of a list. The reader is at the root element before and at its end afterwards.
void readEntries(QXmlStreamReader &reader, MvCalendarEventFotoFinder &fotos, MvCalendarEventFile::Content &content,
                 qsizetype expected = 0)
{
    Gathering gathering(expected);
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
    // as a stream: faster than a document in memory, and names of blanks alone stay
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    if (reader.readNextStartElement() && reader.qualifiedName() != rootName) {
        if (error = MvXMLLoader::check(bytes, MvXMLLoader::Limits::ofStreams()); error.isError()) {
            content.error = error.describe(present);
            return content;
        }
        content.foreign = MvXMLLoader::Error{tr("Das ist keine Liste von Kalendereinträgen; die Datei beginnt mit „%1“ "
                                                "statt mit „%2“.")
                                                 .arg(shown(reader.qualifiedName().toString()), rootName)}
                              .describe(present);
        return content;
    }
    MvCalendarEventFotoFinder fotos(present);
    constexpr qsizetype usualBytesOfEntry = 320;
    readEntries(reader, fotos, content, bytes.size() / usualBytesOfEntry);
    while (!reader.atEnd()) // what follows the list
        reader.readNext();
    if (error = MvXMLLoader::errorOf(reader, bytes); error.isError()) {
        content = {};
        content.error = error.describe(present);
        return content;
    }
    content.isComplete = content.skipped.isEmpty();
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
