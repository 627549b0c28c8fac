#include "MvCalendar/MvCalendarEventFile.h"

#include "MvCalendar/MvCalendarEventTexts.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDomDocument>
#include <QSet>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

const QString rootName = u"CalendarEvents"_s;
const QString entryName = u"CalendarEvent"_s;

/// Gathers what a file holds, each equal entry once.
class Gathering
{
public:
    void add(const MvCalendarEvent &event, bool isEmpty)
    {
        if (!event.isValid()) {
            m_lost += isEmpty ? 0 : 1;
            return;
        }
        const qsizetype before = m_known.size();
        m_known.insert(event);
        if (m_known.size() > before)
            m_events.append(event);
    }

    MvCalendarEventList events() const { return m_events; }
    /// No element with content was left out as invalid.
    bool isComplete() const { return m_lost == 0; }

private:
    MvCalendarEventList m_events;
    QSet<MvCalendarEvent> m_known;
    qsizetype m_lost = 0;
};

void warnOfForeignFotos(const MvCalendarEventList &events, const QFileInfo &file)
{
    QStringList paths;
    for (const MvCalendarEvent &event : events) {
        if (event.foto().isValid() && !event.foto().mayBeOpened())
            paths.append(event.foto().localFilePath());
    }
    if (!paths.isEmpty())
        qWarning().noquote() << MvCalendarEventFile::tr("%1: %n Fotos liegen außerhalb der erlaubten Ordner und "
                                                        "werden nicht geladen, zuerst %2",
                                                        nullptr, int(paths.size()))
                                    .arg(file.filePath(), paths.first());
}

} // namespace

MvCalendarEventFile::Content MvCalendarEventFile::read(const QFileInfo &file)
{
    const QFileInfo present(file.filePath()); // the given one may remember an older state
    Content content;
    MvXMLLoader::Error error;
    const QByteArray bytes = MvXMLLoader::loadBytes(present, &error);
    if (error.isError()) {
        content.error = error.describe(present);
        content.isMissing = !present.exists() && !present.isSymLink();
        return content;
    }
    // as a stream: faster than a document in memory, and names of blanks alone stay
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    const bool isList = reader.readNextStartElement() && reader.qualifiedName() == rootName;
    const QDir folder = present.absoluteDir();
    Gathering gathering;
    while (isList && reader.readNextStartElement()) {
        if (reader.qualifiedName() != entryName) {
            reader.skipCurrentElement();
            continue;
        }
        const MvCalendarEventTexts texts(reader);
        gathering.add(MvCalendarEvent(texts, folder), texts.isEmpty());
    }
    content.events = gathering.events();
    content.isComplete = isList && gathering.isComplete();
    warnOfForeignFotos(content.events, present);
    return content;
}

MvCalendarEventList MvCalendarEventFile::readElement(const QDomElement &element)
{
    Gathering gathering;
    for (QDomElement child = element.firstChildElement(entryName); !child.isNull();
         child = child.nextSiblingElement(entryName))
        gathering.add(MvCalendarEvent(child), !child.hasChildNodes());
    return gathering.events();
}

QByteArray MvCalendarEventFile::toBytes(const MvCalendarEventList &events)
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, rootName);
    for (const MvCalendarEvent &event : events) {
        if (event.isValid())
            event.createXML(root);
    }
    return document.toByteArray(2);
}
