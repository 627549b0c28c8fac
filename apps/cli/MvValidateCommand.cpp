// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvValidateCommand.h"

#include "MvCliProject.h"
#include "MvFileHints.h"
#include "MvProject/MvPrintCheck.h"
#include "MvRenderEntries.h"
#include "plain/MvCliValues.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isStrong(const MvPrintFinding &finding)
{
    return finding.severity == MvPrintFinding::Severity::Strong;
}

/// Pages and elements count from 1.
QJsonObject describe(const MvPrintFinding &finding)
{
    QJsonObject object{
        {u"page"_s, finding.page + 1},
        {u"element"_s, finding.element < 0 ? QJsonValue() : QJsonValue(finding.element + 1)},
        {u"kind"_s, finding.kindName()},
        {u"severity"_s, isStrong(finding) ? u"strong"_s : u"hint"_s},
        {u"date"_s, finding.date.isValid() ? QJsonValue(finding.date.toString(Qt::ISODate)) : QJsonValue()},
        {u"place"_s, finding.place},
        {u"text"_s, finding.text}};
    if (!finding.path.isEmpty())
        object.insert(u"path"_s, finding.path);
    if (finding.kind == MvPrintFinding::Kind::CoarseFoto)
        object.insert(u"ppi"_s, std::round(finding.pixelsPerInch));
    return object;
}

} // namespace

QString MvValidateCommand::summary() const
{
    return tr("nennt, was an einem Projekt schlecht gedruckt würde");
}

QList<MvCliOption> MvValidateCommand::options() const
{
    return {projectOption(), formatOption({u"text"_s, u"json"_s}), jsonOption()};
}

QStringList MvValidateCommand::examples() const
{
    return {u"validate familie.mvcalendar"_s, u"validate familie.mvcalendar --json"_s};
}

MvCliCommand::Result MvValidateCommand::run(const MvCliArguments &arguments, const Streams &streams) const
{
    MvCliValues values(arguments);
    const QString format = values.format({u"text"_s, u"json"_s});
    if (!values.has(u"project"_s))
        values.setError(tr("es fehlt das Projekt: validate DATEI"));
    if (!values.isOk())
        return misused(values.error());

    MvFileHints hints(values.text(u"project"_s), streams.hints);
    const MvCliProject project = MvCliProject::read(values, hints.stream());
    if (!project.isOk())
        return failed(project.error);
    const MvRenderEntries entries = MvRenderEntries::ofProject(project);
    if (!entries.error().isEmpty())
        return failed(entries.error());
    entries.printHints(streams.hints);
    MvRenderingSources sources;
    sources.entries = entries.source();

    const QList<MvPrintFinding> findings =
        MvPrintCheck::ofDocument(project.document, sources, MvPrintCheck::Depth::Photos);
    QJsonArray array;
    for (const MvPrintFinding &finding : findings) {
        if (format == u"json"_s)
            array.append(describe(finding));
        else
            streams.out << (isStrong(finding) ? u"! "_s : u"- "_s) << finding.toString() << '\n';
    }
    if (format == u"json"_s)
        streams.out << QString::fromUtf8(QJsonDocument(array).toJson());
    return {findings.isEmpty() ? Done : PrintsBadly, {}};
}
