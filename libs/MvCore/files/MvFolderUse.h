// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvFileDescriptor.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QDir>

/// Says that this program uses the files of a folder that several programs share, so that nobody tidies the folder up
/// meanwhile. Whoever wants to tidy up asks to be alone. Never waits. It goes with the program, however that ends.
///
/// The lock is a hidden file in the folder, ".benutzt". Where locks are not possible nobody is ever alone.
class MVCORE_EXPORT MvFolderUse
{
public:
    /// Uses the folder from now on, if it exists and nobody is just tidying it up; else no sooner than begin().
    explicit MvFolderUse(const QDir &folder);

    bool isUsing() const { return m_lock.isOpen(); }
    /// The same later; nothing happens when it is in use already.
    bool begin();

    /// While true, no other program uses the folder, and none begins to. Until endAlone().
    bool beginAlone();
    void endAlone();

private:
    bool lock(short type) const;
    bool isInPlace() const;

    QByteArray m_path; // of the lock file, encoded
    MvFileDescriptor m_lock;
};
