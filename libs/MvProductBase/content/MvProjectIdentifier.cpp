// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvModelBase/MvProjectIdentifier.h"

MvProjectIdentifier::MvProjectIdentifier(const QString &projectID, bool isTemporary)
    : m_projectID(projectID)
    , m_isTemporary(isTemporary)
{}
