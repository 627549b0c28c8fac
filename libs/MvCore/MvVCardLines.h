#pragma once

#include "MvCore/MvVCardProperty.h"
#include "MvCore/mvcore_export.h"

#include <QByteArray>
#include <QList>

/// Cuts a file of visiting cards into properties: lines unfolded, soft breaks joined, names and parameters apart.
class MVCORE_EXPORT MvVCardLines
{
public:
    static QList<MvVCardProperty> split(const QByteArray &bytes);
};
