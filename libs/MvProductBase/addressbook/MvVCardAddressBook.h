// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvPlatformIndependent.h"
#include "MvProductBase/MvVCardReader.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QFileInfo>
#include <QList>
#include <QString>

/// The address book of a system that keeps contacts as visiting cards in files.
class MVPRODUCTBASE_EXPORT MvVCardAddressBook : public MvPlatformIndependent
{
public:
    /// The files with the contacts. Without any: those in the folder "contacts" of the user's data, where some desktops
    /// keep them.
    void setFiles(const QList<QFileInfo> &files) { m_files = files; }
    QList<QFileInfo> files() const;

    /// Who decodes the pictures; without one, small ones are decoded.
    void setPictureDecoder(const MvVCardReader::PictureDecoder &decoder) { m_decoder = decoder; }

    /// Everybody with a birthday or an anniversary, each once.
    MvSimplePersonList addressBookContacts() override;
    /// Why files could not be read at the last time, for a person, one a line.
    QString lastError() const { return m_lastError; }

private:
    QList<QFileInfo> m_files;
    MvVCardReader::PictureDecoder m_decoder;
    QString m_lastError;
};
