// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvFileDescriptor.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>

/// What a file has besides its content, carried over to the file that takes its place: owner, group, mode, access list
/// and extended attributes.
class MVCORE_EXPORT MvFileAttributes
{
public:
    enum class Kept {
        All,
        WithoutNotes, // extended attributes of programs ("user.*") are missing
        No,           // somebody would lose or gain the right to read or write
    };

    /// Gives the new file what the old one, an encoded path, has. The owner can only be kept by the administrator;
    /// another one counts as kept while the former owner may still read and write as one of the group or as anybody.
    /// Whatever is returned, nobody has gained a right: on No the new file is open to its owner alone.
    static Kept copy(const QByteArray &fromPath, const MvFileDescriptor &to);
};
