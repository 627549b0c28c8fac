// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvFotoPoolIntake.h"

#include <QFileInfo>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>

/// The files that paths of files and folders mean, each once, in the order of paths and names. Folders are looked
/// through with theirs, but nothing hidden, and no link that leads out of them.
class MvFotoFiles
{
public:
    /// The files that are there already. Asked now and then whether to go on.
    MvFotoFiles(const QStringList &known, const std::function<bool()> &goOn);

    void add(const QString &path);

    QList<QFileInfo> files; // under the names by which they were found
    QList<MvFotoPoolIntake::Skipped> skipped;
    int known = 0;
    bool isCutShort = false;

private:
    void addFile(const QFileInfo &file);
    void addFolder(const QString &folder, const QString &root, int depth);

    std::function<bool()> m_goOn;
    QSet<QString> m_seen; // canonical paths
};
