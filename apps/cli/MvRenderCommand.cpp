// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRenderCommand.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCliValues.h"
#include "MvFileHints.h"
#include "MvNearMiss.h"
#include "MvProject/MvExportTarget.h"
#include "MvProject/MvPageSource.h"
#include "MvProject/MvPngExporter.h"
#include "MvProject/MvProjectFile.h"
#include "MvRenderReport.h"
#include "MvSchemaListCommand.h"
#include "MvVacationHint.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostMonths = 120;
constexpr double widestBleed = 20.0; // millimetres

/// The id of the layout or colour schema that an option names, the usual one when it was not given.
QString schemaId(MvCliValues &values, const QString &option, MvSchemaListCommand::Kind kind)
{
    if (!values.has(option))
        return MvSchemaListCommand::defaultId(kind);
    const QString id = MvSchemaListCommand::find(kind, values.text(option));
    if (id.isEmpty())
        values.setError(MvSchemaListCommand::unknownError(kind, option, values.text(option)));
    return id;
}

MvExportTarget targetOf(const QString &path)
{
    return MvExportTarget(path, MvExportTarget::Pdf::OneOfEachPage);
}

} // namespace

QString MvRenderCommand::summary() const
{
    return tr("druckt einen Kalender in Dateien");
}

QList<MvCliOption> MvRenderCommand::options() const
{
    return {
        {u"project"_s, tr("DATEI"), tr("ein Projekt; Zeitraum, Feiertage, Aussehen, Fotos und Papier stehen darin")},
        {u"year"_s, tr("JAHR"), tr("Januar bis Dezember dieses Jahres (das kommende)")},
        {u"from"_s, tr("JAHR-MONAT"), tr("erster Monat, statt --year")},
        {u"months"_s, tr("ZAHL"), tr("wie viele Monate ab --from (12)")},
        countryOption(),
        languageOption(),
        regionOption(),
        {u"public-only"_s, {}, tr("nur gesetzliche Feiertage")},
        {u"vacations"_s, {}, tr("auch Schulferien")},
        {u"no-holidays"_s, {}, tr("keine Feiertage")},
        {u"layout"_s, u"ID"_s, tr("Layout, siehe layouts")},
        {u"colors"_s, u"ID"_s, tr("Farbschema, siehe colors")},
        {u"columns"_s, tr("NAMEN"), tr("Spalten einer Tagesliste, mit Kommas getrennt, statt der des Layouts")},
        {u"font"_s, tr("FAMILIE"), tr("Schriftfamilie statt der des Layouts")},
        {u"page"_s, u"FORMAT"_s, tr("A0 bis A6 oder Breite und Höhe in Millimetern, 300x200 (A4)")},
        {u"landscape"_s, {}, tr("Querformat (so bei A0 bis A6)")},
        {u"portrait"_s, {}, tr("Hochformat")},
        {u"bleed"_s, u"MM"_s, tr("Beschnitt an jeder Kante, nur im PDF (0)")},
        {u"entries"_s, tr("DATEI"),
         tr("persönliche Einträge aus dieser Datei; was darin nicht lesbar ist, wird genannt")},
        {u"my-entries"_s, {}, tr("die eigenen persönlichen Einträge, ebenso")},
        {u"title"_s, u"TEXT"_s, tr("Titel der Dateien (Kalender 2027)")},
        {u"author"_s, u"TEXT"_s, tr("Verfasser im PDF")},
        {u"dpi"_s, tr("ZAHL"), tr("Punkte je Zoll der PNG-Dateien (300)")},
        {u"report"_s, u"FORM"_s,
         tr("json: gibt statt der Dateinamen ein JSON-Objekt aus, das Dateien, Texte ohne Platz, Fotos mit ihrer "
            "Auflösung und nicht Lesbares nennt")},
        {u"output"_s, tr("DATEI"),
         tr("-o: .pdf, oder .png und .svg je Seite; %m Monat, %y Jahr, %n Seite, auch für ein .pdf je Seite; mehrfach "
            "erlaubt"),
         true}};
}

QStringList MvRenderCommand::examples() const
{
    return {u"render --year 2027 --region BY --entries geburtstage.xml -o kalender.pdf"_s,
            u"render --from 2026-08 --months 12 --country AT --page A3 --vacations -o schuljahr.pdf"_s,
            u"render --year 2027 --layout FAMILY_PLANNER --columns \"Mama,Papa,Lena,Jonas\" --portrait -o planer.pdf"_s,
            u"render --year 2027 --entries geburtstage.xml --report json -o kalender.pdf"_s,
            u"render --project familie.mvcalendar -o kalender.pdf"_s,
            u"render --year 2027 --colors NIGHT --dpi 150 -o seite-%m.png"_s};
}

MvCliCommand::Result MvRenderCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    MvCalendarDocument document = values.has(u"project"_s) ? MvCalendarDocument() : documentFromOptions(values);
    if (values.has(u"project"_s))
        excludeDecidedByProject(values);
    const int dpi = values.number(u"dpi"_s, MvPngExporter::minimumDpi, MvPngExporter::maximumDpi, 300);
    values.exclude(u"entries"_s, u"my-entries"_s);
    if (values.has(u"report"_s))
        values.choice(u"report"_s, {u"json"_s});
    if (!values.has(u"output"_s))
        values.setError(tr("es fehlt -o DATEI; erlaubt sind Namen auf .pdf, .png oder .svg"));
    if (!values.isOk())
        return misused(values.error());

    const QStringList targets = arguments.values(u"output"_s);
    MvFileHints hints(values.text(u"project"_s, targets.constFirst()), streams.hints);
    if (values.has(u"project"_s)) {
        if (const MvOutcome read = readProject(values, document, hints.stream()); !read.isOk())
            return failed(read.error);
    }
    if (const Result checked = checkTargets(targets, document, dpi); checked.code != Done)
        return checked;

    const MvRenderEntries entries = takeEntries(values, document);
    if (!entries.error().isEmpty())
        return failed(entries.error());
    entries.printHints(streams.hints);
    printHints(document, entries, values.has(u"vacations"_s), hints.stream());
    return write(document, entries, arguments, dpi, {streams.out, hints.stream()});
}

MvCliCommand::Result MvRenderCommand::checkTargets(const QStringList &paths, const MvCalendarDocument &document,
                                                   int dpi)
{
    const MvPageSource pages = document.pageSource();
    for (const QString &path : paths)
        if (const MvOutcome named = targetOf(path).files(pages); !named.isOk())
            return misused(named.error);
    for (const QString &path : paths) {
        for (const MvOutcome &checked : {targetOf(path).checkPlace(), targetOf(path).checkSize(pages.format, dpi)})
            if (!checked.isOk())
                return failed(checked.error);
    }
    return {};
}

void MvRenderCommand::printHints(const MvCalendarDocument &document, const MvRenderEntries &entries,
                                 bool areVacationsAsked, QTextStream &hints)
{
    hintAtMissingFonts(document.appearance(), hints);
    if (areVacationsAsked)
        MvVacationHint::printAsked(document.holidayConfig(), document.range().end(), hints);
    else
        MvVacationHint::print(document.holidayConfig(), document.range().end(), hints);
    if (document.lacksLeapDay())
        hintAtLeapDayEntries(entries, hints);
}

MvCliCommand::Result MvRenderCommand::write(const MvCalendarDocument &document, const MvRenderEntries &entries,
                                            const MvCliArguments &arguments, int dpi, const Streams &streams)
{
    const bool isReported = arguments.has(u"report"_s);
    MvRenderingSources sources;
    sources.entries = entries.source();
    MvRenderReport report(document, sources);
    const MvPageSource pages = document.pageSource(
        sources, [&report](int page, const MvPageFindings &findings) { report.addPage(page, findings); });
    report.setSkippedEntries(entries.file(), entries.skipped());
    for (const QString &path : arguments.values(u"output"_s)) {
        const MvExportResult result = targetOf(path).write(pages, dpi);
        for (const QFileInfo &file : result.files) {
            report.addFile(file.filePath());
            if (!isReported)
                streams.out << file.filePath() << '\n';
        }
        if (!result.isOk())
            return failed(result.error);
    }
    if (isReported)
        streams.out << report.toJson();
    else
        report.printHint(streams.hints);
    return {};
}

MvCalendarDocument MvRenderCommand::documentFromOptions(MvCliValues &values)
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

MvOutcome MvRenderCommand::readProject(const MvCliValues &values, MvCalendarDocument &document, QTextStream &hints)
{
    const MvProjectFile::Content content = MvProjectFile::read(QFileInfo(values.text(u"project"_s)));
    for (const QString &note : content.notes)
        hints << note << '\n';
    document = content.document;
    document.setTitle(values.text(u"title"_s, document.title()));
    document.setAuthor(values.text(u"author"_s, document.author()));
    return content;
}

void MvRenderCommand::excludeDecidedByProject(MvCliValues &values)
{
    const QStringList decided = {u"year"_s,        u"from"_s,      u"months"_s,      u"country"_s, u"language"_s,
                                 u"region"_s,      u"vacations"_s, u"no-holidays"_s, u"layout"_s,  u"colors"_s,
                                 u"public-only"_s, u"columns"_s,   u"font"_s,        u"page"_s,    u"landscape"_s,
                                 u"portrait"_s,    u"bleed"_s};
    for (const QString &name : decided) {
        if (values.has(name))
            values.setError(tr("--%1 und --project schließen einander aus: das steht im Projekt").arg(name));
    }
}

MvDateRange MvRenderCommand::range(MvCliValues &values)
{
    values.exclude(u"year"_s, u"from"_s);
    const int months = values.number(u"months"_s, 1, mostMonths, 12);
    const int year = values.year(u"year"_s, MvDateRange::createDefaultCalendarStart().year());
    const QDate start = values.has(u"from"_s) ? values.month(u"from"_s) : QDate(year, 1, 1);
    return {start, start.addMonths(months).addDays(-1)};
}

MvPageFormat MvRenderCommand::pageFormat(MvCliValues &values)
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
    format.setBleed(10.0 * values.millimetres(u"bleed"_s, widestBleed, 0.0));
    return format;
}

MvCalendariumAppearance MvRenderCommand::appearance(MvCliValues &values)
{
    using Kind = MvSchemaListCommand::Kind;
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
    if (!appearance.isValid())
        values.setError(tr("Layouts und Farbschemata fehlen; das Programm ist unvollständig installiert"));
    return appearance;
}

QStringList MvRenderCommand::columns(MvCliValues &values, const MvCalendariumAppearance &appearance)
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

MvCalendariumHolidayConfig MvRenderCommand::holidayConfig(MvCliValues &values)
{
    const MvLocale locale = values.country();
    MvCalendariumHolidayConfig config(locale, values.region(locale), FEATURE_CALENDAR_WEEKS);
    config.setFeature(MvCalendariumFeatures(FEATURE_HOLIDAYS | FEATURE_HOLIDAY_COLORS), !values.has(u"no-holidays"_s));
    config.setFeature(FEATURE_PUBLIC_HOLIDAYS_ONLY, values.has(u"public-only"_s));
    config.setFeature(FEATURE_SCHOOL_VACATIONS, values.has(u"vacations"_s));
    return config;
}

MvRenderEntries MvRenderCommand::takeEntries(const MvCliValues &values, MvCalendarDocument &document)
{
    if (!values.has(u"entries"_s) && !values.has(u"my-entries"_s) && values.has(u"project"_s))
        return document.holidayConfig().hasFeatures(FEATURE_ENTRIES) ? MvRenderEntries::own() : MvRenderEntries();
    MvRenderEntries entries;
    if (values.has(u"my-entries"_s))
        entries = MvRenderEntries::own();
    else if (values.has(u"entries"_s))
        entries = MvRenderEntries::ofFile(QFileInfo(values.text(u"entries"_s)));
    document.setFeature(FEATURE_ENTRIES, entries.areShown());
    return entries;
}

void MvRenderCommand::hintAtMissingFonts(const MvCalendariumAppearance &appearance, QTextStream &hints)
{
    QStringList families{appearance.fontSettings().fontName()};
    if (families.first().isEmpty()) {
        families.clear();
        for (const MvCalendarCellType &type : MvCalendariumRendererFactory::instance().usedCellTypes(appearance))
            families.append(appearance.layoutSchema().font(type).family());
    }
    families.removeDuplicates();
    families.removeIf([](const QString &family) { return QFontDatabase::hasFamily(family); });
    if (!families.isEmpty())
        hints << tr("Schrift nicht installiert, eine andere tritt an ihre Stelle: %1").arg(families.join(u", "_s))
              << '\n';
}

// an entry of 29 February is printed in leap years alone; nobody should miss a birthday without knowing
void MvRenderCommand::hintAtLeapDayEntries(const MvRenderEntries &entries, QTextStream &hints)
{
    QStringList names;
    for (const MvCalendarEvent &event : entries.list()) {
        const QDate date = event.dateTime().date();
        if (date.month() == 2 && date.day() == 29)
            names.append(event.description());
    }
    if (!names.isEmpty())
        hints << tr("29. Februar gibt es im gedruckten Zeitraum nicht: %1").arg(names.join(u", "_s)) << '\n';
}
