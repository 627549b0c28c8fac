// SPDX-License-Identifier: LGPL-2.1-or-later
// What the program loads for calls that are not plain.
#include "MvFoto/MvImageLoader.h"
#include "MvModelBase/MvFontSupply.h"
#include "MvPagesCli.h"
#include "plain/MvProgram.h"

#include <QGuiApplication>

#include <memory>

namespace {

/// Fonts and pictures are there for pages alone: it takes as long to start them as to print a list.
std::unique_ptr<QCoreApplication> createApplication(const MvPagesCli &cli, int &argc, char **argv)
{
    if (cli.hasPages(MvProgram::arguments(argc, argv))) {
        MvFontSupply::makeOnDemand();
        return std::make_unique<QGuiApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

extern "C" Q_DECL_EXPORT int mvRunPages(int argc, char **argv)
{
    const MvPagesCli cli;
    const std::unique_ptr<QCoreApplication> application = createApplication(cli, argc, argv);
    MvImageLoader::raiseProcessLimit();
    return MvProgram::run(cli);
}
