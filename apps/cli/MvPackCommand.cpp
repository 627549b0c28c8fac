// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPackCommand.h"

#include "MvCliProject.h"
#include "MvFileHints.h"
#include "MvProject/MvProjectPack.h"
#include "MvRenderEntries.h"
#include "plain/MvCliValues.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString MvPackCommand::summary() const
{
    return tr("packt ein Projekt mit Fotos und Einträgen zum Mitnehmen");
}

QList<MvCliOption> MvPackCommand::options() const
{
    return {projectOption(),
            {u"output"_s, tr("ORT"),
             tr("-o: ein neuer Ordner, oder ein Archiv, wenn der Name auf .zip endet; darin liegt nur, was auf den "
                "Seiten ist")}};
}

QStringList MvPackCommand::examples() const
{
    return {u"pack familie.mvcalendar -o familie.zip"_s, u"pack familie.mvcalendar -o /media/stick/familie"_s};
}

MvCliCommand::Result MvPackCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    if (!values.has(u"project"_s))
        values.setError(tr("es fehlt das Projekt: pack DATEI -o ORT"));
    if (!values.has(u"output"_s))
        values.setError(tr("es fehlt -o ORT: ein neuer Ordner oder ein Archiv auf .zip"));
    if (!values.isOk())
        return misused(values.error());

    const QFileInfo file(values.text(u"project"_s));
    MvFileHints hints(file.filePath(), streams.hints);
    const MvCliProject project = MvCliProject::read(values, hints.stream());
    if (!project.isOk())
        return failed(project.error);
    const MvRenderEntries entries = MvRenderEntries::ofProject(project);
    if (!entries.error().isEmpty())
        return failed(entries.error());
    entries.printHints(streams.hints);

    const QString target = values.text(u"output"_s);
    const bool isArchive = QFileInfo(target).suffix().compare(u"zip"_s, Qt::CaseInsensitive) == 0;
    const QFileInfo folder(QFileInfo(target).path());
    if (!folder.isDir() || !folder.isWritable())
        return failed(tr("%1: in %2 lässt sich nicht schreiben").arg(target, folder.filePath()));
    MvProjectPack pack(project.document, file.completeBaseName());
    if (entries.areShown())
        pack.setEntries(entries.list());
    const MvProjectPack::Result result = isArchive ? pack.writeZip(target) : pack.writeFolder(target);
    if (!result.isOk())
        return failed(result.error);
    for (const QString &path : result.missing)
        hints.stream() << MvCliProject::missingFoto(path) << '\n';
    for (const QString &note : result.notes)
        hints.stream() << note << '\n';
    streams.out << (isArchive ? target : result.projectPath) << '\n';
    return {};
}
