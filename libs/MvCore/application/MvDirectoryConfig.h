// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QStringList>

class MvDirectoryConfig;
extern template class MVCORE_EXPORT MvSingleton<MvDirectoryConfig>;

/// Where files lie: what the program ships and what belongs to the user.
class MVCORE_EXPORT MvDirectoryConfig : public MvSingleton<MvDirectoryConfig>
{
public:
    MvDirectoryConfig();

    /// A shipped file by its path relative to the resource root ("schemas/calendar_layout.xml"). The first that exists
    /// of: the override folder (environment variable MVCALENDAR_RESOURCES), the installed data folder, the user's data
    /// folder, the embedded default. Nothing found: the embedded path, which does not exist. A path that leaves the
    /// root ("..") is not found.
    QFileInfo resource(const QString &relativePath) const;

    /// The names of the files in a folder below the root that resource() would find, by a pattern with wildcards; in
    /// alphabetical order, each once.
    QStringList resourceNames(const QString &relativeFolder, const QString &pattern) const;

    /// For folders whose files all count: the shipped files of a folder by precedence as above, then those of the same
    /// folder in the user's data folder, which stand in for none of them.
    QList<QFileInfo> shippedAndOwn(const QString &relativeFolder, const QString &pattern) const;

    /// The user's data folder (environment variable MVCALENDAR_DATA, else the platform's). It may not exist yet.
    QDir programDataDir() const;
    /// A file in it. Neither file nor folder is created.
    QFileInfo programDataFile(const QString &fileName) const;
    /// A sub-folder of it; created when missing.
    QDir programDataSubDir(const QString &name) const;

    /// Other user folder, for programs that bring their own and for tests.
    void setProgramDataDir(const QString &path);

private:
    QStringList roots() const;

    QString m_programDataDir;
    QStringList m_resourceRoots; // in order of precedence
};
