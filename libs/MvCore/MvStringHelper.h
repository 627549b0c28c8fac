#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>

/// The textual form of simple values in files.
class MVCORE_EXPORT MvStringHelper
{
public:
    /// "true" or "false".
    static QString boolToString(bool value);
    /// Reads "true", "1", "yes", "on" and their opposites, whatever their case; anything else gives the default.
    static bool stringToBool(const QString &text, bool defaultValue);
};
