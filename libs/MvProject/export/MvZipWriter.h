// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"
#include "MvProject/mvproject_export.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// Writes a ZIP archive that every program opens: names in UTF-8, photos as they are, texts deflated.
///
/// Nothing is written before finish(); an archive that is not finished leaves no trace, and one that cannot be finished
/// leaves the file that was there before. It grows under a temporary name beside its own; what a killed program has
/// left of such is removed by the next one that writes into the folder. What writes is loaded with the first of them.
class MVPROJECT_EXPORT MvZipWriter
{
public:
    /// Null when archives cannot be written on this computer; the error says why.
    static std::unique_ptr<MvZipWriter> open(const QString &path, QString *error);
    virtual ~MvZipWriter();
    MvZipWriter(const MvZipWriter &) = delete;
    MvZipWriter &operator=(const MvZipWriter &) = delete;

    /// A file with a content, under a name with slashes.
    virtual void add(const QString &name, const QByteArray &content) = 0;
    /// A copy of a file, which is read by finish().
    virtual void addFile(const QString &name, const QString &path) = 0;
    /// Writes it. The error names the file; it may stem from what was added.
    virtual MvOutcome finish() = 0;

protected:
    MvZipWriter() = default;
};
