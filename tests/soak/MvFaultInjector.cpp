// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFaultInjector.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

MvFaultInjector::Plan plan;
char folder[PATH_MAX];
char firstHit[PATH_MAX];
std::atomic<bool> isArmed = false;
std::atomic<int> count = 0;

bool isWatched(const char *path)
{
    const size_t length = std::strlen(folder);
    return isArmed && path && std::strncmp(path, folder, length) == 0 && (path[length] == '/' || path[length] == '\0');
}

/// Also for files without a name: the system calls them "folder/#number (deleted)".
bool isWatched(int descriptor)
{
    if (!isArmed)
        return false;
    const int failure = errno;
    char link[64];
    char path[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    errno = failure;
    if (length < 0)
        return false;
    path[length] = '\0';
    return isWatched(path);
}

bool isForWriting(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & O_CREAT) != 0;
}

/// Counts a call that is watched and says whether the plan means it.
bool isMeant(const char *name, const char *what)
{
    const int number = ++count;
    const bool isHit =
        plan.kind != MvFaultInjector::Kind::None && (number == plan.call || (plan.goesOn && number > plan.call));
    if (isHit && firstHit[0] == '\0')
        std::snprintf(firstHit, sizeof firstHit, "%s %.300s", name, what);
    return isHit;
}

/// For calls that write nothing: true if the call is to fail now.
bool fails(const char *name, const char *what)
{
    if (!isMeant(name, what))
        return false;
    if (plan.kind == MvFaultInjector::Kind::Kill)
        ::kill(::getpid(), SIGKILL);
    errno = plan.error;
    return plan.kind == MvFaultInjector::Kind::Fail;
}

bool failsAt(const char *name, const char *path)
{
    return isWatched(path) && fails(name, path);
}

bool failsAt(const char *name, int descriptor)
{
    return isWatched(descriptor) && fails(name, "");
}

template <class Function>
Function real(Function, const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

/// How much of a writing to do before what the plan says; all of it where that does not concern it.
template <class Write>
ssize_t writeSome(const char *name, int descriptor, size_t size, Write write)
{
    if (!isWatched(descriptor) || !isMeant(name, ""))
        return write(size);
    const size_t half = size > 1 ? size / 2 : size;
    switch (plan.kind) {
    case MvFaultInjector::Kind::Fail:
        errno = plan.error;
        return -1;
    case MvFaultInjector::Kind::Kill:
        write(half);
        ::kill(::getpid(), SIGKILL);
        return -1;
    default:
        return write(half);
    }
}

} // namespace

void MvFaultInjector::arm(const Plan &newPlan, const QByteArray &newFolder)
{
    disarm();
    plan = newPlan;
    std::snprintf(folder, sizeof folder, "%s", newFolder.constData());
    firstHit[0] = '\0';
    count = 0;
    isArmed = true;
}

void MvFaultInjector::disarm()
{
    isArmed = false;
}

int MvFaultInjector::calls()
{
    return count;
}

QByteArray MvFaultInjector::hit()
{
    return firstHit;
}

// ---- the functions that stand before those of the C library

#define MV_EXPORTED __attribute__((visibility("default")))
#define MV_REAL(name) real(&::name, #name)

extern "C" {

#define MV_OPEN(name)                                                                                                  \
    MV_EXPORTED int name(const char *path, int flags, ...)                                                             \
    {                                                                                                                  \
        va_list arguments;                                                                                             \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;                      \
        va_end(arguments);                                                                                             \
        static const auto next = MV_REAL(name);                                                                        \
        return isForWriting(flags) && failsAt("open", path) ? -1 : next(path, flags, mode);                            \
    }
// NOLINTBEGIN(clang-analyzer-valist.Uninitialized): va_start is not seen through
MV_OPEN(open)
MV_OPEN(open64)
// NOLINTEND(clang-analyzer-valist.Uninitialized)

MV_EXPORTED ssize_t write(int descriptor, const void *bytes, size_t size)
{
    static const auto next = MV_REAL(write);
    return writeSome("write", descriptor, size, [=](size_t part) { return next(descriptor, bytes, part); });
}

#define MV_PWRITE(name, Offset)                                                                                        \
    MV_EXPORTED ssize_t name(int descriptor, const void *bytes, size_t size, Offset offset)                            \
    {                                                                                                                  \
        static const auto next = MV_REAL(name);                                                                        \
        return writeSome("pwrite", descriptor, size,                                                                   \
                         [=](size_t part) { return next(descriptor, bytes, part, offset); });                          \
    }
MV_PWRITE(pwrite, off_t)
MV_PWRITE(pwrite64, off64_t)

MV_EXPORTED int close(int descriptor)
{
    static const auto next = MV_REAL(close);
    const bool isWriter = isArmed && isForWriting(::fcntl(descriptor, F_GETFL)) && isWatched(descriptor);
    const bool isFailing = isWriter && fails("close", "");
    const int result = next(descriptor); // the descriptor is gone in any case
    if (isFailing)
        errno = plan.error;
    return isFailing ? -1 : result;
}

#define MV_SIMPLE(name, Result, declaration, arguments, exceptions, where)                                             \
    MV_EXPORTED Result name declaration exceptions                                                                     \
    {                                                                                                                  \
        static const auto next = MV_REAL(name);                                                                        \
        return failsAt(#name, where) ? Result(-1) : next arguments;                                                    \
    }
MV_SIMPLE(fsync, int, (int file), (file), , file)
MV_SIMPLE(fdatasync, int, (int file), (file), , file)
MV_SIMPLE(ftruncate, int, (int file, off_t size), (file, size), noexcept, file)
MV_SIMPLE(ftruncate64, int, (int file, off64_t size), (file, size), noexcept, file)
MV_SIMPLE(fallocate, int, (int file, int mode, off_t at, off_t size), (file, mode, at, size), , file)
MV_SIMPLE(fallocate64, int, (int file, int mode, off64_t at, off64_t size), (file, mode, at, size), , file)
MV_SIMPLE(fchmod, int, (int file, mode_t mode), (file, mode), noexcept, file)
MV_SIMPLE(fchown, int, (int file, uid_t user, gid_t group), (file, user, group), noexcept, file)
MV_SIMPLE(fsetxattr, int, (int file, const char *key, const void *value, size_t size, int flags),
          (file, key, value, size, flags), noexcept, file)
MV_SIMPLE(rename, int, (const char *from, const char *to), (from, to), noexcept, to)
MV_SIMPLE(renameat2, int, (int folderFrom, const char *from, int folderTo, const char *to, unsigned flags),
          (folderFrom, from, folderTo, to, flags), noexcept, to)
MV_SIMPLE(link, int, (const char *from, const char *to), (from, to), noexcept, to)
MV_SIMPLE(linkat, int, (int folderFrom, const char *from, int folderTo, const char *to, int flags),
          (folderFrom, from, folderTo, to, flags), noexcept, to)
MV_SIMPLE(unlink, int, (const char *path), (path), noexcept, path)
MV_SIMPLE(unlinkat, int, (int in, const char *path, int flags), (in, path, flags), noexcept, path)
MV_SIMPLE(mkdir, int, (const char *path, mode_t mode), (path, mode), noexcept, path)
MV_SIMPLE(rmdir, int, (const char *path), (path), noexcept, path)

} // extern "C"
