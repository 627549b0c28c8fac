// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvCliValues.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"

#include "plain/MvNearMiss.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int firstYear = 1583; // the first whole year of our calendar
constexpr int lastYear = 9999;

QString countryName(const MvLocale &locale)
{
    return locale.visibleName().section(u" ("_s, 0, 0);
}

} // namespace

void MvCliValues::setError(const QString &error)
{
    if (m_error.isEmpty())
        m_error = error;
}

QString MvCliValues::text(const QString &name, const QString &defaultValue) const
{
    return has(name) ? m_arguments.value(name) : defaultValue;
}

int MvCliValues::number(const QString &name, int minimum, int maximum, int defaultValue)
{
    if (!has(name))
        return defaultValue;
    bool isNumber = false;
    const int value = text(name).toInt(&isNumber);
    if (isNumber && value >= minimum && value <= maximum)
        return value;
    setError(tr("--%1 „%2“: erlaubt sind ganze Zahlen von %3 bis %4")
                 .arg(name, text(name), QString::number(minimum), QString::number(maximum)));
    return defaultValue;
}

double MvCliValues::millimetres(const QString &name, double maximum, double defaultValue)
{
    if (!has(name))
        return defaultValue;
    bool isNumber = false;
    const double value = text(name).replace(u',', u'.').toDouble(&isNumber);
    if (isNumber && value >= 0.0 && value <= maximum)
        return value;
    setError(tr("--%1 „%2“: erlaubt sind 0 bis %3 Millimeter").arg(name, text(name), QString::number(maximum)));
    return defaultValue;
}

int MvCliValues::year(const QString &name, int defaultValue)
{
    return number(name, firstYear, lastYear, defaultValue);
}

QDate MvCliValues::month(const QString &name)
{
    const QDate month = QDate::fromString(text(name), u"yyyy-MM"_s);
    if (month.isValid() && month.year() >= firstYear)
        return month;
    setError(tr("--%1 „%2“: erlaubt ist ein Monat wie 2026-08").arg(name, text(name)));
    return {};
}

QString MvCliValues::choice(const QString &name, const QStringList &allowed)
{
    if (!has(name))
        return allowed.first();
    for (const QString &word : allowed)
        if (word.compare(text(name), Qt::CaseInsensitive) == 0)
            return word;
    setError(tr("--%1 „%2“: erlaubt sind %3").arg(name, text(name), allowed.join(u", "_s)) +
             MvNearMiss::describe(text(name), allowed));
    return allowed.first();
}

QString MvCliValues::format(const QStringList &allowed)
{
    exclude(u"format"_s, u"json"_s);
    return has(u"json"_s) ? u"json"_s : choice(u"format"_s, allowed);
}

void MvCliValues::exclude(const QString &name, const QString &other)
{
    if (has(name) && has(other))
        setError(tr("--%1 und --%2 schließen einander aus").arg(name, other));
}

MvLocale MvCliValues::country()
{
    const QString wanted = text(u"country"_s, u"DE"_s).trimmed();
    const QString language = text(u"language"_s).trimmed();
    QStringList codes;
    QStringList languages;
    MvLocale found;
    const QList<MvLocale> locales = MvCalendariumHolidayCalculator::instance().availableLanguages();
    const bool isCode = std::any_of(locales.cbegin(), locales.cend(), [&wanted](const MvLocale &locale) {
        return locale.country().compare(wanted, Qt::CaseInsensitive) == 0;
    });
    for (const MvLocale &locale : locales) {
        if (!codes.contains(locale.country()))
            codes.append(locale.country());
        if (isCode ? locale.country().compare(wanted, Qt::CaseInsensitive) != 0 : !locale.isCountryCalled(wanted))
            continue;
        languages.append(locale.language());
        const bool isWanted = language.isEmpty() || locale.language().compare(language, Qt::CaseInsensitive) == 0;
        if (isWanted && !found.isValid())
            found = locale;
    }
    if (languages.isEmpty()) {
        QStringList names;
        for (const MvLocale &locale : locales) {
            if (const QString name = countryName(locale); !names.contains(name))
                names.append(name);
        }
        setError(tr("--country „%1“: erlaubt sind %2").arg(wanted, codes.join(u", "_s)) +
                 MvNearMiss::describe(wanted, names + codes));
    } else if (!found.isValid()) {
        setError(tr("--language „%1“: erlaubt sind hier %2").arg(language, languages.join(u", "_s)));
    }
    return found;
}

QString MvCliValues::region(const MvLocale &locale)
{
    if (!has(u"region"_s) || !locale.isValid())
        return {};
    const MvCalendariumHolidayCalculator &calculator = MvCalendariumHolidayCalculator::instance();
    const QString wanted = text(u"region"_s).trimmed();
    const QString code = calculator.findProvince(locale, wanted);
    if (!code.isEmpty())
        return code;

    const QStringList codes = calculator.availableProvinces(locale);
    QStringList names;
    for (const QString &known : codes)
        names.append(calculator.provinceName(locale, known));
    if (codes.isEmpty())
        setError(tr("--region „%1“: %2 hat keine Regionen").arg(wanted, countryName(locale)));
    else
        setError(tr("--region „%1“: erlaubt sind für %2 %3").arg(wanted, countryName(locale), codes.join(u", "_s)) +
                 MvNearMiss::describe(wanted, names + codes));
    return {};
}
