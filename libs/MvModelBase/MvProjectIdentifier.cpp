#include "MvModelBase/MvProjectIdentifier.h"

MvProjectIdentifier::MvProjectIdentifier(const QString &projectID, bool isTemporary)
    : m_projectID(projectID)
    , m_isTemporary(isTemporary)
{}
