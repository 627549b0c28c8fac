// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvLoadedModule.h"
#include "MvCore/MvSafeFileWriter.h"
#include "plain/MvCli.h"
#include "plain/MvProgram.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

/// The program with all commands, in a module of its own: it takes longer to load than most lists to print.
int runWithPages(int argc, char **argv)
{
    QString error;
    if (auto *run = MvLoadedModule("MvPages").function<int(int, char **)>("mvRunPages", &error))
        return run(argc, argv);
    std::fprintf(stderr, "mvcalendar: %s\n", qPrintable(error));
    return MvCliCommand::Failed;
}

} // namespace

int main(int argc, char **argv)
{
    MvProgram::prepare();
    const MvCli cli;
    if (!cli.isPlain(MvProgram::arguments(argc, argv)))
        return runWithPages(argc, argv);
    const QCoreApplication application(argc, argv);
    MvSafeFileWriter::finishInterrupted(); // as with pages
    return MvProgram::run(cli);
}
