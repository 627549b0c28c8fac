// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvStorageOperation.h"

#include <QFileInfo>
#include <QList>
#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// Whatever the system answers when the program writes, and wherever it dies: afterwards the old state or the new one
/// is on disk, as a whole; it is the new one if nobody was told that storing failed; and the next storing succeeds.
///
/// Every attempt is made by a process of its own. The whole of it runs with MV_NIGHTLY set.
class MvStorageTest : public QObject
{
    Q_OBJECT

public:
    struct Extent
    {
        int kills = 0; // of all operations together
        int nightlyKills = 0;
        int stride = 1;    // each so-manieth call alone fails in the short form
        int diskSizes = 4; // of full disks in the short form
    };

    /// The name that what is stored has in a state, and back; -1 for anything else.
    static QString nameOf(int state);
    static int stateOf(const QString &name);
    /// The state of a project by its title; 0 when there is no file, -1 when it cannot be read as it was written.
    static int stateOfProject(const QFileInfo &file);
    /// The state of a file that has the title somewhere and ends with the given bytes; 0 and -1 likewise.
    static int stateByTitle(const QString &path, const QByteArray &end);

    /// Runs the test, which makes no application of its own.
    static int run(int argc, char **argv, const QList<MvStorageOperation> &operations, const Extent &extent);

private Q_SLOTS:
    void init();
    void failingCalls_data() { addOperations(); }
    void failingCalls();
    void kills_data() { addOperations(); }
    void kills();
    void fullDisk_data() { addOperations(); }
    void fullDisk();

private:
    MvStorageTest(const QList<MvStorageOperation> &operations, const Extent &extent);

    void addOperations();
    QDir freshDisk();

    QList<MvStorageOperation> m_operations;
    Extent m_extent;
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_disks = 0;
};
