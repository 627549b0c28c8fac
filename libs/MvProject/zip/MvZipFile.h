// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvZipWriter.h"

#include <QCoreApplication>
#include <QList>

struct zip;

/// The archive as libzip writes it.
class MvZipFile : public MvZipWriter
{
    Q_DECLARE_TR_FUNCTIONS(MvZipFile)

public:
    explicit MvZipFile(const QString &path);
    ~MvZipFile() override;

    void add(const QString &name, const QByteArray &content) override;
    void addFile(const QString &name, const QString &path) override;
    MvOutcome finish() override;

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
