// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvHolidaysCommand.h"

#include "MvCore/MvApplicationLocale.h"
#include "MvProductBase/MvCalendariumHolidayCacheKey.h"
#include "MvProductBase/MvCalendariumHolidayCalculator.h"
#include "MvProductBase/MvDateRange.h"
#include "MvProductBase/MvHolidaySpan.h"
#include "plain/MvCliValues.h"
#include "plain/MvTextTable.h"
#include "plain/MvVacationHint.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostYears = 200;

QString typeName(const MvCalendariumHolidayType &type)
{
    switch (type.toInt()) {
    case HOLIDAY_TYPE_PUBLIC:
        return u"public"_s;
    case HOLIDAY_TYPE_OPTIONAL:
        return u"optional"_s;
    case HOLIDAY_TYPE_OBSERVANCE:
        return u"observance"_s;
    default:
        return u"vacation"_s;
    }
}

QString visibleTypeName(const MvCalendariumHolidayType &type)
{
    switch (type.toInt()) {
    case HOLIDAY_TYPE_PUBLIC:
        return QCoreApplication::translate("MvHolidaysCommand", "Feiertag");
    case HOLIDAY_TYPE_OPTIONAL:
        return QCoreApplication::translate("MvHolidaysCommand", "teils frei");
    case HOLIDAY_TYPE_OBSERVANCE:
        return QCoreApplication::translate("MvHolidaysCommand", "Gedenktag");
    default:
        return QCoreApplication::translate("MvHolidaysCommand", "Ferien");
    }
}

QString csvField(const QString &text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n'))
        return text;
    return u'"' + QString(text).replace(u'"', u"\"\""_s) + u'"';
}

} // namespace

QString MvHolidaysCommand::summary() const
{
    return tr("gibt Feiertage und Schulferien aus");
}

QList<MvCliOption> MvHolidaysCommand::options() const
{
    return {countryOption(),
            languageOption(),
            regionOption(),
            {u"year"_s, tr("JAHR"), tr("Jahr (das kommende)")},
            {u"to"_s, tr("JAHR"), tr("letztes Jahr, wenn es mehrere sind")},
            formatOption({u"text"_s, u"csv"_s, u"json"_s, u"ics"_s}),
            jsonOption()};
}

QStringList MvHolidaysCommand::examples() const
{
    return {u"holidays --country DE --region BY --year 2027"_s,
            u"holidays --region Sachsen --year 2027 --to 2030 --format csv"_s,
            u"holidays --region BY --year 2027 --format ics"_s};
}

MvHolidaysCommand::Years MvHolidaysCommand::years(MvCliValues &values)
{
    const int year = values.year(u"year"_s, MvDateRange::createDefaultCalendarStart().year());
    const int lastYear = values.year(u"to"_s, year);
    if (lastYear < year || lastYear - year >= mostYears)
        values.setError(tr("--to „%1“: erlaubt sind %2 bis %3").arg(lastYear).arg(year).arg(year + mostYears - 1));
    return {year, lastYear};
}

/// Entries alone can be written as iCalendar.
bool MvHolidaysCommand::isPlain(const QStringList &arguments) const
{
    return arguments.filter(u"ics"_s, Qt::CaseInsensitive).isEmpty();
}

MvCliCommand::Result MvHolidaysCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const MvLocale locale = values.country();
    const QString region = values.region(locale);
    const auto [year, lastYear] = years(values);
    const QString format = values.format({u"text"_s, u"csv"_s, u"json"_s, u"ics"_s});
    if (!values.isOk())
        return misused(values.error());

    const MvCalendariumHolidayConfig config(
        locale, region, MvCalendariumFeatures(FEATURE_SCHOOL_VACATIONS | FEATURE_VACATION_NAMES_DAILY));
    MvCalendariumHolidayList holidays;
    for (int each = year; each <= lastYear; ++each)
        holidays.append(
            MvCalendariumHolidayCalculator::instance().holidaysOfYear(MvCalendariumHolidayCacheKey(each, config)));

    if (format == u"ics"_s)
        streams.out << QString::fromUtf8(m_toICalendar(config, year, lastYear));
    else if (format == u"csv"_s)
        printCsv(holidays, streams.out);
    else if (format == u"json"_s)
        printJson(holidays, streams.out);
    else
        printText(holidays, streams.out);
    MvVacationHint::print(config, QDate(lastYear, 12, 31), streams.hints);
    return {};
}

void MvHolidaysCommand::printText(const MvCalendariumHolidayList &holidays, QTextStream &out)
{
    const QLocale locale = MvApplicationLocale::instance().locale();
    MvTextTable table;
    for (const MvHolidaySpan &span : MvHolidaySpan::of(holidays)) {
        const auto describe = [&](const QDate &date) { return locale.toString(date, tr("ddd dd.MM.yyyy")); };
        QString days = describe(span.holiday.date());
        if (span.last != span.holiday.date())
            days += u" – "_s + describe(span.last);
        table.addRow({days, visibleTypeName(span.holiday.type()), span.holiday.description()});
    }
    table.print(out);
}

void MvHolidaysCommand::printCsv(const MvCalendariumHolidayList &holidays, QTextStream &out)
{
    out << "date,type,name\n";
    for (const MvCalendariumHoliday &holiday : holidays)
        out << holiday.date().toString(Qt::ISODate) << ',' << typeName(holiday.type()) << ','
            << csvField(holiday.description()) << '\n';
}

void MvHolidaysCommand::printJson(const MvCalendariumHolidayList &holidays, QTextStream &out)
{
    QJsonArray array;
    for (const MvCalendariumHoliday &holiday : holidays)
        array.append(QJsonObject{{u"date"_s, holiday.date().toString(Qt::ISODate)},
                                 {u"type"_s, typeName(holiday.type())},
                                 {u"name"_s, holiday.description()}});
    out << QString::fromUtf8(QJsonDocument(array).toJson());
}
