// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

/// Lets the system's calls that write fail, or ends the process at one of them. Link it into a test program with
/// exported symbols (ENABLE_EXPORTS): its functions stand before those of the C library, for all libraries.
///
/// Counted are opening for writing, write, pwrite, fsync, fdatasync, rename, link, unlink, mkdir, rmdir, ftruncate,
/// fallocate, fchmod, fchown, fsetxattr, and close of what was written, each for files in one folder alone. Any thread.
class MvFaultInjector
{
public:
    enum class Kind {
        None, // only counts
        Fail,
        ShortWrite, // half of the bytes; calls that do not write succeed
        Kill,       // before the call; one that writes does half of it first
    };

    struct Plan
    {
        Kind kind = Kind::None;
        int call = 0; // the one that is hit, from 1
        int error = 0;
        bool goesOn = false; // all later ones, too
    };

    /// From now on, calls on files in the folder (an absolute path) follow the plan. The count begins anew.
    static void arm(const Plan &plan, const QByteArray &folder);
    static void disarm();
    /// Calls counted since arm().
    static int calls();
    /// Name and file of the call that was hit first; empty when none was.
    static QByteArray hit();
};
