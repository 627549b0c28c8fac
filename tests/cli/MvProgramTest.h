// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvTest.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

#include <memory>

#include <sys/resource.h>

/// Tests that run the program as a person does, each in a folder of its own.
class MvProgramTest : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_folder = std::make_unique<QTemporaryDir>(); }

protected:
    struct Call
    {
        int exitCode = -1;
        QByteArray out;
        QByteArray err;

        QList<QByteArray> outLines() const { return out.trimmed().split('\n'); }
    };
    /// Blanks part the arguments. With at most so many MiB of memory; 0 sets no limit.
    Call run(const QString &arguments, const QMap<QString, QString> &environment = {}, rlim_t memory = 0,
             const QByteArray &input = {}) const;
    QStringList files() const { return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    static void write(const QString &path, const QByteArray &content);
    static QByteArray contentOf(const QString &path);
    /// What another program prints; a missing one fails the test.
    static QByteArray outputOf(const QString &program, const QStringList &arguments);
    /// A list with one entry.
    static QByteArray entriesFile(const QByteArray &name, const QByteArray &date);

    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>(); // the program's working directory
};
