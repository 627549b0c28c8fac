// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QString>

/// The textual form of simple values in files, and of names as people give them.
class MVCORE_EXPORT MvStringHelper
{
public:
    /// "true" or "false".
    static QString boolToString(bool value);
    /// Reads "true", "1", "yes", "on" and their opposites, whatever their case; anything else gives the default.
    static bool stringToBool(const QString &text, bool defaultValue);

    static constexpr qsizetype longestName = 500; // UTF-16 units

    /// A name as it is taken from a person or an address book: one line, no blanks around it and single ones in it.
    /// Line breaks, tabs and other control characters count as blanks; what is no character at all goes. Empty when
    /// nothing of it could be seen. A longer name than longestName ends there, with a whole character.
    static QString simplifiedName(const QString &name);
    /// Whether something of the text would be seen: not blanks, controls and invisible format characters alone.
    static bool isVisible(const QString &text);
    /// The same for one character.
    static bool isVisible(char32_t character);
    /// The text's beginning, of at most so many UTF-16 units, without cutting a character with its marks in two.
    static QString beginning(const QString &text, qsizetype length);
};
