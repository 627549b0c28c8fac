// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QFileInfo>

#include <cstddef>
#include <cstdint>

/// What every fuzz target has: an application without a screen, a temporary user folder, no output.
class MvFuzz
{
public:
    static QByteArray bytes(const uint8_t *data, size_t size);
    /// The bytes as a file in memory, always the same one.
    static QFileInfo file(const QByteArray &content);
    /// Ends the program, which is what the search looks for.
    static void check(bool isTrue, const char *what);
};

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
