// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvNewCommand.h"

#include "MvCalendarOptions.h"
#include "MvFileHints.h"
#include "MvFotoCalendar.h"
#include "MvProject/MvProjectEntryFotos.h"
#include "MvProject/MvProjectFile.h"
#include "MvRenderEntries.h"
#include "plain/MvCliValues.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString MvNewCommand::summary() const
{
    return tr("macht aus Fotos einen Kalender als Projekt");
}

QList<MvCliOption> MvNewCommand::options() const
{
    return MvFotoCalendar::options() + MvCalendarOptions::content() + MvCalendarOptions::paper() +
           QList<MvCliOption>{
               {u"entries"_s, tr("DATEI"),
                tr("persönliche Einträge, die der Kalender zeigt; eine Liste (XML) gehört dann dazu, aus anderen "
                   "Dateien "
                   "kommen sie in das Projekt")},
               {u"my-entries"_s,
                {},
                tr("der Kalender zeigt die eigenen persönlichen Einträge; sie kommen, wie sie jetzt sind, "
                   "mit ihren Fotos in das Projekt")},
               {u"title"_s, u"TEXT"_s, tr("Titel, auch auf dem Titelblatt")},
               {u"author"_s, u"TEXT"_s, tr("Verfasser")},
               {u"output"_s, tr("DATEI"), tr("-o: das Projekt, ein Name auf .mvcalendar")}};
}

QStringList MvNewCommand::examples() const
{
    return {u"new --photos Bilder/2026 --year 2027 --region BY --title \"Familie Huber\" -o familie.mvcalendar"_s,
            u"new --photos Bilder --theme NIGHT --page 30x45cm --binding top -o wand.mvcalendar"_s};
}

MvCliCommand::Result MvNewCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const MvFotoCalendar calendar(values, arguments);
    values.exclude(u"entries"_s, u"my-entries"_s);
    const QFileInfo file(values.text(u"output"_s));
    if (!values.has(u"output"_s) || file.suffix().compare(MvProjectFile::suffix(), Qt::CaseInsensitive) != 0)
        values.setError(tr("es fehlt -o DATEI mit einem Namen auf .%1").arg(MvProjectFile::suffix()));
    if (!values.isOk())
        return misused(values.error());
    if (const QFileInfo folder(file.path()); !folder.isDir())
        return failed(tr("%1: den Ordner %2 gibt es nicht").arg(file.filePath(), folder.filePath()));

    MvFileHints hints(file.filePath(), streams.hints);
    MvCliProject project = calendar.make(hints.stream());
    if (!project.isOk())
        return failed(project.error);
    project.document.setFeature(FEATURE_ENTRIES, values.has(u"entries"_s) || values.has(u"my-entries"_s));
    MvProjectEntryFotos::Taken own;
    MvProjectFile::Entries list;
    if (values.has(u"entries"_s) || values.has(u"my-entries"_s)) {
        const MvRenderEntries entries =
            values.has(u"entries"_s)
                ? MvRenderEntries::ofFile(values.text(u"entries"_s), project.document.holidayConfig().language())
                : MvRenderEntries::own();
        if (!entries.error().isEmpty())
            return failed(entries.error());
        entries.printHints(streams.hints);
        if (entries.isList()) {
            project.document.setEntriesFile(entries.file().absoluteFilePath());
        } else {
            own = MvProjectEntryFotos::takeAlong(entries.list(), file.absoluteDir());
            list = own.events;
        }
    }
    const MvOutcome written = MvProjectFile::write(project.document, list, file);
    if (!written.isOk())
        return failed(written.error);
    for (const QString &note : own.notes + written.notes)
        hints.stream() << note << '\n';
    streams.out << file.filePath() << '\n';
    return {};
}
