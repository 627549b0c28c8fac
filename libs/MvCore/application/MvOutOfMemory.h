// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>

/// What a program does when there is no memory left in a place where nobody can go on without it: it says so on its
/// error output and ends, instead of being aborted without a word.
class MVCORE_EXPORT MvOutOfMemory
{
public:
    /// To be called once the language is known: the message is made now, since later there is no memory for it.
    static void install(const QString &program, int exitCode);
};
