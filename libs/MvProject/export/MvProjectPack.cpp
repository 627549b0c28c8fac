// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectPack.h"

#include "MvCalendar/MvCalendarEventFile.h"
#include "MvCore/MvFileBackup.h"
#include "MvCore/MvFileName.h"
#include "MvCore/MvRegularFile.h"
#include "MvProject/MvProjectFile.h"
#include "MvProject/MvZipWriter.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

const QString fotoFolder = u"fotos"_s;
const QString entriesName = u"eintraege"_s;
const QByteArray declaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// Gives each source a name in a folder: its own, made safe for any file system, and unlike all others there, whatever
/// their case.
class Names
{
public:
    explicit Names(const QString &folder)
        : m_folder(folder)
    {}

    QString add(const QString &source)
    {
        if (const QString known = m_names.value(source); !known.isEmpty())
            return known;
        const QFileInfo file(source);
        QString base = MvFileName::cleaned(file.completeBaseName());
        if (base.isEmpty())
            base = u"foto"_s;
        const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + MvFileName::cleaned(file.suffix());
        QString name = base + suffix;
        for (int number = 2; m_taken.contains(name.toCaseFolded()); ++number)
            name = u"%1-%2%3"_s.arg(base).arg(number).arg(suffix);
        m_taken.insert(name.toCaseFolded());
        return m_names[source] = m_folder + u'/' + name;
    }

private:
    QString m_folder;
    QHash<QString, QString> m_names;
    QSet<QString> m_taken;
};

bool isReadable(const QString &path)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(path));
    if (!opened.isOk())
        return false;
    opened.file->peek(1);
    return opened.file->error() == QFileDevice::NoError;
}

MvOutcome failed(const QString &path, const QString &reason)
{
    return {QCoreApplication::translate("MvProjectPack", "%1 lässt sich nicht schreiben: %2")
                .arg(QDir::toNativeSeparators(path), reason),
            {}};
}

MvOutcome writeContent(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        return failed(path, file.errorString());
    return {};
}

MvOutcome copyFile(const QString &source, const QString &path)
{
    QFile file(source);
    return file.copy(path) ? MvOutcome() : failed(path, file.errorString());
}

} // namespace

MvProjectPack::MvProjectPack(const MvCalendarDocument &document, const QString &name)
    : m_document(document)
    , m_name(MvFileName::cleaned(name))
{
    if (m_name.isEmpty())
        m_name = u"kalender"_s;
}

MvCalendarDocument MvProjectPack::trimmed() const
{
    MvCalendarDocument document = m_document;
    document.setSparePages({});
    for (int number = 0; number < document.pages().size(); ++number) {
        MvCalendarPage page = document.pages()[number];
        QList<MvPageElement> spare = page.spareElements();
        spare.removeIf([](const MvPageElement &element) { return element.foto() != nullptr; });
        page.setSpareElements(spare);
        document.setPage(number, page);
    }
    MvFotoPool pool = document.fotoPool();
    const QHash<QString, int> uses = document.fotoUses();
    for (const QString &path : pool.paths()) {
        if (!uses.contains(path))
            pool.remove(path);
    }
    document.setFotoPool(pool);
    return document;
}

void MvProjectPack::takeFotos(MvCalendarDocument &document, const QString &folder, Contents &contents) const
{
    Names names(fotoFolder);
    QStringList paths = document.fotoUses().keys();
    paths.sort();
    for (const QString &path : paths) {
        const QString name = names.add(path);
        document.replaceFoto(path, folder + u'/' + name);
        if (!isReadable(path)) {
            contents.missing.append(path);
            continue;
        }
        contents.items.append({name, path, {}});
        ++contents.fotoCount;
    }
}

void MvProjectPack::takeEntries(MvCalendarDocument &document, const QString &folder, Contents &contents) const
{
    if (m_events.isEmpty()) {
        document.setEntriesFile({});
        document.setFeature(FEATURE_ENTRIES, false);
        return;
    }
    Names names(entriesName);
    QSet<QString> taken;
    MvCalendarEventList list = m_events;
    for (MvCalendarEvent &event : list) {
        const QString path = event.foto().mayBeOpened() ? event.foto().localFilePath() : QString();
        const bool hasFoto = !path.isEmpty() && isReadable(path);
        if (!path.isEmpty() && !hasFoto && !contents.missing.contains(path))
            contents.missing.append(path);
        event.relocateFoto(hasFoto ? MvFoto(QFileInfo(folder + u'/' + names.add(path))) : MvFoto());
        if (hasFoto && !taken.contains(path)) {
            taken.insert(path);
            contents.items.append({names.add(path), path, {}});
            ++contents.fotoCount;
        }
    }
    const QString name = entriesName + u".xml"_s;
    contents.items.append({name, {}, declaration + MvCalendarEventFile::toBytesWithin(list, QDir(folder))});
    document.setEntriesFile(folder + u'/' + name);
    document.setFeature(FEATURE_ENTRIES, true);
}

void MvProjectPack::noteOwnLayouts(Contents &contents) const
{
    QStringList own;
    for (const MvCalendarPage &page : m_document.pages()) {
        const MvCalendariumLayoutSchema layout = page.appearance().layoutSchema();
        if (layout.isUserSchema() && !own.contains(layout.name()))
            own.append(layout.name());
    }
    for (const QString &name : own)
        contents.notes.append(tr("Das Layout „%1“ ist ein eigenes; auf einem anderen Computer tritt ein anderes an "
                                 "seine Stelle.")
                                  .arg(name));
}

MvProjectPack::Contents MvProjectPack::contents(const QString &folder) const
{
    Contents contents;
    MvCalendarDocument document = trimmed();
    takeFotos(document, folder, contents);
    takeEntries(document, folder, contents);
    noteOwnLayouts(contents);
    contents.projectPath = m_name + u'.' + MvProjectFile::suffix();
    contents.items.prepend({contents.projectPath, {}, MvProjectFile::toBytes(document, QDir(folder))});
    return contents;
}

MvProjectPack::Result MvProjectPack::writeFolder(const QString &path) const
{
    const QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    Contents contents = this->contents(folder);
    const QFileInfo there(folder);
    if (there.exists() && (!there.isDir() || !QDir(folder).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot |
                                                                   QDir::Hidden | QDir::System))) {
        contents.error =
            tr("%1 ist schon da und nicht leer; bitte einen neuen Ordner nennen").arg(QDir::toNativeSeparators(path));
        return contents;
    }
    // made beside it, and given its name when it is whole
    MvFileBackup::sweepTemporaries(there.path());
    QDir made(QFile::decodeName(MvFileBackup::temporaryPath(there.path())));
    MvOutcome outcome = made.mkpath(u"."_s) ? MvOutcome() : failed(path, tr("der Ordner lässt sich nicht anlegen"));
    for (const Item &item : contents.items) {
        if (!outcome.isOk())
            break;
        const QString target = made.filePath(item.name);
        made.mkpath(QFileInfo(item.name).path());
        outcome = item.source.isEmpty() ? writeContent(target, item.content) : copyFile(item.source, target);
    }
    if (outcome.isOk() && there.exists())
        QDir().rmdir(folder); // it is empty
    if (outcome.isOk() && !QDir().rename(made.path(), folder))
        outcome = failed(path, tr("der Ordner lässt sich nicht anlegen"));
    if (!outcome.isOk())
        made.removeRecursively();
    contents.error = outcome.error;
    contents.projectPath = QDir(path).filePath(contents.projectPath);
    return contents;
}

MvProjectPack::Result MvProjectPack::writeZip(const QString &path) const
{
    Contents contents = this->contents(u"/"_s + m_name);
    const std::unique_ptr<MvZipWriter> writer = MvZipWriter::open(path, &contents.error);
    if (!writer)
        return contents;
    for (const Item &item : contents.items) {
        const QString name = m_name + u'/' + item.name;
        if (item.source.isEmpty())
            writer->add(name, item.content);
        else
            writer->addFile(name, item.source);
    }
    contents.error = writer->finish().error;
    contents.projectPath = m_name + u'/' + contents.projectPath;
    return contents;
}
