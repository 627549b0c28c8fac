// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvDirectoryConfig.h"

#include <QStandardPaths>

template class MvSingleton<MvDirectoryConfig>;

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView folderName("mvcalendar");
const QString embeddedRoot = u":/mvcalendar"_s;

bool leavesItsRoot(const QString &relativePath)
{
    const QString clean = QDir::cleanPath(relativePath);
    return QDir::isAbsolutePath(clean) || clean == ".."_L1 || clean.startsWith("../"_L1);
}

} // namespace

MvDirectoryConfig::MvDirectoryConfig()
    : m_programDataDir(qEnvironmentVariable("MVCALENDAR_DATA"))
{
    if (m_programDataDir.isEmpty()) {
        m_programDataDir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + folderName;
    }
    const QString overrideRoot = qEnvironmentVariable("MVCALENDAR_RESOURCES");
    if (!overrideRoot.isEmpty())
        m_resourceRoots.append(overrideRoot);
    const QStringList shared = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString &root : shared.mid(1)) // the first one is the user's
        m_resourceRoots.append(root + u'/' + folderName);
}

QFileInfo MvDirectoryConfig::resource(const QString &relativePath) const
{
    const QFileInfo embedded(embeddedRoot + u'/' + relativePath);
    if (leavesItsRoot(relativePath))
        return embedded;
    for (const QString &root : roots()) {
        const QFileInfo file(root + u'/' + relativePath);
        if (file.isFile())
            return file;
    }
    return embedded;
}

QStringList MvDirectoryConfig::resourceNames(const QString &relativeFolder, const QString &pattern) const
{
    QStringList names;
    if (leavesItsRoot(relativeFolder))
        return names;
    for (const QString &root : roots() + QStringList{embeddedRoot})
        names += QDir(root + u'/' + relativeFolder).entryList({pattern}, QDir::Files);
    names.sort();
    names.removeDuplicates();
    return names;
}

QList<QFileInfo> MvDirectoryConfig::shippedAndOwn(const QString &relativeFolder, const QString &pattern) const
{
    QList<QFileInfo> files;
    QStringList known;
    if (leavesItsRoot(relativeFolder))
        return files;
    const auto add = [&](const QString &root, bool isOwn) {
        const QDir folder(root + u'/' + relativeFolder);
        const QStringList names = folder.entryList({pattern}, QDir::Files, QDir::Name);
        for (const QString &name : names) {
            if (isOwn || !known.contains(name))
                files.append(QFileInfo(folder.filePath(name)));
            known.append(name);
        }
    };
    for (const QString &root : m_resourceRoots + QStringList{embeddedRoot})
        add(root, false);
    add(m_programDataDir, true);
    return files;
}

/// Outside the program, in order of precedence.
QStringList MvDirectoryConfig::roots() const
{
    return m_resourceRoots + QStringList{m_programDataDir};
}

QDir MvDirectoryConfig::programDataDir() const
{
    return QDir(m_programDataDir);
}

QFileInfo MvDirectoryConfig::programDataFile(const QString &fileName) const
{
    return QFileInfo(programDataDir(), fileName);
}

QDir MvDirectoryConfig::programDataSubDir(const QString &name) const
{
    const QDir parent = programDataDir();
    parent.mkpath(name);
    return QDir(parent.filePath(name));
}

void MvDirectoryConfig::setProgramDataDir(const QString &path)
{
    m_programDataDir = path;
}
