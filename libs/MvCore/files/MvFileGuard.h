// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvFileDescriptor.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

/// Guards a file that several running programs read and write: hold a guard while reading, changing and writing, and
/// compare stamps to learn whether somebody else wrote meanwhile. Without the lock nothing may be written: a program
/// that is stopped in the middle of its writing holds it still, and writes when it goes on.
///
/// The lock belongs to the running program and goes with it: one that was killed, at whatever moment, keeps nobody
/// waiting. (A lock that is a file with a process number in it can be left behind empty, and then says nothing.)
///
/// What is locked: the file "name.lock" beside the file, which lies there as long as the guard holds, and the file
/// itself, so that those who may not make files in its folder are kept out too, and keep out others. One of the two is
/// enough. Where the file system knows no locks, a file in the folder for temporary files stands in: it keeps apart
/// the programs of one person on one computer.
class MVCORE_EXPORT MvFileGuard
{
    Q_DECLARE_TR_FUNCTIONS(MvFileGuard)

public:
    enum class State {
        Locked,
        HeldByOthers, // try again later
        NotPossible,  // no lock can be made here; reason() says why
    };

    /// Waits at most `timeout` milliseconds for the others; with 0 it does not wait at all. The window's thread must
    /// not wait. The file need not exist, its folder must.
    explicit MvFileGuard(const QFileInfo &file, int timeout = 3000);
    ~MvFileGuard();
    MvFileGuard(const MvFileGuard &) = delete;
    MvFileGuard &operator=(const MvFileGuard &) = delete;

    State state() const { return m_state; }
    bool isLocked() const { return m_state == State::Locked; }
    /// Why there is no lock, for a person, without the file's name; empty when there is one.
    QString reason() const;

    /// Changes whenever the file is replaced or written; empty when there is no file.
    static QByteArray stamp(const QFileInfo &file);

private:
    State tryOnce();

    QByteArray m_path; // of the file, encoded
    QByteArray m_lockPath;
    MvFileDescriptor m_lock;     // the file beside it, or its stand-in
    MvFileDescriptor m_fileLock; // the file itself
    State m_state = State::NotPossible;
    int m_error = 0; // of the system
};
