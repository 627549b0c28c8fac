// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvGeneralSettings.h"

#include <QSettings>

template class MvSingleton<MvGeneralSettings>;

using namespace Qt::StringLiterals;

namespace {

const QString idsToIgnoreKey = u"schemas/idsToIgnore"_s;

QSettings storage()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, u"mvcalendar"_s, u"mvcalendar"_s);
}

} // namespace

QStringList MvGeneralSettings::idsToIgnore() const
{
    return storage().value(idsToIgnoreKey).toStringList();
}

void MvGeneralSettings::setIDsToIgnore(const QStringList &ids)
{
    QSettings settings = storage();
    settings.setValue(idsToIgnoreKey, ids);
    settings.sync();
}
