// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProductBase/MvVCardDate.h"
#include "MvProductBase/mvproductbase_export.h"

#include <QByteArray>
#include <QString>
#include <QUuid>

/// One visiting card, as far as a calendar asks.
struct MVPRODUCTBASE_EXPORT MvVCard
{
    QString name; // of the person, else of an organisation, a nickname, an address; empty without any
    QString uid;
    MvVCardDate birthday;
    MvVCardDate anniversary;
    QByteArray pictureCode; // the picture in the card, in base64; one that lies elsewhere is never fetched
    bool isPictureTooLarge = false;
    int line = 0; // of its beginning in the file, from 1

    bool hasPicture() const { return isPictureTooLarge || !pictureCode.isEmpty(); }
    /// The bytes of the picture's file; empty without one and for one that is too large.
    QByteArray picture() const { return QByteArray::fromBase64(pictureCode); }

    /// The same for the same card every time: its UID, or made from name and date where it has none.
    QUuid uuid(const QDate &date) const;
};
