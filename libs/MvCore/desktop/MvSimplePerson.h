// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QDate>
#include <QImage>
#include <QString>
#include <QUuid>

/// One contact of an address book, as far as a calendar asks for it.
class MVCORE_EXPORT MvSimplePerson
{
public:
    MvSimplePerson() = default;
    MvSimplePerson(const QString &name, const QDate &birthday, const QImage &image, const QUuid &uuid);
    virtual ~MvSimplePerson();
    MvSimplePerson(const MvSimplePerson &) = default;
    MvSimplePerson(MvSimplePerson &&) noexcept = default;
    MvSimplePerson &operator=(const MvSimplePerson &) = default;
    MvSimplePerson &operator=(MvSimplePerson &&) noexcept = default;

    QString name() const { return m_name; }
    /// Invalid when the address book knows none.
    QDate birthday() const { return m_birthday; }
    /// Null without a picture.
    QImage image() const { return m_image; }
    /// The same at every reading of the address book.
    QUuid uuid() const { return m_uuid; }

private:
    QString m_name;
    QDate m_birthday;
    QImage m_image;
    QUuid m_uuid;
};
