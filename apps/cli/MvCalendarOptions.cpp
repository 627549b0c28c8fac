// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCalendarOptions.h"

#include "MvSchemaNames.h"
#include "plain/MvCliCommand.h"
#include "plain/MvCliValues.h"
#include "plain/MvNearMiss.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int mostMonths = 120;
constexpr double widestBleed = 20.0; // millimetres

/// The id of the layout or colour schema that an option names, the usual one when it was not given.
QString schemaId(MvCliValues &values, const QString &option, MvSchemaNames::Kind kind)
{
    if (!values.has(option))
        return MvSchemaNames::defaultId(kind);
    const QString id = MvSchemaNames::find(kind, values.text(option));
    if (id.isEmpty())
        values.setError(MvSchemaNames::unknownError(kind, option, values.text(option)));
    return id;
}

} // namespace

QList<MvCliOption> MvCalendarOptions::content()
{
    return {{u"year"_s, tr("JAHR"), tr("Januar bis Dezember dieses Jahres (das kommende)")},
            {u"from"_s, tr("JAHR-MONAT"), tr("erster Monat, statt --year")},
            {u"months"_s, tr("ZAHL"), tr("wie viele Monate ab --from (12)")},
            MvCliCommand::countryOption(),
            MvCliCommand::languageOption(),
            MvCliCommand::regionOption(),
            {u"public-only"_s, {}, tr("nur gesetzliche Feiertage")},
            {u"vacations"_s, {}, tr("auch Schulferien")},
            {u"no-holidays"_s, {}, tr("keine Feiertage")}};
}

QList<MvCliOption> MvCalendarOptions::look()
{
    return {{u"layout"_s, u"ID"_s, tr("Layout, siehe layouts")},
            {u"colors"_s, u"ID"_s, tr("Farbschema, siehe colors")},
            {u"columns"_s, tr("NAMEN"), tr("Spalten einer Tagesliste, mit Kommas getrennt, statt der des Layouts")},
            {u"font"_s, tr("FAMILIE"), tr("Schriftfamilie statt der des Layouts")}};
}

QList<MvCliOption> MvCalendarOptions::paper()
{
    return {
        {u"page"_s, u"FORMAT"_s,
         tr("A0 bis A6, square-210, 30x45cm, panorama, Letter …, oder Breite und Höhe in Millimetern, 300x200 (A4)")},
        {u"landscape"_s, {}, tr("Querformat (so bei benannten Formaten)")},
        {u"portrait"_s, {}, tr("Hochformat")},
        {u"bleed"_s, u"MM"_s, tr("Beschnitt an jeder Kante, nur im PDF (0)")},
        {u"binding"_s, u"none|top|side"_s, tr("Kante, an der Spirale oder Aufhänger Platz brauchen (none)")}};
}

QStringList MvCalendarOptions::names()
{
    QStringList names;
    for (const QList<MvCliOption> &options : {content(), look(), paper()}) {
        for (const MvCliOption &option : options)
            names.append(option.name);
    }
    return names;
}

MvDateRange MvCalendarOptions::range(MvCliValues &values)
{
    values.exclude(u"year"_s, u"from"_s);
    const int months = values.number(u"months"_s, 1, mostMonths, 12);
    const int year = values.year(u"year"_s, MvDateRange::createDefaultCalendarStart().year());
    const QDate start = values.has(u"from"_s) ? values.month(u"from"_s) : QDate(year, 1, 1);
    return {start, start.addMonths(months).addDays(-1)};
}

MvCalendariumHolidayConfig MvCalendarOptions::holidayConfig(MvCliValues &values)
{
    const MvLocale locale = values.country();
    MvCalendariumHolidayConfig config(locale, values.region(locale), FEATURE_CALENDAR_WEEKS);
    config.setFeature(MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS), !values.has(u"no-holidays"_s));
    config.setFeature(FEATURE_PUBLIC_HOLIDAYS_ONLY, values.has(u"public-only"_s));
    config.setFeature(FEATURE_SCHOOL_VACATIONS, values.has(u"vacations"_s));
    return config;
}

MvCalendariumAppearance MvCalendarOptions::appearance(MvCliValues &values)
{
    using Kind = MvSchemaNames::Kind;
    MvCalendariumAppearance appearance;
    appearance.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(schemaId(values, u"layout"_s, Kind::Layouts)));
    appearance.adoptLayoutSuggestions();
    if (values.has(u"columns"_s))
        appearance.setColumnHeaders(columns(values, appearance));
    appearance.setColorSchemaById(MvCalendariumColorSchemaID(schemaId(values, u"colors"_s, Kind::Colors)));
    appearance.adaptGridToLayout();
    appearance.setShowHolidays(!values.has(u"no-holidays"_s));
    if (values.has(u"font"_s)) {
        MvCalendariumFontSettings settings = appearance.fontSettings();
        settings.setFont(values.text(u"font"_s));
        appearance.setFontSettings(settings);
    }
    return appearance;
}

QString MvCalendarOptions::problem(const MvCalendarDocument &document)
{
    using Kind = MvSchemaNames::Kind;
    if (document.appearance().isValid())
        return {};
    MvCalendariumAppearance simplest; // the options may ask for what there is not
    simplest.setLayoutSchemaByID(MvCalendariumLayoutSchemaID(MvSchemaNames::defaultId(Kind::Layouts)));
    simplest.setColorSchemaById(MvCalendariumColorSchemaID(MvSchemaNames::defaultId(Kind::Colors)));
    return simplest.isValid() ? QString()
                              : tr("Layouts und Farbschemata fehlen; das Programm ist unvollständig installiert");
}

QStringList MvCalendarOptions::columns(MvCliValues &values, const MvCalendariumAppearance &appearance)
{
    constexpr int mostColumns = 10;
    if (appearance.layoutSchema().isValid() && !appearance.type().traits().hasColumns)
        values.setError(tr("--columns: das Layout „%1“ hat keine Spalten zum Eintragen, nur Tageslisten haben welche")
                            .arg(appearance.layoutSchema().name()));
    QStringList columns = values.text(u"columns"_s).split(u',');
    for (QString &column : columns) {
        column = column.trimmed();
        if (column.isEmpty())
            column = u" "_s; // a column without a name
    }
    if (columns.size() > mostColumns)
        values.setError(tr("--columns: %1 Namen; erlaubt sind höchstens %2").arg(columns.size()).arg(mostColumns));
    return columns;
}

MvPageFormat MvCalendarOptions::pageFormat(MvCliValues &values)
{
    values.exclude(u"landscape"_s, u"portrait"_s);
    const QString name = values.text(u"page"_s, u"A4"_s);
    MvPageFormat format = MvPageFormat::fromName(name);
    if (!format.isValid())
        values.setError(tr("--page „%1“: erlaubt sind %2 oder Breite und Höhe in Millimetern wie 300x200 (20 bis 3000)")
                            .arg(name, MvPageFormat::names().join(u", "_s)) +
                        MvNearMiss::describe(name, MvPageFormat::names()));
    const bool isPaperSize = MvPageFormat::isName(name);
    if (values.has(u"portrait"_s))
        format.setOrientation(MvPageFormat::Orientation::Portrait);
    else if (values.has(u"landscape"_s) || isPaperSize)
        format.setOrientation(MvPageFormat::Orientation::Landscape);
    MvPageFormat::Binding binding = MvPageFormat::Binding::None;
    if (values.choice(u"binding"_s, {u"none"_s, u"top"_s, u"side"_s}) == u"top"_s)
        binding = MvPageFormat::Binding::Top;
    else if (values.text(u"binding"_s).compare(u"side"_s, Qt::CaseInsensitive) == 0)
        binding = MvPageFormat::Binding::Left;
    format.setBinding(binding);
    const double usualBleed = values.has(u"press"_s) ? MvPageFormat::printShopBleed / 10.0 : 0.0;
    format.setBleed(10.0 * values.millimetres(u"bleed"_s, widestBleed, usualBleed));
    return format;
}

MvCalendarDocument MvCalendarOptions::document(MvCliValues &values)
{
    MvCalendarDocument document;
    document.setRange(range(values));
    document.setHolidayConfig(holidayConfig(values));
    document.setAppearance(appearance(values));
    document.setFormat(pageFormat(values));
    document.setTitle(values.text(u"title"_s));
    document.setAuthor(values.text(u"author"_s));
    return document;
}
