// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProject/MvZipWriter.h"

#include "MvCore/MvLoadedModule.h"

MvZipWriter::~MvZipWriter() = default;

std::unique_ptr<MvZipWriter> MvZipWriter::open(const QString &path, QString *error)
{
    static MvLoadedModule module("MvZip");
    auto *make = module.function<MvZipWriter *(const QString &)>("mvMakeZipWriter", error);
    return std::unique_ptr<MvZipWriter>(make ? make(path) : nullptr);
}
