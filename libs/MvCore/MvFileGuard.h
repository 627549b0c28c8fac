#pragma once

#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QFileInfo>
#include <QLockFile>

/// Guards a file that several running programs read and write: hold a guard while reading, changing and writing, and
/// compare stamps to learn whether somebody else wrote meanwhile.
class MVCORE_EXPORT MvFileGuard
{
public:
    /// Waits at most `timeout` milliseconds for the others. The lock file "name.lock" lies beside the file; one left
    /// by a program that is gone counts for nothing.
    explicit MvFileGuard(const QFileInfo &file, int timeout = 3000);

    /// False when the wait was in vain, or no lock file can be made there.
    bool isLocked() const { return m_lock.isLocked(); }

    /// Changes whenever the file is replaced or written; empty when there is no file.
    static QByteArray stamp(const QFileInfo &file);

private:
    QLockFile m_lock;
};
