// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvFotoFiles.h"

#include <QCollator>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 40; // folders in each other

QFileInfoList sortedEntries(const QString &folder)
{
    QFileInfoList entries = QDir(folder).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot,
                                                       QDir::NoSort); // System: what is no regular file is told
    QCollator collator;
    collator.setNumericMode(true);
    std::stable_sort(entries.begin(), entries.end(), [&collator](const QFileInfo &a, const QFileInfo &b) {
        const int names = collator.compare(a.fileName(), b.fileName());
        return names != 0 ? names < 0 : a.fileName() < b.fileName();
    });
    return entries;
}

} // namespace

MvFotoFiles::MvFotoFiles(const QStringList &knownPaths, const std::function<bool()> &goOn)
    : m_goOn(goOn)
{
    for (const QString &path : knownPaths)
        m_seen.insert(QFileInfo(path).canonicalFilePath());
    m_seen.remove(QString()); // of files that are gone
}

void MvFotoFiles::add(const QString &path)
{
    const QFileInfo file(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (file.isDir())
        addFolder(file.filePath(), file.canonicalFilePath(), 0);
    else
        addFile(file);
}

void MvFotoFiles::addFile(const QFileInfo &file)
{
    const QString canonical = file.canonicalFilePath(); // empty for one that is not there, which is told later
    if (!canonical.isEmpty() && m_seen.contains(canonical)) {
        ++known;
        return;
    }
    if (files.size() >= MvFotoPoolIntake::mostFiles) {
        isCutShort = true;
        return;
    }
    m_seen.insert(canonical);
    files.append(file);
}

void MvFotoFiles::addFolder(const QString &folder, const QString &root, int depth)
{
    if (depth > deepest || isCutShort)
        return;
    for (const QFileInfo &entry : sortedEntries(folder)) {
        if (!m_goOn())
            return;
        if (entry.fileName().startsWith(u'.'))
            continue;
        if (entry.isSymLink()) {
            const QString target = entry.canonicalFilePath(); // empty when it is not there, which is told later
            if (!target.isEmpty() && !target.startsWith(root + u'/'))
                skipped.append({entry.filePath(), MvFotoPoolIntake::Reason::Outside,
                                MvFotoPoolIntake::tr("Die Verknüpfung führt aus dem Ordner hinaus.")});
            else if (!entry.isDir()) // a folder inside is found by itself
                addFile(entry);
        } else if (entry.isDir()) {
            addFolder(entry.filePath(), root, depth + 1);
        } else {
            addFile(entry);
        }
    }
}
