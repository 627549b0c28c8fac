// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/MvSingleton.h"
#include "MvCore/mvcore_export.h"

#include <QString>

#include <memory>

class MvBasisSettings;
class QTemporaryDir;
extern template class MVCORE_EXPORT MvSingleton<MvBasisSettings>;

/// Settings of the running program that no user changes.
class MVCORE_EXPORT MvBasisSettings : public MvSingleton<MvBasisSettings>
{
public:
    /// A folder for temporary files that only this user can read, without a trailing slash. It is made on first use
    /// and removed with the application object. Empty when no folder could be made.
    QString temporaryDirectory();

private:
    friend class MvSingleton<MvBasisSettings>;
    MvBasisSettings();
    ~MvBasisSettings() override;

    std::unique_ptr<QTemporaryDir> m_temporaryDir;
};
