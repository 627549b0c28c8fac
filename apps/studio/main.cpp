// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvOutOfMemory.h"
#include "MvCore/MvProcessMemory.h"
#include "MvStudioApplication.h"

#include <QApplication>

#include <cstdio>

namespace {

/// Help, version and wrong calls need no screen.
MvStudioOptions parseWithoutScreen(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    MvStudioApplication::setUpLanguage(MvStudioOptions::parse(arguments));
    return MvStudioOptions::parse(arguments); // messages are in that language now
}

} // namespace

int main(int argc, char **argv)
{
    MvStudioApplication::setUpProcess(QStringLiteral(MV_VERSION));
    const MvStudioOptions early = parseWithoutScreen(argc, argv);
    if (!early.message().isEmpty()) {
        std::fputs(early.message().toLocal8Bit().constData(), early.exitCode() == 0 ? stdout : stderr);
        return early.exitCode();
    }
    MvProcessMemory::giveBackAtOnce();
    const QApplication application(argc, argv);
    MvOutOfMemory::install(QStringLiteral("mvcalendar-studio"), 1);
    MvStudioApplication studio(MvStudioOptions::parse(QCoreApplication::arguments()));
    studio.start();
    return QApplication::exec();
}
