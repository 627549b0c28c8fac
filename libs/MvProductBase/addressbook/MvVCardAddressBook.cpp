// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCardAddressBook.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

QList<QFileInfo> MvVCardAddressBook::files() const
{
    if (!m_files.isEmpty())
        return m_files;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir(data + u"/contacts"_s).entryInfoList({u"*.vcf"_s}, QDir::Files | QDir::Readable, QDir::Name);
}

MvSimplePersonList MvVCardAddressBook::addressBookContacts()
{
    const MvVCardReader::Content content = MvVCardReader::read(files(), m_decoder);
    m_lastError = content.error;
    return content.persons;
}
