// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvCore/mvcore_export.h"

#include <QLocale>
#include <QString>

#include <compare>

/// A language as spoken in a country: "de_DE", "fr_CH". It selects the words on the page and the holidays' country.
///
/// A default-constructed one, or one made from an unknown name, is invalid.
class MVCORE_EXPORT MvLocale
{
public:
    MvLocale() = default;
    /// Both codes by ISO 639 and ISO 3166, whatever their case.
    MvLocale(const QString &language, const QString &country);
    /// "de_DE" or "de-DE".
    explicit MvLocale(const QString &name);

    bool isValid() const { return !m_language.isEmpty() && !m_country.isEmpty(); }
    QString language() const { return m_language; } // lower case
    QString country() const { return m_country; }   // upper case
    /// "de_DE"; empty when invalid.
    QString name() const;
    QLocale toQLocale() const;
    /// The country in the program's language, for choosers: "Deutschland"; "Schweiz (Französisch)" where it has several
    /// languages.
    QString visibleName() const;
    /// Whether the country is called so, in capitals or not: in German, in English, or in the program's language. What
    /// a file or a script says means the same in every language of the program.
    bool isCountryCalled(const QString &name) const;

    bool operator==(const MvLocale &) const = default;
    auto operator<=>(const MvLocale &other) const { return name().compare(other.name()) <=> 0; }

private:
    QString visibleCountryName() const;

    QString m_language;
    QString m_country;
};

inline size_t qHash(const MvLocale &locale, size_t seed = 0)
{
    return qHashMulti(seed, locale.language(), locale.country());
}
