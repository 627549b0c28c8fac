// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRenderCommand.h"

#include "MvCalendar/MvCalendariumRenderer.h"
#include "MvCalendar/MvCalendariumRendererFactory.h"
#include "MvCalendarOptions.h"
#include "MvCliProject.h"
#include "MvFileHints.h"
#include "MvFotoCalendar.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPageSelection.h"
#include "MvRenderReport.h"
#include "MvRenderTargets.h"
#include "plain/MvCliValues.h"
#include "plain/MvVacationHint.h"

using namespace Qt::StringLiterals;

QString MvRenderCommand::summary() const
{
    return tr("druckt einen Kalender in Dateien");
}

QList<MvCliOption> MvRenderCommand::options() const
{
    QList<MvCliOption> options{
        {u"project"_s, tr("DATEI"), tr("ein Projekt; Zeitraum, Feiertage, Aussehen, Fotos und Papier stehen darin")}};
    options += MvFotoCalendar::options();
    options += MvCalendarOptions::content() + MvCalendarOptions::look() + MvCalendarOptions::paper();
    return options +
           QList<MvCliOption>{
               {u"entries"_s, tr("DATEI"),
                tr("persönliche Einträge aus dieser Datei: Liste (XML), Kalender (iCalendar), Tabelle (CSV), "
                   "Visitenkarten "
                   "(vCard) oder Projekt, - ist die Standardeingabe; was darin nicht lesbar ist, wird genannt")},
               {u"my-entries"_s, {}, tr("die eigenen persönlichen Einträge, ebenso")},
               {u"entry-text"_s, tr("MUSTER"),
                tr("wie sie zu lesen sind, mit %name, %age, %year, %round: \"%name (%age)\"")},
               {u"hide-group"_s, tr("NAME"), tr("Einträge dieser Gruppe weglassen"), true},
               {u"entry-times"_s, {}, tr("mit ihren Uhrzeiten")},
               {u"title"_s, u"TEXT"_s, tr("Titel der Dateien (Kalender 2027), mit --photos auch auf dem Titelblatt")},
               {u"author"_s, u"TEXT"_s, tr("Verfasser im PDF")},
               {u"pages"_s, tr("LISTE"), tr("nur diese Seiten: 1-3,7 oder cover, months, free, back")},
               {u"report"_s, u"FORM"_s,
                tr("json: gibt statt der Dateinamen ein JSON-Objekt aus, das Dateien, Texte ohne Platz, Fotos mit "
                   "ihrer Auflösung und nicht Lesbares nennt")}} +
           MvRenderTargets::options();
}

QStringList MvRenderCommand::examples() const
{
    return {u"render --photos Bilder/2026 --year 2027 --region BY -o kalender.pdf"_s,
            u"render --year 2027 --region BY --entries geburtstage.xml -o kalender.pdf"_s,
            u"render --from 2026-08 --months 12 --country AT --page A3 --vacations -o schuljahr.pdf"_s,
            u"render --year 2027 --layout FAMILY_PLANNER --columns \"Mama,Papa,Lena,Jonas\" --portrait -o planer.pdf"_s,
            u"render --year 2027 --entries geburtstage.xml --report json -o kalender.pdf"_s,
            u"render --project familie.mvcalendar -o kalender.pdf"_s,
            u"render --project familie.mvcalendar --press fogra39 -o druckerei.pdf"_s,
            u"render --year 2027 --layout YEAR_PLANNER --page A2 --tiles A4 -o poster.pdf"_s,
            u"render --project familie.mvcalendar --n-up 2 --cut-stack -o zum-schneiden.pdf"_s,
            u"render --project familie.mvcalendar --pages cover -o titelblatt.png"_s,
            u"render --year 2027 --colors NIGHT --dpi 150 -o seite-%m.png"_s};
}

MvCliCommand::Result MvRenderCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvRenderOutcome outcome;
    return render(arguments, streams, outcome);
}

MvCliCommand::Result MvRenderCommand::render(const MvCliArguments &arguments, const Streams &streams,
                                             MvRenderOutcome &outcome)
{
    MvCliValues values(arguments);
    const bool isProject = values.has(u"project"_s);
    if (isProject)
        excludeDecidedByProject(values);
    const bool isFotoCalendar = !isProject && MvFotoCalendar::isAsked(values);
    const MvFotoCalendar fotoCalendar = isFotoCalendar ? MvFotoCalendar(values, arguments) : MvFotoCalendar();
    MvCalendarDocument document =
        isProject || isFotoCalendar ? MvCalendarDocument() : MvCalendarOptions::document(values);
    values.exclude(u"entries"_s, u"my-entries"_s);
    if (values.has(u"report"_s))
        values.choice(u"report"_s, {u"json"_s});
    const MvRenderTargets targets(values, arguments);
    if (!isProject && !isFotoCalendar)
        if (const QString problem = MvCalendarOptions::problem(document); !problem.isEmpty())
            return failed(problem);
    if (!values.isOk())
        return misused(values.error());

    MvFileHints hints(values.text(u"project"_s, targets.name()), streams.hints);
    MvCliProject made;
    if (isProject || isFotoCalendar) {
        made = isProject ? MvCliProject::read(values, hints.stream()) : fotoCalendar.make(hints.stream());
        if (!made.isOk())
            return failed(made.error);
        document = made.document;
    }
    document.setTitle(values.text(u"title"_s, document.title()));
    document.setAuthor(values.text(u"author"_s, document.author()));
    const MvPageSelection::Pages chosen =
        MvPageSelection::parse(values.text(u"pages"_s, u"1-%1"_s.arg(document.pages().size())), document);
    if (!chosen.isOk())
        return misused(chosen.error);
    if (const Result checked = targets.check(document.pageSource().part(chosen.numbers)); checked.code != Done)
        return checked;

    const MvRenderEntries entries = takeEntries(values, made, document);
    if (!entries.error().isEmpty())
        return failed(entries.error());
    if (const QString error = takeEntryDisplay(arguments, entries, document); !error.isEmpty())
        return misused(error);
    entries.printHints(streams.hints);
    printHints(document, entries, values.has(u"vacations"_s), hints.stream());
    targets.hintAtSheets(document.pageSource().part(chosen.numbers), hints.stream());
    return write(document, chosen.numbers, entries, targets, values.has(u"report"_s),
                 {streams.out, hints.stream(), streams.progress, streams.isQuiet}, outcome);
}

QString MvRenderCommand::takeEntryDisplay(const MvCliArguments &arguments, const MvRenderEntries &entries,
                                          MvCalendarDocument &document)
{
    MvEntryDisplay display = document.entryDisplay();
    if (arguments.has(u"entry-text"_s))
        display.text = arguments.value(u"entry-text"_s);
    display.showTimes = display.showTimes || arguments.has(u"entry-times"_s);
    const MvEventGroupList groups = entries.list().groups();
    for (const QString &name : arguments.values(u"hide-group"_s)) {
        const MvEventGroup *group = groups.findName(name);
        if (!group)
            return tr("--hide-group „%1“: eine solche Gruppe haben die Einträge nicht").arg(name);
        display.hiddenGroups.append(group->id);
    }
    if (display != document.entryDisplay())
        document.setEntryDisplay(display);
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

MvCliCommand::Result MvRenderCommand::write(const MvCalendarDocument &document, const QList<int> &chosen,
                                            const MvRenderEntries &entries, const MvRenderTargets &targets,
                                            bool isReported, const Streams &streams, MvRenderOutcome &outcome)
{
    MvRenderingSources sources;
    sources.entries = entries.source();
    MvRenderReport report(document, sources);
    const auto found = [&report](int page, const MvPageFindings &findings) { report.addPage(page, findings); };
    report.setSkippedEntries(entries.file(), entries.skipped());
    const MvExportResult result = targets.write(document.pageSource(sources, found).part(chosen), streams);
    report.addMissingFotos(result.missingFotos);
    report.setInks(result.inks, targets.inkLimit());
    for (const QFileInfo &file : result.files) {
        report.addFile(file.filePath());
        if (!isReported && !targets.isStandardOutput() && !streams.isQuiet)
            streams.out << file.filePath() << '\n';
    }
    outcome = {document, entries, report.toObject(), int(chosen.size()), result.isCancelled};
    if (!result.isOk())
        return failed(result.error);
    if (isReported)
        streams.out << report.toJson();
    else
        report.printHint(streams.hints);
    return {};
}

void MvRenderCommand::excludeDecidedByProject(MvCliValues &values)
{
    QStringList decided = MvCalendarOptions::names();
    for (const MvCliOption &option : MvFotoCalendar::options())
        decided.append(option.name);
    for (const QString &name : decided) {
        if (values.has(name))
            values.setError(tr("--%1 und --project schließen einander aus: das steht im Projekt").arg(name));
    }
}

MvRenderEntries MvRenderCommand::takeEntries(const MvCliValues &values, const MvCliProject &project,
                                             MvCalendarDocument &document)
{
    if (!values.has(u"entries"_s) && !values.has(u"my-entries"_s) && values.has(u"project"_s))
        return MvRenderEntries::ofProject(project);
    MvRenderEntries entries;
    if (values.has(u"my-entries"_s))
        entries = MvRenderEntries::own();
    else if (values.has(u"entries"_s))
        entries = MvRenderEntries::ofFile(values.text(u"entries"_s), document.holidayConfig().language());
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
    families.removeIf([](const QString &family) { return MvFontSupply::hasFamily(family); });
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
        if (date.month() == 2 && date.day() == 29 && event.isByDayOfYear())
            names.append(event.description());
    }
    if (!names.isEmpty())
        hints << tr("29. Februar gibt es im gedruckten Zeitraum nicht: %1").arg(names.join(u", "_s)) << '\n';
}
