// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvOutcome.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QList>
#include <QString>

#include <memory>

struct zip;

/// Writes a ZIP archive that every program opens: names in UTF-8, photos as they are, texts deflated.
///
/// Nothing is written before finish(); an archive that is not finished leaves no trace, and one that cannot be finished
/// leaves the file that was there before. It grows under a temporary name beside its own; what a killed program has
/// left of such is removed by the next one that writes into the folder.
class MvZipWriter
{
    Q_DECLARE_TR_FUNCTIONS(MvZipWriter)

public:
    explicit MvZipWriter(const QString &path);
    ~MvZipWriter();
    MvZipWriter(const MvZipWriter &) = delete;
    MvZipWriter &operator=(const MvZipWriter &) = delete;

    /// A file with a content, under a name with slashes.
    void add(const QString &name, const QByteArray &content);
    /// A copy of a file, which is read by finish().
    void addFile(const QString &name, const QString &path);
    /// Writes it. The error names the file; it may stem from what was added.
    MvOutcome finish();

private:
    void take(const QString &name, struct zip_source *source, bool isDeflated);
    bool putInPlace();
    void setError(const QString &reason);

    QString m_path;
    QByteArray m_target;    // the file itself, where the path is a link; encoded for the file system
    QByteArray m_temporary; // likewise
    QString m_error;
    struct zip *m_archive = nullptr;
    QList<std::shared_ptr<QByteArray>> m_contents; // alive until the archive is written
};
