// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvColorsCommand.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvCalendar/MvUserColorSchemata.h"
#include "MvProject/MvProjectFile.h"
#include "MvXML/MvXMLLoader.h"
#include "plain/MvCliValues.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString saveTask = u"save"_s;
const QString renameTask = u"rename"_s;
const QString removeTask = u"remove"_s;
const QString hideTask = u"hide"_s;
const QString showTask = u"show"_s;
const QString resetTask = u"reset"_s;
const QStringList tasks{saveTask, renameTask, removeTask, hideTask, showTask, resetTask};

/// Colours that a file brings, or why it brings none.
struct Found : MvOutcome
{
    MvCalendariumColorSchema schema;
};

/// Those of the first page that are not registered, else those of the first page.
Found colorsOfProject(const QFileInfo &file)
{
    const MvProjectFile::Content content = MvProjectFile::read(file);
    if (!content.isOk())
        return {{content.error, {}}, {}};
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    QList<MvCalendariumColorSchema> own;
    for (const MvCalendarPage &page : content.document.pages()) {
        const MvCalendariumColorSchema schema = page.appearance().colorSchema();
        if (!registry.idWhateverTheGrid(schema).isValid() && !own.contains(schema))
            own.append(schema);
    }
    Found found{{}, own.value(0, content.document.appearance().colorSchema())};
    if (own.size() > 1)
        found.notes.append(
            MvColorsCommand::tr("Weitere Seiten haben andere eigene Farben; behalten werden die ersten."));
    return found;
}

Found colorsOfSchemaFile(const QDomElement &root, const QFileInfo &file)
{
    QList<MvCalendariumColorSchema> schemata;
    const QString tag = u"calendararea"_s;
    for (QDomElement area = root.firstChildElement(tag); !area.isNull(); area = area.nextSiblingElement(tag))
        schemata.append(MvCalendariumColorSchema(area));
    if (schemata.size() == 1)
        return {{}, schemata.constFirst()};
    return {{MvColorsCommand::tr("%1: das ist weder ein Projekt noch eine Datei mit genau einem Farbschema")
                 .arg(file.filePath()),
             {}},
            {}};
}

Found colorsOf(const QFileInfo &file)
{
    MvXMLLoader::Error error;
    const QDomDocument document = MvXMLLoader::loadDocument(file, &error);
    if (error.isError())
        return {{error.describe(file), {}}, {}};
    const QDomElement root = document.documentElement();
    return root.tagName() == u"calendarproject"_s ? colorsOfProject(file) : colorsOfSchemaFile(root, file);
}

} // namespace

QString MvColorsCommand::summary() const
{
    return tr("zählt die Farbschemata auf, behält eigene, blendet welche aus");
}

QList<MvCliOption> MvColorsCommand::options() const
{
    return {formatOption({u"text"_s, u"json"_s}),
            jsonOption(),
            {u"hidden"_s, {}, tr("zählt die ausgeblendeten auf")},
            {saveTask, u"NAME"_s, tr("behält die Farben der Datei --from als eigenes Farbschema")},
            {u"from"_s, tr("DATEI"), tr("ein Projekt, oder eine Datei mit einem Farbschema")},
            {renameTask, u"ID"_s, tr("nennt ein eigenes Farbschema um in --to")},
            {u"to"_s, u"NAME"_s, tr("der neue Name")},
            {removeTask, u"ID"_s, tr("löscht ein eigenes Farbschema; Projekte behalten ihre Farben")},
            {hideTask, u"ID"_s, tr("bietet ein Farbschema nicht mehr an")},
            {showTask, u"ID"_s, tr("bietet es wieder an")},
            {resetTask, {}, tr("löscht alle eigenen und bietet alle ausgeblendeten wieder an")}};
}

QStringList MvColorsCommand::examples() const
{
    return {u"colors"_s, u"colors --format json"_s, u"colors --save \"Unser Blau\" --from familie.mvcalendar"_s,
            u"colors --hide OFFICE_RED"_s};
}

MvCliCommand::Result MvColorsCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    QStringList given;
    for (const QString &name : tasks + QStringList{u"hidden"_s, u"format"_s, u"json"_s}) {
        if (values.has(name))
            given.append(name);
    }
    const QString task = tasks.contains(given.value(0)) ? given.constFirst() : QString();
    if (!task.isEmpty() && given.size() > 1)
        values.exclude(task, given.at(1));
    for (const auto &[name, with] : {std::pair{u"from"_s, saveTask}, {u"to"_s, renameTask}}) {
        if (values.has(name) != values.has(with))
            values.setError(tr("--%1 und --%2 gehören zusammen").arg(with, name));
    }
    if (!values.isOk())
        return misused(values.error());
    if (task == saveTask)
        return keep(values, streams);
    if (task == resetTask) {
        const MvOutcome done = MvUserColorSchemata::reset();
        return done.isOk() ? Result() : failed(done.error);
    }
    if (!task.isEmpty()) {
        const MvCalendariumColorSchemaID id = schemaId(values, task);
        return values.isOk() ? change(values, task, id) : misused(values.error());
    }
    const QString format = values.format({u"text"_s, u"json"_s});
    if (!values.isOk())
        return misused(values.error());
    const QList<MvSchemaNames::Schema> listed =
        values.has(u"hidden"_s) ? hidden() : MvSchemaNames::schemata(Kind::Colors);
    MvLayoutsCommand::print(MvSchemaNames::rows(listed), format == u"json"_s, streams.out);
    return {};
}

QList<MvSchemaNames::Schema> MvColorsCommand::hidden()
{
    QList<MvSchemaNames::Schema> schemata;
    const MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    for (const MvCalendariumColorSchema &schema : registry.hiddenSchemata())
        schemata.append(MvSchemaNames::describe(registry.id(schema)));
    return schemata;
}

/// The id that an option names; what is changed in the user's file must be in there.
MvCalendariumColorSchemaID MvColorsCommand::schemaId(MvCliValues &values, const QString &option)
{
    const QString text = values.text(option);
    const MvCalendariumColorSchemaID id(MvSchemaNames::find(Kind::Colors, text));
    if (!id.isValid())
        values.setError(MvSchemaNames::unknownError(Kind::Colors, option, text));
    else if ((option == renameTask || option == removeTask) && !id.isUserSchema())
        values.setError(
            tr("--%1 „%2“: das ist kein eigenes Farbschema; ausblenden lässt es sich mit --hide").arg(option, text));
    return id;
}

MvCliCommand::Result MvColorsCommand::keep(const MvCliValues &values, const Streams &streams)
{
    const QString name = values.text(saveTask);
    if (const MvOutcome named = MvUserColorSchemata::checkName(name); !named.isOk())
        return misused(u"--%1 „%2“: %3"_s.arg(saveTask, name, named.error));
    const Found found = colorsOf(QFileInfo(values.text(u"from"_s)));
    if (!found.isOk())
        return failed(found.error);
    const MvUserColorSchemata::Result result = MvUserColorSchemata::keep(found.schema, name);
    if (!result.isOk())
        return failed(result.error);
    for (const QString &note : found.notes)
        streams.hints << note << '\n';
    MvLayoutsCommand::print(MvSchemaNames::rows({MvSchemaNames::describe(result.id)}), false, streams.out);
    return {};
}

MvCliCommand::Result MvColorsCommand::change(const MvCliValues &values, const QString &task,
                                             const MvCalendariumColorSchemaID &id)
{
    MvCalendariumColorSchemaRegistry &registry = MvCalendariumColorSchemaRegistry::instance();
    if (task == hideTask) {
        registry.setIgnoreSchema(id);
        return {};
    }
    if (task == showTask) {
        registry.unsetIgnoreSchema(id);
        return {};
    }
    const QString name = values.text(u"to"_s);
    if (task == renameTask) {
        if (const MvOutcome named = MvUserColorSchemata::checkName(name, id); !named.isOk())
            return misused(u"--to „%1“: %2"_s.arg(name, named.error));
    }
    const MvUserColorSchemata::Result result =
        task == renameTask ? MvUserColorSchemata::rename(id, name) : MvUserColorSchemata::remove(id);
    return result.isOk() ? Result() : failed(result.error);
}
