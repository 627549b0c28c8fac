// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvModelBase/mvmodelbase_export.h"

#include <QHashFunctions>
#include <QString>

/// Names one document of the application. A temporary one lives for the running program only.
class MVMODELBASE_EXPORT MvProjectIdentifier
{
public:
    MvProjectIdentifier() = default;
    MvProjectIdentifier(const QString &projectID, bool isTemporary);

    bool isValid() const { return !m_projectID.isEmpty(); }
    QString projectID() const { return m_projectID; }
    bool isTemporary() const { return m_isTemporary; }

    bool operator==(const MvProjectIdentifier &) const = default;

private:
    QString m_projectID;
    bool m_isTemporary = false;
};

inline size_t qHash(const MvProjectIdentifier &project, size_t seed = 0)
{
    return qHash(project.projectID(), seed);
}
