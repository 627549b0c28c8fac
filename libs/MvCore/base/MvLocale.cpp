// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvLocale.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct CountryName
{
    const char *name = nullptr;
    bool hasSeveralLanguages = false;
};

// QLocale names countries in their own language or in English. These are the countries of the shipped holiday tables;
// others, of tables that somebody has added, are called as they call themselves.
const QHash<QString, CountryName> &countryNames()
{
    static const QHash<QString, CountryName> names = {
        {u"AT"_s, {QT_TRANSLATE_NOOP("MvLocale", "Österreich")}},
        {u"BE"_s, {QT_TRANSLATE_NOOP("MvLocale", "Belgien"), true}},
        {u"BG"_s, {QT_TRANSLATE_NOOP("MvLocale", "Bulgarien")}},
        {u"CA"_s, {QT_TRANSLATE_NOOP("MvLocale", "Kanada"), true}},
        {u"CH"_s, {QT_TRANSLATE_NOOP("MvLocale", "Schweiz"), true}},
        {u"CZ"_s, {QT_TRANSLATE_NOOP("MvLocale", "Tschechien")}},
        {u"DE"_s, {QT_TRANSLATE_NOOP("MvLocale", "Deutschland")}},
        {u"DK"_s, {QT_TRANSLATE_NOOP("MvLocale", "Dänemark")}},
        {u"ES"_s, {QT_TRANSLATE_NOOP("MvLocale", "Spanien"), true}},
        {u"FI"_s, {QT_TRANSLATE_NOOP("MvLocale", "Finnland")}},
        {u"FR"_s, {QT_TRANSLATE_NOOP("MvLocale", "Frankreich")}},
        {u"GB"_s, {QT_TRANSLATE_NOOP("MvLocale", "Vereinigtes Königreich")}},
        {u"GR"_s, {QT_TRANSLATE_NOOP("MvLocale", "Griechenland")}},
        {u"HR"_s, {QT_TRANSLATE_NOOP("MvLocale", "Kroatien")}},
        {u"HU"_s, {QT_TRANSLATE_NOOP("MvLocale", "Ungarn")}},
        {u"IE"_s, {QT_TRANSLATE_NOOP("MvLocale", "Irland")}},
        {u"IT"_s, {QT_TRANSLATE_NOOP("MvLocale", "Italien"), true}},
        {u"LI"_s, {QT_TRANSLATE_NOOP("MvLocale", "Liechtenstein")}},
        {u"LU"_s, {QT_TRANSLATE_NOOP("MvLocale", "Luxemburg"), true}},
        {u"NL"_s, {QT_TRANSLATE_NOOP("MvLocale", "Niederlande")}},
        {u"NO"_s, {QT_TRANSLATE_NOOP("MvLocale", "Norwegen")}},
        {u"PL"_s, {QT_TRANSLATE_NOOP("MvLocale", "Polen")}},
        {u"PT"_s, {QT_TRANSLATE_NOOP("MvLocale", "Portugal")}},
        {u"RO"_s, {QT_TRANSLATE_NOOP("MvLocale", "Rumänien")}},
        {u"SE"_s, {QT_TRANSLATE_NOOP("MvLocale", "Schweden")}},
        {u"SI"_s, {QT_TRANSLATE_NOOP("MvLocale", "Slowenien")}},
        {u"SK"_s, {QT_TRANSLATE_NOOP("MvLocale", "Slowakei")}},
        {u"US"_s, {QT_TRANSLATE_NOOP("MvLocale", "USA")}},
    };
    return names;
}

QString languageName(const QString &language)
{
    static const QHash<QString, const char *> names = {
        {u"de"_s, QT_TRANSLATE_NOOP("MvLocale", "Deutsch")},
        {u"fr"_s, QT_TRANSLATE_NOOP("MvLocale", "Französisch")},
        {u"it"_s, QT_TRANSLATE_NOOP("MvLocale", "Italienisch")},
        {u"rm"_s, QT_TRANSLATE_NOOP("MvLocale", "Rätoromanisch")},
        {u"nl"_s, QT_TRANSLATE_NOOP("MvLocale", "Niederländisch")},
        {u"en"_s, QT_TRANSLATE_NOOP("MvLocale", "Englisch")},
        {u"es"_s, QT_TRANSLATE_NOOP("MvLocale", "Spanisch")},
        {u"ca"_s, QT_TRANSLATE_NOOP("MvLocale", "Katalanisch")},
        {u"gl"_s, QT_TRANSLATE_NOOP("MvLocale", "Galicisch")},
        {u"eu"_s, QT_TRANSLATE_NOOP("MvLocale", "Baskisch")},
        {u"lb"_s, QT_TRANSLATE_NOOP("MvLocale", "Luxemburgisch")},
    };
    const char *name = names.value(language);
    if (name)
        return QCoreApplication::translate("MvLocale", name);
    const QString ownName = QLocale(language).nativeLanguageName();
    return ownName.isEmpty() ? language : ownName;
}

} // namespace

MvLocale::MvLocale(const QString &language, const QString &country)
{
    const QString lower = language.toLower();
    const QString upper = country.toUpper();
    const bool isLanguage = (lower.size() == 2 || lower.size() == 3) &&
                            std::all_of(lower.cbegin(), lower.cend(), [](QChar c) { return c >= u'a' && c <= u'z'; });
    const bool isCountry =
        upper.size() == 2 && std::all_of(upper.cbegin(), upper.cend(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
    if (isLanguage && isCountry) {
        m_language = lower;
        m_country = upper;
    }
}

MvLocale::MvLocale(const QString &name)
{
    QString normalised = name.trimmed();
    normalised.replace(u'-', u'_');
    *this = MvLocale(normalised.section(u'_', 0, 0), normalised.section(u'_', 1, 1));
}

QString MvLocale::name() const
{
    return isValid() ? m_language + u'_' + m_country : QString();
}

QLocale MvLocale::toQLocale() const
{
    return isValid() ? QLocale(name()) : QLocale::c();
}

QString MvLocale::visibleCountryName() const
{
    const CountryName known = countryNames().value(m_country);
    const QString name =
        known.name ? QCoreApplication::translate("MvLocale", known.name) : toQLocale().nativeCountryName();
    return name.isEmpty() ? m_country : name;
}

QString MvLocale::visibleName() const
{
    const QString name = visibleCountryName();
    return countryNames().value(m_country).hasSeveralLanguages ? u"%1 (%2)"_s.arg(name, languageName(m_language))
                                                               : name;
}

bool MvLocale::isCountryCalled(const QString &name) const
{
    const QStringList names{visibleCountryName(), QString::fromUtf8(countryNames().value(m_country).name),
                            QLocale::countryToString(toQLocale().country())};
    return isValid() && !name.isEmpty() && names.contains(name, Qt::CaseInsensitive);
}
