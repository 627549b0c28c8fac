// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFolderTest.h"

#include "MvTestFiles.h"

void MvFolderTest::put(const QString &name, const QByteArray &content) const
{
    QVERIFY2(MvTestFiles::write(path(name), content), qPrintable(name));
}

QByteArray MvFolderTest::contentOf(const QString &name) const
{
    return MvTestFiles::contentOf(path(name));
}

QStringList MvFolderTest::files() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}
