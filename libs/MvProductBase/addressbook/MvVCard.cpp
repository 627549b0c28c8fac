// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvProductBase/MvVCard.h"

using namespace Qt::StringLiterals;

QUuid MvVCard::uuid(const QDate &date) const
{
    static const QUuid space(u"{7c9d3a56-2f2b-5d0e-9a71-0d8a6b1f3e42}"_s);
    QString text = uid;
    if (text.startsWith("urn:uuid:"_L1, Qt::CaseInsensitive))
        text = text.mid(9);
    if (const QUuid uuid = QUuid::fromString(text); !uuid.isNull())
        return uuid;
    if (text.isEmpty())
        text = name + u'|' + date.toString(Qt::ISODate);
    return QUuid::createUuidV5(space, text);
}
