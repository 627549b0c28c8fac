// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvTest.h"

#include <QTemporaryDir>

#include <memory>

/// Base of test classes that write files, into a folder that goes with them.
class MvFolderTest : public MvTest
{
    Q_OBJECT

protected:
    QString path(const QString &name) const { return QDir(m_folder->path()).absoluteFilePath(name); }
    QFileInfo file(const QString &name) const { return QFileInfo(path(name)); }
    /// Makes the folders that the name has in front.
    void put(const QString &name, const QByteArray &content) const;
    /// Empty when it cannot be read.
    QByteArray contentOf(const QString &name) const;
    /// The names of all files and folders, hidden ones too.
    QStringList files() const;

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
};
