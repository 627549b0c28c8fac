#include "MvCalendar/MvCalendarEventFile.h"

#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDomDocument>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QString rootName = u"CalendarEvents"_s;
const QString entryName = u"CalendarEvent"_s;

struct ReadEntries
{
    MvCalendarEventList events;
    qsizetype lost = 0; // elements with content that gave no valid entry
};

ReadEntries readEntries(const QDomElement &root, const QDir *fileFolder)
{
    ReadEntries result;
    QSet<MvCalendarEvent> known;
    for (QDomElement element = root.firstChildElement(entryName); !element.isNull();
         element = element.nextSiblingElement(entryName)) {
        const MvCalendarEvent event = fileFolder ? MvCalendarEvent(element, *fileFolder) : MvCalendarEvent(element);
        if (!event.isValid()) {
            result.lost += element.hasChildNodes() ? 1 : 0;
            continue;
        }
        if (known.contains(event))
            continue;
        known.insert(event);
        result.events.append(event);
    }
    return result;
}

void warnOfForeignFotos(const MvCalendarEventList &events, const QFileInfo &file)
{
    QStringList paths;
    for (const MvCalendarEvent &event : events) {
        if (event.foto().isValid() && !event.foto().mayBeOpened())
            paths.append(event.foto().localFilePath());
    }
    if (!paths.isEmpty())
        qWarning().noquote() << MvCalendarEventFile::tr("%1: %n Foto(s) liegen außerhalb der erlaubten Ordner und "
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
    const QDomDocument document = MvXMLLoader::loadDocument(present, &error);
    if (error.isError()) {
        content.error = error.describe(present);
        content.isMissing = !present.exists() && !present.isSymLink();
        return content;
    }
    const QDomElement root = document.firstChildElement(rootName);
    const QDir folder = present.absoluteDir();
    const ReadEntries entries = readEntries(root, &folder);
    content.events = entries.events;
    content.isComplete = !root.isNull() && entries.lost == 0;
    warnOfForeignFotos(content.events, present);
    return content;
}

MvCalendarEventList MvCalendarEventFile::readElement(const QDomElement &element)
{
    return readEntries(element, nullptr).events;
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
