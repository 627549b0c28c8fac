// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvFreshFolderTest.h"

#include <QMap>

#include <sys/resource.h>

/// Tests that run the program as a person does, each in a folder of its own.
class MvProgramTest : public MvFreshFolderTest
{
    Q_OBJECT

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
    /// What another program prints; a missing one fails the test.
    static QByteArray outputOf(const QString &program, const QStringList &arguments);
    /// A list with one entry.
    static QByteArray entriesFile(const QByteArray &name, const QByteArray &date);
};
