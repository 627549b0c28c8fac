#include "MvCore/MvVCardAddressBook.h"

#include "MvCore/MvVCardReader.h"

#include <QDir>
#include <QSet>
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
    MvSimplePersonList persons;
    QSet<QUuid> known;
    QStringList errors;
    for (const QFileInfo &file : files()) {
        const MvVCardReader::Content content = MvVCardReader::read(file);
        if (!content.error.isEmpty())
            errors.append(content.error);
        for (const MvSimplePerson &person : content.persons) {
            if (!known.contains(person.uuid()))
                persons.append(person);
            known.insert(person.uuid());
        }
    }
    m_lastError = errors.join(u'\n');
    return persons;
}
