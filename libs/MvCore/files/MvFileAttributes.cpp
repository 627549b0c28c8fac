// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvFileAttributes.h"

#include <QByteArrayList>

#include <algorithm>
#include <cerrno>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char *accessList = "system.posix_acl_access";

QByteArrayList attributeNames(const QByteArray &path)
{
    const ssize_t size = ::listxattr(path.constData(), nullptr, 0);
    if (size <= 0)
        return {};
    QByteArray names(size, '\0');
    const ssize_t found = ::listxattr(path.constData(), names.data(), size_t(size));
    QByteArrayList list = names.left(std::max<ssize_t>(found, 0)).split('\0');
    list.removeAll(QByteArray());
    return list;
}

bool copyAttribute(const QByteArray &from, const MvFileDescriptor &to, const QByteArray &name)
{
    const ssize_t size = ::getxattr(from.constData(), name.constData(), nullptr, 0);
    if (size < 0)
        return false;
    QByteArray value(size, '\0');
    const ssize_t found = ::getxattr(from.constData(), name.constData(), value.data(), size_t(size));
    return found >= 0 && ::fsetxattr(to.get(), name.constData(), value.constData(), size_t(found), 0) == 0;
}

bool isMember(uid_t user, gid_t group)
{
    struct passwd entry = {};
    struct passwd *found = nullptr;
    std::vector<char> buffer(16384);
    if (::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return false;
    int count = 256;
    std::vector<gid_t> groups(static_cast<size_t>(count));
    if (::getgrouplist(entry.pw_name, entry.pw_gid, groups.data(), &count) < 0)
        return false;
    return std::find(groups.begin(), groups.begin() + count, group) != groups.begin() + count;
}

/// The owner's rights that he has as one of the group (or as anybody) as well.
bool keepsAccess(const struct stat &old)
{
    const mode_t owner = (old.st_mode >> 6) & 7;
    const mode_t group = (old.st_mode >> 3) & 7;
    const mode_t others = old.st_mode & 7;
    return (owner & ~group) == 0 && ((owner & ~others) == 0 || isMember(old.st_uid, old.st_gid));
}

bool keepOwnerAndGroup(const MvFileDescriptor &to, const struct stat &old, bool hasList)
{
    struct stat present = {};
    if (::fstat(to.get(), &present) != 0)
        return false;
    if (present.st_uid == old.st_uid && present.st_gid == old.st_gid)
        return true;
    if (::fchown(to.get(), old.st_uid, old.st_gid) == 0)
        return true;
    const bool isGroupKept = present.st_gid == old.st_gid || ::fchown(to.get(), uid_t(-1), old.st_gid) == 0;
    return isGroupKept && (present.st_uid == old.st_uid || (!hasList && keepsAccess(old)));
}

/// The list first, then the mode: in a file with a list the group's bits are the list's mask.
bool keepRights(const QByteArray &from, const MvFileDescriptor &to, const QByteArrayList &names)
{
    bool isKept = true;
    for (const QByteArray &name : names) {
        if (name.startsWith("system."))
            isKept = copyAttribute(from, to, name) && isKept;
    }
    // the folder may give new files a list of its own
    if (!names.contains(accessList) && ::fremovexattr(to.get(), accessList) != 0)
        isKept = isKept && (errno == ENODATA || errno == ENOTSUP);
    return isKept;
}

} // namespace

MvFileAttributes::Kept MvFileAttributes::copy(const QByteArray &fromPath, const MvFileDescriptor &to)
{
    struct stat old = {};
    if (::stat(fromPath.constData(), &old) != 0)
        return Kept::No;
    const QByteArrayList names = attributeNames(fromPath);
    // changing the owner clears parts of the mode, which is therefore set last
    const bool isKept = ::fchmod(to.get(), 0600) == 0 && keepOwnerAndGroup(to, old, names.contains(accessList)) &&
                        keepRights(fromPath, to, names) && ::fchmod(to.get(), old.st_mode & 07777) == 0;
    if (!isKept) {
        ::fchmod(to.get(), old.st_mode & 0700);
        return Kept::No;
    }
    bool hasNotes = true;
    for (const QByteArray &name : names) {
        if (name.startsWith("user."))
            hasNotes = copyAttribute(fromPath, to, name) && hasNotes;
        else if (!name.startsWith("system.")) // the system's marks: it sets them itself where we may not
            copyAttribute(fromPath, to, name);
    }
    return hasNotes ? Kept::All : Kept::WithoutNotes;
}
