// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendar/MvUserSchemaFile.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvFileGuard.h"
#include "MvCore/MvSafeFileWriter.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

#include <QDebug>
#include <QDir>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString areaTag = u"calendararea"_s;

/// Attributes and children in an order of their own: the one they are written in may differ from program to program.
QString contentOf(const QDomElement &element)
{
    QString text = u'<' + element.tagName();
    QMap<QString, QString> attributes;
    const QDomNamedNodeMap nodes = element.attributes();
    for (int i = 0; i < nodes.count(); ++i)
        attributes.insert(nodes.item(i).nodeName(), nodes.item(i).nodeValue());
    for (auto attribute = attributes.cbegin(); attribute != attributes.cend(); ++attribute)
        text += u' ' + attribute.key() + u'=' + attribute.value().toHtmlEscaped();
    QStringList children;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children.append(contentOf(child));
    children.sort();
    return text + u'>' + children.join(QString()) + u"</>"_s;
}

const MvUserSchemaFile::Area *find(const MvUserSchemaFile::Areas &areas, const QString &id)
{
    const auto found =
        std::find_if(areas.cbegin(), areas.cend(), [&id](const MvUserSchemaFile::Area &area) { return area.id == id; });
    return found == areas.cend() ? nullptr : &*found;
}

} // namespace

QString MvUserSchemaFile::Area::content() const
{
    return contentOf(element);
}

MvUserSchemaFile::MvUserSchemaFile(const QString &fileName, const QString &rootName, const Decode &decode)
    : m_fileName(fileName)
    , m_rootName(rootName)
    , m_decode(decode)
{}

QFileInfo MvUserSchemaFile::file() const
{
    return MvDirectoryConfig::instance().programDataFile(m_fileName);
}

// ---- reading

MvUserSchemaFile::Content MvUserSchemaFile::load() const
{
    const QFileInfo present = file();
    Content content;
    if (!present.exists()) {
        content.isWhole = true;
        return content;
    }
    MvXMLLoader::Error error;
    content.root = MvXMLLoader::loadDocument(present, &error).documentElement();
    if (error.isError())
        content.error = error.describe(present);
    content.isWhole = content.root.tagName() == m_rootName;
    for (QDomElement child = content.root.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const std::optional<Area> area = child.tagName() == areaTag ? m_decode(child) : std::nullopt;
        content.isWhole = content.isWhole && area && !find(content.areas, area->id);
        if (area)
            content.areas.append(*area);
    }
    return content;
}

QDomElement MvUserSchemaFile::read()
{
    const Content content = load();
    if (!content.isOk())
        qWarning().noquote() << content.error;
    m_inFile = content.areas;
    return content.root;
}

// ---- writing

MvUserSchemaFile::Saved MvUserSchemaFile::save(const Areas &mine, const std::function<void(Area &)> &renameArea)
{
    Saved saved;
    const QFileInfo target = file();
    const auto failed = [&](const QString &reason) {
        saved.error = tr("%1 konnte nicht gespeichert werden: %2")
                          .arg(QDir::toNativeSeparators(target.absoluteFilePath()), reason);
        return saved;
    };
    if (!QDir().mkpath(target.absolutePath()))
        return failed(tr("Der Ordner lässt sich nicht anlegen."));
    const MvFileGuard guard(target, 0);
    if (!guard.isLocked())
        return failed(guard.reason());
    const Content theirs = load();
    if (!theirs.isWhole) {
        const QString aside = MvSafeFileWriter::setAside(target);
        if (aside.isEmpty()) // an unsaved change is better than a lost file
            return failed(tr("Was darin steht, ist nicht ganz zu lesen und ließ sich nicht beiseitelegen."));
        const QString path = QDir::toNativeSeparators(target.filePath());
        const QString reason =
            theirs.isOk() ? tr("%1 enthält mehr, als sich übernehmen lässt.").arg(path) : theirs.error;
        saved.notes.append(tr("%1 Der alte Stand liegt in %2.").arg(reason, QDir::toNativeSeparators(aside)));
        qWarning().noquote() << saved.notes.constLast();
    }
    // where nothing can be read, nothing was removed there either
    saved.areas = theirs.root.isNull() ? mine : merged(mine, theirs.areas, renameArea);
    if (const MvOutcome written = write(saved.areas); !written.isOk())
        return failed(written.error);
    m_inFile = saved.areas;
    return saved;
}

MvUserSchemaFile::Areas MvUserSchemaFile::merged(const Areas &mine, const Areas &theirs,
                                                 const std::function<void(Area &)> &renameArea) const
{
    Areas result;
    Areas renamed;
    for (const Area &area : mine) {
        const Area *base = find(m_inFile, area.id);
        const Area *other = find(theirs, area.id);
        const bool isChangedHere = !base || !(*base == area);
        const bool isChangedThere = other && (!base || !(*base == *other));
        if (!other && !isChangedHere)
            continue; // removed there
        if (other && isChangedThere && !isChangedHere) {
            result.append(*other);
        } else if (other && isChangedThere && !(*other == area)) { // both: in doubt both are kept
            result.append(*other);
            renamed.append(area);
        } else {
            result.append(area);
        }
    }
    for (const Area &area : theirs) {
        const bool isRemovedHere = m_inFile.contains(area);
        if (!isRemovedHere && !find(result, area.id))
            result.append(area);
    }
    for (Area &area : renamed) {
        do {
            renameArea(area);
        } while (find(result, area.id));
        result.append(area);
    }
    return result;
}

MvOutcome MvUserSchemaFile::write(const Areas &areas)
{
    QDomDocument document;
    MvXMLBuilder::buildUTF8ProcessingInstructions(document);
    QDomElement root = MvXMLBuilder::buildRootElement(document, m_rootName);
    for (const Area &area : areas)
        root.appendChild(document.importNode(area.element, true));
    const QByteArray bytes = document.toByteArray(2);
    const MvXMLLoader::Error error = MvXMLLoader::check(bytes);
    return error.isError() ? MvOutcome{error.message, {}} : MvSafeFileWriter::write(file(), bytes);
}
