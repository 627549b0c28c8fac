// SPDX-License-Identifier: LGPL-2.1-or-later
#include "plain/MvCli.h"

#include "plain/MvCliConfig.h"
#include "plain/MvHolidaysCommand.h"
#include "plain/MvLayoutsCommand.h"
#include "plain/MvNearMiss.h"
#include "plain/MvRegionsCommand.h"
#include "plain/MvTextTable.h"

using namespace Qt::StringLiterals;

namespace {

const QString &programName()
{
    static const QString name = u"mvcalendar"_s;
    return name;
}

bool asksForHelp(const QStringList &arguments)
{
    return arguments.contains(u"--help"_s) || arguments.contains(u"-h"_s);
}

/// Of all commands, as they are offered.
const QStringList &commandNames()
{
    static const QStringList names{u"render"_s, u"batch"_s,   u"new"_s,       u"validate"_s,
                                   u"pack"_s,   u"themes"_s,  u"templates"_s, u"layouts"_s,
                                   u"colors"_s, u"regions"_s, u"holidays"_s,  u"entries"_s};
    return names;
}

/// Hints and errors: one line each, with the program's name in front.
void printLines(const QString &text, QTextStream &err)
{
    for (const QString &line : text.split(u'\n', Qt::SkipEmptyParts))
        err << programName() << ": " << line << '\n';
}

} // namespace

MvCli::MvCli()
{
    m_commands.push_back(std::make_unique<MvLayoutsCommand>(MvLayoutCatalogue::layouts));
    m_commands.push_back(std::make_unique<MvRegionsCommand>());
    m_commands.push_back(std::make_unique<MvHolidaysCommand>());
}

bool MvCli::isPlain(const QStringList &arguments) const
{
    const MvCliCommand *command = find(arguments.value(0));
    return arguments.value(0) == u"--version"_s || (command && command->isPlain(arguments.mid(1)));
}

int MvCli::run(const QStringList &arguments, QTextStream &out, QTextStream &err) const
{
    QString hintText;
    QTextStream hints(&hintText);
    MvCliCommand::Result result = dispatch(arguments, {out, hints, &err});
    out.flush();
    if (result.code == MvCliCommand::Done && out.status() != QTextStream::Ok)
        result = {MvCliCommand::Failed, tr("die Ausgabe lässt sich nicht schreiben")};
    hints.flush();
    printLines(hintText, err);
    printLines(result.error.simplified(), err);
    err.flush();
    return result.code;
}

MvCliCommand::Result MvCli::dispatch(const QStringList &arguments, const MvCliCommand::Streams &streams) const
{
    if (arguments.isEmpty())
        return {
            MvCliCommand::Misused,
            tr("es fehlt der Befehl; erlaubt sind %1 (Hilfe: mvcalendar --help)").arg(commandNames().join(u", "_s))};
    if (arguments.first() == u"--version"_s) {
        streams.out << programName() << ' ' << QCoreApplication::applicationVersion() << '\n';
        return {};
    }
    const bool isHelpCommand = arguments.first() == u"help"_s;
    const QStringList rest = arguments.mid(isHelpCommand ? 1 : 0);
    if (rest.isEmpty() || rest.first() == u"--help"_s || rest.first() == u"-h"_s) {
        printHelp(streams.out);
        return {};
    }

    const MvCliCommand *command = find(rest.first());
    if (!command)
        return {MvCliCommand::Misused,
                tr("unbekannter Befehl „%1“; erlaubt sind %2").arg(rest.first(), commandNames().join(u", "_s)) +
                    MvNearMiss::describe(rest.first(), commandNames())};
    if (isHelpCommand || asksForHelp(rest)) {
        printHelp(*command, streams.out);
        return {};
    }
    return runCommand(*command, rest.mid(1), streams);
}

MvCliCommand::Result MvCli::runCommand(const MvCliCommand &command, const QStringList &arguments,
                                       const MvCliCommand::Streams &streams) const
{
    const QList<MvCliOption> options = command.options() + MvCliCommand::commonOptions();
    MvCliArguments call;
    if (const MvOutcome parsed = call.parse(arguments, options); !parsed.isOk())
        return {MvCliCommand::Misused, tr("%1 (Hilfe: mvcalendar %2 --help)").arg(parsed.error, command.name())};
    const MvCliConfig config =
        MvCliConfig::read(call.has(u"no-config"_s) ? QString() : MvCliConfig::path(), commandNames());
    if (!config.isOk())
        return {MvCliCommand::Misused, config.error()};
    if (const MvOutcome applied = config.applyTo(call, command.name(), options); !applied.isOk())
        return {MvCliCommand::Misused, applied.error};

    const bool isQuiet = call.has(u"quiet"_s);
    if (isQuiet && call.has(u"verbose"_s)) {
        const QString error = tr("--quiet und --verbose schließen einander aus");
        return {MvCliCommand::Misused, error + config.placeOf(error, call)};
    }
    QString unsaid;
    QTextStream silence(&unsaid);
    MvCliCommand::Result result =
        command.run(call, {streams.out, isQuiet ? silence : streams.hints,
                           call.has(u"verbose"_s) ? streams.progress : nullptr, isQuiet, streams.progress});
    if (result.code == MvCliCommand::Misused)
        result.error += config.placeOf(result.error, call);
    return result;
}

const MvCliCommand *MvCli::find(const QString &name) const
{
    for (const auto &command : m_commands)
        if (command->name() == name)
            return command.get();
    return nullptr;
}

void MvCli::printHelp(QTextStream &out) const
{
    out << tr("mvcalendar setzt und druckt Kalender.") << "\n\n" << tr("Befehle:") << '\n';
    MvTextTable table;
    for (const auto &command : m_commands)
        table.addRow({u"  "_s + command->name(), command->summary()});
    table.print(out);
    out << '\n' << tr("Beispiele:") << '\n';
    for (const auto &command : m_commands)
        for (const QString &example : command->examples())
            out << "  mvcalendar " << example << '\n';
    out << '\n'
        << tr("Optionen eines Befehls: mvcalendar BEFEHL --help. Version: mvcalendar --version.") << '\n'
        << tr("Rückgabewerte: 0 fertig; 1 etwas ließ sich nicht lesen oder schreiben; 2 der Aufruf war falsch; 3 "
              "validate: etwas würde schlecht gedruckt; 4 batch: unterbrochen, der nächste Lauf macht weiter.")
        << '\n'
        << tr("Was immer gelten soll, steht in ~/.config/mvcalendar/mvcalendar.conf, eine Zeile „country = AT“ je "
              "Option.")
        << '\n';
}

void MvCli::printHelp(const MvCliCommand &command, QTextStream &out)
{
    out << "mvcalendar " << command.name() << ": " << command.summary() << "\n\n" << tr("Optionen:") << '\n';
    MvTextTable table;
    for (const MvCliOption &option : command.options() + MvCliCommand::commonOptions()) {
        const QString name = MvCliArguments::describe(option.name);
        table.addRow({u"  "_s + (option.isOperand ? u'[' + name + u']' : name) +
                          (option.value.isEmpty() ? QString() : u' ' + option.value),
                      option.help});
    }
    table.print(out);
    out << '\n' << tr("Beispiele:") << '\n';
    for (const QString &example : command.examples())
        out << "  mvcalendar " << example << '\n';
}
