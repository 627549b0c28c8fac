// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QStringList>

class MvGeneralSettings;
extern template class MVCORE_EXPORT MvSingleton<MvGeneralSettings>;

/// The user's settings that no document keeps; stored through QSettings at once.
class MVCORE_EXPORT MvGeneralSettings : public MvSingleton<MvGeneralSettings>
{
public:
    /// Ids of shipped things that the user has hidden from choosers.
    QStringList idsToIgnore() const;
    void setIDsToIgnore(const QStringList &ids);
};
