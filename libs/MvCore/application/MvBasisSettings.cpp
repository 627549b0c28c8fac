// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvBasisSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

template class MvSingleton<MvBasisSettings>;

using namespace Qt::StringLiterals;

MvBasisSettings::MvBasisSettings() = default;
MvBasisSettings::~MvBasisSettings() = default;

QString MvBasisSettings::temporaryDirectory()
{
    if (!m_temporaryDir) {
        m_temporaryDir = std::make_unique<QTemporaryDir>(QDir::tempPath() + u"/mvcalendar-XXXXXX"_s);
        qAddPostRoutine([] { instance().m_temporaryDir.reset(); }); // singletons themselves are never destroyed
    }
    return m_temporaryDir->isValid() ? m_temporaryDir->path() : QString();
}
