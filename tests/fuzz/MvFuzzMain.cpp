// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include <QDir>

#include <cstdio>

/// Runs a fuzz target over the files of a folder, where there is no libFuzzer.
int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    const QFileInfoList seeds = QDir(QFile::decodeName(argc > 1 ? argv[1] : "")).entryInfoList(QDir::Files);
    for (const QFileInfo &seed : seeds) {
        std::printf("%s\n", qPrintable(seed.fileName()));
        std::fflush(stdout); // the last one is what broke it
        QFile file(seed.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray content = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(content.constData()), size_t(content.size()));
    }
    return seeds.isEmpty() ? 1 : 0;
}
