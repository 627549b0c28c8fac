// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvBatchInputs.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvCore/MvRegularFile.h"
#include "MvProject/MvPressProfile.h"
#include "MvRenderCommand.h"
#include "plain/MvCliArguments.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto algorithm = QCryptographicHash::Blake2b_256;
constexpr int form = 1; // of what is put into a fingerprint

QByteArray digestOfFile(const QString &path)
{
    const MvRegularFile::Opened opened = MvRegularFile::open(QFileInfo(path));
    QCryptographicHash hash(algorithm);
    if (!opened.isOk() || !hash.addData(opened.file.get()))
        return {};
    return hash.result().toHex();
}

QStringList filesIn(const QString &folder, const QStringList &results)
{
    QSet<QString> left;
    for (const QString &result : results)
        left.insert(QFileInfo(result).canonicalFilePath());
    QStringList names;
    QDirIterator files(folder, QDir::Files | QDir::Readable, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (left.isEmpty() || !left.contains(files.fileInfo().canonicalFilePath()))
            names.append(file.mid(folder.size() + 1));
    }
    names.sort();
    return names;
}

QByteArray digestOf(const QString &path, const QStringList &results = {})
{
    if (!QFileInfo(path).isDir())
        return digestOfFile(path);
    QCryptographicHash hash(algorithm);
    const QString folder = QDir::cleanPath(path);
    for (const QString &name : filesIn(folder, results))
        hash.addData(name.toUtf8() + '\n' + digestOfFile(folder + u'/' + name) + '\n');
    return hash.result().toHex();
}

/// Files that stand in for shipped ones, or beside them: the user's own layouts, colours, themes.
QByteArray digestOfOwnResources()
{
    QStringList roots = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (QString &root : roots)
        root += u"/mvcalendar"_s;
    roots.prepend(MvDirectoryConfig::instance().programDataDir().path());
    roots.prepend(qEnvironmentVariable("MVCALENDAR_RESOURCES"));
    roots.removeAll(QString());
    QCryptographicHash hash(algorithm);
    for (const QString &root : std::as_const(roots)) {
        for (const QString &kind : {u"fonts"_s, u"holidays"_s, u"hyphenation"_s, u"profiles"_s, u"schemas"_s,
                                    u"styles"_s, u"templates"_s, u"themes"_s, u"words"_s}) {
            const QString folder = root + u'/' + kind;
            if (QFileInfo(folder).isDir())
                hash.addData(kind.toUtf8() + digestOf(folder));
        }
    }
    return hash.result();
}

} // namespace

QString MvBatchInputs::fingerprint(const QJsonObject &options)
{
    static const QByteArray program = QCoreApplication::applicationVersion().toUtf8() + '\n' +
                                      qgetenv("SOURCE_DATE_EPOCH") + '\n' + digestOfOwnResources();
    QCryptographicHash hash(algorithm);
    hash.addData(QByteArray::number(form) + '\n' + program +
                 QJsonDocument(options).toJson(QJsonDocument::Compact)); // in alphabetical order
    return QString::fromLatin1(hash.result().toHex());
}

QStringList MvBatchInputs::of(const MvCliArguments &call, const MvRenderOutcome &outcome)
{
    QStringList folders = call.values(u"photos"_s);
    QStringList files;
    for (const QString &name : {u"project"_s, u"entries"_s})
        files += call.values(name);
    files += outcome.document.fotoUses().keys();
    files += outcome.document.entriesFile();
    files += outcome.entries.file().filePath();
    if (const QString press = call.value(u"press"_s); !MvPressProfile::names().contains(press, Qt::CaseInsensitive))
        files += MvPressProfile::fileOf(press);
    if (outcome.entries.isList() || call.has(u"project"_s)) { // photos of other files lie within these
        for (const MvCalendarEvent &event : outcome.entries.list())
            files += event.foto().localFilePath();
    }
    files.removeAll(QString());
    files.removeIf([&](const QString &file) {
        return std::any_of(folders.cbegin(), folders.cend(), [&](const QString &folder) {
            return file.startsWith(QFileInfo(folder).absoluteFilePath() + u'/');
        });
    });
    QStringList all = folders + files;
    all.sort();
    all.removeDuplicates();
    return all;
}

QJsonArray MvBatchInputs::digests(const QStringList &paths, const QStringList &results)
{
    QJsonArray digests;
    for (const QString &path : paths) {
        QJsonObject digest{{u"path"_s, path}, {u"hash"_s, QString::fromLatin1(digestOf(path, results))}};
        if (const QFileInfo file(path); file.isFile())
            digest.insert(u"bytes"_s, file.size());
        digests.append(digest);
    }
    return digests;
}

bool MvBatchInputs::areUnchanged(const QJsonArray &digests, const QStringList &results)
{
    return std::all_of(digests.cbegin(), digests.cend(), [&](const QJsonValue &value) {
        const QJsonObject digest = value.toObject();
        const QString path = digest.value(u"path"_s).toString();
        if (const QFileInfo file(path);
            file.isFile() && file.size() != digest.value(u"bytes"_s).toInteger(-1)) // nobody needs to read it
            return false;
        return QString::fromLatin1(digestOf(path, results)) == digest.value(u"hash"_s).toString();
    });
}

bool MvBatchInputs::anyWrittenSince(const QStringList &paths, qint64 moment, const QStringList &results)
{
    const auto isNew = [&](const QString &path) {
        return QFileInfo(path).lastModified().toMSecsSinceEpoch() >= moment;
    };
    return std::any_of(paths.cbegin(), paths.cend(), [&](const QString &path) {
        if (!QFileInfo(path).isDir())
            return isNew(path);
        const QStringList names = filesIn(path, results);
        return std::any_of(names.cbegin(), names.cend(),
                           [&](const QString &name) { return isNew(path + u'/' + name); });
    });
}
