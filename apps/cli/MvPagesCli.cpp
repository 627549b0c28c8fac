// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvPagesCli.h"

#include "MvCalendar/MvHolidayEntries.h"
#include "MvCalendar/MvICalendar.h"
#include "MvColorsCommand.h"
#include "MvCompletion.h"
#include "MvCore/MvBackground.h"
#include "MvEntriesCommand.h"
#include "MvNewCommand.h"
#include "MvPackCommand.h"
#include "MvRenderCommand.h"
#include "MvSchemaNames.h"
#include "MvTemplatesCommand.h"
#include "MvThemesCommand.h"
#include "MvValidateCommand.h"
#include "batch/MvBatchCommand.h"
#include "batch/MvBatchWorker.h"
#include "plain/MvHolidaysCommand.h"
#include "plain/MvRegionsCommand.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

MvLayoutsCommand::Layouts allLayouts()
{
    return MvSchemaNames::rows(MvSchemaNames::schemata(MvSchemaNames::Kind::Layouts));
}

QByteArray toICalendar(const MvCalendariumHolidayConfig &config, int firstYear, int lastYear)
{
    const MvHolidayEntries::Kinds all(MvHolidayEntries::Holidays | MvHolidayEntries::Vacations);
    return MvICalendar::toBytes(MvHolidayEntries::of(config, firstYear, lastYear, all));
}

MvCli::Commands allCommands()
{
    MvCli::Commands commands;
    commands.push_back(std::make_unique<MvRenderCommand>());
    commands.push_back(std::make_unique<MvBatchCommand>());
    commands.push_back(std::make_unique<MvNewCommand>());
    commands.push_back(std::make_unique<MvValidateCommand>());
    commands.push_back(std::make_unique<MvPackCommand>());
    commands.push_back(std::make_unique<MvThemesCommand>());
    commands.push_back(std::make_unique<MvTemplatesCommand>());
    commands.push_back(std::make_unique<MvLayoutsCommand>(allLayouts));
    commands.push_back(std::make_unique<MvColorsCommand>());
    commands.push_back(std::make_unique<MvRegionsCommand>());
    commands.push_back(std::make_unique<MvHolidaysCommand>(toICalendar));
    commands.push_back(std::make_unique<MvEntriesCommand>());
    return commands;
}

} // namespace

MvPagesCli::MvPagesCli()
    : MvCli(allCommands())
{}

bool MvPagesCli::hasPages(const QStringList &arguments) const
{
    const MvCliCommand *command = find(arguments.value(0));
    return arguments.value(0) == MvBatchWorker::name() || (command && command->hasPages());
}

MvCliCommand::Result MvPagesCli::dispatch(const QStringList &arguments, const MvCliCommand::Streams &streams) const
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) && !MvBackground::keepThreads())
        return {MvCliCommand::Failed, MvBackground::noThreads()};
    if (arguments.value(0) == u"complete"_s) { // for the shells
        MvCompletion(commands()).print(arguments.mid(1), streams.out);
        return {};
    }
    if (arguments.value(0) == MvBatchWorker::name())
        return {MvBatchWorker().run(), {}};
    return MvCli::dispatch(arguments, streams);
}
