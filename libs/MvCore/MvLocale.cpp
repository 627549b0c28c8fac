#include "MvCore/MvLocale.h"

#include <QHash>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

struct CountryNames
{
    QString name;
    bool hasSeveralLanguages = false;
};

// QLocale names countries in their own language only; these are the countries of the holiday tables, in German.
const QHash<QString, CountryNames> &countryNames()
{
    static const QHash<QString, CountryNames> names = {
        {u"AT"_s, {u"Österreich"_s}},      {u"BE"_s, {u"Belgien"_s, true}},
        {u"BG"_s, {u"Bulgarien"_s}},       {u"CA"_s, {u"Kanada"_s, true}},
        {u"CH"_s, {u"Schweiz"_s, true}},   {u"CZ"_s, {u"Tschechien"_s}},
        {u"DE"_s, {u"Deutschland"_s}},     {u"DK"_s, {u"Dänemark"_s}},
        {u"ES"_s, {u"Spanien"_s, true}},   {u"FI"_s, {u"Finnland"_s}},
        {u"FR"_s, {u"Frankreich"_s}},      {u"GB"_s, {u"Vereinigtes Königreich"_s}},
        {u"GR"_s, {u"Griechenland"_s}},    {u"HR"_s, {u"Kroatien"_s}},
        {u"HU"_s, {u"Ungarn"_s}},          {u"IE"_s, {u"Irland"_s}},
        {u"IT"_s, {u"Italien"_s, true}},   {u"LI"_s, {u"Liechtenstein"_s}},
        {u"LU"_s, {u"Luxemburg"_s, true}}, {u"NL"_s, {u"Niederlande"_s}},
        {u"NO"_s, {u"Norwegen"_s}},        {u"PL"_s, {u"Polen"_s}},
        {u"PT"_s, {u"Portugal"_s}},        {u"RO"_s, {u"Rumänien"_s}},
        {u"SE"_s, {u"Schweden"_s}},        {u"SI"_s, {u"Slowenien"_s}},
        {u"SK"_s, {u"Slowakei"_s}},        {u"US"_s, {u"USA"_s}},
    };
    return names;
}

QString languageName(const QString &language)
{
    static const QHash<QString, QString> names = {
        {u"de"_s, u"Deutsch"_s},       {u"fr"_s, u"Französisch"_s},    {u"it"_s, u"Italienisch"_s},
        {u"rm"_s, u"Rätoromanisch"_s}, {u"nl"_s, u"Niederländisch"_s}, {u"en"_s, u"Englisch"_s},
        {u"es"_s, u"Spanisch"_s},      {u"ca"_s, u"Katalanisch"_s},    {u"gl"_s, u"Galicisch"_s},
        {u"eu"_s, u"Baskisch"_s},      {u"lb"_s, u"Luxemburgisch"_s},
    };
    return names.value(language, language);
}

} // namespace

MvLocale::MvLocale(const QString &language, const QString &country)
{
    static const QRegularExpression languageCode(u"^[a-z]{2,3}$"_s);
    static const QRegularExpression countryCode(u"^[A-Z]{2}$"_s);
    const QString lower = language.toLower();
    const QString upper = country.toUpper();
    if (languageCode.match(lower).hasMatch() && countryCode.match(upper).hasMatch()) {
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

QString MvLocale::visibleName() const
{
    const CountryNames names = countryNames().value(m_country, {m_country});
    return names.hasSeveralLanguages ? u"%1 (%2)"_s.arg(names.name, languageName(m_language)) : names.name;
}
