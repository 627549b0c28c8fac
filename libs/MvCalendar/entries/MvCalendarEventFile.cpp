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

using namespace Qt::StringLiterals;

namespace {

const QString rootName = u"CalendarEvents"_s;
const QString entryName = u"CalendarEvent"_s;

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
    if (event.description().isEmpty())
        reasons.append(MvCalendarEventFile::tr("der Name fehlt"));
    if (!event.dateTime().isValid())
        reasons.append(date.isEmpty() ? MvCalendarEventFile::tr("das Datum fehlt")
                                      : MvCalendarEventFile::tr("das Datum „%1“ ist nicht zu lesen").arg(date));
    return reasons.join(u", "_s);
}

/// Reads the entries of a list. The reader is at the root element before and at its end afterwards.
void readEntries(QXmlStreamReader &reader, const QFileInfo &file, MvCalendarEventFile::Content &content)
{
    Gathering gathering;
    MvCalendarEventFotoFinder fotos(file);
    while (reader.readNextStartElement()) {
        const int line = int(reader.lineNumber());
        const QString element = reader.qualifiedName().toString();
        if (element != entryName) {
            reader.skipCurrentElement();
            content.skipped.append({line, shown(element), MvCalendarEventFile::tr("das ist kein Eintrag")});
            continue;
        }
        const MvCalendarEventTexts texts(reader);
        if (texts.isEmpty())
            continue;
        const MvCalendarEvent event(texts, fotos);
        gathering.add(event);
        if (!event.isValid())
            content.skipped.append({line, shown(event.description()), whyInvalid(event, texts)});
    }
    content.events = gathering.events();
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

/// A list with only this entry; an empty list for an invalid one.
QByteArray documentOf(const MvCalendarEvent &event)
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, rootName);
    if (event.isValid())
        event.createXML(root);
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
bool appendPlain(QByteArray &bytes, const QList<std::pair<QString, QString>> &texts)
{
    if (!std::all_of(texts.cbegin(), texts.cend(), [](const auto &text) { return isPlain(text.second); }))
        return false;
    static const QByteArray entry = entryName.toLatin1();
    bytes.append("  <").append(entry).append(">\n");
    for (const auto &[name, text] : texts) {
        const QByteArray element = name.toLatin1();
        bytes.append("    <").append(element);
        if (text.isEmpty())
            bytes.append("/>\n");
        else
            bytes.append('>').append(text.toUtf8()).append("</").append(element).append(">\n");
    }
    bytes.append("  </").append(entry).append(">\n");
    return true;
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
    readEntries(reader, present, content);
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

QString MvCalendarEventFile::Skipped::describe() const
{
    return name.isEmpty() ? tr("Zeile %1: %2").arg(line).arg(reason)
                          : tr("Zeile %1, „%2“: %3").arg(QString::number(line), name, reason);
}

QString MvCalendarEventFile::describe(const QList<Skipped> &skipped, int most)
{
    QStringList lines;
    for (const Skipped &one : skipped.mid(0, most))
        lines.append(one.describe());
    if (skipped.size() > most)
        lines.append(tr("… und %n weitere", nullptr, int(skipped.size()) - most));
    return lines.join(u'\n');
}

MvCalendarEventList MvCalendarEventFile::readElement(const QDomElement &element)
{
    Gathering gathering;
    for (QDomElement child = element.firstChildElement(entryName); !child.isNull();
         child = child.nextSiblingElement(entryName))
        gathering.add(MvCalendarEvent(child));
    return gathering.events();
}

QByteArray MvCalendarEventFile::toBytes(const MvCalendarEventList &events)
{
    const QByteArray frame = documentOf({});
    const qsizetype root = frame.lastIndexOf('<'); // "<CalendarEvents/>"
    QByteArray bytes = frame.first(root) + '<' + rootName.toLatin1() + ">\n";
    bytes.reserve(bytes.size() + events.size() * usualBytesOfEntry);
    bool isEmpty = true;
    for (const MvCalendarEvent &event : events) {
        if (!event.isValid())
            continue;
        isEmpty = false;
        if (!appendPlain(bytes, event.fileTexts()))
            bytes += entryIn(documentOf(event));
    }
    return isEmpty ? frame : bytes + "</" + rootName.toLatin1() + ">\n";
}
