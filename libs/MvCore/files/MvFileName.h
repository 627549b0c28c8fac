// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>

/// Names of files made from what people have written.
class MVCORE_EXPORT MvFileName
{
public:
    static constexpr qsizetype longest = 80; // UTF-16 units; leaves room for counters and suffixes in every file system

    /// The text as the name of a file without its suffix, on any file system and stick: a hyphen for each character
    /// that one of them refuses, no dots in front, which hide a file, no blanks around it, and not too long. Empty when
    /// nothing is left.
    static QString cleaned(const QString &text);
};
