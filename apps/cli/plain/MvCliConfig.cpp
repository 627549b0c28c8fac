// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvCliConfig.h"

#include "plain/MvNearMiss.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = 65536;

/// An option that may stand in the file.
struct Rule
{
    QString name;
    QStringList givesWayTo; // options of the call beside which it means nothing
    QString needs;          // an option of the call without which it means nothing
};

const QList<Rule> &rules()
{
    const QString project = u"project"_s;
    const QStringList looks{project, u"photos"_s, u"theme"_s, u"no-cover"_s, u"no-back"_s, u"facing"_s};
    static const QList<Rule> rules{{u"country"_s, {project}, {}},
                                   {u"language"_s, {project, u"country"_s}, {}},
                                   {u"region"_s, {project, u"country"_s}, {}},
                                   {u"public-only"_s, {project, u"no-holidays"_s}, {}},
                                   {u"vacations"_s, {project, u"no-holidays"_s}, {}},
                                   {u"no-holidays"_s, {project, u"public-only"_s}, {}},
                                   {u"layout"_s, looks, {}},
                                   {u"colors"_s, looks, {}},
                                   {u"font"_s, looks, {}},
                                   {u"theme"_s, {project}, u"photos"_s},
                                   {u"page"_s, {project}, {}},
                                   {u"landscape"_s, {project, u"portrait"_s}, {}},
                                   {u"portrait"_s, {project, u"landscape"_s}, {}},
                                   {u"bleed"_s, {project}, {}},
                                   {u"binding"_s, {project}, {}},
                                   {u"my-entries"_s, {project, u"entries"_s}, {}},
                                   {u"entry-text"_s, {project}, {}},
                                   {u"entry-times"_s, {project}, {}},
                                   {u"author"_s, {project}, {}},
                                   {u"dpi"_s, {}, {}},
                                   {u"jobs"_s, {}, {}},
                                   {u"press"_s, {u"tiles"_s, u"n-up"_s}, {}},
                                   {u"no-marks"_s, {}, {}},
                                   {u"bleed-edge"_s, {}, {}},
                                   {u"keep-photo-colors"_s, {}, {}},
                                   {u"ink-limit"_s, {}, {}},
                                   {u"sheet-margin"_s, {}, {}},
                                   {u"no-overwrite"_s, {u"overwrite"_s}, {}},
                                   {u"quiet"_s, {u"verbose"_s}, {}},
                                   {u"verbose"_s, {u"quiet"_s}, {}}};
    return rules;
}

const Rule *ruleOf(const QString &name)
{
    const auto rule =
        std::find_if(rules().cbegin(), rules().cend(), [&](const Rule &known) { return known.name == name; });
    return rule == rules().cend() ? nullptr : &*rule;
}

bool countsBeside(const Rule &rule, const MvCliArguments &call)
{
    return (rule.needs.isEmpty() || call.has(rule.needs)) &&
           std::none_of(rule.givesWayTo.cbegin(), rule.givesWayTo.cend(),
                        [&](const QString &other) { return call.has(other); });
}

QString withoutQuotes(const QString &value)
{
    const bool isQuoted = value.size() > 1 && value.startsWith(u'"') && value.endsWith(u'"');
    return isQuoted ? value.mid(1, value.size() - 2) : value;
}

} // namespace

QString MvCliConfig::path()
{
    const QString named = qEnvironmentVariable("MVCALENDAR_CONFIG");
    if (!named.isEmpty())
        return named;
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    const QString usual = folder.filePath(u"mvcalendar/mvcalendar.conf"_s);
    return QFile::exists(usual) ? usual : QString();
}

QStringList MvCliConfig::names()
{
    QStringList names;
    for (const Rule &rule : rules())
        names.append(rule.name);
    return names;
}

// ---- reading

MvCliConfig MvCliConfig::read(const QString &path, const QStringList &commands)
{
    MvCliConfig config;
    config.m_path = QDir::toNativeSeparators(path);
    if (path.isEmpty())
        return config;
    QFile file(path);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        config.m_error = tr("%1 ist keine Datei").replace(u"%1"_s, config.m_path);
    else if (!file.open(QIODevice::ReadOnly))
        config.m_error = config.m_path + u": "_s + file.errorString();
    else if (file.size() > largestFile)
        config.m_error = tr("%1: die Datei ist zu groß für Einstellungen").replace(u"%1"_s, config.m_path);
    if (!config.isOk())
        return config;
    QString section;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (qsizetype i = 0; i < lines.size() && config.isOk(); ++i)
        config.readLine(lines.at(i).trimmed(), int(i) + 1, commands, section);
    return config;
}

void MvCliConfig::readLine(const QString &text, int number, const QStringList &commands, QString &section)
{
    if (text.isEmpty() || text.startsWith(u'#'))
        return;
    if (text.startsWith(u'[')) {
        section = text.mid(1).section(u']', 0, 0).trimmed();
        if (!text.endsWith(u']') || !commands.contains(section))
            fail(number, tr("%1 ist kein Abschnitt; erlaubt sind die Befehle: %2").arg(text, commands.join(u", "_s)));
        return;
    }
    const QString name = text.section(u'=', 0, 0).trimmed();
    if (!ruleOf(name)) {
        fail(number, tr("„%1“ gibt es hier nicht; erlaubt sind %2").arg(name, names().join(u", "_s)) +
                         MvNearMiss::describe(name, names()));
        return;
    }
    const bool hasValue = text.contains(u'=');
    m_lines.append({section, name, hasValue ? withoutQuotes(text.section(u'=', 1).trimmed()) : QString(), number});
}

QString MvCliConfig::place(int line) const
{
    return tr("%1, Zeile %2").arg(m_path, QString::number(line));
}

void MvCliConfig::fail(int line, const QString &what)
{
    m_error = place(line) + u": "_s + what;
}

// ---- beside the call

MvOutcome MvCliConfig::applyTo(MvCliArguments &call, const QString &command, const QList<MvCliOption> &options) const
{
    const MvCliArguments given = call;
    for (const Line &line : m_lines) {
        if (!line.section.isEmpty() && line.section != command)
            continue;
        const auto option = std::find_if(options.cbegin(), options.cend(),
                                         [&](const MvCliOption &known) { return known.name == line.name; });
        if (option == options.cend()) {
            if (line.section.isEmpty())
                continue; // other commands have it
            return {place(line.number) + u": "_s + tr("%1 kennt --%2 nicht").arg(command, line.name), {}};
        }
        if (option->value.isEmpty() != line.value.isEmpty()) {
            const QString what = option->value.isEmpty() ? tr("--%1 nimmt keinen Wert").arg(line.name)
                                                         : tr("nach --%1 fehlt der Wert").arg(line.name);
            return {place(line.number) + u": "_s + what, {}};
        }
        if (!given.has(line.name) && countsBeside(*ruleOf(line.name), given))
            call.set(line.name, line.value, line.number);
    }
    return {};
}

QString MvCliConfig::placeOf(const QString &error, const MvCliArguments &call) const
{
    for (const Line &line : m_lines) {
        if (call.line(line.name) == line.number && error.startsWith(u"--"_s + line.name + u' '))
            return u" ("_s + place(line.number) + u')';
    }
    return {};
}
