// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvProjectRecovery.h"

#include "MvCore/MvFileGuard.h"
#include "MvProject/MvProject.h"
#include "MvProject/MvProjectAutosave.h"
#include "MvProject/MvProjectFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString lockSuffix = u".lock"_s;

/// Removes the locks of programs that died before they had written anything.
void sweepLocks(const QDir &folder)
{
    for (const QFileInfo &lock : folder.entryInfoList({u'*' + lockSuffix}, QDir::Files)) {
        const QFileInfo file(lock.absoluteFilePath().chopped(lockSuffix.size()));
        if (!file.exists())
            MvFileGuard(file, 0); // removes the lock file unless another program holds the lock
    }
}

} // namespace

QList<MvProjectRecovery::Entry> MvProjectRecovery::found()
{
    const QDir folder(MvProjectAutosave::folder());
    sweepLocks(folder);
    QList<Entry> entries;
    for (const QFileInfo &file : folder.entryInfoList({u"*."_s + MvProjectFile::suffix()}, QDir::Files)) {
        if (!MvFileGuard(file, 0).isLocked())
            continue; // its program still runs
        const MvProjectFile::Content content = MvProjectFile::read(file);
        entries.append({file, content.originalPath, content.document.title(), file.lastModified()});
    }
    std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) { return a.time > b.time; });
    return entries;
}

MvOutcome MvProjectRecovery::open(const Entry &entry, MvProject &project)
{
    if (!MvFileGuard(entry.file, 0).isLocked())
        return {tr("Der Stand ist schon in einem anderen Fenster geöffnet."), {}};
    const MvProjectFile::Content content = MvProjectFile::read(entry.file);
    if (content.isOk())
        project.openRecovered(content, QFileInfo(content.originalPath), entry.file, content.originalStamp);
    return content;
}

void MvProjectRecovery::discard(const Entry &entry)
{
    const MvFileGuard guard(entry.file, 0);
    if (guard.isLocked())
        QFile::remove(entry.file.absoluteFilePath());
}
