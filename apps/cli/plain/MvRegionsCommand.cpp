// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvRegionsCommand.h"

#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "plain/MvCliValues.h"
#include "plain/MvTextTable.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// One locale per country: the asked one, or the first of every country there is.
QList<MvLocale> countries(const MvLocale &asked)
{
    if (asked.isValid())
        return {asked};
    QList<MvLocale> result;
    QSet<QString> seen;
    for (const MvLocale &locale : MvCalendariumHolidayCalculator::instance().availableLanguages()) {
        if (!seen.contains(locale.country()))
            result.append(locale);
        seen.insert(locale.country());
    }
    return result;
}

QString monthText(const QDate &date)
{
    return date.isValid() ? date.toString(u"yyyy-MM"_s) : QString();
}

} // namespace

QString MvRegionsCommand::summary() const
{
    return tr("zählt Staaten und Regionen auf, deren Feiertage bekannt sind");
}

QList<MvCliOption> MvRegionsCommand::options() const
{
    MvCliOption country = countryOption();
    country.help = tr("nur dieser Staat, Kürzel oder Name (alle)");
    return {country, languageOption(), formatOption({u"text"_s, u"json"_s}), jsonOption()};
}

QStringList MvRegionsCommand::examples() const
{
    return {u"regions"_s, u"regions --country AT"_s, u"regions --country Schweiz --language fr --format json"_s};
}

MvCliCommand::Result MvRegionsCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    const bool hasCountry = values.has(u"country"_s) || values.has(u"language"_s);
    const MvLocale asked = hasCountry ? values.country() : MvLocale();
    if (!values.isOk())
        return misused(values.error());

    const MvCalendariumHolidayCalculator &calculator = MvCalendariumHolidayCalculator::instance();
    QJsonArray array;
    MvTextTable table;
    for (const MvLocale &locale : countries(asked)) {
        QStringList codes = calculator.availableProvinces(locale);
        if (codes.isEmpty())
            codes.append(QString()); // the country alone
        for (const QString &code : codes) {
            const QString name =
                code.isEmpty() ? locale.visibleName().section(u" ("_s, 0, 0) : calculator.provinceName(locale, code);
            const QString until = monthText(calculator.vacationsKnownUntil(locale, code));
            array.append(QJsonObject{{u"country"_s, locale.country()},
                                     {u"region"_s, code},
                                     {u"name"_s, name},
                                     {u"vacationsKnownUntil"_s, until.isEmpty() ? QJsonValue() : until}});
            table.addRow({locale.country(), code.isEmpty() ? u"-"_s : code, name,
                          until.isEmpty() ? QString() : tr("Ferien bis %1").arg(until)});
        }
    }
    if (format == u"json"_s)
        streams.out << QString::fromUtf8(QJsonDocument(array).toJson());
    else
        table.print(streams.out);
    return {};
}
