#pragma once

#include "MvCore/MvFileDescriptor.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QFileInfo>

/// Guards a file that several running programs read and write: hold a guard while reading, changing and writing, and
/// compare stamps to learn whether somebody else wrote meanwhile.
///
/// The lock belongs to the running program and goes with it: one that was killed, at whatever moment, keeps nobody
/// waiting. (A lock that is a file with a process number in it can be left behind empty, and then says nothing.)
class MVCORE_EXPORT MvFileGuard
{
public:
    /// Waits at most `timeout` milliseconds for the others. The lock file "name.lock" lies beside the file as long as
    /// the guard holds.
    explicit MvFileGuard(const QFileInfo &file, int timeout = 3000);
    ~MvFileGuard();
    MvFileGuard(const MvFileGuard &) = delete;
    MvFileGuard &operator=(const MvFileGuard &) = delete;

    /// False when the wait was in vain, or no lock file can be made there.
    bool isLocked() const { return m_lock.isOpen(); }

    /// Changes whenever the file is replaced or written; empty when there is no file.
    static QByteArray stamp(const QFileInfo &file);

private:
    bool isStillInPlace(const MvFileDescriptor &lock) const;

    QByteArray m_path; // of the lock file, encoded
    MvFileDescriptor m_lock;
};
